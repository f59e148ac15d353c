#include <OrderParamTable_mini/tables/TaskTables.h>

#include <OrderParamTable_mini/frame/Services.h>
#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>

#include <QPointer>

namespace TC {

using namespace ttservice;

namespace {

/// The operation is announced to the host, who may do anything with the table. What he throws leaves no table behind.
void applyOperation(const QPointer<CGlobalOrderParamTable>& table, EOperationType operationType)
{
    try {
        table->setOperationType(operationType);
    } catch (...) {
        delete table.data();
        throw;
    }
}

/// Stands for the trader type of the dialog.
constexpr ENvTraderType kTraderOfDialog = ENvTraderType(0);

struct TaskTableRow
{
    ENVBrokerType broker;
    EOpParamWidgetID identity;
    ENvTraderType trader;       ///< in the task dialog
    ENvTraderType basketTrader; ///< in the basket dialog
    bool takesTableFlag;        ///< in the task dialog; a basket never does
    bool appliesOperation;
    bool algorithmIncludesType2; ///< the flags for order type 1 hold for order type 2 as well
    int algorithmFlags;
    int algorithmFlagsOfTrader4; ///< in the task dialog
    int plainFlags;              ///< in the task dialog, except for trader type 4
};

/// The cells of a plain order; a basket and trader type 4 never show more.
constexpr int kPlainFlags = 0x7100003;

// clang-format off
constexpr TaskTableRow kTaskTables[] = {
    // broker               identity        trader           basket         book   operat. type 2 type 1     trader 4   plain
    {BROKER_TYPE_STOCK,       OPW_StockTask,  kTraderOfDialog, TRADER_TYPE_4, true,  true,  true,  0x7903FFF, 0x7903FFF, kPlainFlags},
    {BROKER_TYPE_FUTURE,      OPW_FutureTask, kTraderOfDialog, TRADER_TYPE_1, false, false, false, 0x7703FFF, 0x7103FFF, 0x7700003},
    {BROKER_TYPE_CREDIT,      OPW_StockTask,  kTraderOfDialog, TRADER_TYPE_4, false, true,  false, 0x7103FFF, 0x7103FFF, kPlainFlags},
    {BROKER_TYPE_OPTION,      OPW_OptionTask, kTraderOfDialog, TRADER_TYPE_4, false, true,  false, 0x7103FFF, 0x7103FFF, kPlainFlags},
    {BROKER_TYPE_HK_7,        OPW_StockTask,  kTraderOfDialog, TRADER_TYPE_4, false, true,  false, 0x7103FFF, 0x7103FFF, kPlainFlags},
    {BROKER_TYPE_HK_11,       OPW_StockTask,  kTraderOfDialog, TRADER_TYPE_4, false, true,  false, 0x7103FFF, 0x7103FFF, kPlainFlags},
    {BROKER_TYPE_10,          OPW_StockTask,  TRADER_TYPE_1,   TRADER_TYPE_4, false, true,  false, 0x7103FFF, 0x7103FFF, kPlainFlags},
    {BROKER_TYPE_POINTS_5,    OPW_FutureTask, TRADER_TYPE_1,   TRADER_TYPE_4, false, false, false, 0x7703FFF, 0x7703FFF, kPlainFlags},
    {BROKER_TYPE_POINTS_4,    OPW_FutureTask, TRADER_TYPE_1,   TRADER_TYPE_4, false, false, false, 0x7703FFF, 0x7703FFF, kPlainFlags},
    {BROKER_TYPE_POINTS_1001, OPW_FutureTask, TRADER_TYPE_1,   TRADER_TYPE_4, false, false, false, 0x7703FFF, 0x7703FFF, kPlainFlags},
    {BROKER_TYPE_POINTS_1002, OPW_FutureTask, TRADER_TYPE_1,   TRADER_TYPE_4, false, false, false, 0x7703FFF, 0x7703FFF, kPlainFlags},
};
// clang-format on

const TaskTableRow* rowOf(const CCodeOrderParam& task)
{
    if (!task.account)
        return nullptr;
    for (const TaskTableRow& row : kTaskTables) {
        if (row.broker == task.account->brokerType)
            return &row;
    }
    return nullptr;
}

ENvTraderType traderOf(const TaskTableRow& row, const TaskTableChoice& choice)
{
    if (choice.isBasket)
        return row.basketTrader;
    return row.trader == kTraderOfDialog ? choice.trader : row.trader;
}

/// The flags of a task's order type; 0 for types that leave the table as it was built.
int flagsOf(const TaskTableRow& row, const TaskTableChoice& choice, EOrderType type)
{
    const bool isTrader4 = !choice.isBasket && choice.trader == TRADER_TYPE_4;
    if (type == ORDER_TYPE_NORMAL)
        return choice.isBasket || isTrader4 ? kPlainFlags : row.plainFlags;
    if (type == ORDER_TYPE_ALGORITHM || (type == ORDER_TYPE_RANDOM_VOLUME && row.algorithmIncludesType2))
        return isTrader4 ? row.algorithmFlagsOfTrader4 : row.algorithmFlags;
    return 0;
}

} // namespace

CGlobalOrderParamTable* createTaskTable(const CCodeOrderParam& task, const TaskTableChoice& choice,
                                        const QString& tradeParam, const std::string& extra, QWidget* parent)
{
    const TaskTableRow* const row = rowOf(task);
    if (!row)
        return nullptr;
    const bool lastFlag = row->takesTableFlag && !choice.isBasket && choice.tableFlag;
    const QPointer<CGlobalOrderParamTable> table =
        new CGlobalOrderParamTable(row->identity, row->broker, true, parent, false, traderOf(*row, choice), lastFlag);
    if (row->appliesOperation)
        applyOperation(table, task.operationType);
    if (!table)
        return nullptr;
    if (const int flags = flagsOf(*row, choice, task.orderType))
        table->setFlag(OperationCellFlags(flags));
    if (!choice.isBasket)
        table->setStockCode(QString::fromStdString(task.code));
    table->loadFromOrderParam(task, true, extra);
    const QString algorithmParam = table->getUiParamByTrdTradeParam(task.orderType, tradeParam);
    if (!algorithmParam.isEmpty())
        table->setSingleNvAlgoParam(task.orderType, algorithmParam);
    table->setAllItemEnable(false);
    table->setFixedSize(taskTableWidth(), kTaskTableHeight);
    return table;
}

int taskTableWidth()
{
    constexpr int kWidth = 220;
    constexpr int kWideWidth = 240;
    return isModuleOn(FeatureModule::MultiMarketPrice) ? kWideWidth : kWidth;
}

} // namespace TC
