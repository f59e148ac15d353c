#include "contract/RecordedPanel.h"

#include <QtTest>

#include <functional>

using contract::RecordedPanel;
using support::BaseTableProbe;

namespace {

struct Operation
{
    const char* name;
    std::function<void(BaseTableProbe&)> run;
};

const ttservice::EOrderType kType = ttservice::ORDER_TYPE_PARAM_SET_5;

const QVector<Operation>& operations()
{
    static ttservice::CCodeOrderParam task;
    static ttservice::COrderSetting setting;
    static double low = 1.0;
    static double high = 2.0;
    // clang-format off
    static const QVector<Operation> rows = {
        {"clear",                     [](BaseTableProbe& t) { t.clear(); }},
        {"doSetSingleNvAlgoUiParam",  [](BaseTableProbe& t) { t.doSetSingleNvAlgoUiParam(kType, QStringLiteral("p")); }},
        {"doGetSingleNvAlgoUiParam",  [](BaseTableProbe& t) { QCOMPARE(t.doGetSingleNvAlgoUiParam(kType), QString()); }},
        {"getPriceLimit",             [](BaseTableProbe& t) { t.getPriceLimit(low, high); }},
        {"handleWheel",               [](BaseTableProbe& t) { t.handleWheel(); }},
        {"hideAmountUsed",            [](BaseTableProbe& t) { t.hideAmountUsed(); }},
        {"loadOpParam",               [](BaseTableProbe& t) { t.loadOpParam(&setting, 0.001); }},
        {"saveOpParam",               [](BaseTableProbe& t) { t.saveOpParam(QStringLiteral("c"), &setting); }},
        {"onPriceTypeChange",         [](BaseTableProbe& t) { t.onPriceTypeChange(); }},
        {"reSetPriceTypeEnable",      [](BaseTableProbe& t) { t.reSetPriceTypeEnable(); }},
        {"resetCurrentPriceType",     [](BaseTableProbe& t) { t.resetCurrentPriceType(); }},
        {"resetMarketPriceType",      [](BaseTableProbe& t) { t.resetMarketPriceType(); }},
        {"setAlgirithmBtnVisible",    [](BaseTableProbe& t) { t.setAlgirithmBtnVisible(kType); }},
        {"setTableEnabled",           [](BaseTableProbe& t) { t.setTableEnabled(kType, false); }},
        {"setTableUIByParams",        [](BaseTableProbe& t) { t.setTableUIByParams(ttservice::TRADE_PLATFORM_DEFAULT); }},
        {"updateIntervalUnit",        [](BaseTableProbe& t) { t.updateIntervalUnit(); }},
        {"updatePriceLimit",          [](BaseTableProbe& t) { t.updatePriceLimit(); }},
        {"updateRandomVolume",        [](BaseTableProbe& t) { t.updateRandomVolume(); }},
        {"updateUnit",                [](BaseTableProbe& t) { t.updateUnit(); }},
        {"resetStrategyType",         [](BaseTableProbe& t) { t.resetStrategyType(kType, QStringLiteral("s")); }},
        {"changePriceType",           [](BaseTableProbe& t) { auto p = ttservice::PRTP_FIX; QVERIFY(t.changePriceType(p)); }},
        {"checkPriceLimit",           [](BaseTableProbe& t) { QString text; QVERIFY(t.checkPriceLimit(text)); }},
        {"hasUpStopPrice",            [](BaseTableProbe& t) { QVERIFY(t.hasUpStopPrice()); }},
        {"getAlgoPriceTypeName",      [](BaseTableProbe& t) { QCOMPARE(t.getAlgoPriceTypeName(), QString()); }},
        {"getAlgoStrategyType",       [](BaseTableProbe& t) { QVERIFY(t.getAlgoStrategyType().empty()); }},
        {"getAlgoStrategyTypeName",   [](BaseTableProbe& t) { QVERIFY(t.getAlgoStrategyTypeName().empty()); }},
        {"getAlgParamsStr of one",    [](BaseTableProbe& t) { QVERIFY(t.getAlgParamsStr(task).empty()); }},
        {"getAlgParamsStr of many",   [](BaseTableProbe& t) { QVERIFY(t.getAlgParamsStr(std::vector{task, task}).empty()); }},
        {"fillOrderParam",            [](BaseTableProbe& t) { t.fillOrderParam(QStringLiteral("c"), 1, task, 2.5); }},
        {"loadFromOrderParam",        [](BaseTableProbe& t) { t.loadFromOrderParam(task, true, "x"); }},
        {"setInstrument",             [](BaseTableProbe& t) { t.setInstrument({}); }},
        {"isAuthorityLegal",          [](BaseTableProbe& t) { QVERIFY(t.isAuthorityLegal("mdl_order_algorithm3")); }},
        {"bShowHelp",                 [](BaseTableProbe& t) { QVERIFY(t.bShowHelp(kType)); }},
        {"getRealVolumeType",         [](BaseTableProbe& t) { QCOMPARE(t.getRealVolumeType(ttservice::VOLUME_TYPE_BUY1), ttservice::VOLUME_TYPE_BUY1); }},
        {"isOrderService",            [](BaseTableProbe& t) { QVERIFY(!t.isOrderService()); }},
        {"isCloseSetting",            [](BaseTableProbe& t) { QVERIFY(!t.isCloseSetting()); }},
        {"isComposeFuture",           [](BaseTableProbe& t) { QVERIFY(!t.isComposeFuture()); }},
        {"isComposeStock",            [](BaseTableProbe& t) { QVERIFY(!t.isComposeStock()); }},
        {"isTrdParamTable",           [](BaseTableProbe& t) { QVERIFY(!t.isTrdParamTable()); }},
        {"showAlgo",                  [](BaseTableProbe& t) { QVERIFY(t.showAlgo()); }},
        {"showAlgoHelpButton",        [](BaseTableProbe& t) { QVERIFY(t.showAlgoHelpButton()); }},
        {"orderType",                 [](BaseTableProbe& t) { QCOMPARE(t.orderType(), ttservice::ORDER_TYPE_NORMAL); }},
        {"getOperationType",          [](BaseTableProbe& t) { QCOMPARE(t.getOperationType(), ttservice::OPT_NONE); }},
        {"getStockCode",              [](BaseTableProbe& t) { QCOMPARE(t.getStockCode(), QString()); }},
        {"isExpand",                  [](BaseTableProbe& t) { QVERIFY(!t.isExpand()); }},
    };
    // clang-format on
    return rows;
}

} // namespace

/// Operations that do nothing in this edition, and plain answers, call nothing at all.
class tst_ContractInert : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void callsNothing_data();
    void callsNothing();
};

void tst_ContractInert::init()
{
    recorder::reset();
}

void tst_ContractInert::callsNothing_data()
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < operations().size(); ++i)
        QTest::newRow(operations().at(i).name) << i;
}

void tst_ContractInert::callsNothing()
{
    QFETCH(int, row);
    RecordedPanel panel;

    operations().at(row).run(panel.table);

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

QTEST_MAIN(tst_ContractInert)
#include "tst_ContractInert.moc"
