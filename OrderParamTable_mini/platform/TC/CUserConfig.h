#pragma once

#include <WQ/WqExport.h>

#include <QObject>

#include <memory>

namespace TC {

class CUserConfigPrivate;

/// The user configuration.
class WQ_EXPORT CUserConfig : public QObject
{
    Q_OBJECT
public:
    ~CUserConfig() override;

    /// The client mode.
    /// @return an integer of the client's; 100 and 101 mark the modes that show algorithm buttons of their own
    int clientMode() const;

Q_SIGNALS:
    /// The algorithm of that order type should, or should no longer, be hinted at.
    /// @param orderType any integer
    /// @param hint whether it should be hinted at
    void sigShouldHintAlgorithm(int orderType, bool hint);

private:
    friend class CUserConfigPrivate;
    CUserConfig();

    std::unique_ptr<CUserConfigPrivate> const d;
};

/// The user configuration of the process; lives until the program ends.
/// @return null where a client has none
WQ_EXPORT CUserConfig* getUserConfig();

} // namespace TC
