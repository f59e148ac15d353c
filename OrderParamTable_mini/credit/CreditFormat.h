#pragma once

#include <QString>

namespace TC {

/// A quantity as the credit table shows it: a whole number.
QString quantityText(int value);

/// An amount as the credit table shows it: two decimals, "非法值" where it cannot be shown.
QString moneyText(double value);

} // namespace TC
