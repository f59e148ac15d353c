#include "contract/recorder/CallLog.h"
#include "contract/recorder/State.h"

#include <TC/CTimeService.h>
#include <TC/CUserConfig.h>
#include <TC/DataCenter.h>
#include <luawrapper/LuaModuleCtrl.h>
#include <ttservice/CAccountInfoV2.h>
#include <ttservice/IData.h>
#include <utils/secondsToDateTime.h>

#include <QDateTime>

using recorder::record;
using recorder::Service;

namespace TC {

class CUserConfigPrivate
{
public:
    static CUserConfig& instance()
    {
        static CUserConfig config;
        return config;
    }

    static int hintReceivers()
    {
        return instance().receivers(SIGNAL(sigShouldHintAlgorithm(int, bool)));
    }
};

CUserConfig::CUserConfig() = default;

CUserConfig::~CUserConfig() = default;

int CUserConfig::clientMode() const
{
    record(Service, QStringLiteral("config.clientMode"));
    return recorder::state().clientMode;
}

CUserConfig* getUserConfig()
{
    record(Service, QStringLiteral("getUserConfig"));
    return &CUserConfigPrivate::instance();
}

class CTimeServicePrivate
{
public:
    static CTimeService& instance()
    {
        static CTimeService clock;
        return clock;
    }
};

CTimeService::CTimeService() = default;

CTimeService::~CTimeService() = default;

qint64 CTimeService::currentTime() const
{
    record(Service, QStringLiteral("clock.currentTime"));
    return recorder::state().now;
}

CTimeService* getTimeService()
{
    record(Service, QStringLiteral("getTimeService"));
    return &CTimeServicePrivate::instance();
}

class DataCenterPrivate
{
};

DataCenter::DataCenter() = default;

DataCenter::~DataCenter() = default;

DataCenter* DataCenter::instance()
{
    static DataCenter dataCenter;
    return &dataCenter;
}

boost::shared_ptr<ttservice::CAccountInfoV2> DataCenter::getAccountInfo(const std::string& accountKey)
{
    record(Service, QStringLiteral("dataCenter.getAccountInfo"), accountKey);
    return {};
}

} // namespace TC

namespace luawrapper {

class LuaModuleCtrlPrivate
{
};

LuaModuleCtrl::LuaModuleCtrl() = default;

LuaModuleCtrl::~LuaModuleCtrl() = default;

LuaModuleCtrl* LuaModuleCtrl::instance()
{
    static LuaModuleCtrl modules;
    return &modules;
}

bool LuaModuleCtrl::checkModule(std::list<std::string> path)
{
    QStringList names;
    QStringList texts;
    for (const std::string& name : path) {
        names << QString::fromStdString(name);
        texts << recorder::written(name);
    }
    recorder::recordLine(Service, QStringLiteral("modules.isOn(") + texts.join(QLatin1String(", ")) + QLatin1Char(')'));
    return recorder::state().modulesOn.contains(names.join(QLatin1Char('/')));
}

} // namespace luawrapper

namespace ttservice {

IData::~IData() = default;

} // namespace ttservice

namespace utils {

void secondsToDateTime(qint64 seconds, int& year, int& month, int& day, int& hour, int& minute, int& second)
{
    recorder::recordLine(recorder::Format, QStringLiteral("secondsToDateTime(%1)").arg(seconds));
    const QDateTime at = QDateTime::fromSecsSinceEpoch(seconds);
    year = at.date().year();
    month = at.date().month();
    day = at.date().day();
    hour = at.time().hour();
    minute = at.time().minute();
    second = at.time().second();
}

} // namespace utils

namespace recorder {

void emitHint(int orderType, bool hint)
{
    Q_EMIT TC::CUserConfigPrivate::instance().sigShouldHintAlgorithm(orderType, hint);
}

int hintReceivers()
{
    return TC::CUserConfigPrivate::hintReceivers();
}

} // namespace recorder
