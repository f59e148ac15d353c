#include "model/TableModel.h"

#include <algorithm>
#include <cmath>

namespace model {

namespace {

constexpr int kDefaultFlags = 0x7103FFF;

bool mayShow(int orderType, unsigned cell)
{
    switch (orderType) {
    case 0:
        return (0x7700003U & cell) != 0;
    case 1:
        return (0x6703FFFU & cell) != 0;
    case 2:
        return (0x4801889U & cell) != 0;
    case 3:
        return (0x4000080U & cell) != 0;
    default:
        return true;
    }
}

bool hasWord(int orderType)
{
    return orderType >= 0 && orderType <= 3;
}

bool isUnset(double price)
{
    return std::fabs(price - kNoPrice) <= 1e-5;
}

} // namespace

bool TableModel::isCloseSetting() const
{
    return idIn({36, 37, 38, 42, 43, 48, 49, 51});
}

void TableModel::setFlag(int value)
{
    flags = value;
    resetCellVisibilities();
    resetSuperPrice();
}

void TableModel::resetCellVisibilities()
{
    grid.visible.clear();
    stripHidden = idIn({31, 32, 33, 34, 52, 10, 35});
    if (idIn({10, 35}))
        orderType = 1;
    group.check(static_cast<int>(600U + static_cast<unsigned>(orderType)));
    std::set<int> shown;
    for (unsigned cell = 0x1; cell <= 0x8000000; cell *= 2) {
        bool visible = (static_cast<unsigned>(flags) & cell) != 0 && mayShow(orderType, cell);
        switch (cell) {
        case 0x2:
            visible = true;
            break;
        case 0x4:
            visible = !bSuperPriceStartHide();
            break;
        case 0x40:
            visible = visible && singleVolType() == 11;
            break;
        case 0x4000000:
            visible =
                visible && world.isOn("mdl_order/mdl_order_command_remark") && !isCloseSetting() && !idIn({3, 4, 35});
            break;
        case 0x100000:
            visible = visible && world.isOn("mdl_order/mdl_order_trigger_price");
            break;
        case 0x200000:
        case 0x400000:
            visible = visible && world.isOn("mdl_order/mdl_order_stop_profit_loss");
            break;
        default:
            break;
        }
        const int id = static_cast<int>(cell);
        if (cell != 0x2000000)
            grid.setItemHidden(id, !visible);
        if (visible)
            shown.insert(id);
    }
    grid.all = std::move(shown);
    grid.blacklist.clear();
    resetTableByPriceType();
    fitHeight();
    setExpandItemsHidden(!expand);
}

void TableModel::setExpandItemsHidden(bool hide)
{
    expand = !hide;
    grid.expanded = expand;
    if (expand)
        grid.visible.clear();
    else
        loadVisibleFlag();
    if (orderType == 1) {
        const unsigned word = words[1];
        for (const int id : {0x8, 0x200, 0x400, 0x800, 0x1000})
            if (expand)
                grid.setItemHidden(id, false);
            else if (id != 0x8 && (word & static_cast<unsigned>(id)) == 0)
                grid.setItemHidden(id, true);
        if (expand || (word & 0x2000U) == 0)
            grid.setItemHidden(0x2000, hide);
    }
    resetSuperPriceShow();
    fitHeight();
    layOut();
}

void TableModel::loadVisibleFlag()
{
    if (expand)
        return;
    grid.visible.clear();
    if (!hasWord(orderType))
        return;
    const unsigned word = words.at(static_cast<std::size_t>(orderType));
    for (unsigned cell = 0x1; cell <= 0x8000000; cell *= 2)
        if ((word & cell) != 0)
            grid.visible.insert(static_cast<int>(cell));
}

void TableModel::saveVisibleFlag(bool skip)
{
    if (skip || grid.visible.empty() || !hasWord(orderType))
        return;
    unsigned word = 0;
    for (const int id : grid.visible)
        word |= static_cast<unsigned>(id);
    words.at(static_cast<std::size_t>(orderType)) = word;
}

void TableModel::resetSuperPriceShow()
{
    grid.all.insert(0x2);
    if (orderType != 0)
        grid.all.insert(0x4);
    grid.setItemHidden(0x2, false);
    grid.setItemHidden(0x4, bSuperPriceStartHide());
}

void TableModel::resetTableByPriceType()
{
    if (orderType != 0 && orderType != 1)
        return;
    grid.setItemHidden(0x100000, true);
    grid.blacklist.insert(0x100000);
    grid.blacklist.erase(0x2000000);
    grid.setItemHidden(0x2000000, false);
    grid.visible.erase(0x2000000);
    resetSuperPriceShow();
}

void TableModel::resetSuperPrice()
{
    const bool custom = flags != kDefaultFlags;
    grid.setItemUnit(0x2, "%", custom ? -100.0 : 0.0, 100.0, 0, false);
    grid.setItemUnit(0x2, moneyUnit(), custom ? -1000000.0 : 0.0, 1000000.0, 0, false);
}

void TableModel::fixSuperPrice()
{
    const Cell* range = grid.find(0x8);
    const Cell* super = grid.find(0x2);
    if (!range || !super || range->kind != Kind::CheckNumber || !super->isNumber()
        || range->current().text != super->current().text)
        return;
    if (std::fabs(super->value) > 2 * range->value) {
        const double bounded = super->value < 0 ? -2 * range->value : 2 * range->value;
        grid.setItemDouble(0x2, flags == kDefaultFlags ? std::max(bounded, 0.0) : bounded);
    }
}

void TableModel::setFixedPrice(double price)
{
    if (orderType == 5)
        return;
    grid.setComboData(0x1, 11);
    updateCurrentPriceTypeName();
    resetTableByPriceType();
    world.hear(1061, made.id, 11, "");
    originalPrice = price;
    resetSuperPriceShow();
    save();
    world.hear(129, made.id, 0, "");
}

void TableModel::setOriginalPrice(double price)
{
    if (priceType == 11)
        originalPrice = price;
}

void TableModel::setPriceImpl(double price, const std::string& text)
{
    if (priceType == 11)
        return;
    originalPrice = price;
    world.hear(1062, made.id, 0, text, {{"double", jsonOf(price)}});
}

void TableModel::resetShowFixPrice()
{
    const bool market = priceType == 12 || (priceType >= 18 && priceType <= 24) || (priceType >= 42 && priceType <= 48);
    if (!market && priceType != 49)
        return;
    world.hear(market ? 1062 : 1063, made.id, 1, market ? "clr_global_text" : "clr_disabled_widget_text");
    originalPrice = kNoPrice;
}

double TableModel::priceForCalc(int operation, bool zeroIfUnset) const
{
    if (priceType == 49)
        return grid.itemDouble(0x2000000);
    if (priceType == 11 || (orderType == 1 && operation != -1))
        return zeroIfUnset && isUnset(originalPrice) ? 0.0 : originalPrice;
    return kNoPrice;
}

} // namespace model
