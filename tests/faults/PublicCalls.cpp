#include "faults/PublicCalls.h"

#include "support/CellText.h"

#include <WQ/CMultiParamsTable.h>

#include <QStringList>
#include <QVariant>

namespace faults {

std::vector<TableCall> publicCalls()
{
    using Table = TC::COrderParamBaseTable;
    static QVariant data(5);
    static int outside = 12;
    std::vector<TableCall> calls = {
        [](Table& table) { table.setFixedPrice(3.25); },
        [](Table& table) { table.setOperationType(ttservice::EOperationType(21)); },
        [](Table& table) { table.handleEvent(1213, 0, 0, QStringLiteral("x"), &outside); },
        [](Table& table) { table.setOrderType(ttservice::EOrderType(5)); },
        [](Table& table) { table.setOrderType(ttservice::EOrderType(1)); },
        [](Table& table) { table.selectPrice(ttservice::PRTP_BUY1); },
        [](Table& table) { table.handleEvent(73, 1, 0, QStringLiteral("x"), &data); },
        [](Table& table) { table.resetTriggerPriceSetting(); },
    };
    for (const int button : {605, 602, 601, 600})
        calls.emplace_back([button](Table& table) { table.handleEvent(5, button, 0, QStringLiteral("x"), nullptr); });
    for (const int number : {87, 118, 101, 102, 97, 124, 248})
        calls.emplace_back(
            [number](Table& table) { table.handleEvent(number, 0x200, 0, QStringLiteral("x"), nullptr); });
    return calls;
}

QString seen(TC::COrderParamBaseTable& table)
{
    QStringList text = support::cellRows(*table.getMultiParamsTable());
    text << QStringLiteral("order %1 operation %2 price %3 \"%4\" at %5 button %6 param ")
                .arg(int(table.orderType()))
                .arg(int(table.getOperationType()))
                .arg(int(table.priceType()))
                .arg(table.getCurrentPriceTypeName())
                .arg(table.getModifiedPriceByOptTypeForCalc(ttservice::EOperationType(1), false))
                .arg(table.getSelectedButton())
            + table.param() + support::idText(support::shownCells(*table.getMultiParamsTable()));
    return text.join(QLatin1Char('\n'));
}

} // namespace faults
