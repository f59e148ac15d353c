#include "contract/RecordedPanel.h"
#include "contract/Sequences.h"

#include <WQ/CMultiParamsTable.h>

#include <QtTest>

using contract::cellVisibilities;
using contract::lines;
using contract::RecordedPanel;
using contract::setupOf;
using contract::superPriceShow;
using support::TableSetup;

namespace {

const char kSloSell[] = "mdl_order/mdl_order_credit_opt_slosell_only_fixed_price";

const char kAsksSloSell[] = R"(modules.isOn("mdl_order", "mdl_order_credit_opt_slosell_only_fixed_price"))";
const char kAsksMarketPrices[] = R"(modules.isOn("mdl_order", "mdl_order_stock_multi_market_price"))";

QStringList moduleQuestions()
{
    return recorder::callsOf({QStringLiteral("modules.isOn")});
}

} // namespace

/// When the price-type cell is refilled, with what, and which modules are asked for it.
class tst_ContractPriceTypes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void marketPricesAreAskedForOnEveryCall_data();
    void marketPricesAreAskedForOnEveryCall();
    void securitiesLendingIsAskedForFirst();
    void listWithoutApplyTouchesNoCell();
    void listWithApplyRefillsTheCell();
    void emptyListIsNotApplied();
    void securitiesLendingSellTouchesNoCellInTheList();
    void settingAPriceTypeSelectsAndShowsTheSuperPrice();
    void selectingAPriceCallsInOrder();
    void updatingTheNameOfAParameterSetAsksForNoCell();
    void storedNameIsAnsweredWithoutAsking();
};

void tst_ContractPriceTypes::init()
{
    recorder::reset();
}

void tst_ContractPriceTypes::marketPricesAreAskedForOnEveryCall_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("orderType");
    QTest::addColumn<int>("operation");
    QTest::addColumn<int>("market");
    for (const int market : {-1, 0, 1, 2, 3, 4, 5, 6})
        QTest::addRow("market %d", market) << 5 << 0 << -1 << market;
    QTest::newRow("table 22") << 22 << 0 << -1 << 4;
    QTest::newRow("table 24") << 24 << 0 << -1 << 4;
    QTest::newRow("an algorithm") << 5 << 1 << -1 << 4;
    QTest::newRow("securities-lending sell without its module") << 5 << 0 << 21 << 4;
}

void tst_ContractPriceTypes::marketPricesAreAskedForOnEveryCall()
{
    QFETCH(int, id);
    QFETCH(int, orderType);
    QFETCH(int, operation);
    QFETCH(int, market);
    RecordedPanel panel(setupOf(id));
    panel.table.m_orderType = ttservice::EOrderType(orderType);
    panel.table.m_operationType = ttservice::EOperationType(operation);
    for (int call = 1; call <= 2; ++call) {
        QStringList labels;
        QVector<QVariant> values;
        panel.table.doResetPriceType(labels, values, 31, market, false, {});
        QCOMPARE(moduleQuestions().count(QLatin1String(kAsksMarketPrices)), call);
    }
}

void tst_ContractPriceTypes::securitiesLendingIsAskedForFirst()
{
    RecordedPanel panel;
    panel.table.m_operationType = ttservice::EOperationType(21);
    QStringList labels;
    QVector<QVariant> values;

    panel.table.doResetPriceType(labels, values, 31, 4, false, {});
    QCOMPARE(moduleQuestions(), QStringList({QLatin1String(kAsksSloSell), QLatin1String(kAsksMarketPrices)}));

    recorder::clear();
    recorder::state().modulesOn = {QLatin1String(kSloSell)};
    panel.table.doResetPriceType(labels, values, 31, 4, false, {});
    QCOMPARE(moduleQuestions(), QStringList{QLatin1String(kAsksSloSell)});
}

void tst_ContractPriceTypes::listWithoutApplyTouchesNoCell()
{
    RecordedPanel panel;
    QStringList labels;
    QVector<QVariant> values;

    panel.table.doResetPriceType(labels, values, 31, 4, false, {});
    panel.table.genPriceTypeBySubType(labels, values);

    QCOMPARE(recorder::calls(recorder::kActs | recorder::Ask), QStringList());
}

void tst_ContractPriceTypes::listWithApplyRefillsTheCell()
{
    RecordedPanel panel;
    QStringList labels;
    QVector<QVariant> values;

    panel.table.doResetPriceType(labels, values, 4, 4, true, QStringLiteral("ignored"));

    QCOMPARE(recorder::calls(), lines(R"(table.resetComboData(0x1, ["指定价", "挂单价", "对手价"], [11, 13, 14], 0))"));
}

void tst_ContractPriceTypes::securitiesLendingSellTouchesNoCellInTheList()
{
    RecordedPanel panel;
    panel.table.m_operationType = ttservice::EOperationType(21);
    recorder::state().modulesOn = {QLatin1String(kSloSell)};
    QStringList labels;
    QVector<QVariant> values;

    panel.table.doResetPriceType(labels, values, 31, 4, true, {});

    QCOMPARE(labels, QStringList{QStringLiteral("指定价")});
    QCOMPARE(recorder::calls(), QStringList());
}

void tst_ContractPriceTypes::settingAPriceTypeSelectsAndShowsTheSuperPrice()
{
    RecordedPanel panel;

    panel.table.setPriceType(ttservice::EPriceType(8));

    QCOMPARE(recorder::calls(), lines("table.setComboData(0x1, 8)") + superPriceShow({}));
    QCOMPARE(recorder::calls(recorder::Service), QStringList());
}

void tst_ContractPriceTypes::selectingAPriceCallsInOrder()
{
    RecordedPanel panel;

    panel.table.selectPrice(ttservice::EPriceType(8));

    QCOMPARE(recorder::calls(), lines(R"(
        table.setComboData(0x10000, 8)
        table.setComboData(0x1, 8)
        save()
        deliver(129, 5, 0, "", null)
    )") + cellVisibilities({0, false, 0x3000003, 0}));
}

void tst_ContractPriceTypes::updatingTheNameOfAParameterSetAsksForNoCell()
{
    RecordedPanel panel;
    panel.table.m_paramIndex = 0;

    panel.table.updateCurrentPriceTypeName();

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractPriceTypes::storedNameIsAnsweredWithoutAsking()
{
    RecordedPanel panel;
    panel.table.m_priceTypeName = QStringLiteral("stored");

    QCOMPARE(panel.table.getCurrentPriceTypeName(), QStringLiteral("stored"));
    QCOMPARE(panel.table.priceType(), ttservice::EPriceType(11));

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractPriceTypes::emptyListIsNotApplied()
{
    RecordedPanel panel(setupOf(35));
    QStringList labels;
    QVector<QVariant> values;

    panel.table.doResetPriceType(labels, values, 0, 0, true, {});

    QCOMPARE(labels, QStringList());
    QCOMPARE(recorder::calls(), QStringList());
}

QTEST_MAIN(tst_ContractPriceTypes)
#include "tst_ContractPriceTypes.moc"
