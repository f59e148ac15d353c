#include "benchmarks/OwnTable.h"

#include "reference/toolkit/cells/CellModel.h"

#include <QTime>

namespace bench {

namespace {

constexpr int kIntType = 2;
constexpr int kDoubleType = 6;

int typeOf(const Unit& unit)
{
    return unit.decimals == 0 ? kIntType : kDoubleType;
}

WQ::CParamCellUnitInfo info(const Unit& unit)
{
    return {unit.name(), typeOf(unit), unit.min, unit.max, unit.step > 0 ? QVariant(unit.step) : QVariant()};
}

void addChoice(WQ::CMultiParamsTable& table, const Row& row)
{
    QStringList texts = row.entries.texts();
    QVector<QVariant> values = row.entries.values();
    const Qt::Alignment alignment = Qt::AlignRight | Qt::AlignVCenter;
    table.addComboBox(row.id, row.name(), texts, values, int(row.value), false, alignment, alignment);
}

void addRow(WQ::CMultiParamsTable& table, const Row& row)
{
    const Unit& unit = row.unit;
    QTime start(9, 30);
    QTime end(15, 0);
    switch (row.kind) {
    case RowKind::Choice:
        return addChoice(table, row);
    case RowKind::Number:
        table.addParamCell(row.id, row.name(), typeOf(unit), unit.min, unit.max, unit.step, unit.name(), row.value, 4);
        return;
    case RowKind::UnitNumber:
        table.addParamUnitCell(row.id, row.name(), {info(unit), info(row.otherUnit)}, row.value, -1);
        return;
    case RowKind::CheckNumber:
        table.addCheckParamUnitCell(row.id, row.name(), checkText(), false, {info(unit), info(row.otherUnit)},
                                    row.value, -1);
        return;
    case RowKind::Range:
        table.addRangeCell(row.id, row.name(), typeOf(unit), unit.min, unit.max, row.value, unit.max, unit.step,
                           unit.name(), 1, -1, rangeSeparator(), false);
        return;
    case RowKind::Period:
        table.addTimePeriod(row.id, row.name(), start, end);
        return;
    case RowKind::Line:
        table.addLineEdit(row.id, row.name(), QString(), false, QString());
        return;
    }
}

} // namespace

void addRows(WQ::CMultiParamsTable& table)
{
    for (const Row& row : rows())
        addRow(table, row);
}

void showRows(WQ::CMultiParamsTable& table, const QSet<int>& shown)
{
    for (const Row& row : rows())
        table.setItemHidden(row.id, !shown.contains(row.id));
}

void takeValues(WQ::CMultiParamsTable& table, const Mode& mode)
{
    const Row& limited = rows()[positionOf(mode.limited)];
    const Unit& unit = mode.unit == 0 ? limited.unit : limited.otherUnit;
    table.setItemUnit(mode.limited, unit.name(), unit.min, unit.max, unit.step, true);
    for (const NumberChange& change : mode.numbers)
        table.setItemDouble(change.id, change.value);
}

QSet<int> shownRowsOf(WQ::CMultiParamsTable& table)
{
    const auto& cells = dynamic_cast<const WQ::CellModel&>(*table.model());
    QSet<int> shown;
    for (int i = 0; i < cells.cellCount(); ++i) {
        const WQ::CellItem* cell = cells.itemAt(i)->cell();
        if (cells.isShown(*cell))
            shown.insert(cell->id());
    }
    return shown;
}

QStringList rowNamesOf(WQ::CMultiParamsTable& table)
{
    const auto& cells = dynamic_cast<const WQ::CellModel&>(*table.model());
    QStringList names;
    for (int i = 0; i < cells.cellCount(); ++i) {
        const WQ::CellItem* cell = cells.itemAt(i)->cell();
        names.append(QStringLiteral("0x%1 %2").arg(QString::number(cell->id(), 16), cell->label()));
    }
    return names;
}

} // namespace bench
