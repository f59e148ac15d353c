#include "replay/Operation.h"
#include "replay/Probes.h"

#include <TC/CAccountData.h>

#include <boost/make_shared.hpp>

namespace replay {

namespace {

using ttservice::CStkCompactsV2;
using Credit = TC::CCreditParamTable;
using Contract = boost::shared_ptr<CStkCompactsV2>;

/// The account is the key under which the data center knows it, or null.
Contract contractByCode(CreditProbe& table, QString code, std::optional<std::string> accountKey, std::string compactId)
{
    boost::shared_ptr<TC::CAccountData> account;
    if (accountKey)
        account = boost::make_shared<TC::CAccountData>(TC::CAccountData{*accountKey});
    return table.getCompatctByCode(code, account, compactId);
}

/// The two figures are answered; the texts between them and the contract mean nothing to the table.
Json availableNumbers(CreditProbe& table, std::string accountId, std::string second, std::string third,
                      Contract compact, std::string fifth)
{
    QString all;
    QString today;
    table.getAvailableNum(all, today, accountId, second, third, compact, fifth);
    return {{"first", written(all)}, {"second", written(today)}};
}

Json displayAccounts(CreditProbe& table)
{
    QStringList names;
    QVector<QVariant> values;
    table.getComBoDisplayAccounts(names, values);
    return {{"names", written(names)}, {"values", written(values)}};
}

} // namespace

// clang-format off
const Operations& creditTableOperations()
{
    static const Operations operations = {
        operation<Credit>("realHeight", &Credit::realHeight),
        operation<Credit>("handleScaleChanged", &Credit::handleScaleChanged),
        operation<Credit>("setIsFontScale", &Credit::setIsFontScale, "isFontScale"),
        operation<Credit>("setCompactBrushSourceType", &Credit::setCompactBrushSourceType, "source"),
        operation<Credit>("refreshAccounts", &Credit::refreshAccounts),
        operation<Credit>("setSelectAccount", &Credit::setSelectAccount, "accountId"),
        operation<Credit>("getSelectAccount", &Credit::getSelectAccount),
        operation<Credit>("getCurrentCode", &Credit::getCurrentCode),
        operation<Credit>("getDefaultCompact", &Credit::getDefaultCompact, "code"),
        operation<Credit>("refreshAvailableNum", &Credit::refreshAvailableNum, "code, refresh, compactId"),
        operation<Credit>("getUnRepayNum", &Credit::getUnRepayNum, "compactId"),
        operation<Credit>("getAllUnrepayValue", &Credit::getAllUnrepayValue, "code"),
        operation<Credit>("getDefaultUnrepayValue", &Credit::getDefaultUnrepayValue, "code"),
        operation<Credit>("getTodayAvailableNum", &Credit::getTodayAvailableNum, "code"),
        operation<Credit>("refreshUnrepayValue", &Credit::refreshUnrepayValue, "value"),
        operation<Credit>("setStkCompacts", &Credit::setStkCompacts, "compact, unrepayValue, showZero"),
        operation<Credit>("setStockCode", &Credit::setStockCode, "code, compactId, useDefault"),
        operation<Credit>("param", &Credit::param),
        operation<Credit>("setParam", &Credit::setParam, "text"),
        operation<Credit>("doStockUnitChange", &Credit::doStockUnitChange),
        operation<Credit>("setOperationType", &Credit::setOperationType, "operationType, flag"),
    };
    return operations;
}

const Operations& creditProbeOperations()
{
    using Probe = CreditProbe;
    static const Operations operations = {
        operation<Probe>("fixCodeChanged", &Probe::fixCodeChanged, "code"),
        operation<Probe>("getAvailableNum", &availableNumbers, "accountId, second, third, compact, fifth"),
        operation<Probe>("getComBoDisplayAccounts", &displayAccounts),
        operation<Probe>("getCompatctByCode", &contractByCode, "code, accountKey, compactId"),
        operation<Probe>("getCurrentCompactType", &Probe::getCurrentCompactType, "operationType"),
        operation<Probe>("getCurrentNumUnit", &Probe::getCurrentNumUnit),
        operation<Probe>("refreshUIData", &Probe::refreshUIData),
        operation<Probe>("resetColumnWidth", &Probe::resetColumnWidth),
        operation<Probe>("resizeTable", &Probe::resizeTable),
        operation<Probe>("saveUIDataToMap", &Probe::saveUIDataToMap),
        operation<Probe>("setFixCodeText", &Probe::setFixCodeText, "code, setCode, refresh, compactId"),
        operation<Probe>("setOptBuySecuRepayNum", &Probe::setOptBuySecuRepayNum, "first, second, third"),
    };
    return operations;
}
// clang-format on

} // namespace replay
