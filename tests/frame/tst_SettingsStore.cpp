#include "frame/ParameterItems.h"
#include "support/HelpButton.h"
#include "support/ModuleGuard.h"
#include "support/Panel.h"

#include <WQ/CDropDownButtonGroup.h>

#include <QDateTime>
#include <QRandomGenerator>
#include <QtTest>

#include <cmath>
#include <limits>

using namespace support;
using ttservice::COrderSetting;

namespace {

COrderSetting defaultOf(int trader, int orderType, int operation = 1)
{
    return TC::COrderParamBaseTable::getDefaultOrderSetting(
        ttservice::EOperationType(operation), ttservice::ENvTraderType(trader), ttservice::EOrderType(orderType));
}

QStringList items(const COrderSetting& setting)
{
    return TC::COrderParamBaseTable::orderSetting2Param(setting).split(QLatin1Char('+'));
}

/// Records as text, fields in record order, so that a failure prints two of them.
QString recordText(const COrderSetting& setting)
{
    QStringList fields;
    for (int field = 1; field <= 41; ++field)
        fields << fieldText(setting, field);
    return fields.join(QLatin1Char(' '));
}

double randomDouble(QRandomGenerator& random)
{
    const double special[] = {std::numeric_limits<double>::quiet_NaN(),
                              std::numeric_limits<double>::infinity(),
                              -std::numeric_limits<double>::infinity(),
                              TC::kNoPrice,
                              0.0,
                              -0.0,
                              -0.0004,
                              0.0625,
                              999999999999.5};
    const int kind = random.bounded(14);
    if (kind < 9)
        return special[kind];
    return (random.generateDouble() - 0.5) * std::pow(10.0, random.bounded(12));
}

COrderSetting randomSetting(QRandomGenerator& random)
{
    COrderSetting setting;
    for (int field = 1; field <= 41; ++field) {
        if (isReal(field))
            setReal(setting, field, randomDouble(random));
        else
            setInt(setting, field, int(random.generate()));
    }
    return setting;
}

} // namespace

/// Default records, the table's store of records, and the parameter string.
class tst_SettingsStore : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void defaultRecord();
    void defaultRecordByTraderType_data();
    void defaultRecordByTraderType();
    void traderTypes1And4DifferInOneField();
    void operationNeverChangesADefault();
    void unknownKeyAnswersADefaultRecordAndAddsNone();
    void laterRecordReplacesTheEarlier();
    void recordsAreReadAfterSaving();
    void parameterStringOfTheDefault();
    void parameterStringRepeatsField14AndTurnsTheWords();
    void parameterStringOfEveryOrderType_data();
    void parameterStringOfEveryOrderType();
    void parameterStringOfRandomRecords();
    void numbersThatCannotBeShown_data();
    void numbersThatCannotBeShown();
    void visibleButtonsAsText();
    void inertOperationsChangeNothing();
};

void tst_SettingsStore::defaultRecord()
{
    Panel panel;
    const QDate before = QDate::currentDate();
    const COrderSetting setting = panel.table->getDefault();
    if (QDate::currentDate() != before)
        QSKIP("midnight passed");
    const int start = int(QDateTime(before, QTime(9, 30)).toSecsSinceEpoch());
    const int end = int(QDateTime(before, QTime(15, 0)).toSecsSinceEpoch());
    QCOMPARE(
        recordText(setting),
        QStringLiteral("0 0 5 30.000 30.000 0 0 5.000 0.050 0 0.000 0.000 10 0.200 1 500000 1 1800 %1 %2 1 0 1 0.100 "
                       "-1 0.000 0.000 0 0 0.000 0 0.000 0.000 0.000 0 0 0 0 0 0 0")
            .arg(start)
            .arg(end));
    QCOMPARE(panel.host.take(), QStringList());
    QVERIFY(panel.table->m_orderSettings.isEmpty());
}

void tst_SettingsStore::defaultRecordByTraderType_data()
{
    QTest::addColumn<int>("trader");
    QTest::addColumn<QString>("record");
    const QString words = QStringLiteral(" 118489091 101728255 0 67108992 75503753");
    const QString rest = QStringLiteral(" 0 0 0 0 0 0 0 0.000 0 0.000 0.000 0 0 0.000 0 0.000 0.000 0.000 0 0") + words;
    // Fields 1 to 16, then what no trader type touches.
    QTest::newRow("trader type 1")
        << 1 << QStringLiteral("7 0 5 30.000 30.000 20 0 0.000 0.050 0 1.000 0.000 10 0.300 100 100000") + rest;
    QTest::newRow("trader type 4")
        << 4 << QStringLiteral("7 0 5 30.000 30.000 20 0 0.000 0.050 0 1.000 0.000 10 0.500 100 100000") + rest;
    QTest::newRow("trader type 2") << 2
                                   << QStringLiteral("7 0 5 1.000 1.000 30 0 0.000 0.050 0 1.000 0.000 10 0.500 1 5")
            + rest;
    for (const int trader : {-1, 0, 3, 5, 6, 8, 4096, std::numeric_limits<int>::max()})
        QTest::addRow("trader type %d", trader)
            << trader << QStringLiteral("7 0 0 0.000 0.000 0 0 0.000 0.000 0 0.000 0.000 0 0.000 0 0") + rest;
}

