#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

namespace TC {

/// Values remembered by operation type, by row.
using CreditValues = QMap<int, QMap<int, QVariant>>;

/// The credit parameter string: the operation type, then "+" and a group a remembered operation, a group being the
/// operation and "-" row "=" value for each row. Nothing is escaped.
QString writeCreditParameters(int operationType, const CreditValues& values);

/// Reads a credit parameter string into @p operationType and merges its groups into @p values. Answers false, and
/// changes nothing, for a text without a group separator. Groups of less than four entries and entries without "=" are
/// skipped, what is not a number reads as 0. One pass over the text, no lists.
bool readCreditParameters(const QString& text, int& operationType, CreditValues& values);

} // namespace TC
