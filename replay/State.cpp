#include "replay/State.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "replay/CellState.h"
#include "replay/DialogState.h"
#include "replay/ModeButtons.h"
#include "replay/Values.h"

#include <OrderParamTable_mini/credit/CCreditParamTable.h>
#include <OrderParamTable_mini/tables/CBaseTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CCodeOrderParamTable.h>
#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>
#include <OrderParamTable_mini/tables/CHpfBasketTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CStopLossOrderParamTable.h>

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CPushButton.h>
#include <WQ/CScrollArea.h>
#include <WQ/CWidgetList.h>

namespace replay {

namespace {

template <class Class>
bool isA(const QWidget* object)
{
    return dynamic_cast<const Class*>(object) != nullptr;
}

struct ClassName
{
    const char* name;
    bool (*matches)(const QWidget*);
    const QMetaObject* inherited; ///< what a class without a meta-object of its own answers
};

// clang-format off
// Derived classes before their bases.
const ClassName kClassNames[] = {
    {"CGlobalOrderParamTable",    isA<TC::CGlobalOrderParamTable>,    &TC::COrderParamBaseTable::staticMetaObject},
    {"CCodeOrderParamTable",      isA<TC::CCodeOrderParamTable>,      &TC::COrderParamBaseTable::staticMetaObject},
    {"CStopLossOrderParamTable",  isA<TC::CStopLossOrderParamTable>,  &TC::COrderParamBaseTable::staticMetaObject},
    {"COrderParamBaseTable",      isA<TC::COrderParamBaseTable>,      &TC::COrderParamBaseTable::staticMetaObject},
    {"CCreditParamTable",         isA<TC::CCreditParamTable>,         &WQ::CBaseWidget::staticMetaObject},
    {"CBaseTaskParamWidget",      isA<TC::CBaseTaskParamWidget>,      &WQ::CFloatWidget::staticMetaObject},
    {"CHpfBasketTaskParamWidget", isA<TC::CHpfBasketTaskParamWidget>, &WQ::CFloatWidget::staticMetaObject},
};
// clang-format on

std::string withoutNamespace(const std::string& name)
{
    const std::size_t colon = name.rfind(':');
    return colon == std::string::npos ? name : name.substr(colon + 1);
}

std::string classNameOf(const QWidget* object)
{
    for (const ClassName& row : kClassNames) {
        if (row.matches(object) && object->metaObject() == row.inherited)
            return row.name;
    }
    return withoutNamespace(object->metaObject()->className());
}

Json sizeOf(const QWidget& widget)
{
    return Json::array({widget.width(), widget.height()});
}

Json stripState(const WQ::CWidgetList* strip)
{
    if (!strip)
        return nullptr;
    Json json = Json::object();
    json["hidden"] = strip->isHidden();
    json["height"] = strip->height();
    return json;
}

Json buttonState(const WQ::CPushButton& button, const QStringList& visible)
{
    Json json = Json::object();
    json["id"] = button.id();
    json["text"] = written(button.text());
    json["checked"] = button.isChecked();
    json["hidden"] = isHidden(button, visible);
    return json;
}

Json buttonStates(WQ::CDropDownButtonGroup* group)
{
    Json json = Json::array();
    if (!group)
        return json;
    const QStringList visible = visibleIds(*group);
    for (const int id : group->getButtonList()) {
        if (const WQ::CPushButton* button = pushButton(*group, id))
            json.push_back(buttonState(*button, visible));
    }
    return json;
}

// The help button tells a screen reader whether it is marked. A group makes it when it is first needed.
Json helpState(WQ::CDropDownButtonGroup* group)
{
    if (!group)
        return nullptr;
    group->resetLayout();
    const QAbstractButton* const help = helpButton(*group);
    Json json = Json::object();
    json["hidden"] = !help || help->isHidden();
    json["critical"] = help && !help->accessibleDescription().isEmpty();
    return json;
}

Json gridState(const WQ::CMultiParamsTable& grid)
{
    Json json = Json::object();
    json["hidden"] = grid.isHidden();
    json["width"] = grid.width();
    json["height"] = grid.height();
    json["realHeight"] = grid.realHeight();
    return json;
}

Json scrollState(const WQ::CScrollArea* scroll)
{
    if (!scroll)
        return nullptr;
    const QRect place = scroll->geometry();
    Json json = Json::object();
    json["hidden"] = scroll->isHidden();
    json["geometry"] = Json::array({place.x(), place.y(), place.width(), place.height()});
    return json;
}

Json filterState(const WQ::CMultiParamsTable& grid)
{
    const WQ::CellModel& model = WQ::CMultiParamsTablePrivate::of(&grid)->model();
    Json json = Json::object();
    json["all"] = written(model.allSet());
    json["visible"] = written(model.visibleSet());
    json["blacklist"] = written(model.blacklist());
    json["expanded"] = model.isExpanded();
    return json;
}

Json cellsOf(const WQ::CMultiParamsTable* grid)
{
    return grid ? cellStates(*grid) : Json::array();
}

Json tableState(const TC::COrderParamBaseTable& table)
{
    // Two getters of the library and one of the group are not const, and change nothing all the same.
    auto& getters = const_cast<TC::COrderParamBaseTable&>(table);
    auto* const group = table.findChild<WQ::CDropDownButtonGroup*>();
    const WQ::CMultiParamsTable* const grid = getters.getMultiParamsTable();
    Json json = Json::object();
    json["class"] = classNameOf(&table);
    json["id"] = written(table.getId());
    json["orderType"] = written(table.orderType());
    json["operationType"] = written(table.getOperationType());
    json["priceType"] = written(table.priceType());
    json["stockCode"] = written(table.getStockCode());
    json["expand"] = getters.isExpand();
    json["size"] = sizeOf(table);
    json["strip"] = stripState(table.findChild<WQ::CWidgetList*>(QString(), Qt::FindDirectChildrenOnly));
    json["buttons"] = buttonStates(group);
    json["help"] = helpState(group);
    json["grid"] = grid ? gridState(*grid) : Json();
    json["scroll"] = scrollState(table.findChild<WQ::CScrollArea*>(QString(), Qt::FindDirectChildrenOnly));
    json["filter"] = grid ? filterState(*grid) : Json();
    json["cells"] = cellsOf(grid);
    return json;
}

Json creditState(const TC::CCreditParamTable& table)
{
    const auto* const grid = table.findChild<WQ::CMultiParamsTable*>(QString(), Qt::FindDirectChildrenOnly);
    Json json = Json::object();
    json["class"] = classNameOf(&table);
    json["size"] = sizeOf(table);
    json["cells"] = cellsOf(grid);
    json["columnWidth"] = grid ? Json(grid->columnWidth(0)) : Json();
    json["realHeight"] = grid ? Json(grid->realHeight()) : Json();
    json["param"] = written(table.param());
    return json;
}

} // namespace

Json stateOf(const QWidget* object)
{
    if (const auto* const table = dynamic_cast<const TC::COrderParamBaseTable*>(object))
        return tableState(*table);
    if (const auto* const table = dynamic_cast<const TC::CCreditParamTable*>(object))
        return creditState(*table);
    if (const auto* const dialog = dynamic_cast<const TC::CBaseTaskParamWidget*>(object))
        return dialogState(*dialog, classNameOf(dialog));
    if (const auto* const dialog = dynamic_cast<const TC::CHpfBasketTaskParamWidget*>(object))
        return dialogState(*dialog, classNameOf(dialog));
    return nullptr;
}

} // namespace replay
