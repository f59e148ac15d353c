#include "semantics/RuleText.h"

#include <OrderParamTable_mini/semantics/PriceAdjustment.h>

#include <QTest>

#include <cmath>
#include <limits>

namespace {

constexpr double kLargest = 1.7976931348623157e308;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
const double kNotANumber = std::numeric_limits<double>::quiet_NaN();

const TC::OperationCellFlags kDefault{QFlag(0x7103fff)};
const TC::OperationCellFlags kCustom{QFlag(0x7103ffe)};

} // namespace

class tst_PriceAdjustment : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyTheLargestFiniteDoubleIsNoPrice();
    void anyDifferenceFromTheDefaultFlagsIsCustom();
    void superPricesBelowZeroNeedCustomFlags();
    void superPriceKeepsWithinTwiceTheFluctuation_data();
    void superPriceKeepsWithinTwiceTheFluctuation();
    void superPriceThatIsNoNumberStays();
    void rangesOfTheSuperPrice();
    void displayEventByPriceType();
    void calculationPriceByTypeOrderAndOperation();
};

void tst_PriceAdjustment::onlyTheLargestFiniteDoubleIsNoPrice()
{
    QVERIFY(TC::isNoPrice(kLargest));
    QVERIFY(!TC::isNoPrice(std::nextafter(kLargest, 0.0)));
    QVERIFY(!TC::isNoPrice(-kLargest));
    QVERIFY(!TC::isNoPrice(kInfinity));
    QVERIFY(!TC::isNoPrice(-kInfinity));
    QVERIFY(!TC::isNoPrice(kNotANumber));
    for (const double price : {0.0, -0.0, 1e-5, 12.34, -1.0, 1e308})
        QVERIFY(!TC::isNoPrice(price));
}

void tst_PriceAdjustment::anyDifferenceFromTheDefaultFlagsIsCustom()
{
    QVERIFY(!TC::hasCustomFlags(kDefault));
    QVERIFY(TC::hasCustomFlags({}));
    for (int bit = 0; bit < 32; ++bit) {
        const TC::OperationCellFlags flags{QFlag(int(0x7103fffu ^ (1u << bit)))};
        QVERIFY(TC::hasCustomFlags(flags));
    }
}

void tst_PriceAdjustment::superPricesBelowZeroNeedCustomFlags()
{
    QCOMPARE(TC::allowedSuperPrice(-1.5, kDefault), 0.0);
    QCOMPARE(TC::allowedSuperPrice(-1.5, kCustom), -1.5);
    for (const double value : {0.0, 0.5, 100.0, 1e6, kLargest, kInfinity}) {
        QCOMPARE(TC::allowedSuperPrice(value, kDefault), value);
        QCOMPARE(TC::allowedSuperPrice(value, kCustom), value);
    }
    QCOMPARE(TC::allowedSuperPrice(-kInfinity, kDefault), 0.0);
    QCOMPARE(TC::allowedSuperPrice(-kLargest, kCustom), -kLargest);
}

void tst_PriceAdjustment::superPriceKeepsWithinTwiceTheFluctuation_data()
{
    QTest::addColumn<double>("superPrice");
    QTest::addColumn<double>("fluctuation");
    QTest::addColumn<double>("withDefaultFlags");
    QTest::addColumn<double>("withCustomFlags");
    QTest::newRow("within") << 5.0 << 3.0 << 5.0 << 5.0;
    QTest::newRow("at the limit") << 6.0 << 3.0 << 6.0 << 6.0;
    QTest::newRow("above") << 7.0 << 3.0 << 6.0 << 6.0;
    QTest::newRow("below") << -7.0 << 3.0 << 0.0 << -6.0;
    QTest::newRow("at the lower limit, unchanged") << -6.0 << 3.0 << -6.0 << -6.0;
    QTest::newRow("negative within, unchanged") << -1.0 << 3.0 << -1.0 << -1.0;
    QTest::newRow("no fluctuation") << 0.5 << 0.0 << 0.0 << 0.0;
    QTest::newRow("zero") << 0.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("infinite") << kInfinity << 3.0 << 6.0 << 6.0;
    QTest::newRow("minus infinite") << -kInfinity << 3.0 << 0.0 << -6.0;
    QTest::newRow("zero counts as positive") << 0.0 << -1.0 << 0.0 << -2.0;
}

void tst_PriceAdjustment::superPriceKeepsWithinTwiceTheFluctuation()
{
    QFETCH(double, superPrice);
    QFETCH(double, fluctuation);
    QTEST(TC::limitedSuperPrice(superPrice, fluctuation, kDefault), "withDefaultFlags");
    QTEST(TC::limitedSuperPrice(superPrice, fluctuation, kCustom), "withCustomFlags");
}

void tst_PriceAdjustment::superPriceThatIsNoNumberStays()
{
    QVERIFY(std::isnan(TC::limitedSuperPrice(kNotANumber, 3.0, kCustom)));
    QCOMPARE(TC::limitedSuperPrice(7.0, kNotANumber, kCustom), 7.0);
}

void tst_PriceAdjustment::rangesOfTheSuperPrice()
{
    QCOMPARE(TC::percentRange(kDefault).min, 0.0);
    QCOMPARE(TC::percentRange(kDefault).max, 100.0);
    QCOMPARE(TC::percentRange(kCustom).min, -100.0);
    QCOMPARE(TC::percentRange(kCustom).max, 100.0);
    QCOMPARE(TC::moneyRange(kDefault).min, 0.0);
    QCOMPARE(TC::moneyRange(kDefault).max, 1000000.0);
    QCOMPARE(TC::moneyRange(kCustom).min, -1000000.0);
    QCOMPARE(TC::moneyRange(kCustom).max, 1000000.0);
}

void tst_PriceAdjustment::displayEventByPriceType()
{
    const std::set<int> market{12, 18, 19, 20, 21, 22, 23, 24, 42, 43, 44, 45, 46, 47, 48};
    for (const int type : ruletext::manyIntegers()) {
        const TC::PriceDisplayEvent event = TC::priceDisplayEvent(ttservice::EPriceType(type));
        if (market.count(type) > 0) {
            QCOMPARE(event.event, 1062);
            QCOMPARE(event.colourKey, "clr_global_text");
        } else if (type == 49) {
            QCOMPARE(event.event, 1063);
            QCOMPARE(event.colourKey, "clr_disabled_widget_text");
        } else {
            QCOMPARE(event.event, 0);
        }
    }
}

void tst_PriceAdjustment::calculationPriceByTypeOrderAndOperation()
{
    using TC::CalculationPrice;
    for (const int type : ruletext::manyIntegers()) {
        for (const int order : ruletext::manyIntegers()) {
            for (const int operation : {INT_MIN, -2, -1, 0, 21, 22, 1021, INT_MAX}) {
                CalculationPrice expected = CalculationPrice::None;
                if (type == 11 || (type != 49 && order == 1 && operation != -1))
                    expected = CalculationPrice::Original;
                else if (type == 49)
                    expected = CalculationPrice::AfterHours;
                QCOMPARE(TC::calculationPrice(ttservice::EPriceType(type), ttservice::EOrderType(order),
                                              ttservice::EOperationType(operation)),
                         expected);
            }
        }
    }
}

QTEST_APPLESS_MAIN(tst_PriceAdjustment)
#include "tst_PriceAdjustment.moc"
