#include "replay/Operation.h"

#include <WQ/CMultiParamsTable.h>

namespace replay {

namespace {

using Cells = WQ::CMultiParamsTable;

/// What can be asked of a cell's item; null for a missing one.
Json item(Cells& table, int id)
{
    const WQ::CMultiParamsTableItem* found = table.getItem(id);
    if (!found)
        return nullptr;
    return {{"id", found->id()},
            {"text", written(table.itemText(id))},
            {"unit", written(table.itemUnit(id))},
            {"data", written(table.itemData(id))}};
}

} // namespace

// clang-format off
const Operations& cellTableOperations()
{
    using Unit = void (Cells::*)(int, QString);
    using UnitLimits = void (Cells::*)(int, QString, double, double, double, bool);
    static const Operations operations = {
        operation<Cells>("addComboBox", &Cells::addComboBox,
                         "id, label, texts, values, currentIndex, flag, labelAlignment, valueAlignment"),
        operation<Cells>("addParamCell", &Cells::addParamCell,
                         "id, label, valueType, min, max, step, unit, value, constant"),
        operation<Cells>("addParamUnitCell", &Cells::addParamUnitCell, "id, label, units, value, constant"),
        operation<Cells>("addCheckParamUnitCell", &Cells::addCheckParamUnitCell,
                         "id, label, checkText, checked, units, value, constant"),
        operation<Cells>("addRangeCell", &Cells::addRangeCell,
                         "id, label, valueType, min, max, low, high, step, unit, constant, constant, separator, flag"),
        operation<Cells>("addTimePeriod", &Cells::addTimePeriod, "id, label, start, end"),
        operation<Cells>("addLineEdit", &Cells::addLineEdit, "id, label, text, validated, second"),

        operation<Cells>("getItem", &item, "id"),
        operation<Cells>("itemDouble", &Cells::itemDouble, "id"),
        operation<Cells>("itemInt", &Cells::itemInt, "id"),
        operation<Cells>("itemData", &Cells::itemData, "id"),
        operation<Cells>("itemText", &Cells::itemText, "id"),
        operation<Cells>("itemUnit", &Cells::itemUnit, "id"),
        operation<Cells>("itemTimeRangeType", &Cells::itemTimeRangeType, "id"),
        operation<Cells>("timeRange", &Cells::timeRange, "id"),
        operation<Cells>("timeElapse", &Cells::timeElapse, "id"),
        operation<Cells>("cellRange", &Cells::cellRange, "id"),

        operation<Cells>("resetCellRange", &Cells::resetCellRange, "id, min, max"),
        operation<Cells>("setItemDouble", &Cells::setItemDouble, "id, value"),
        operation<Cells>("setItemInt", &Cells::setItemInt, "id, value"),
        operation<Cells>("setCheckDouble", &Cells::setCheckDouble, "id, checked, value, flag"),
        operation<Cells>("setComboData", &Cells::setComboData, "id, value"),
        operation<Cells>("resetComboData", &Cells::resetComboData, "id, texts, values, currentIndex"),
        operation<Cells>("setItemText", &Cells::setItemText, "id, text"),
        operation<Cells>("setItemName", &Cells::setItemName, "id, name"),
        operation<Cells>("setItemUnit", static_cast<Unit>(&Cells::setItemUnit), "id, unit"),
        operation<Cells>("setItemUnit", static_cast<UnitLimits>(&Cells::setItemUnit),
                         "id, unit, min, max, step, makeCurrent"),
        operation<Cells>("setItemTick", &Cells::setItemTick, "id, unit, step"),

        operation<Cells>("setItemEditable", &Cells::setItemEditable, "id, editable"),
        operation<Cells>("setItemHidden", &Cells::setItemHidden, "id, hidden"),
        operation<Cells>("setItemFilterBlacklist", &Cells::setItemFilterBlacklist, "id, excluded"),
        operation<Cells>("clearFilterBlacklist", &Cells::clearFilterBlacklist),
        operation<Cells>("getVisibleItemIdSet", &Cells::getVisibleItemIdSet),
        operation<Cells>("setVisibleItemSet", &Cells::setVisibleItemSet, "ids"),
        operation<Cells>("addVisibleItemSet", &Cells::addVisibleItemSet, "id"),
        operation<Cells>("removeVisbleItemSet", &Cells::removeVisbleItemSet, "id"),
        operation<Cells>("setAllItemSet", &Cells::setAllItemSet, "ids"),
        operation<Cells>("addAllItemSet", &Cells::addAllItemSet, "id"),
        operation<Cells>("clearVisibleItem", &Cells::clearVisibleItem),
        operation<Cells>("showAllItems", &Cells::showAllItems),
        operation<Cells>("setExpand", &Cells::setExpand, "expand"),
        operation<Cells>("setCustomWidgetVisible", &Cells::setCustomWidgetVisible, "visible"),
        operation<Cells>("setMultiFilterWidgetParam", &Cells::setMultiFilterWidgetParam),
        operation<Cells>("setAllItemEnable", &Cells::setAllItemEnable, "enable"),
        operation<Cells>("setFontScale", &Cells::setFontScale, "fontScale"),
        operation<Cells>("realHeight", &Cells::realHeight),
        operation<Cells>("scaleChanged", &Cells::scaleChanged),
        operation<Cells>("themeChanged", &Cells::themeChanged),
    };
    return operations;
}
// clang-format on

} // namespace replay
