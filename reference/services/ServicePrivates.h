#pragma once

#include <TC/CTimeService.h>
#include <TC/CUserConfig.h>
#include <TC/DataCenter.h>
#include <luawrapper/LuaModuleCtrl.h>
#include <ttservice/CAccountInfoV2.h>

#include <map>
#include <optional>
#include <set>
#include <string>

// The states behind the services, for their sources and the control operations. State and service are made at their
// first use and never destroyed: the last users are destructors of static objects. So a service may own a state that
// others reach without it.

namespace TC {

class CUserConfigPrivate
{
public:
    static CUserConfig* service();
    static CUserConfigPrivate& state();

    int clientMode = 0;
};

class CTimeServicePrivate
{
public:
    static CTimeService* service();
    static CTimeServicePrivate& state();

    std::optional<qint64> frozen;
};

using AccountMap = std::map<std::string, boost::shared_ptr<ttservice::CAccountInfoV2>>;

class DataCenterPrivate
{
public:
    static DataCenterPrivate& state();

    AccountMap accounts;
};

} // namespace TC

namespace luawrapper {

class LuaModuleCtrlPrivate
{
public:
    static LuaModuleCtrlPrivate& state();

    std::set<std::string> on; ///< "group/module", UTF-8
};

} // namespace luawrapper
