#include "support/CellText.h"

#include <OrderParamTable_mini/tables/CCodeOrderParamTable.h>
#include <OrderParamTable_mini/tables/CStopLossOrderParamTable.h>

#include <WQ/CMultiParamsTable.h>
#include <WQ/CWidgetList.h>

#include <QtTest>

using namespace ttservice;

namespace {

class CodeTableProbe : public TC::CCodeOrderParamTable
{
public:
    CodeTableProbe(int id, int broker, bool a, int trader, bool b)
        : TC::CCodeOrderParamTable(TC::EOpParamWidgetID(id), ENVBrokerType(broker), nullptr, a, ENvTraderType(trader),
                                   b)
    {
    }

    void save() override
    {
        ++saves;
        TC::CCodeOrderParamTable::save();
    }

    int saves = 0;

    using TC::CCodeOrderParamTable::m_btnList;
    using TC::CCodeOrderParamTable::m_changed;
    using TC::CCodeOrderParamTable::m_lastFlag;
    using TC::CCodeOrderParamTable::m_paramsByCode;
    using TC::CCodeOrderParamTable::m_secondMap;
    using TC::CCodeOrderParamTable::m_showModeButtons;
    using TC::CCodeOrderParamTable::m_tableFontScale;
    using TC::CCodeOrderParamTable::m_traderType;
    using TC::CCodeOrderParamTable::m_visibleFlags;
    using TC::CCodeOrderParamTable::reloadParam;
};

class StopLossProbe : public TC::CStopLossOrderParamTable
{
public:
    explicit StopLossProbe(int id = 5, int broker = 2, QWidget* parent = nullptr)
        : TC::CStopLossOrderParamTable(TC::EOpParamWidgetID(id), ENVBrokerType(broker), parent)
    {
    }

    using TC::CStopLossOrderParamTable::m_btnList;
    using TC::CStopLossOrderParamTable::m_lastFlag;
    using TC::CStopLossOrderParamTable::m_tableFontScale;
    using TC::CStopLossOrderParamTable::m_traderType;
    using TC::CStopLossOrderParamTable::reloadParam;
};

bool isDefaultRecord(const COrderSetting& setting)
{
    return TC::COrderParamBaseTable::orderSetting2Param(setting)
        == TC::COrderParamBaseTable::orderSetting2Param(COrderSetting());
}

constexpr int kInitialList[] = {11, 13, 14, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10};

} // namespace

class tst_CodeAndStopLossTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theCodeTableReordersItsArguments_data();
    void theCodeTableReordersItsArguments();
    void theCodeTableNeverOffersTheAutomaticBookPrice();
    void theCodeTableAnswersEmptyTextsAfterAnyCalls();
    void theDefaultParamIsADefaultRecord();
    void theCodeTableSeesACodeAsTheBaseDoes();
    void saveParamFlagRecordsTheChoiceWhileCollapsed();
    void saveParamFlagKeepsTheWordWhileExpanded();
    void inertOperationsOfTheCodeTableChangeNothing();
    void aNewStopLossTableShowsItsOptionalCells();
    void theStopLossTableFollowsTheScaleForTraderType1();
    void theStopLossTableAnswersEmptyTextsAfterAnyCalls();
};

void tst_CodeAndStopLossTables::theCodeTableReordersItsArguments_data()
{
    QTest::addColumn<bool>("a");
    QTest::addColumn<bool>("b");
    QTest::newRow("neither") << false << false;
    QTest::newRow("font scale") << true << false;
    QTest::newRow("mode buttons") << false << true;
    QTest::newRow("both") << true << true;
}

void tst_CodeAndStopLossTables::theCodeTableReordersItsArguments()
{
    QFETCH(bool, a);
    QFETCH(bool, b);
    const CodeTableProbe table(12, 3, a, 4, b);
    QCOMPARE(int(table.getId()), 12);
    QCOMPARE(table.m_tableFontScale, a);
    QCOMPARE(table.m_showModeButtons, b);
    QCOMPARE(table.m_btnList->height(), b ? 28 : 0);
    QCOMPARE(int(table.m_traderType), 4);
    QVERIFY(!table.m_changed);
    QVERIFY(table.m_paramsByCode.isEmpty());
    QVERIFY(table.m_secondMap.isEmpty());
}

void tst_CodeAndStopLossTables::theCodeTableNeverOffersTheAutomaticBookPrice()
{
    CodeTableProbe table(5, 2, true, 2, true);
    QVERIFY(!table.m_lastFlag);
    WQ::CMultiParamsTable* const cells = table.getMultiParamsTable();
    for (const int value : kInitialList) {
        cells->setComboData(1, value);
        QCOMPARE(cells->itemData(1).toInt(), value);
    }
    cells->setComboData(1, 15);
    QCOMPARE(cells->itemData(1).toInt(), 10);
}

