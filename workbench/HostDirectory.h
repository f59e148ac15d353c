#pragma once

#include <ttservice/CCodeOrderParam.h>

#include <QString>

#include <vector>

namespace workbench {

/// An instrument that the host knows, with the price that its quote starts from.
struct Instrument
{
    QString code;
    QString name;
    double price = 0.0;
};

/// An account that the host knows.
struct HostAccount
{
    QString key;
    QString id;
    QString name;
    int brokerType = 0;
};

/// The instruments of the task records, each code once, in their order.
std::vector<Instrument> instrumentsOf(const std::vector<ttservice::CCodeOrderParam>& tasks);

/// The instrument of that code; one with the code alone for a code that the host does not know.
Instrument instrumentOf(const std::vector<Instrument>& instruments, const QString& code);

/// The accounts that the data center holds, by their keys.
std::vector<HostAccount> hostAccounts();

} // namespace workbench
