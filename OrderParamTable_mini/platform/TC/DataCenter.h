#pragma once

#include <WQ/WqExport.h>

#include <boost/shared_ptr.hpp>

#include <memory>
#include <string>

namespace ttservice {
struct CAccountInfoV2;
}

namespace TC {

class DataCenterPrivate;

/// The client's account data.
class WQ_EXPORT DataCenter
{
public:
    /// The one instance of the process; lives until the program ends.
    /// @return null where a client has none
    static DataCenter* instance();

    DataCenter(const DataCenter&) = delete;
    DataCenter& operator=(const DataCenter&) = delete;

    /// An account.
    /// @param accountKey UTF-8
    /// @return an empty pointer when there is none
    boost::shared_ptr<ttservice::CAccountInfoV2> getAccountInfo(const std::string& accountKey);

private:
    DataCenter();
    ~DataCenter();

    std::unique_ptr<DataCenterPrivate> const d;
};

} // namespace TC
