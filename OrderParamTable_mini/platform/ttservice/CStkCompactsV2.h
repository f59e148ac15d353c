#pragma once

#include <boost/shared_ptr.hpp>

#include <ttservice/IData.h>

namespace ttservice {

/// One credit contract.
struct CStkCompactsV2
{
    int unrepaidVolume = 0;        ///< shares not given back yet
    double unrepaidFees = 0.0;     ///< interest and fees not paid yet, yuan
    boost::shared_ptr<IData> data; ///< the contract's keyed data; empty for a contract without data
};

} // namespace ttservice
