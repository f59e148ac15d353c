#include "support/CellText.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"

#include <algorithm>

namespace support {

namespace {

using WQ::CellItem;
using WQ::CellKind;
using WQ::NumberUnit;

WQ::CellModel& modelOf(WQ::CMultiParamsTable& table)
{
    return WQ::CMultiParamsTablePrivate::of(&table)->model();
}

CellItem* cellOf(WQ::CMultiParamsTable& table, int id)
{
    WQ::CMultiParamsTableItem* item = table.getItem(id);
    return item ? item->cell() : nullptr;
}

QString number(double value)
{
    return QString::number(value, 'f', QLocale::FloatingPointShortest);
}

QString quoted(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString unitText(const NumberUnit& unit, bool current)
{
    QString text = current ? QStringLiteral("*") : QString();
    text += unit.text + QLatin1String(" (") + QLatin1String(unit.type == 2 ? "int " : "double ") + number(unit.min)
        + QLatin1String("..") + number(unit.max);
    if (unit.step > 0)
        text += QLatin1String(" step ") + number(unit.step);
    return text + QLatin1Char(')');
}

QString entriesOf(const WQ::ComboCell& combo)
{
    QStringList entries;
    for (int i = 0; i < combo.count(); ++i) {
        const QString mark = i == combo.currentIndex() ? QStringLiteral("*") : QString();
        entries << mark + combo.entryText(i) + QLatin1Char('=') + combo.entryData(i).toString();
    }
    return entries.join(QLatin1Char(' '));
}

QString numberValue(const WQ::NumberCell& cell)
{
    QStringList parts;
    if (cell.kind() == CellKind::CheckNumber)
        parts << QLatin1String(cell.isChecked() ? "[x] " : "[ ] ") + cell.checkText();
    parts << number(cell.number()) << QStringLiteral("in");
    for (int i = 0; i < cell.units().size(); ++i)
        parts << unitText(cell.units().at(i), i == cell.currentUnitIndex());
    return parts.join(QLatin1Char(' '));
}

QString rangeValue(const WQ::RangeCell& cell)
{
    return number(cell.low()) + cell.separator() + number(cell.high()) + QLatin1String(" in ")
        + unitText(cell.limits(), true);
}

QString valueOf(const CellItem& cell)
{
    switch (cell.kind()) {
    case CellKind::Combo:
        return entriesOf(static_cast<const WQ::ComboCell&>(cell));
    case CellKind::Number:
    case CellKind::CheckNumber:
        return numberValue(static_cast<const WQ::NumberCell&>(cell));
    case CellKind::Range:
        return rangeValue(static_cast<const WQ::RangeCell&>(cell));
    case CellKind::TimePeriod:
        return cell.text();
    case CellKind::Line:
    case CellKind::Text:
        return quoted(cell.text());
    }
    return {};
}

QString kindOf(const CellItem& cell)
{
    switch (cell.kind()) {
    case CellKind::Combo:
        return QStringLiteral("combo");
    case CellKind::Number:
        return static_cast<const WQ::NumberCell&>(cell).units().size() > 1 ? QStringLiteral("units")
                                                                           : QStringLiteral("number");
    case CellKind::CheckNumber:
        return QStringLiteral("check");
    case CellKind::Range:
        return QStringLiteral("range");
    case CellKind::TimePeriod:
        return QStringLiteral("period");
    case CellKind::Line:
        return QStringLiteral("line");
    case CellKind::Text:
        return QStringLiteral("text");
    }
    return {};
}

} // namespace

QString cellRow(WQ::CMultiParamsTable& table, int id)
{
    const CellItem* cell = cellOf(table, id);
    if (!cell)
        return QStringLiteral("0x%1 none").arg(id, 0, 16);
    QString row = QStringLiteral("0x%1 ").arg(id, 0, 16) + kindOf(*cell) + QLatin1Char(' ') + cell->label()
        + QLatin1String(": ") + valueOf(*cell);
    if (cell->isHidden())
        row += QLatin1String(" hidden");
    return row;
}

QStringList cellRows(WQ::CMultiParamsTable& table)
{
    QStringList rows;
    const WQ::CellModel& model = modelOf(table);
    for (int i = 0; i < model.cellCount(); ++i)
        rows << cellRow(table, model.itemAt(i)->id());
    return rows;
}

QString comboEntries(WQ::CMultiParamsTable& table, int id)
{
    const CellItem* cell = cellOf(table, id);
    if (!cell || cell->kind() != CellKind::Combo)
        return QStringLiteral("none");
    return entriesOf(static_cast<const WQ::ComboCell&>(*cell));
}

QSet<int> shownCells(WQ::CMultiParamsTable& table)
{
    WQ::CellModel& model = modelOf(table);
    QSet<int> shown;
    for (int row = 0; row < model.rowCount(); ++row)
        shown << model.cellAtRow(row)->id();
    return shown;
}

bool isHidden(WQ::CMultiParamsTable& table, int id)
{
    const CellItem* cell = cellOf(table, id);
    return !cell || cell->isHidden();
}

QSet<int> allItems(WQ::CMultiParamsTable& table)
{
    return modelOf(table).allSet();
}

QSet<int> filterBlacklist(WQ::CMultiParamsTable& table)
{
    return modelOf(table).blacklist();
}

QString idText(const QSet<int>& ids)
{
    QList<int> sorted(ids.begin(), ids.end());
    std::sort(sorted.begin(), sorted.end());
    QStringList texts;
    for (const int id : sorted)
        texts << QStringLiteral("0x%1").arg(id, 0, 16);
    return texts.join(QLatin1Char(' '));
}

} // namespace support
