#include "contract/RecordedPanel.h"
#include "contract/Sequences.h"

#include <WQ/CMultiParamsTable.h>

#include <QtTest>

#include <limits>

using contract::lines;
using contract::RecordedPanel;
using contract::superPriceShow;
using contract::tableByPriceType;

/// What the price operations call, in order, and what they leave alone.
class tst_ContractPrices : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void fixedPriceCallsInOrder_data();
    void fixedPriceCallsInOrder();
    void fixedPriceInOrderType5CallsNothing();
    void quotedPriceIsSentWithItsAddress_data();
    void quotedPriceIsSentWithItsAddress();
    void typedPriceIsNotOverwritten();
    void priceDisplayIsColoured_data();
    void priceDisplayIsColoured();
    void priceCellFitsAndShows();
    void limitPriceIsShownForTwoOrderTypes_data();
    void limitPriceIsShownForTwoOrderTypes();
    void triggerPriceIsClearedAndSaved();
    void pureAnswersAskNothing();
    void calculationPriceReadsWhatItNeeds();
};

void tst_ContractPrices::init()
{
    recorder::reset();
}

void tst_ContractPrices::fixedPriceCallsInOrder_data()
{
    QTest::addColumn<int>("orderType");
    for (const int type : {-1, 0, 1, 2, 3, 4, 6, 13})
        QTest::addRow("order type %d", type) << type;
}

void tst_ContractPrices::fixedPriceCallsInOrder()
{
    QFETCH(int, orderType);
    RecordedPanel panel;
    panel.table.m_orderType = ttservice::EOrderType(orderType);

    panel.table.setFixedPrice(12.5);

    const contract::ShownCells cells{orderType, false, 0, 0};
    QCOMPARE(recorder::calls(),
             lines("table.setComboData(0x1, 11)") + tableByPriceType(cells) + lines(R"(deliver(1061, 5, 11, "", null))")
                 + superPriceShow(cells) + lines(R"(
        save()
        deliver(129, 5, 0, "", null)
    )"));
}

void tst_ContractPrices::fixedPriceInOrderType5CallsNothing()
{
    RecordedPanel panel;
    panel.table.m_orderType = ttservice::EOrderType(5);

    panel.table.setFixedPrice(12.5);

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractPrices::quotedPriceIsSentWithItsAddress_data()
{
    QTest::addColumn<double>("price");
    QTest::addColumn<QString>("written");
    QTest::newRow("12.5") << 12.5 << QStringLiteral("12.5");
    QTest::newRow("-0.001") << -0.001 << QStringLiteral("-0.001");
    QTest::newRow("no price") << std::numeric_limits<double>::max() << QStringLiteral("max");
}

void tst_ContractPrices::quotedPriceIsSentWithItsAddress()
{
    QFETCH(double, price);
    QFETCH(QString, written);
    RecordedPanel panel;
    panel.table.m_priceType = ttservice::EPriceType(5);

    panel.table.setPriceImpl(price, QStringLiteral("text"));

    QCOMPARE(recorder::calls(recorder::kEverything),
             QStringList{QStringLiteral("deliver(1062, 5, 0, \"text\", %1)").arg(written)});
}

void tst_ContractPrices::typedPriceIsNotOverwritten()
{
    RecordedPanel panel;
    panel.table.m_priceType = ttservice::EPriceType(11);

    panel.table.setPriceImpl(7.0, QStringLiteral("text"));
    panel.table.setOriginalPrice(9.0);

    QCOMPARE(panel.table.m_originalPrice, 9.0);
    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractPrices::priceDisplayIsColoured_data()
{
    QTest::addColumn<int>("priceType");
    QTest::addColumn<QString>("call");
    const QString quoted = QStringLiteral("deliver(1062, 5, 1, \"clr_global_text\", null)");
    const QString fixed = QStringLiteral("deliver(1063, 5, 1, \"clr_disabled_widget_text\", null)");
    for (int type = -1; type <= 50; ++type) {
        const bool isQuoted = type == 12 || (type >= 18 && type <= 24) || (type >= 42 && type <= 48);
        QTest::addRow("price type %d", type) << type << (isQuoted ? quoted : type == 49 ? fixed : QString());
    }
}

void tst_ContractPrices::priceDisplayIsColoured()
{
    QFETCH(int, priceType);
    QFETCH(QString, call);
    RecordedPanel panel;
    panel.table.m_priceType = ttservice::EPriceType(priceType);

    panel.table.resetShowFixPrice();

    QCOMPARE(recorder::calls(recorder::kEverything), call.isEmpty() ? QStringList() : QStringList{call});
}

void tst_ContractPrices::priceCellFitsAndShows()
{
    RecordedPanel panel;

    panel.table.modPriceCell();

    QCOMPARE(recorder::calls(), lines("table.setFixedHeight(realHeight)") + superPriceShow({}));
    QCOMPARE(recorder::calls(recorder::Ask), lines("table.realHeight()"));
}

void tst_ContractPrices::limitPriceIsShownForTwoOrderTypes_data()
{
    QTest::addColumn<int>("orderType");
    for (const int type : {-2, -1, 0, 1, 2, 3, 4, 5, 13, 104})
        QTest::addRow("order type %d", type) << type;
}

void tst_ContractPrices::limitPriceIsShownForTwoOrderTypes()
{
    QFETCH(int, orderType);
    RecordedPanel panel;
    panel.table.m_orderType = ttservice::EOrderType(orderType);

    panel.table.resetTableByPriceType();

    QCOMPARE(recorder::calls(recorder::kEverything), tableByPriceType({orderType, false, 0, 0}));
}

void tst_ContractPrices::triggerPriceIsClearedAndSaved()
{
    RecordedPanel panel;

    panel.table.resetTriggerPriceSetting();

    QCOMPARE(recorder::calls(recorder::kEverything),
             lines("table.setCheckDouble(0x100000, false, 0.0, false)\n save()"));
}

void tst_ContractPrices::pureAnswersAskNothing()
{
    RecordedPanel panel;
    const auto none = ttservice::EOperationType(-1);

    QVERIFY(!panel.table.bSuperPriceHide());
    QVERIFY(panel.table.bSuperPriceStartHide());
    QCOMPARE(panel.table.getModifiedPriceByOptTypeForOrder(none), std::numeric_limits<double>::max());
    QCOMPARE(panel.table.changeSuperPrice(-1.5), 0.0);
    QCOMPARE(panel.table.fixPriceInRange(std::numeric_limits<double>::max()), 0.0);

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractPrices::calculationPriceReadsWhatItNeeds()
{
    RecordedPanel panel;
    const auto operation = ttservice::EOperationType(1);
    panel.table.m_table->setItemDouble(0x2000000, 4.25);
    panel.table.m_priceType = ttservice::EPriceType(11);
    panel.table.setOriginalPrice(3.5);
    recorder::clear();

    QCOMPARE(panel.table.getModifiedPriceByOptTypeForCalc(operation, false), 3.5);
    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());

    panel.table.m_priceType = ttservice::EPriceType(49);
    QCOMPARE(panel.table.getModifiedPriceByOptTypeForCalc(operation, false), 4.25);
    QCOMPARE(recorder::calls(recorder::kEverything), lines("table.itemDouble(0x2000000)"));

    recorder::clear();
    panel.table.m_priceType = ttservice::EPriceType(5);
    panel.table.getModifiedPriceByOptTypeForCalc(operation, true);
    QCOMPARE(recorder::calls(), QStringList());
}

QTEST_MAIN(tst_ContractPrices)
#include "tst_ContractPrices.moc"
