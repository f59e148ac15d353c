#include "reference/services/TaskFile.h"

#include "reference/services/FileReport.h"
#include "reference/services/JsonRecords.h"

#include <TC/DataCenter.h>

#include <QDateTime>

namespace reference {

namespace {

void takeAccount(JsonFields& fields, boost::shared_ptr<ttservice::CAccountInfoV2>& account)
{
    const QString field = QStringLiteral("account");
    const QJsonValue key = fields.takeAny(field);
    if (key.isNull() || key.isUndefined())
        return;
    if (!key.isString()) {
        fields.fail(field, QStringLiteral("\"account\" is neither the key of an account nor null"));
        return;
    }
    account = TC::DataCenter::instance()->getAccountInfo(key.toString().toStdString());
    if (!account)
        fields.note(field, QStringLiteral("no account %1, the task has none").arg(quoted(key.toString())));
}

void takeTime(JsonFields& fields, const QString& field, int& seconds)
{
    const QJsonValue value = fields.takeAny(field);
    const QDateTime moment = QDateTime::fromString(value.toString(), Qt::ISODate);
    const QJsonValue number = moment.isValid() ? QJsonValue(moment.toSecsSinceEpoch()) : value;
    if (isInt(number))
        seconds = static_cast<int>(number.toDouble());
    else if (!value.isUndefined())
        fields.fail(field, QStringLiteral("\"%1\" is neither seconds since the epoch nor an ISO time").arg(field));
}

ttservice::CCodeOrderParam readTask(JsonRecords& file, int record)
{
    JsonFields fields(file, record);
    ttservice::CCodeOrderParam task;
    takeAccount(fields, task.account);
    fields.takeValue(QStringLiteral("operationType"), task.operationType);
    fields.takeValue(QStringLiteral("orderType"), task.orderType);
    fields.take(QStringLiteral("code"), task.code);
    fields.take(QStringLiteral("name"), task.name);
    fields.takeValue(QStringLiteral("priceType"), task.priceType);
    fields.take(QStringLiteral("price"), task.price);
    fields.take(QStringLiteral("volume"), task.volume);
    takeTime(fields, QStringLiteral("validTimeStart"), task.validTimeStart);
    takeTime(fields, QStringLiteral("validTimeEnd"), task.validTimeEnd);
    fields.noteUnknown();
    return task;
}

} // namespace

LoadReport readTasks(const QString& path, std::vector<ttservice::CCodeOrderParam>& tasks)
{
    JsonRecords file(path);
    std::vector<ttservice::CCodeOrderParam> read;
    for (int record = 0; record < file.records().size() && file.report().isGood(); ++record)
        read.push_back(readTask(file, record));
    if (file.report().isGood())
        tasks.swap(read);
    return file.report();
}

} // namespace reference
