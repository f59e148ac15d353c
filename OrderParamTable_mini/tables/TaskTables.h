#pragma once

#include <OrderParamTable_mini/semantics/OrderVocabulary.h>

#include <ttservice/CCodeOrderParam.h>

#include <string>

class QWidget;

namespace TC {

class CGlobalOrderParamTable;

/// What a dialog decides of the table that it shows a task in.
struct TaskTableChoice
{
    ttservice::ENvTraderType trader = ttservice::TRADER_TYPE_4; ///< the dialog's own trader type
    bool isBasket = false;                                      ///< a basket has no trader type of its own
    bool tableFlag = false;                                     ///< the automatic order-book price may be offered
};

/// The read-only table for one task of order type @p orderType, a child of @p parent; null for a task without an
/// account, for a broker type that has no table, and when the host deletes the table on hearing of it.
CGlobalOrderParamTable* createTaskTable(const ttservice::CCodeOrderParam& task, const TaskTableChoice& choice,
                                        const QString& tradeParam, const std::string& extra, QWidget* parent);

/// The width of a task's table and its height.
int taskTableWidth();
constexpr int kTaskTableHeight = 310;

} // namespace TC
