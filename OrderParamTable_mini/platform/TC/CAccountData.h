#pragma once

#include <string>

namespace TC {

/// An account's data object; the credit table only passes it through.
struct CAccountData
{
    std::string accountKey; ///< the key under which the data center knows the account
};

} // namespace TC
