#include "workbench/ChangeText.h"

#include "workbench/Vocabulary.h"

#include <QCoreApplication>

namespace workbench {

namespace {

constexpr int kMostNamed = 5;

QString nameOf(const CompareRow& row)
{
    const QString where = row.cell == 0 ? translated(QT_TRANSLATE_NOOP("workbench", "Table")) : row.label;
    return where + QStringLiteral(": ") + translated(row.what);
}

} // namespace

QString changeText(const std::vector<CompareRow>& rows)
{
    QStringList named;
    int changes = 0;
    for (const CompareRow& row : rows) {
        changes += row.isDifferent;
        if (row.isDifferent && changes <= kMostNamed)
            named << nameOf(row);
    }
    if (changes > kMostNamed)
        named << QStringLiteral("…");
    named.prepend(QCoreApplication::translate("workbench", "%n difference(s)", nullptr, changes));
    return named.join(QStringLiteral(" · "));
}

} // namespace workbench
