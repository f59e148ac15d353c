#pragma once

#include <ttservice/Enumerations.h>

#include <string>

namespace ttservice {

/// An account, as the data center and the task records know it.
struct CAccountInfoV2
{
    ENVBrokerType brokerType = ENVBrokerType(0); ///< what it trades through
    std::string accountId;                       ///< ID as shown, UTF-8
    std::string accountName;                     ///< name as shown, UTF-8
};

} // namespace ttservice
