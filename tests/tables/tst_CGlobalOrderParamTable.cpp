#include "GlobalTableProbe.h"

#include <QtTest>

using namespace ttservice;

namespace {

/// A record that differs from the default one, to tell who wrote it.
COrderSetting markedSetting()
{
    COrderSetting setting;
    setting.orderType = EOrderType(9);
    setting.intField2 = 77;
    return setting;
}

/// The base table's store of algorithm parameters is inert, so that a type inside the band answers like one outside;
/// the band itself is the rule isSingleOrderAlgorithm() and tested there.
QString algorithmParam(const GlobalTableProbe& table, int type)
{
    return table.getSingleNvAlgoUiParam(EOrderType(type));
}

} // namespace

class tst_CGlobalOrderParamTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFreshTableAnswersEmptyTexts();
    void aFreshTableHasNoRecords();
    void aStockCodeIsIgnored();
    void anEmptyParameterStringAddsTheRecord();
    void keysAndValuesHaveNoEffect_data();
    void keysAndValuesHaveNoEffect();
    void aParameterStringKeepsTheRecordThatIsThere();
    void clearReplacesTheRecordOfTheCurrentTypeAlone();
    void saveMarksTheRecordWithItsType();
    void saveParamSaves();
    void aSettingsRecordIsSaved();
    void reloadAddsACopyOfTheWorkingSetting();
    void reloadKeepsARecordThatIsThere();
    void aClickOnAModeKeepsARecordForEachType();
    void algorithmParametersAreEmptyInAndOutsideTheirBand_data();
    void algorithmParametersAreEmptyInAndOutsideTheirBand();
    void inertOperationsChangeNothing();
    void aLongTextIsTakenInLinearTime();
};

void tst_CGlobalOrderParamTable::aFreshTableAnswersEmptyTexts()
{
    const GlobalTableProbe table;
    QCOMPARE(table.getStockCode(), QString());
    QCOMPARE(table.param(), QString());
    QCOMPARE(table.getOrderSettingParam(), QString());
    for (int type = -2; type < 110; ++type)
        QCOMPARE(algorithmParam(table, type), QString());
}

void tst_CGlobalOrderParamTable::aFreshTableHasNoRecords()
{
    QCOMPARE(GlobalTableProbe().recordCount(), 0);
}

void tst_CGlobalOrderParamTable::aStockCodeIsIgnored()
{
    GlobalTableProbe table;
    table.setStockCode(QStringLiteral("600000"));
    QCOMPARE(table.getStockCode(), QString());
    QCOMPARE(static_cast<TC::COrderParamBaseTable&>(table).getStockCode(), QString());
}

void tst_CGlobalOrderParamTable::anEmptyParameterStringAddsTheRecord()
{
    GlobalTableProbe table;
    table.setParam(QStringLiteral(""));
    QCOMPARE(table.recordCount(), 1);
    QVERIFY(table.hasRecord(0));
}

void tst_CGlobalOrderParamTable::keysAndValuesHaveNoEffect_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("five fields") << QStringLiteral("a^b^orderType=7^intField2=5^c");
    QTest::newRow("separators alone") << QStringLiteral("^^^^");
    QTest::newRow("equal signs alone") << QStringLiteral("^^===^=^=");
    QTest::newRow("one field") << QStringLiteral("orderType=7");
    QTest::newRow("the other format") << QStringLiteral("7+5+5");
}

void tst_CGlobalOrderParamTable::keysAndValuesHaveNoEffect()
{
    QFETCH(QString, text);
    GlobalTableProbe table;
    table.setParam(text);
    QCOMPARE(table.recordCount(), 1);
    QCOMPARE(int(table.record(0).orderType), 0);
    QCOMPARE(table.record(0).intField2, 0);
    QCOMPARE(table.param(), QString());
}

void tst_CGlobalOrderParamTable::aParameterStringKeepsTheRecordThatIsThere()
{
    GlobalTableProbe table;
    table.record(0) = markedSetting();
    table.setParam(QStringLiteral("a^b^c=d^e=f"));
    QCOMPARE(table.record(0).intField2, 77);
    QCOMPARE(int(table.record(0).orderType), 9);
}