void tst_CodeAndStopLossTables::theCodeTableAnswersEmptyTextsAfterAnyCalls()
{
    CodeTableProbe table(5, 2, true, 1, true);
    COrderSetting setting;
    table.setParam(QStringLiteral("a^b^c=d"));
    table.setOrderParam(QStringLiteral("600000"), setting);
    table.setStockCode(QStringLiteral("600000"));
    table.setOrderType(EOrderType(1));
    table.reloadParam();
    QCOMPARE(table.param(), QString());
}

void tst_CodeAndStopLossTables::theDefaultParamIsADefaultRecord()
{
    CodeTableProbe table(5, 2, true, 1, true);
    QVERIFY(isDefaultRecord(table.getDefaultParam()));
    QVERIFY(!isDefaultRecord(table.getDefault()));
}

void tst_CodeAndStopLossTables::theCodeTableSeesACodeAsTheBaseDoes()
{
    CodeTableProbe table(36, 10, true, 1, true);
    QCOMPARE(support::comboEntries(*table.getMultiParamsTable(), 1),
             QStringLiteral("*最新价=5 挂单价=13 对手价=14 卖⑤价=0 卖④价=1 卖③价=2 卖②价=3 卖①价=4 "
                            "买①价=6 买②价=7 买③价=8 买④价=9 买⑤价=10"));
    table.setStockCode(QStringLiteral("600000"));
    QCOMPARE(table.getStockCode(), QStringLiteral("600000"));
    // Table 36 rebuilds with own-side, counter-party and book prices; it types no price.
    QCOMPARE(support::comboEntries(*table.getMultiParamsTable(), 1),
             QStringLiteral("*挂单价=13 对手价=14 卖⑤价=0 卖④价=1 卖③价=2 卖②价=3 卖①价=4 最新价=5 "
                            "买①价=6 买②价=7 买③价=8 买④价=9 买⑤价=10"));
}

void tst_CodeAndStopLossTables::saveParamFlagRecordsTheChoiceWhileCollapsed()
{
    CodeTableProbe table(5, 2, true, 1, true);
    table.getMultiParamsTable()->setVisibleItemSet({0x1, 0x2});
    table.saveParamFlag();
    QCOMPARE(table.m_visibleFlags[0], 0x3U);
    QCOMPARE(table.saves, 1);
}

void tst_CodeAndStopLossTables::saveParamFlagKeepsTheWordWhileExpanded()
{
    CodeTableProbe table(5, 2, true, 1, true);
    table.setExpandItemsHidden(false);
    table.getMultiParamsTable()->setVisibleItemSet({0x1, 0x2});
    table.saveParamFlag();
    QCOMPARE(table.m_visibleFlags[0], 0U);
    QCOMPARE(table.saves, 1);
}

void tst_CodeAndStopLossTables::inertOperationsOfTheCodeTableChangeNothing()
{
    CodeTableProbe table(5, 2, true, 1, true);
    const QStringList before = support::cellRows(*table.getMultiParamsTable());
    COrderSetting setting;
    setting.intField2 = 4;
    table.setOrderParam(QStringLiteral("600000"), setting);
    table.setSell(true);
    table.setParam(QStringLiteral("x"));
    table.clear();
    QCOMPARE(support::cellRows(*table.getMultiParamsTable()), before);
    QCOMPARE(setting.intField2, 4);
    QCOMPARE(table.getStockCode(), QString());
    QVERIFY(table.m_paramsByCode.isEmpty());
}

void tst_CodeAndStopLossTables::aNewStopLossTableShowsItsOptionalCells()
{
    StopLossProbe table;
    QVERIFY(table.isExpand());
    table.setOrderType(EOrderType(1));
    QVERIFY(table.isExpand());
    for (const int cell : {0x8, 0x200, 0x400, 0x800, 0x1000, 0x2000})
        QVERIFY2(support::shownCells(*table.getMultiParamsTable()).contains(cell), QByteArray::number(cell, 16));
}

void tst_CodeAndStopLossTables::theStopLossTableFollowsTheScaleForTraderType1()
{
    QWidget host;
    StopLossProbe table(5, 2, &host);
    QCOMPARE(table.parentWidget(), &host);
    QVERIFY(table.m_tableFontScale);
    QCOMPARE(int(table.m_traderType), 1);
    QVERIFY(!table.m_lastFlag);
    QCOMPARE(table.m_btnList->height(), 28);
    table.setParent(nullptr);
}

void tst_CodeAndStopLossTables::theStopLossTableAnswersEmptyTextsAfterAnyCalls()
{
    StopLossProbe table;
    table.setStopLoss(QStringLiteral("9.5"), QStringLiteral("10.5"));
    table.setParam(QStringLiteral("a^b"));
    table.setStockCode(QStringLiteral("600000"));
    table.clear();
    table.save();
    table.reloadParam();
    QCOMPARE(table.param(), QString());
    QCOMPARE(table.getStockCode(), QStringLiteral("600000"));
}

QTEST_MAIN(tst_CodeAndStopLossTables)
#include "tst_CodeAndStopLossTables.moc"
