#pragma once

#include "workbench/TicketModel.h"

#include <vector>

namespace TC {
class COrderParamBaseTable;
}

namespace workbench {

/// Gives the table the default record of a trader type for each order type that the strip offers. The host owns the
/// records: a table starts without any.
void storeDefaultRecords(TC::COrderParamBaseTable& table, int traderType);

/// Brings the record of the current order type up to date with the cells of the table that reach a record: the valid
/// time of a global table.
void updateRecord(TC::COrderParamBaseTable& table);

/// The parameter string of the current order type's record.
QString recordText(TC::COrderParamBaseTable& table);

/// What there is to read of a table: its state, the record of its order type item by item, and its cells.
std::vector<TicketModel::Entry> readTicket(TC::COrderParamBaseTable& table);

} // namespace workbench
