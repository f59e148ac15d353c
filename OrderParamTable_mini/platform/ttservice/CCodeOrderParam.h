#pragma once

#include <boost/shared_ptr.hpp>

#include <ttservice/CAccountInfoV2.h>
#include <ttservice/Enumerations.h>

#include <string>

namespace ttservice {

/// The order parameters of one instrument: one task of a client.
struct CCodeOrderParam
{
    boost::shared_ptr<CAccountInfoV2> account;        ///< may be empty
    EOperationType operationType = EOperationType(0); ///< what the order does
    EOrderType orderType = EOrderType(0);             ///< plain order or algorithm
    std::string code;                                 ///< instrument code, UTF-8
    std::string name;                                 ///< instrument name, UTF-8
    EPriceType priceType = EPriceType(0);             ///< what price
    double price = 0.0;                               ///< base price
    int volume = 0;                                   ///< how much
    int validTimeStart = 0;                           ///< whole seconds since the epoch
    int validTimeEnd = 0;                             ///< whole seconds since the epoch
};

} // namespace ttservice
