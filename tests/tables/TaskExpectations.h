#pragma once

#include "support/CellText.h"

#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>

#include <WQ/CMultiParamsTable.h>
#include <ttservice/CCodeOrderParam.h>

#include <QStringList>

/// What the task dialogs make of each broker type.
struct TaskRow
{
    int broker;
    int identity;
    int trader; ///< passed on by the task dialog; 0 for the dialog's own
    int basketTrader;
    bool appliesOperation;
    int flags;          ///< order type 1 in the task dialog
    int flagsOfTrader4; ///< the same for trader type 4
    int basketFlags;    ///< order type 1 in the basket dialog
};

// clang-format off
constexpr TaskRow kTaskRows[] = {
    {   2, 31, 0, 4, true,  0x7903FFF, 0x7903FFF, 0x7903FFF},
    {   1, 32, 0, 1, false, 0x7703FFF, 0x7103FFF, 0x7703FFF},
    {   3, 31, 0, 4, true,  0x7103FFF, 0x7103FFF, 0x7103FFF},
    {   6, 33, 0, 4, true,  0x7103FFF, 0x7103FFF, 0x7103FFF},
    {   7, 31, 0, 4, true,  0x7103FFF, 0x7103FFF, 0x7103FFF},
    {  11, 31, 0, 4, true,  0x7103FFF, 0x7103FFF, 0x7103FFF},
    {  10, 31, 1, 4, true,  0x7103FFF, 0x7103FFF, 0x7103FFF},
    {   5, 32, 1, 4, false, 0x7703FFF, 0x7703FFF, 0x7703FFF},
    {   4, 32, 1, 4, false, 0x7703FFF, 0x7703FFF, 0x7703FFF},
    {1001, 32, 1, 4, false, 0x7703FFF, 0x7703FFF, 0x7703FFF},
    {1002, 32, 1, 4, false, 0x7703FFF, 0x7703FFF, 0x7703FFF},
};
// clang-format on

constexpr int kTaskOrderTypes[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13};

/// A task of operation 18.
inline ttservice::CCodeOrderParam taskOf(int broker, int orderType)
{
    ttservice::CCodeOrderParam task;
    task.account.reset(new ttservice::CAccountInfoV2{ttservice::ENVBrokerType(broker), "88001234", "示例账户"});
    task.operationType = ttservice::EOperationType(18);
    task.orderType = ttservice::EOrderType(orderType);
    task.code = "600000";
    task.name = "示例股份";
    task.priceType = ttservice::EPriceType(11);
    task.price = 10.23;
    task.volume = 12000;
    return task;
}

/// What a table was constructed with, of which most tables show nothing.
class TableReader : public TC::CGlobalOrderParamTable
{
public:
    static QString construction(const TC::CGlobalOrderParamTable& table)
    {
        return QStringLiteral("%1 broker %2 trader %3%4%5%6")
            .arg(table.getId())
            .arg(table.*(&TableReader::m_brokerType))
            .arg(table.*(&TableReader::m_traderType))
            .arg(QLatin1String(table.*(&TableReader::m_showModeButtons) ? " buttons" : ""),
                 QLatin1String(table.*(&TableReader::m_tableFontScale) ? " scales" : ""),
                 QLatin1String(table.*(&TableReader::m_lastFlag) ? " book" : ""));
    }
};

inline QString constructionText(int identity, int broker, int trader, bool book)
{
    return QStringLiteral("%1 broker %2 trader %3 buttons%4")
        .arg(identity)
        .arg(broker)
        .arg(trader)
        .arg(QLatin1String(book ? " book" : ""));
}

/// A table as a person sees it: which cells it has, hidden or shown, and what they hold.
inline QStringList tableText(TC::COrderParamBaseTable& table)
{
    QStringList text = support::cellRows(*table.getMultiParamsTable());
    text += support::idText(support::allItems(*table.getMultiParamsTable()));
    return text;
}

/// A table put into the state that a dialog should have put its own into.
class TaskTableProbe
{
public:
    TaskTableProbe(int identity, int broker, int trader, bool lastFlag)
        : m_identity(identity)
        , m_broker(broker)
        , m_trader(trader)
        , m_lastFlag(lastFlag)
    {
    }

    QStringList textAfter(bool appliesOperation, int flags, bool setsFlags) const
    {
        TC::CGlobalOrderParamTable table(TC::EOpParamWidgetID(m_identity), ttservice::ENVBrokerType(m_broker), true,
                                         nullptr, false, ttservice::ENvTraderType(m_trader), m_lastFlag);
        if (appliesOperation)
            table.setOperationType(ttservice::EOperationType(18));
        if (setsFlags)
            table.setFlag(TC::OperationCellFlags(flags));
        table.setAllItemEnable(false);
        return tableText(table);
    }

private:
    int m_identity;
    int m_broker;
    int m_trader;
    bool m_lastFlag;
};
