#include "reference/services/ServicePrivates.h"

namespace TC {

DataCenterPrivate& DataCenterPrivate::state()
{
    static auto* const theState = new DataCenterPrivate;
    return *theState;
}

DataCenter* DataCenter::instance()
{
    static auto* const theService = new DataCenter;
    return theService;
}

DataCenter::DataCenter()
    : d(&DataCenterPrivate::state())
{
}

DataCenter::~DataCenter() = default;

boost::shared_ptr<ttservice::CAccountInfoV2> DataCenter::getAccountInfo(const std::string& accountKey)
{
    const auto found = d->accounts.find(accountKey);
    return found == d->accounts.end() ? nullptr : found->second;
}

} // namespace TC
