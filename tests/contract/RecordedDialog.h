#pragma once

#include "contract/recorder/CallLog.h"
#include "contract/recorder/State.h"

#include <OrderParamTable_mini/tables/CBaseTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>
#include <OrderParamTable_mini/tables/CHpfBasketTaskParamWidget.h>

#include <boost/make_shared.hpp>

namespace contract {

inline ttservice::CCodeOrderParam taskOf(int brokerType, int orderType, int operation = 1)
{
    ttservice::CCodeOrderParam task;
    task.account = boost::make_shared<ttservice::CAccountInfoV2>();
    task.account->brokerType = ttservice::ENVBrokerType(brokerType);
    task.account->accountId = "A1";
    task.account->accountName = "Name";
    task.orderType = ttservice::EOrderType(orderType);
    task.operationType = ttservice::EOperationType(operation);
    task.code = "600000";
    task.name = "Bank";
    task.priceType = ttservice::EPriceType(5);
    task.price = 12.345;
    task.volume = 300;
    return task;
}

/// The task dialog with its parts within reach.
class TaskDialog : public TC::CBaseTaskParamWidget
{
public:
    explicit TaskDialog(ttservice::CCodeOrderParam task, int traderType = 1, bool tableFlag = false)
        : TC::CBaseTaskParamWidget(task, QStringLiteral("trade"), nullptr, true, ttservice::ENvTraderType(traderType),
                                   tableFlag, "extra")
    {
    }

    using TC::CBaseTaskParamWidget::handleEvent;
    using TC::CBaseTaskParamWidget::m_expandButton;
    using TC::CBaseTaskParamWidget::m_table;
};

/// The basket dialog with its parts within reach.
class BasketDialog : public TC::CHpfBasketTaskParamWidget
{
public:
    explicit BasketDialog(std::vector<ttservice::CCodeOrderParam> tasks = {})
        : TC::CHpfBasketTaskParamWidget(tasks, QStringLiteral("trade"), nullptr, "extra")
    {
    }

    using TC::CHpfBasketTaskParamWidget::changeOrderType;
    using TC::CHpfBasketTaskParamWidget::creatTable;
    using TC::CHpfBasketTaskParamWidget::handleEvent;
    using TC::CHpfBasketTaskParamWidget::m_columnLayout;
    using TC::CHpfBasketTaskParamWidget::m_firstTitle;
    using TC::CHpfBasketTaskParamWidget::m_firstView;
    using TC::CHpfBasketTaskParamWidget::m_rootLayout;
    using TC::CHpfBasketTaskParamWidget::m_secondTitle;
    using TC::CHpfBasketTaskParamWidget::m_secondView;
    using TC::CHpfBasketTaskParamWidget::m_swapButton;
};

/// How the embedded tables differ by broker type.
struct EmbeddedTable
{
    int brokerType;
    int identity;
    bool appliesOperation;
    int algorithmFlags;        ///< order type 1
    int algorithmFlagsTrader4; ///< order type 1, task dialog of trader type 4
    int randomFlags;           ///< order type 2; 0 for none
    int plainFlags;            ///< order type 0, task dialog of other trader types than 4
    int basketAlgorithmFlags;
};

// clang-format off
inline const EmbeddedTable kEmbeddedTables[] = {
    {   2, 31, true,  0x7903FFF, 0x7903FFF, 0x7903FFF, 0x7100003, 0x7903FFF},
    {   1, 32, false, 0x7703FFF, 0x7103FFF, 0,         0x7700003, 0x7703FFF},
    {   3, 31, true,  0x7103FFF, 0x7103FFF, 0,         0x7100003, 0x7103FFF},
    {   6, 33, true,  0x7103FFF, 0x7103FFF, 0,         0x7100003, 0x7103FFF},
    {   7, 31, true,  0x7103FFF, 0x7103FFF, 0,         0x7100003, 0x7103FFF},
    {  11, 31, true,  0x7103FFF, 0x7103FFF, 0,         0x7100003, 0x7103FFF},
    {  10, 31, true,  0x7103FFF, 0x7103FFF, 0,         0x7100003, 0x7103FFF},
    {   5, 32, false, 0x7703FFF, 0x7703FFF, 0,         0x7100003, 0x7703FFF},
    {   4, 32, false, 0x7703FFF, 0x7703FFF, 0,         0x7100003, 0x7703FFF},
    {1001, 32, false, 0x7703FFF, 0x7703FFF, 0,         0x7100003, 0x7703FFF},
    {1002, 32, false, 0x7703FFF, 0x7703FFF, 0,         0x7100003, 0x7703FFF},
};
// clang-format on

const EmbeddedTable& embeddedTable(int brokerType);

/// What setFlag() calls on a table of that broker type, in the plain order type, while every module is on. Whether the
/// strip is shown and how wide the cells are is left out.
QStringList flagCalls(int brokerType, int flags);

/// The calls from the first recomputing of the cells up to where the cells are disabled, as flagCalls() lists them.
QStringList recordedFlagCalls();

/// Switches the modules on that cells depend on.
void switchCellModulesOn();

} // namespace contract