void tst_SettingsStore::defaultRecordByTraderType()
{
    QFETCH(int, trader);
    QFETCH(QString, record);
    QCOMPARE(recordText(defaultOf(trader, 7)), record);
    QCOMPARE(defaultOf(trader, 7).cellWord1, 0x7100003);
    QCOMPARE(defaultOf(trader, 7).cellWord2, 0x6103FFF);
    QCOMPARE(defaultOf(trader, 7).cellWord4, 0x4000080);
    QCOMPARE(defaultOf(trader, 7).cellWord5, 0x4801889);
    QCOMPARE(int(defaultOf(trader, -9).orderType), -9);
}

void tst_SettingsStore::traderTypes1And4DifferInOneField()
{
    COrderSetting first = defaultOf(1, 3);
    QCOMPARE(first.realField14, 0.3);
    QCOMPARE(defaultOf(4, 3).realField14, 0.5);
    first.realField14 = 0.5;
    QCOMPARE(recordText(first), recordText(defaultOf(4, 3)));
}

void tst_SettingsStore::operationNeverChangesADefault()
{
    for (const int trader : {1, 2, 3, 4}) {
        const QString record = recordText(defaultOf(trader, 1, -1));
        for (const int operation : {-2, 0, 1, 21, 1089})
            QCOMPARE(recordText(defaultOf(trader, 1, operation)), record);
    }
}

void tst_SettingsStore::unknownKeyAnswersADefaultRecordAndAddsNone()
{
    Panel panel;
    QCOMPARE(recordText(panel.table->getOrderSettings(42)), recordText(COrderSetting()));
    QVERIFY(panel.table->m_orderSettings.isEmpty());
}

void tst_SettingsStore::laterRecordReplacesTheEarlier()
{
    Panel panel;
    COrderSetting first = defaultOf(1, 1);
    COrderSetting second = defaultOf(2, 2);
    panel.table->setOrderSettings(9, first);
    panel.table->setOrderSettings(9, second);
    panel.table->setOrderSettings(10, first);
    second.intField2 = 77;
    QCOMPARE(recordText(panel.table->getOrderSettings(9)), recordText(defaultOf(2, 2)));
    QCOMPARE(recordText(panel.table->getOrderSettings(10)), recordText(first));
    QCOMPARE(panel.table->m_orderSettings.size(), 2);
    QCOMPARE(panel.host.take(), QStringList({QStringLiteral("save"), QStringLiteral("save")}));
}

void tst_SettingsStore::recordsAreReadAfterSaving()
{
    Panel panel;
    panel.table->onSave = [table = panel.table] {
        COrderSetting saved;
        saved.intField2 = 11;
        table->setOrderSettings(1, saved);
    };
    QCOMPARE(panel.table->getOrderSettings(1).intField2, 11);
}

void tst_SettingsStore::parameterStringOfTheDefault()
{
    BaseTableProbe table;
    const QStringList text = items(table.getDefault());
    QCOMPARE(text.size(), 41);
    QCOMPARE(text.at(0), QStringLiteral("0"));
    QCOMPARE(text.at(2), QStringLiteral("5"));
    QCOMPARE(text.at(12), QStringLiteral("10"));
    QCOMPARE(text.at(17), QStringLiteral("1800"));
    QCOMPARE(text.at(24), QStringLiteral("-1"));
    QCOMPARE(text.at(23), text.at(13));
    QCOMPARE(text.at(13), QStringLiteral("0.200"));
}

void tst_SettingsStore::parameterStringRepeatsField14AndTurnsTheWords()
{
    COrderSetting setting;
    setting.realField14 = 14.5;
    setting.realField24 = 24.5;
    setting.cellWord1 = 1;
    setting.cellWord2 = 2;
    setting.cellWord3 = 3;
    setting.cellWord4 = 4;
    setting.cellWord5 = 5;
    const QStringList text = items(setting);
    QCOMPARE(text.at(23), QStringLiteral("14.500"));
    QCOMPARE(text.mid(36).join(QLatin1Char(' ')), QStringLiteral("1 2 5 3 4"));
    QVERIFY(!text.contains(QStringLiteral("24.500")));
}

