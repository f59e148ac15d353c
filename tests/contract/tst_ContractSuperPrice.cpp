#include "contract/RecordedPanel.h"
#include "contract/Sequences.h"

#include <WQ/CMultiParamsTable.h>

#include <QtTest>

using contract::RecordedPanel;
using contract::superPriceShow;

namespace {

constexpr int kDefaultFlags = 0x7103FFF;
constexpr int kOtherFlags = 0x7100003;

} // namespace

/// What limiting, showing and correcting the super price calls, in order.
class tst_ContractSuperPrice : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void superPriceLimitsByBrokerTypeAndFlags_data();
    void superPriceLimitsByBrokerTypeAndFlags();
    void superPriceIsShown_data();
    void superPriceIsShown();
    void superPriceIsKeptWithinTwiceTheFluctuation_data();
    void superPriceIsKeptWithinTwiceTheFluctuation();
    void superPriceInAnotherUnitIsNotTouched();
};

void tst_ContractSuperPrice::init()
{
    recorder::reset();
}

void tst_ContractSuperPrice::superPriceLimitsByBrokerTypeAndFlags_data()
{
    QTest::addColumn<int>("brokerType");
    QTest::addColumn<int>("flags");
    QTest::addColumn<QString>("unit");
    const QMap<int, const char*> units = {{1, "点"},    {2, "元"},    {3, "元"}, {4, "点"},  {5, "点"},
                                          {6, "元"},    {7, "港币"},  {8, "元"}, {10, "元"}, {11, "港币"},
                                          {1001, "点"}, {1002, "点"}, {99, "元"}};
    for (auto unit = units.begin(); unit != units.end(); ++unit) {
        for (const int flags : {kDefaultFlags, kOtherFlags, 0})
            QTest::addRow("broker type %d, flags 0x%x", unit.key(), unsigned(flags))
                << unit.key() << flags << QString::fromUtf8(unit.value());
    }
}

void tst_ContractSuperPrice::superPriceLimitsByBrokerTypeAndFlags()
{
    QFETCH(int, brokerType);
    QFETCH(int, flags);
    QFETCH(QString, unit);
    RecordedPanel panel(contract::setupOf(5, brokerType));
    panel.table.m_flags = TC::OperationCellFlags(flags);

    panel.table.resetSuperPrice();

    const bool isDefault = flags == kDefaultFlags;
    QStringList expected{
        QStringLiteral("table.setItemUnit(0x2, \"%\", MIN, 100.0, 0.0, false)")
            .replace(QLatin1String("MIN"), isDefault ? QLatin1String("0.0") : QLatin1String("-100.0")),
        QStringLiteral("table.setItemUnit(0x2, \"UNIT\", MIN, 1000000.0, 0.0, false)")
            .replace(QLatin1String("UNIT"), unit)
            .replace(QLatin1String("MIN"), isDefault ? QLatin1String("0.0") : QLatin1String("-1000000.0"))};
    QCOMPARE(recorder::calls(recorder::kEverything), expected);
}

void tst_ContractSuperPrice::superPriceIsShown_data()
{
    QTest::addColumn<int>("orderType");
    QTest::addColumn<bool>("expanded");
    for (const int type : {-1, 0, 1, 3, 5}) {
        QTest::addRow("order type %d, collapsed", type) << type << false;
        QTest::addRow("order type %d, expanded", type) << type << true;
    }
}

void tst_ContractSuperPrice::superPriceIsShown()
{
    QFETCH(int, orderType);
    QFETCH(bool, expanded);
    RecordedPanel panel;
    panel.table.setExpandItemsHidden(!expanded);
    panel.table.m_orderType = ttservice::EOrderType(orderType);
    recorder::clear();

    panel.table.resetSuperPriceShow();

    QCOMPARE(recorder::calls(recorder::kEverything), superPriceShow({orderType, expanded, 0, 0}));
}

void tst_ContractSuperPrice::superPriceIsKeptWithinTwiceTheFluctuation_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<double>("superPrice");
    QTest::addColumn<double>("fluctuation");
    QTest::addColumn<QString>("call");
    const QString set = QStringLiteral("table.setItemDouble(0x2, %1)");
    QTest::newRow("within") << kOtherFlags << 6.0 << 3.0 << QString();
    QTest::newRow("above") << kOtherFlags << 7.0 << 3.0 << set.arg(QLatin1String("6.0"));
    QTest::newRow("below") << kOtherFlags << -7.0 << 3.0 << set.arg(QLatin1String("-6.0"));
    QTest::newRow("above, default flags") << kDefaultFlags << 7.0 << 3.0 << set.arg(QLatin1String("6.0"));
    QTest::newRow("below, default flags") << kDefaultFlags << -7.0 << 3.0 << set.arg(QLatin1String("0.0"));
    QTest::newRow("nothing to keep within") << kOtherFlags << 0.5 << 0.0 << set.arg(QLatin1String("0.0"));
}

void tst_ContractSuperPrice::superPriceIsKeptWithinTwiceTheFluctuation()
{
    QFETCH(int, flags);
    QFETCH(double, superPrice);
    QFETCH(double, fluctuation);
    QFETCH(QString, call);
    RecordedPanel panel;
    panel.table.m_flags = TC::OperationCellFlags(flags);
    panel.table.m_table->setItemDouble(0x2, superPrice);
    panel.table.m_table->setItemDouble(0x8, fluctuation);
    recorder::clear();

    panel.table.fixSuperPrice();

    QCOMPARE(recorder::calls(), call.isEmpty() ? QStringList() : QStringList{call});
}

void tst_ContractSuperPrice::superPriceInAnotherUnitIsNotTouched()
{
    RecordedPanel panel;
    panel.table.m_table->setItemDouble(0x2, 70.0);
    panel.table.m_table->setItemUnit(0x8, QStringLiteral("元"));
    recorder::clear();

    panel.table.fixSuperPrice();

    QCOMPARE(recorder::calls(), QStringList());
}

QTEST_MAIN(tst_ContractSuperPrice)
#include "tst_ContractSuperPrice.moc"
