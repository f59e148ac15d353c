#include "workbench/HostDirectory.h"

#include "reference/services/ServiceControl.h"

#include <TC/DataCenter.h>
#include <WQ/Formatting.h>

#include <algorithm>

namespace workbench {

std::vector<Instrument> instrumentsOf(const std::vector<ttservice::CCodeOrderParam>& tasks)
{
    std::vector<Instrument> instruments;
    for (const ttservice::CCodeOrderParam& task : tasks) {
        const QString code = WQ::sToQs(task.code);
        const bool isKnown = std::any_of(instruments.begin(), instruments.end(),
                                         [&code](const Instrument& known) { return known.code == code; });
        if (!code.isEmpty() && !isKnown)
            instruments.push_back({code, WQ::sToQs(task.name), task.price});
    }
    return instruments;
}

Instrument instrumentOf(const std::vector<Instrument>& instruments, const QString& code)
{
    const auto found = std::find_if(instruments.begin(), instruments.end(),
                                    [&code](const Instrument& known) { return known.code == code; });
    return found == instruments.end() ? Instrument{code, QString(), 0.0} : *found;
}

std::vector<HostAccount> hostAccounts()
{
    std::vector<HostAccount> accounts;
    for (const std::string& key : reference::accountKeys()) {
        const auto account = TC::DataCenter::instance()->getAccountInfo(key);
        if (account)
            accounts.push_back({WQ::sToQs(key), WQ::sToQs(account->accountId), WQ::sToQs(account->accountName),
                                int(account->brokerType)});
    }
    return accounts;
}

} // namespace workbench
