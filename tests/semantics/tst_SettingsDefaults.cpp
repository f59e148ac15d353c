#include "semantics/RuleText.h"
#include "semantics/SettingText.h"

#include <OrderParamTable_mini/semantics/SettingsDefaults.h>

#include <QTest>

using ttservice::COrderSetting;

namespace {

/// What differs between two records, "field: a instead of b".
QString differences(const COrderSetting& actual, const COrderSetting& expected)
{
    const QStringList a = settingtext::fields(actual);
    const QStringList e = settingtext::fields(expected);
    QStringList found;
    for (int i = 0; i < e.size(); ++i) {
        if (a.at(i) != e.at(i))
            found << a.at(i) + QLatin1String(" instead of ") + e.at(i);
    }
    return found.join(QLatin1String("; "));
}

/// The record of a trader type without defaults of its own.
COrderSetting cellWordsAlone(int orderType)
{
    COrderSetting s;
    s.orderType = ttservice::EOrderType(orderType);
    s.cellWord1 = 0x7100003;
    s.cellWord2 = 0x6103FFF;
    s.cellWord4 = 0x4000080;
    s.cellWord5 = 0x4801889;
    return s;
}

COrderSetting ofTrader1(int orderType)
{
    COrderSetting s = cellWordsAlone(orderType);
    s.intField3 = 5;
    s.realField4 = 30.0;
    s.realField5 = 30.0;
    s.intField6 = 20;
    s.realField9 = 0.05;
    s.realField11 = 1.0;
    s.realField12 = 0.0;
    s.intField13 = 10;
    s.realField14 = 0.3;
    s.intField15 = 100;
    s.intField16 = 100000;
    return s;
}

COrderSetting ofTrader4(int orderType)
{
    COrderSetting s = ofTrader1(orderType);
    s.realField14 = 0.5;
    return s;
}

COrderSetting ofTrader2(int orderType)
{
    COrderSetting s = cellWordsAlone(orderType);
    s.intField3 = 5;
    s.realField4 = 1.0;
    s.realField5 = 1.0;
    s.intField6 = 30;
    s.realField9 = 0.05;
    s.realField11 = 1.0;
    s.realField12 = 0.0;
    s.intField13 = 10;
    s.realField14 = 0.5;
    s.intField15 = 1;
    s.intField16 = 5;
    return s;
}

COrderSetting expectedOf(int trader, int orderType)
{
    switch (trader) {
    case 1:
        return ofTrader1(orderType);
    case 2:
        return ofTrader2(orderType);
    case 4:
        return ofTrader4(orderType);
    default:
        return cellWordsAlone(orderType);
    }
}

} // namespace

class tst_SettingsDefaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFreshRecordIsZeroEverywhere();
    void defaultSettingColumn();
    void defaultSettingTakesItsValidTimes();
    void traderColumnsForEveryTraderAndOrderType();
    void trader4DiffersFromTrader1InField14Alone();
};

void tst_SettingsDefaults::aFreshRecordIsZeroEverywhere()
{
    int field = 0;
    for (const QString& line : settingtext::fields({})) {
        ++field;
        const bool isFlag = field == 35 || field == 36;
        QCOMPARE(line, QString::number(field) + QLatin1String(isFlag ? "=false" : "=0"));
    }
    QCOMPARE(field, 41);
}

void tst_SettingsDefaults::defaultSettingColumn()
{
    COrderSetting expected;
    expected.orderType = ttservice::EOrderType(0);
    expected.intField2 = 0;
    expected.intField3 = 5;
    expected.realField4 = 30.0;
    expected.realField5 = 30.0;
    expected.intField7 = 0;
    expected.realField8 = 5.0;
    expected.realField9 = 0.05;
    expected.intField10 = 0;
    expected.realField11 = 0.0;
    expected.realField12 = 0.0;
    expected.intField13 = 10;
    expected.realField14 = 0.2;
    expected.intField15 = 1;
    expected.intField16 = 500000;
    expected.intField17 = 1;
    expected.intField18 = 1800;
    expected.validTimeStart = 1716168600;
    expected.validTimeEnd = 1716188400;
    expected.intField21 = 1;
    expected.intField22 = 0;
    expected.intField23 = 1;
    expected.realField24 = 0.1;
    expected.intField25 = -1;
    QCOMPARE(differences(TC::defaultSetting(1716168600, 1716188400), expected), QString());
}

void tst_SettingsDefaults::defaultSettingTakesItsValidTimes()
{
    for (const int time : {INT_MIN, -1, 0, 1, INT_MAX}) {
        const COrderSetting s = TC::defaultSetting(time, INT_MAX);
        QCOMPARE(s.validTimeStart, time);
        QCOMPARE(s.validTimeEnd, INT_MAX);
    }
}

void tst_SettingsDefaults::traderColumnsForEveryTraderAndOrderType()
{
    for (const int trader : ruletext::manyIntegers()) {
        for (const int type : {INT_MIN, -1, 0, 1, 2, 3, 4, 5, 6, 7, 12, 13, 104, INT_MAX}) {
            const COrderSetting actual =
                TC::defaultSettingOfTrader(ttservice::ENvTraderType(trader), ttservice::EOrderType(type));
            QCOMPARE(differences(actual, expectedOf(trader, type)), QString());
        }
    }
}

void tst_SettingsDefaults::trader4DiffersFromTrader1InField14Alone()
{
    const auto of = [](int trader) {
        return TC::defaultSettingOfTrader(ttservice::ENvTraderType(trader), ttservice::EOrderType(1));
    };
    QCOMPARE(differences(of(4), of(1)), QStringLiteral("14=0.5 instead of 14=0.29999999999999999"));
}

QTEST_APPLESS_MAIN(tst_SettingsDefaults)
#include "tst_SettingsDefaults.moc"
