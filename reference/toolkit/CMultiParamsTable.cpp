#include <WQ/CMultiParamsTable.h>

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/GuiThread.h"
#include "reference/toolkit/editors/CellFlash.h"

#include <WQ/CCheckParamUnitCellDelegate.h>
#include <WQ/CComboBoxDelegate.h>
#include <WQ/CParamCellDelegate.h>

#include <TC/CTimeService.h>

#include <QDateTime>

#include <utility>

namespace WQ {

namespace {

constexpr int kTextValueType = 10;

template <class Item, class Cell, class... Arguments>
std::unique_ptr<CMultiParamsTableItem> makeItem(Arguments&&... arguments)
{
    return std::make_unique<Item>(std::make_unique<Cell>(std::forward<Arguments>(arguments)...));
}

NumberUnit unitOf(int valueType, const QString& text, double min, double max, double step)
{
    CParamCellUnitInfo info;
    info.text = text;
    info.type = valueType;
    info.min = min;
    info.max = max;
    info.step = step;
    return numberUnit(info);
}

// A cell needs a unit to stand in, be it one without text and limits.
QVector<NumberUnit> unitsOf(const QList<CParamCellUnitInfo>& infos)
{
    QVector<NumberUnit> units;
    units.reserve(std::max(1, infos.size()));
    for (const CParamCellUnitInfo& info : infos)
        units.append(numberUnit(info));
    if (units.isEmpty())
        units.append(numberUnit(CParamCellUnitInfo()));
    return units;
}

template <class Cell>
const Cell* cellAs(const CMultiParamsTablePrivate& table, int id, CellKind kind)
{
    const CellItem* cell = table.model().cell(id);
    return cell && cell->kind() == kind ? static_cast<const Cell*>(cell) : nullptr;
}

// An open list follows at once: when the choice is the old one in the end, nothing else tells it of new entries.
template <class Change>
void changeChoice(CMultiParamsTablePrivate& table, int id, const Change& change)
{
    CellItem* const cell = table.model().cell(id);
    if (!cell || cell->kind() != CellKind::Combo)
        return;
    const QString before = cell->text();
    if (change(static_cast<ComboCell&>(*cell)))
        table.model().touchChoice(cell, before);
    table.changedUnseen(*cell);
}

qint64 clientTime()
{
    const TC::CTimeService* service = TC::getTimeService();
    return service ? service->currentTime() : QDateTime::currentSecsSinceEpoch();
}

} // namespace

int CMultiParamsTable::addComboBox(int id, QString label, QStringList& texts, QVector<QVariant>& values,
                                   int currentIndex, bool, QFlags<Qt::AlignmentFlag>, QFlags<Qt::AlignmentFlag>)
{
    checkGuiThread("CMultiParamsTable::addComboBox");
    return d->add(makeItem<CComboBoxDelegate, ComboCell>(id, std::move(label), texts, values, currentIndex));
}

int CMultiParamsTable::addParamCell(int id, QString label, int valueType, double min, double max, double step,
                                    QString unit, double value, int)
{
    checkGuiThread("CMultiParamsTable::addParamCell");
    if (valueType == kTextValueType)
        return d->add(makeItem<CParamCellDelegate, TextCell>(id, std::move(label), std::move(unit)));
    QVector<NumberUnit> units{unitOf(valueType, unit, min, max, step)};
    return d->add(makeItem<CParamCellDelegate, NumberCell>(id, std::move(label), std::move(units), value));
}

int CMultiParamsTable::addParamUnitCell(int id, QString label, QList<CParamCellUnitInfo> units, double value, double)
{
    checkGuiThread("CMultiParamsTable::addParamUnitCell");
    return d->add(makeItem<CParamCellDelegate, NumberCell>(id, std::move(label), unitsOf(units), value));
}

int CMultiParamsTable::addCheckParamUnitCell(int id, QString label, QString checkText, bool checked,
                                             QList<CParamCellUnitInfo> units, double value, double)
{
    checkGuiThread("CMultiParamsTable::addCheckParamUnitCell");
    return d->add(makeItem<CCheckParamUnitCellDelegate, NumberCell>(id, std::move(label), std::move(checkText), checked,
                                                                    unitsOf(units), value));
}

int CMultiParamsTable::addRangeCell(int id, QString label, int valueType, double min, double max, double low,
                                    double high, double step, QString unit, double, int, QString separator, bool)
{
    checkGuiThread("CMultiParamsTable::addRangeCell");
    return d->add(makeItem<CMultiParamsTableItem, RangeCell>(
        id, std::move(label), unitOf(valueType, unit, min, max, step), low, high, std::move(separator)));
}

int CMultiParamsTable::addTimePeriod(int id, QString label, QTime& start, QTime& end)
{
    checkGuiThread("CMultiParamsTable::addTimePeriod");
    return d->add(makeItem<CMultiParamsTableItem, PeriodCell>(id, std::move(label), start, end));
}

int CMultiParamsTable::addLineEdit(int id, QString label, QString text, bool validated, QString second)
{
    checkGuiThread("CMultiParamsTable::addLineEdit");
    const QString pattern = validated ? text : QString();
    const QString placeholder = validated ? QString() : second;
    return d->add(makeItem<CMultiParamsTableItem, LineCell>(id, std::move(label), validated ? second : text, pattern,
                                                            placeholder));
}

CMultiParamsTableItem* CMultiParamsTable::getItem(int id) const
{
    return d->model().item(id);
}

double CMultiParamsTable::itemDouble(int id) const
{
    const CellItem* cell = d->model().cell(id);
    return cell ? cell->number() : 0;
}

int CMultiParamsTable::itemInt(int id) const
{
    return wholeNumber(itemDouble(id));
}

QVariant CMultiParamsTable::itemData(int id)
{
    const CellItem* cell = d->model().cell(id);
    return cell ? cell->data() : QVariant();
}

QString CMultiParamsTable::itemText(int id)
{
    const CellItem* cell = d->model().cell(id);
    return cell ? cell->text() : QString();
}

QString CMultiParamsTable::itemUnit(int id)
{
    const CellItem* cell = d->model().cell(id);
    return cell ? cell->unit() : QString();
}

EWqTimeRangeType CMultiParamsTable::itemTimeRangeType(int id)
{
    const auto* period = cellAs<PeriodCell>(*d, id, CellKind::TimePeriod);
    return period ? period->rangeType() : TimeRangeDuration;
}

QPair<int, int> CMultiParamsTable::timeRange(int id)
{
    const auto* period = cellAs<PeriodCell>(*d, id, CellKind::TimePeriod);
    return period ? period->epochRange(clientTime()) : QPair<int, int>(0, 0);
}

int CMultiParamsTable::timeElapse(int id) const
{
    const auto* period = cellAs<PeriodCell>(*d, id, CellKind::TimePeriod);
    return period ? period->elapse() : 0;
}

QPair<double, double> CMultiParamsTable::cellRange(int id)
{
    const CellItem* cell = d->model().cell(id);
    return cell ? QPair<double, double>(cell->minimum(), cell->maximum()) : QPair<double, double>(0, 0);
}

void CMultiParamsTable::resetCellRange(int id, double min, double max)
{
    checkGuiThread("CMultiParamsTable::resetCellRange");
    d->change(id, [=](CellItem& cell) { return cell.setLimits(min, max); });
}

void CMultiParamsTable::setItemDouble(int id, double value)
{
    checkGuiThread("CMultiParamsTable::setItemDouble");
    d->change(
        id, [=](CellItem& cell) { return cell.setNumber(value); }, CellChange::Value);
}

void CMultiParamsTable::setItemInt(int id, int value)
{
    setItemDouble(id, value);
}

void CMultiParamsTable::setCheckDouble(int id, bool checked, double value, bool)
{
    checkGuiThread("CMultiParamsTable::setCheckDouble");
    d->change(id, [=](CellItem& cell) {
        if (cell.kind() != CellKind::CheckNumber)
            return false;
        const bool toggled = cell.setChecked(checked);
        return cell.setNumber(value) || toggled;
    });
}

void CMultiParamsTable::setComboData(int id, QVariant value)
{
    checkGuiThread("CMultiParamsTable::setComboData");
    changeChoice(*d, id, [&value](ComboCell& cell) { return cell.setData(value); });
}

void CMultiParamsTable::resetComboData(int id, const QStringList& texts, const QVector<QVariant>& values,
                                       int currentIndex)
{
    checkGuiThread("CMultiParamsTable::resetComboData");
    changeChoice(*d, id, [&](ComboCell& cell) { return cell.setEntries(texts, values, currentIndex); });
}

void CMultiParamsTable::setItemText(int id, QString text)
{
    checkGuiThread("CMultiParamsTable::setItemText");
    d->change(
        id, [&text](CellItem& cell) { return cell.setText(text); }, CellChange::Value);
}

void CMultiParamsTable::setItemName(int id, QString name)
{
    checkGuiThread("CMultiParamsTable::setItemName");
    if (d->change(id, [&name](CellItem& cell) { return cell.setLabel(name); }))
        d->labelsChanged();
}

void CMultiParamsTable::setItemUnit(int id, QString unit)
{
    checkGuiThread("CMultiParamsTable::setItemUnit");
    d->change(id, [&](CellItem& cell) {
        const UnitSwitch change(*d, cell);
        const bool seen = cell.setUnit(unit);
        change.tell();
        return seen;
    });
}

void CMultiParamsTable::setItemUnit(int id, QString unit, double min, double max, double step, bool makeCurrent)
{
    checkGuiThread("CMultiParamsTable::setItemUnit");
    d->change(id, [&](CellItem& cell) {
        const UnitSwitch change(*d, cell);
        const bool seen = cell.setUnit(unit, min, max, step, makeCurrent);
        change.tell();
        return seen;
    });
}

void CMultiParamsTable::setItemTick(int id, QString unit, double step)
{
    checkGuiThread("CMultiParamsTable::setItemTick");
    d->change(id, [&](CellItem& cell) { return cell.setTick(unit, step); });
}

void CMultiParamsTable::setItemEditable(int id, bool editable)
{
    checkGuiThread("CMultiParamsTable::setItemEditable");
    d->change(id, [=](CellItem& cell) { return cell.setEditable(editable); });
}

// Rules hide the same cells again and again: what changes nothing is not worth a look at the thread.
void CMultiParamsTable::setItemHidden(int id, bool hidden)
{
    CellItem* cell = d->model().cell(id);
    if (!cell || !cell->setHidden(hidden))
        return;
    checkGuiThread("CMultiParamsTable::setItemHidden");
    d->model().touchRows();
}

} // namespace WQ
