#include "contract/recorder/CallLog.h"
#include "contract/recorder/Cells.h"
#include "contract/recorder/State.h"

#include <WQ/CMultiParamsTable.h>

// The cell table: reading and changing what cells hold. A missing cell answers nothing and takes nothing.
namespace WQ {

using recorder::Ask;
using recorder::Do;
using recorder::Id;
using recorder::record;

CMultiParamsTableItem* CMultiParamsTable::getItem(int id) const
{
    record(Ask, QStringLiteral("table.getItem"), Id{id});
    const auto found = d->items.find(id);
    return found == d->items.end() ? nullptr : found->second.get();
}

double CMultiParamsTable::itemDouble(int id) const
{
    record(Ask, QStringLiteral("table.itemDouble"), Id{id});
    const CellItem* const cell = d->cell(id);
    return cell ? cell->number : 0.0;
}

int CMultiParamsTable::itemInt(int id) const
{
    record(Ask, QStringLiteral("table.itemInt"), Id{id});
    const CellItem* const cell = d->cell(id);
    return cell ? int(cell->number) : 0;
}

QVariant CMultiParamsTable::itemData(int id)
{
    record(Ask, QStringLiteral("table.itemData"), Id{id});
    const CellItem* const cell = d->cell(id);
    return cell ? cell->currentData() : QVariant();
}

QString CMultiParamsTable::itemText(int id)
{
    record(Ask, QStringLiteral("table.itemText"), Id{id});
    const CellItem* const cell = d->cell(id);
    return cell ? cell->text : QString();
}

QString CMultiParamsTable::itemUnit(int id)
{
    record(Ask, QStringLiteral("table.itemUnit"), Id{id});
    const CellItem* const cell = d->cell(id);
    return cell ? cell->unitText() : QString();
}

EWqTimeRangeType CMultiParamsTable::itemTimeRangeType(int id)
{
    record(Ask, QStringLiteral("table.itemTimeRangeType"), Id{id});
    return EWqTimeRangeType(recorder::state().timeRangeType);
}

QPair<int, int> CMultiParamsTable::timeRange(int id)
{
    record(Ask, QStringLiteral("table.timeRange"), Id{id});
    return recorder::state().timeRange;
}

int CMultiParamsTable::timeElapse(int id) const
{
    record(Ask, QStringLiteral("table.timeElapse"), Id{id});
    return recorder::state().timeElapse;
}

QPair<double, double> CMultiParamsTable::cellRange(int id)
{
    record(Ask, QStringLiteral("table.cellRange"), Id{id});
    const CellItem* const cell = d->cell(id);
    if (!cell || cell->units.isEmpty())
        return {};
    const CParamCellUnitInfo& unit = cell->units.at(cell->unit);
    return {unit.min.toDouble(), unit.max.toDouble()};
}

void CMultiParamsTable::resetCellRange(int id, double min, double max)
{
    record(Do, QStringLiteral("table.resetCellRange"), Id{id}, min, max);
    if (CellItem* const cell = d->cell(id)) {
        if (!cell->units.isEmpty()) {
            cell->units[cell->unit].min = min;
            cell->units[cell->unit].max = max;
        }
    }
}

void CMultiParamsTable::setItemDouble(int id, double value)
{
    record(Do, QStringLiteral("table.setItemDouble"), Id{id}, value);
    if (CellItem* const cell = d->cell(id))
        cell->number = value;
}

void CMultiParamsTable::setItemInt(int id, int value)
{
    record(Do, QStringLiteral("table.setItemInt"), Id{id}, value);
    if (CellItem* const cell = d->cell(id))
        cell->number = value;
}

void CMultiParamsTable::setCheckDouble(int id, bool checked, double value, bool constant)
{
    record(Do, QStringLiteral("table.setCheckDouble"), Id{id}, checked, value, constant);
    if (CellItem* const cell = d->cell(id))
        cell->number = value;
}

void CMultiParamsTable::setComboData(int id, QVariant value)
{
    record(Do, QStringLiteral("table.setComboData"), Id{id}, value);
    CellItem* const cell = d->cell(id);
    const int index = cell ? cell->values.indexOf(value) : -1;
    if (index >= 0)
        cell->index = index;
}

void CMultiParamsTable::resetComboData(int id, const QStringList& texts, const QVector<QVariant>& values,
                                       int currentIndex)
{
    record(Do, QStringLiteral("table.resetComboData"), Id{id}, texts, values, currentIndex);
    if (CellItem* const cell = d->cell(id)) {
        cell->texts = texts;
        cell->values = values;
        cell->index = currentIndex;
    }
}

void CMultiParamsTable::setItemText(int id, QString text)
{
    record(Do, QStringLiteral("table.setItemText"), Id{id}, text);
    if (CellItem* const cell = d->cell(id))
        cell->text = text;
}

void CMultiParamsTable::setItemName(int id, QString name)
{
    record(Do, QStringLiteral("table.setItemName"), Id{id}, name);
    if (CellItem* const cell = d->cell(id))
        cell->label = name;
}

void CMultiParamsTable::setItemUnit(int id, QString unit)
{
    record(Do, QStringLiteral("table.setItemUnit"), Id{id}, unit);
    CellItem* const cell = d->cell(id);
    if (!cell || cell->units.isEmpty())
        return;
    const int index = cell->unitOf(unit);
    if (index >= 0)
        cell->unit = index;
    else
        cell->units[cell->unit].text = unit;
}

void CMultiParamsTable::setItemUnit(int id, QString unit, double min, double max, double step, bool makeCurrent)
{
    record(Do, QStringLiteral("table.setItemUnit"), Id{id}, unit, min, max, step, makeCurrent);
    CellItem* const cell = d->cell(id);
    const int index = cell ? cell->unitOf(unit) : -1;
    if (index < 0)
        return;
    cell->units[index].min = min;
    cell->units[index].max = max;
    if (makeCurrent)
        cell->unit = index;
}

void CMultiParamsTable::setItemTick(int id, QString unit, double step)
{
    record(Do, QStringLiteral("table.setItemTick"), Id{id}, unit, step);
}

} // namespace WQ
