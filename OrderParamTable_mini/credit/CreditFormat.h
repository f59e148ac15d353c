#pragma once

#include <QString>

namespace TC {

/// The empty text, and the text of a figure that is not there.
const QString& noText();
const QString& zeroText();

/// A quantity as the credit table shows it: a whole number.
QString quantityText(int value);

/// An amount as the credit table shows it: two decimals, "非法值" where it cannot be shown.
QString moneyText(double value);

} // namespace TC
