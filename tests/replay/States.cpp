#include "States.h"

#include <boost/make_shared.hpp>

using namespace ttservice;

namespace states {

QByteArray written(const Json& json)
{
    return QByteArray::fromStdString(json.dump());
}

QByteArray rewritten(const QByteArray& json)
{
    return written(Json::parse(json.toStdString()));
}

Json cellOf(const Json& state, int id)
{
    for (const Json& cell : state["cells"]) {
        if (cell["id"] == id)
            return cell;
    }
    return nullptr;
}

QList<int> idsOf(const Json& cells)
{
    QList<int> ids;
    for (const Json& cell : cells)
        ids << cell["id"].get<int>();
    return ids;
}

QByteArray keysOf(const Json& object)
{
    QByteArrayList keys;
    for (const auto& [key, value] : object.items())
        keys << QByteArray::fromStdString(key);
    return keys.join(' ');
}

QByteArray differencesFrom(const QByteArray& expected, const Json& actual)
{
    QByteArrayList lines;
    for (const std::string& line : replay::differences(Json::parse(expected.toStdString()), actual))
        lines << QByteArray::fromStdString(line);
    return lines.join('\n');
}

CCodeOrderParam taskOf(int broker, int orderType)
{
    CCodeOrderParam task;
    task.account = boost::make_shared<CAccountInfoV2>();
    task.account->brokerType = ENVBrokerType(broker);
    task.account->accountId = "10086";
    task.account->accountName = "测试账号";
    task.orderType = EOrderType(orderType);
    task.operationType = EOperationType(18);
    task.code = "600000";
    task.name = "样本股份";
    task.priceType = PRTP_FIX;
    task.price = 12.345;
    task.volume = 1200;
    return task;
}

} // namespace states
