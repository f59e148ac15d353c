#include "faults/ThrowingPanel.h"

#include "support/CellText.h"
#include "support/HelpButton.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>
#include <WQ/CScrollArea.h>

namespace faults {

using namespace support;

namespace {

Cause click(const char* name, int button, int priceType)
{
    return {name, [button, priceType](BaseTableProbe& table) {
                offerPriceType(table, priceType);
                table.updateCurrentPriceTypeName();
                table.m_btnGroup->setCheckedByID(button);
                table.sendEvent(5, button, QStringLiteral("text"));
            }};
}

Cause event(const char* name, int number, int cell)
{
    return {name, [number, cell](BaseTableProbe& table) { table.sendEvent(number, cell, QStringLiteral("text")); }};
}

} // namespace

// clang-format off
std::vector<Cause> causes()
{
    const auto orderType = [](int type, int priceType) {
        return [type, priceType](BaseTableProbe& table) {
            offerPriceType(table, priceType);
            table.updateCurrentPriceTypeName();
            table.setOrderType(ttservice::EOrderType(type));
        };
    };
    return {
        click("button 600", 600, 5),
        click("button 601 with a market price", 601, 45),
        click("button 602 with the after-hours price", 602, 49),
        click("button 605 with a market price", 605, 45),
        click("button 605 with the after-hours price", 605, 49),
        {"price type changed", [](BaseTableProbe& table) { table.sendCellChanged(0x1, QStringLiteral("x"), 5); }},
        {"base volume changed", [](BaseTableProbe& table) { table.sendCellChanged(0x10, QStringLiteral("x"), 11); }},
        event("cell changed without data", 73, 0x1),
        event("minimum committed", 87, 0x200),
        event("unit switched", 118, 0x2),
        event("period committed", 101, 0x800),
        event("line committed", 102, 0x4000000),
        event("double click", 97, 0x1),
        event("filter applied", 124, 0),
        {"price selected", [](BaseTableProbe& table) { table.selectPrice(ttservice::PRTP_BUY1); }},
        {"fixed price", [](BaseTableProbe& table) { table.setFixedPrice(2.5); }},
        {"quoted price", [](BaseTableProbe& table) { table.setPriceType(ttservice::PRTP_LATEST); table.setPriceImpl(2.5, QStringLiteral("x")); }},
        {"order type 1", orderType(1, 5)},
        {"order type 5 with a market price", orderType(5, 45)},
        {"order type 5 with the after-hours price", orderType(5, 49)},
        {"operation with a market price", [](BaseTableProbe& table) {
             offerPriceType(table, 45);
             table.updateCurrentPriceTypeName();
             table.setOperationType(ttservice::EOperationType(21));
         }},
        {"display reset", [](BaseTableProbe& table) {
             offerPriceType(table, 45);
             table.updateCurrentPriceTypeName();
             table.resetShowFixPrice();
         }},
        {"records read", [](BaseTableProbe& table) { table.getOrderSettings(3); }},
        {"record reset", [](BaseTableProbe& table) { table.resetOrderParamSetting(); }},
        {"trigger price reset", [](BaseTableProbe& table) { table.resetTriggerPriceSetting(); }},
        {"algorithm buttons", [](BaseTableProbe& table) { table.setAlgoBtnVisible(); }},
    };
}

QString seen(BaseTableProbe& table)
{
    const WQ::CMultiParamsTable& cells = *table.m_table;
    QStringList text = cellRows(*table.m_table);
    text << QStringLiteral("order %1 operation %2 price %3 \"%4\" at %5 button %6 set %7 strip %8")
                .arg(int(table.orderType()))
                .arg(int(table.getOperationType()))
                .arg(int(table.priceType()))
                .arg(table.m_priceTypeName)
                .arg(table.m_originalPrice)
                .arg(table.getSelectedButton())
                .arg(table.m_paramIndex)
                .arg(table.loadCheckParam());
    text << QStringLiteral("cells %1 area %2 height %3 of %4 shown ")
                .arg(!cells.isHidden())
                .arg(!table.m_scrollArea->isHidden())
                .arg(cells.height())
                .arg(table.m_table->realHeight())
            + idText(shownCells(*table.m_table));
    return text.join(QLatin1Char('\n'));
}

ThrowingPanel::ThrowingPanel(int at)
    : point(at)
{
    for (const int id : {601, 602, 605})
        addModeButton(*panel.table->m_btnGroup, id, "mode");
    panel.table->setOrderType(ttservice::EOrderType(0));
    panel.table->m_table->setItemInt(TC::OCF_MinSingleVolume, 300);
    panel.table->onSave = [this] { step(QStringLiteral("save")); };
    panel.table->onReload = [this] { step(QStringLiteral("reload")); };
    panel.host.onEvent = [this](int number) { step(QString::number(number)); };
}

void ThrowingPanel::step(const QString& what)
{
    steps << what;
    if (steps.size() - 1 == point)
        throw Thrown{point};
}

void ThrowingPanel::listenQuietly()
{
    panel.table->onSave = panel.table->onReload = nullptr;
    panel.host.onEvent = nullptr;
    panel.host.take();
}

} // namespace faults
