#pragma once

#include <QString>

#include <optional>

namespace TC {
class COrderParamBaseTable;
}

namespace workbench {

class PanelHost;

enum class TableClass { Global, Code, StopLoss };

/// What a table is made of: its class and its constructor's arguments. The stop-loss table takes identity and broker
/// type alone, the code table no automatic order-book price type.
struct TableSetup
{
    TableClass tableClass = TableClass::Global;
    int identity = 5;
    int brokerType = 2;
    int traderType = 1;
    bool modeButtons = true;
    bool fontScale = true;
    bool autoBook = false;
};

/// What a host does to a table after construction. What is not set is not called: such a table shows every cell that it
/// was made with.
struct TableDrive
{
    QString code;
    std::optional<int> operationType;
    std::optional<int> orderType;
    std::optional<int> flags;
    bool expanded = false;
    bool enabled = true;
};

/// A new table, a child of @p host, with this host's order-mode buttons and the remark cell where they belong.
TC::COrderParamBaseTable* makeTable(const TableSetup& setup, PanelHost& host);

/// Applies the drive in the order of its members: later calls build on what earlier ones left.
void driveTable(TC::COrderParamBaseTable& table, const TableDrive& drive);

} // namespace workbench
