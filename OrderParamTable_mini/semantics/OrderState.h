#pragma once

#include <ttservice/Enumerations.h>

namespace TC {

/// What the rules need to know of a table.
struct OrderState
{
    int identity = 0;
    ttservice::ENVBrokerType broker = ttservice::ENVBrokerType(0);
    ttservice::ENvTraderType trader = ttservice::ENvTraderType(0);
    ttservice::EOrderType order = ttservice::ORDER_TYPE_NORMAL;
    ttservice::EOperationType operation = ttservice::OPT_NONE;
    bool autoBook = false; ///< the automatic order-book price type may be offered
};

} // namespace TC