void tst_CGlobalOrderParamTable::clearReplacesTheRecordOfTheCurrentTypeAlone()
{
    GlobalTableProbe table;
    table.record(0) = markedSetting();
    table.record(2) = markedSetting();
    table.clear();
    QCOMPARE(table.recordCount(), 2);
    QCOMPARE(table.record(0).intField2, 0);
    QCOMPARE(int(table.record(0).orderType), 0);
    QCOMPARE(table.record(2).intField2, 77);
}

void tst_CGlobalOrderParamTable::saveMarksTheRecordWithItsType()
{
    GlobalTableProbe table;
    table.setOrderType(EOrderType(2));
    table.record(2) = markedSetting();
    table.save();
    QCOMPARE(int(table.record(2).orderType), 2);
    QCOMPARE(table.record(2).intField2, 77);
    QVERIFY(!table.hasRecord(0));
}

void tst_CGlobalOrderParamTable::saveParamSaves()
{
    GlobalTableProbe table;
    table.record(0) = markedSetting();
    table.saveParam();
    QCOMPARE(int(table.record(0).orderType), 0);
}

void tst_CGlobalOrderParamTable::aSettingsRecordIsSaved()
{
    GlobalTableProbe table;
    COrderSetting setting = markedSetting();
    table.setParam(setting);
    QCOMPARE(int(setting.orderType), 9);
    QCOMPARE(table.recordCount(), 1);
    QCOMPARE(int(table.record(0).orderType), 0);
    QCOMPARE(table.record(0).intField2, 0);
}

void tst_CGlobalOrderParamTable::reloadAddsACopyOfTheWorkingSetting()
{
    GlobalTableProbe table;
    table.m_workingSetting.intField2 = 33;
    table.setOrderType(EOrderType(3));
    table.reloadParam();
    QCOMPARE(table.recordCount(), 1);
    QCOMPARE(int(table.record(3).orderType), 3);
    QCOMPARE(table.record(3).intField2, 33);
    QCOMPARE(int(table.m_workingSetting.orderType), 3);
}

void tst_CGlobalOrderParamTable::reloadKeepsARecordThatIsThere()
{
    GlobalTableProbe table;
    table.record(0) = markedSetting();
    table.reloadParam();
    QCOMPARE(int(table.record(0).orderType), 9);
    QCOMPARE(int(table.m_workingSetting.orderType), 0);
}

void tst_CGlobalOrderParamTable::aClickOnAModeKeepsARecordForEachType()
{
    GlobalTableProbe table;
    for (const int button : {601, 602, 605, 600})
        QVERIFY(table.handleEvent(5, button, 0, QString(), nullptr));
    for (const int type : {0, 1, 2, 5})
        QCOMPARE(int(table.record(type).orderType), type);
    QCOMPARE(table.recordCount(), 4);
}

void tst_CGlobalOrderParamTable::algorithmParametersAreEmptyInAndOutsideTheirBand_data()
{
    QTest::addColumn<int>("type");
    for (const int type : {INT_MIN, -1, 0, 3, 4, 50, 104, 105, INT_MAX})
        QTest::newRow(QByteArray::number(type).constData()) << type;
}

void tst_CGlobalOrderParamTable::algorithmParametersAreEmptyInAndOutsideTheirBand()
{
    QFETCH(int, type);
    GlobalTableProbe table;
    table.setSingleNvAlgoParam(EOrderType(type), QStringLiteral("k=v"));
    QCOMPARE(algorithmParam(table, type), QString());
    QCOMPARE(table.recordCount(), 0);
}

void tst_CGlobalOrderParamTable::inertOperationsChangeNothing()
{
    GlobalTableProbe table;
    table.record(0) = markedSetting();
    table.resetStrategyType(EOrderType(4), QStringLiteral("s"));
    table.setNvAlgoHideAmountUsed(true, 3);
    QCOMPARE(table.getUiParamByTrdTradeParam(EOrderType(5), QStringLiteral("p")), QString());
    QCOMPARE(table.recordCount(), 1);
    QCOMPARE(table.record(0).intField2, 77);
    QCOMPARE(int(table.orderType()), 0);
}

void tst_CGlobalOrderParamTable::aLongTextIsTakenInLinearTime()
{
    GlobalTableProbe table;
    table.setParam(QStringLiteral("k=v^").repeated(1 << 20));
    QCOMPARE(table.recordCount(), 1);
}

QTEST_MAIN(tst_CGlobalOrderParamTable)
#include "tst_CGlobalOrderParamTable.moc"
