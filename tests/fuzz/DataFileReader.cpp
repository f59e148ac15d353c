// The JSON files of accounts and tasks: both loaders on every input. What is right is taken whole, what is wrong leaves
// what was there.
#include "fuzz/FuzzTarget.h"
#include "reference/services/ServiceControl.h"

#include <TC/DataCenter.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

using ttservice::CCodeOrderParam;
using Tasks = std::vector<CCodeOrderParam>;

const std::string kKept = "kept";

/// "PATH: what" or "PATH:LINE: what".
void checkPlaced(const QString& path, const QByteArray& file, const QString& said)
{
    fuzz::require(said.startsWith(path + QLatin1Char(':')), "what is said names the file");
    const QString behind = said.mid(path.size() + 1);
    bool isNumber = false;
    const int line = behind.left(behind.indexOf(QLatin1Char(':'))).toInt(&isNumber);
    fuzz::require(!isNumber || (line >= 1 && line <= 1 + file.count('\n')), "what is said names a line of the file");
}

void checkReport(const QString& path, const QByteArray& file, const reference::LoadReport& report)
{
    if (!report.isGood())
        checkPlaced(path, file, report.error);
    for (const QString& note : report.notes)
        checkPlaced(path, file, note);
}

void keepOneAccount()
{
    reference::clearAccounts();
    ttservice::CAccountInfoV2 account;
    account.accountName = kKept;
    reference::addAccount(kKept, account);
}

void checkAccounts(const QString& path, const QByteArray& file)
{
    keepOneAccount();
    const reference::LoadReport report = reference::loadAccounts(path);
    checkReport(path, file, report);
    const std::vector<std::string> keys = reference::accountKeys();
    if (!report.isGood()) {
        fuzz::require(keys == std::vector<std::string>{kKept}, "the last good accounts stay");
        return;
    }
    const QJsonArray records = QJsonDocument::fromJson(file).array();
    fuzz::require(int(keys.size()) == records.size(), "every account is taken");
    for (const QJsonValue& record : records) {
        const auto account = TC::DataCenter::instance()->getAccountInfo(
            record.toObject().value(QLatin1String("key")).toString().toStdString());
        fuzz::require(bool(account), "an account is found by its key");
        fuzz::require(account->accountName == record.toObject().value(QLatin1String("name")).toString().toStdString(),
                      "an account has its name");
    }
}

void checkTasks(const QString& path, const QByteArray& file)
{
    CCodeOrderParam last;
    last.code = kKept;
    Tasks tasks{last};
    const reference::LoadReport report = reference::loadTasks(path, tasks);
    checkReport(path, file, report);
    if (!report.isGood()) {
        fuzz::require(tasks.size() == 1 && tasks.front().code == kKept, "the last good tasks stay");
        return;
    }
    const QJsonArray records = QJsonDocument::fromJson(file).array();
    fuzz::require(int(tasks.size()) == records.size(), "every task is taken");
    for (int i = 0; i < records.size(); ++i) {
        const QJsonObject record = records.at(i).toObject();
        fuzz::require(tasks[std::size_t(i)].code == record.value(QLatin1String("code")).toString().toStdString(),
                      "a task has its code");
        fuzz::require(tasks[std::size_t(i)].volume == record.value(QLatin1String("volume")).toInt(),
                      "a task has its volume");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::startApplication();
    const QByteArray file = fuzz::bytesOf(data, size);
    const QString path = fuzz::writtenFile(QStringLiteral("records.json"), file);
    if (size <= fuzz::kLongestChecked) {
        checkAccounts(path, file);
        checkTasks(path, file);
    } else {
        Tasks tasks;
        reference::loadAccounts(path);
        reference::loadTasks(path, tasks);
    }
    reference::clearAccounts();
    return 0;
}
