#pragma once

#include <WQ/WqExport.h>

#include <QtGlobal>

#include <memory>

namespace TC {

class CTimeServicePrivate;

/// The client's clock.
class WQ_EXPORT CTimeService
{
public:
    CTimeService(const CTimeService&) = delete;
    CTimeService& operator=(const CTimeService&) = delete;

    /// The client's time.
    /// @return whole seconds since the epoch
    qint64 currentTime() const;

private:
    friend class CTimeServicePrivate;
    CTimeService();
    ~CTimeService();

    std::unique_ptr<CTimeServicePrivate> const d;
};

/// The clock of the process; lives until the program ends.
/// @return null where a client has none
WQ_EXPORT CTimeService* getTimeService();

} // namespace TC
