#include "reference/services/ServicePrivates.h"

#include <QDateTime>

namespace TC {

CTimeService* CTimeServicePrivate::service()
{
    static auto* const theService = new CTimeService;
    return theService;
}

CTimeServicePrivate& CTimeServicePrivate::state()
{
    static auto* const theState = new CTimeServicePrivate;
    return *theState;
}

CTimeService::CTimeService()
    : d(&CTimeServicePrivate::state())
{
}

CTimeService::~CTimeService() = default;

qint64 CTimeService::currentTime() const
{
    return d->frozen ? *d->frozen : QDateTime::currentSecsSinceEpoch();
}

CTimeService* getTimeService()
{
    return CTimeServicePrivate::service();
}

} // namespace TC
