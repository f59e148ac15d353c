#pragma once

#include "support/BaseTableProbe.h"
#include "support/EventLog.h"

namespace support {

/// A host and its table. Every event and hook of the table stands in the host's log, in order.
struct Panel
{
    explicit Panel(TableSetup setup = {});

    WQ::CMultiParamsTable& cells() const
    {
        return *table->m_table;
    }

    EventLog host;
    BaseTableProbe* table; ///< the host's child
};

/// Makes @p priceType the one entry that the price-type cell offers; it takes effect with the next name update.
void offerPriceType(BaseTableProbe& table, int priceType);

} // namespace support
