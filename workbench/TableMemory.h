#pragma once

#include "workbench/StateFile.h"
#include "workbench/TableSetup.h"

#include <QPointer>

namespace workbench {

/// What a host keeps of its order tables between runs, a table for each class, identity, broker and trader type: the
/// cells as they were committed, the settings records, the cells that a person chose to see in each order type, order
/// type, operation, specified price and expansion.
class TableMemory
{
public:
    Json json() const;
    void setJson(const Json& json);

    /// Takes down how the table stands.
    void remember(const TableSetup& setup, TC::COrderParamBaseTable& table);

    /// Brings a table that was just made to where it stood. What a person had committed is committed again, by the
    /// editors' own rules and with their events, so that table and listeners follow as they did then; what the table
    /// does not offer any longer is left out. Listeners may delete the table meanwhile.
    void recall(const TableSetup& setup, TC::COrderParamBaseTable& table, bool isEnabled) const;

    void forget(const TableSetup& setup);

private:
    Json m_tables = Json::object();
};

} // namespace workbench