void tst_SettingsStore::parameterStringOfEveryOrderType_data()
{
    QTest::addColumn<int>("orderType");
    for (const int type : {-1, 0, 1, 2, 3, 4, 5, 6, 7, 12, 13, std::numeric_limits<int>::min()})
        QTest::addRow("order type %d", type) << type;
}

void tst_SettingsStore::parameterStringOfEveryOrderType()
{
    QFETCH(int, orderType);
    for (const int trader : {1, 2, 3, 4}) {
        const COrderSetting setting = defaultOf(trader, orderType);
        const QStringList text = items(setting);
        QCOMPARE(text, expectedItems(setting));
        QCOMPARE(recordText(parsedSetting(text)), recordText(setting));
    }
}

void tst_SettingsStore::parameterStringOfRandomRecords()
{
    QRandomGenerator random(20240520);
    for (int round = 0; round < 5000; ++round) {
        COrderSetting setting = randomSetting(random);
        const QStringList text = items(setting);
        QCOMPARE(text, expectedItems(setting));
        const COrderSetting parsed = parsedSetting(text);
        QCOMPARE(items(parsed), text);
        // Field 24 is never written.
        setting.realField24 = 0;
        QCOMPARE(recordText(parsed), recordText(setting));
    }
}

void tst_SettingsStore::numbersThatCannotBeShown_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    const QString invalid = QStringLiteral("非法值");
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << invalid;
    QTest::newRow("infinity") << std::numeric_limits<double>::infinity() << invalid;
    QTest::newRow("minus infinity") << -std::numeric_limits<double>::infinity() << invalid;
    QTest::newRow("no price") << 1.7976931348623157e308 << invalid;
    QTest::newRow("a tie, away from zero") << 0.0625 << QStringLiteral("0.063");
    QTest::newRow("a negative tie") << -0.0625 << QStringLiteral("-0.063");
    QTest::newRow("below half a digit") << -0.0004 << QStringLiteral("0.000");
    QTest::newRow("minus zero") << -0.0 << QStringLiteral("0.000");
    QTest::newRow("not exactly a tie") << 1.0005 << QStringLiteral("1.000");
    QTest::newRow("a large number") << 1e15 << QStringLiteral("1000000000000000.000");
}

void tst_SettingsStore::numbersThatCannotBeShown()
{
    QFETCH(double, value);
    QFETCH(QString, text);
    for (int field = 1; field <= 41; ++field) {
        if (!isReal(field) || field == 24)
            continue;
        COrderSetting setting;
        setReal(setting, field, value);
        QCOMPARE(items(setting).at(field - 1), text);
    }
}

void tst_SettingsStore::visibleButtonsAsText()
{
    Panel panel;
    for (const int id : {601, 605, 613})
        addModeButton(*panel.table->m_btnGroup, id, "mode");
    QCOMPARE(panel.table->loadCheckParam(), QStringLiteral("600,601,605,613"));
    panel.table->setCheckParam(QStringLiteral("613,600"));
    QCOMPARE(panel.table->loadCheckParam(), QStringLiteral("613,600"));
    panel.table->setCheckParam(QString());
    QCOMPARE(panel.table->loadCheckParam(), QStringLiteral("613,600"));
    panel.table->setCheckParam(QStringLiteral("x,601,999,,605"));
    QCOMPARE(panel.table->loadCheckParam(), QStringLiteral("601,605"));
    QCOMPARE(panel.host.take(), QStringList());
}

void tst_SettingsStore::inertOperationsChangeNothing()
{
    Panel panel;
    ttservice::CCodeOrderParam param;
    param.code = "600000";
    param.price = 12.5;
    param.volume = 300;
    panel.table->fillOrderParam(QStringLiteral("000001"), 1, param, 99.0);
    QCOMPARE(param.code, decltype(param.code)("600000"));
    QCOMPARE(param.price, 12.5);
    QCOMPARE(int(param.volume), 300);
    QCOMPARE(int(param.orderType), 0);
    panel.table->loadFromOrderParam(param, true, "x");
    QCOMPARE(panel.table->getAlgParamsStr(param), std::string());
    QCOMPARE(panel.table->getAlgParamsStr(std::vector<ttservice::CCodeOrderParam>{param, param}), std::string());
    QCOMPARE(panel.table->getAlgParamsStr(std::vector<ttservice::CCodeOrderParam>{}), std::string());
    QCOMPARE(panel.table->getAlgoStrategyType(), std::string());
    QCOMPARE(panel.table->getAlgoStrategyTypeName(), std::string());
    QCOMPARE(panel.host.take(), QStringList());
    QVERIFY(panel.table->m_orderSettings.isEmpty());
}

QTEST_MAIN(tst_SettingsStore)
#include "tst_SettingsStore.moc"
