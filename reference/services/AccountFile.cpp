#include "reference/services/AccountFile.h"

#include "reference/services/FileReport.h"
#include "reference/services/JsonRecords.h"

#include <boost/make_shared.hpp>

namespace reference {

namespace {

void readAccount(JsonRecords& file, int record, TC::AccountMap& accounts)
{
    JsonFields fields(file, record);
    std::string key;
    auto account = boost::make_shared<ttservice::CAccountInfoV2>();
    fields.take(QStringLiteral("key"), key);
    fields.takeValue(QStringLiteral("brokerType"), account->brokerType);
    fields.take(QStringLiteral("id"), account->accountId);
    fields.take(QStringLiteral("name"), account->accountName);
    fields.noteUnknown();
    if (key.empty())
        fields.fail(QStringLiteral("key"), QStringLiteral("an account needs a \"key\""));
    else if (!accounts.emplace(key, account).second)
        fields.fail(QStringLiteral("key"),
                    QStringLiteral("a second account with the key %1").arg(quoted(QString::fromStdString(key))));
}

} // namespace

LoadReport readAccounts(const QString& path, TC::AccountMap& accounts)
{
    JsonRecords file(path);
    TC::AccountMap read;
    for (int record = 0; record < file.records().size() && file.report().isGood(); ++record)
        readAccount(file, record, read);
    if (file.report().isGood())
        accounts.swap(read);
    return file.report();
}

} // namespace reference
