#include "model/TableModel.h"

#include <algorithm>

namespace model {

void TableModel::save()
{
    if (tableClass == TableClass::Probe)
        ++world.saves;
}

void TableModel::reloadParam()
{
    if (tableClass == TableClass::Probe)
        ++world.reloads;
}

bool TableModel::handleEvent(int event, int a, int b, const std::string& text, const Json& data)
{
    switch (event) {
    case 5:
        return a >= 600 && clicked(a, text);
    case 73:
        if (a == 0x1 && data.contains("variant")) {
            priceTypeName = text;
            takePriceType(data.at("variant").is_number() ? data.at("variant").get<int>() : 0);
        }
        if (a == 0x10)
            grid.setItemHidden(0x40, data.at("variant") != 11);
        save();
        fitHeight();
        world.hear(129, made.id, 0, text);
        return false;
    case 87:
    case 118:
        if (paramIndex >= 0)
            return false;
        if (a == 0x4000)
            grid.resetCellRange(0x8000, 0.5, grid.itemDouble(0x4000));
        else if (a == 0x200 && grid.find(0x400))
            grid.resetCellRange(0x400, grid.itemDouble(0x200), grid.find(0x400)->current().max);
        else if (a == 0x400 && grid.find(0x200))
            grid.resetCellRange(0x200, grid.find(0x200)->current().min, grid.itemDouble(0x400));
        fixSuperPrice();
        save();
        world.hear(129, made.id, 0, text);
        return false;
    case 101:
    case 102:
        save();
        world.hear(129, made.id, 0, "");
        return false;
    case 97:
        world.hear(130, made.id, 0, text);
        return true;
    case 124:
        saveVisibleFlag(expand);
        save();
        fitHeight();
        layOut();
        return false;
    case 248:
        if (orderType >= 0 && orderType <= 3)
            words.at(static_cast<std::size_t>(orderType)) = 0;
        resetCellVisibilities();
        return true;
    case 1071:
        layOut();
        return false;
    case 249:
        return true;
    case 1213:
        if (data.contains("int")) {
            priceTypeName = text;
            takePriceType(data.at("int").get<int>());
        }
        return true;
    default:
        static_cast<void>(b);
        return false;
    }
}

void TableModel::takePriceType(int type)
{
    priceType = type;
    if (paramIndex >= 0)
        paramPriceType = type;
}

bool TableModel::clicked(int button, const std::string& text)
{
    saveVisibleFlag(expand);
    save();
    if (button <= 603)
        plainMode(button, text);
    else
        parameterMode(button, text);
    if (operationType == -1 || operationType == -2)
        world.hear(1206, 0, 0, text, {{"widget", name}});
    const auto hint = hints.find(orderType);
    const bool critical = hint != hints.end() && hint->second;
    if (button > 603) {
        group.helpHidden = !(showAlgoHelpButton() && (orderType == 5 || orderType == 13));
        group.helpCritical = critical;
    } else if (showAlgoHelpButton()) {
        group.helpHidden = !(orderType == 1 || orderType == 2 || orderType == 5 || orderType == 13);
        group.helpCritical = critical;
    }
    announceOrderType();
    return true;
}

void TableModel::plainMode(int button, const std::string& text)
{
    paramIndex = -1;
    orderType = button - 600;
    resetPriceType();
    reloadParam();
    resetCellVisibilities();
    resetTableByPriceType();
    fixSuperPrice();
    updateCurrentPriceTypeName();
    world.hear(1064, made.id, orderType, text);
    if (priceType != -1)
        world.hear(1061, made.id, priceType, text);
    resetShowFixPrice();
    world.hear(129, made.id, 0, text);
    showCellArea(true);
}

void TableModel::parameterMode(int button, const std::string& text)
{
    paramIndex = button - 604;
    orderType = button - 600;
    resetPriceType();
    resetCellVisibilities();
    fixSuperPrice();
    world.hear(1064, made.id, orderType, text);
    reloadParam();
    updateCurrentPriceTypeName();
    world.hear(1061, made.id, paramPriceType, text);
    resetShowFixPrice();
    world.hear(129, made.id, 0, text);
    showCellArea(false);
}

void TableModel::resetBtnType()
{
    if (group.buttons.empty() || group.selected() == 600 + orderType)
        return;
    const int first = group.buttons.front().id;
    orderType = first - 600;
    group.check(first);
    paramIndex = orderType - 4;
    showCellArea(paramIndex < 0);
}

void TableModel::hint(int type, bool critical)
{
    group.helpCritical = critical;
    hints[type] = critical;
}

void TableModel::deliver(const PersonEvent& event)
{
    if (!handleEvent(event.event, event.a, event.b, event.text, event.data))
        world.hear(event.event, event.a, event.b, event.text, event.data);
}

EditOutcome TableModel::edit(const Json& command)
{
    return grid.edit(command, [this](const PersonEvent& event) { deliver(event); });
}

bool TableModel::click(int button)
{
    if (button == 0 && !group.find(0))
        return !group.helpHidden && !stripHidden && (deliver({5, 0, 0, "", nullptr}), true);
    const ModeButton* found = group.find(button);
    if (!found || found->isGone() || stripHidden)
        return false;
    const std::string text = found->text;
    group.check(button);
    deliver({5, button, 0, text, nullptr});
    return true;
}

bool TableModel::filter(const std::set<int>& ids)
{
    const bool offered = std::all_of(ids.begin(), ids.end(), [this](int id) { return grid.offers(id); });
    if (!grid.filterEnabled() || ids.empty() || !offered)
        return false;
    grid.visible = ids;
    for (const int id : ids)
        grid.setItemHidden(id, false);
    deliver({124, 0, 0, "", nullptr});
    return true;
}

bool TableModel::filterReset()
{
    if (!grid.filterEnabled())
        return false;
    grid.visible.clear();
    deliver({248, 0, 0, "", nullptr});
    return true;
}

} // namespace model
