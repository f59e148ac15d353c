#include "reference/services/ServicePrivates.h"

namespace TC {

CUserConfig* CUserConfigPrivate::service()
{
    static auto* const theService = new CUserConfig;
    return theService;
}

CUserConfigPrivate& CUserConfigPrivate::state()
{
    static auto* const theState = new CUserConfigPrivate;
    return *theState;
}

CUserConfig::CUserConfig()
    : d(&CUserConfigPrivate::state())
{
}

CUserConfig::~CUserConfig() = default;

int CUserConfig::clientMode() const
{
    return d->clientMode;
}

CUserConfig* getUserConfig()
{
    return CUserConfigPrivate::service();
}

} // namespace TC
