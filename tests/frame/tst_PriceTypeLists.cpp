#include "frame/PriceTypeExpectations.h"
#include "support/BaseTableProbe.h"
#include "support/CellText.h"
#include "support/ModuleGuard.h"

#include <WQ/CMultiParamsTable.h>

#include <QtTest>

using namespace support;

namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

QStringList zipped(const QStringList& labels, const QVector<QVariant>& values)
{
    QStringList entries;
    for (int i = 0; i < qMax(labels.size(), values.size()); ++i)
        entries << labels.value(i) + QLatin1Char('=') + values.value(i).toString();
    return entries;
}

QString priceTypes(BaseTableProbe& table)
{
    return comboEntries(*table.m_table, TC::OCF_PriceType);
}

const char kFullLevels[] = "卖⑤价=0 卖④价=1 卖③价=2 卖②价=3 卖①价=4 最新价=5 买①价=6 买②价=7 买③价=8 买④价=9 买⑤价=10";

} // namespace

/// Which price types are listed, by flags, market family and the state of the table.
class tst_PriceTypeLists : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void listsByFlagsMarketAndState_data();
    void listsByFlagsMarketAndState();
    void buildersOnlyAppend();
    void applyingLoadsTheListsIntoTheCell();
    void securitiesLendingSellIsLimitedToTheSpecifiedPrice();
    void afterHoursPricingNeedsMarket3PlainOrderAndIdentity_data();
    void afterHoursPricingNeedsMarket3PlainOrderAndIdentity();
    void bestFiveLevelsHaveTwoValues_data();
    void bestFiveLevelsHaveTwoValues();
    void optionTableOfIdentity43OffersNoMarketOrders();
    void bookLevelsByBrokerType();
};

void tst_PriceTypeLists::listsByFlagsMarketAndState_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("brokerType");
    for (const int id : {4, 5, 7, 15, 22, 24, 31, 36, 43}) {
        for (const int brokerType : {2, 3, 6, 7})
            QTest::addRow("identity %d, broker type %d", id, brokerType) << id << brokerType;
    }
}

void tst_PriceTypeLists::listsByFlagsMarketAndState()
{
    QFETCH(int, id);
    QFETCH(int, brokerType);
    Q q;
    q.id = id;
    q.brokerType = brokerType;
    for (int bits = 0; bits < 4; ++bits) {
        q.sloSellModule = bits & 1;
        q.marketPriceModule = bits & 2;
        const ModuleGuard on({q.sloSellModule ? modules::kSloSellFixedPrice : "",
                              q.marketPriceModule ? modules::kStockMarketPrice : ""});
        for (const int trader : {1, 4, 4096}) {
            q.traderType = trader;
            q.autoBook = trader != 4096;
            BaseTableProbe table({id, brokerType, trader, q.autoBook});
            for (q.flags = 0; q.flags < 128; q.flags += (q.flags < 32 ? 1 : 9)) {
                for (q.market = -1; q.market <= 6; ++q.market) {
                    for (const auto& state : {std::pair(0, -1), std::pair(0, 21), std::pair(1, 0), std::pair(4, 21)}) {
                        table.m_orderType = ttservice::EOrderType(q.orderType = state.first);
                        table.m_operationType = ttservice::EOperationType(q.operationType = state.second);
                        QStringList labels;
                        QVector<QVariant> values;
                        table.doResetPriceType(labels, values, q.flags, q.market, false, QString());
                        if (zipped(labels, values) != expectedPriceTypes(q)) {
                            qInfo() << "flags" << q.flags << "market" << q.market << "order" << q.orderType
                                    << "operation" << q.operationType << "trader" << trader << "modules" << bits;
                            QCOMPARE(zipped(labels, values), expectedPriceTypes(q));
                        }
                    }
                }
            }
        }
    }
}

void tst_PriceTypeLists::buildersOnlyAppend()
{
    BaseTableProbe table;
    QStringList labels = {text("前")};
    QVector<QVariant> values = {QVariant(-7)};
    const QString before = priceTypes(table);
    table.doResetPriceType(labels, values, 4, 0, false, text("对手价"));
    QCOMPARE(zipped(labels, values).join(QLatin1Char(' ')), text("前=-7 指定价=11 挂单价=13 对手价=14"));
    QCOMPARE(priceTypes(table), before);
}

void tst_PriceTypeLists::applyingLoadsTheListsIntoTheCell()
{
    BaseTableProbe table;
    table.setPriceType(ttservice::PRTP_BUY5);
    QStringList labels;
    QVector<QVariant> values;
    table.doResetPriceType(labels, values, 4, 0, true, QString());
    QCOMPARE(priceTypes(table), text("*指定价=11 挂单价=13 对手价=14"));

    BaseTableProbe withoutEntries({36});
    const QString before = priceTypes(withoutEntries);
    QStringList none;
    QVector<QVariant> noValues;
    withoutEntries.doResetPriceType(none, noValues, 0, 0, true, QString());
    QCOMPARE(none, QStringList());
    QCOMPARE(priceTypes(withoutEntries), before);
}

void tst_PriceTypeLists::securitiesLendingSellIsLimitedToTheSpecifiedPrice()
{
    for (const int id : {5, 7, 15, 36, 43, 50}) {
        for (const int brokerType : {2, 3, 6, 7}) {
            BaseTableProbe table({id, brokerType});
            const QString before = priceTypes(table);
            const ModuleGuard on({modules::kSloSellFixedPrice});
            table.setOperationType(ttservice::OPT_SLO_SELL);
            QCOMPARE(priceTypes(table), text("*指定价=11"));

            QStringList labels;
            QVector<QVariant> values;
            BaseTableProbe untouched({id, brokerType});
            untouched.m_operationType = ttservice::OPT_SLO_SELL;
            untouched.doResetPriceType(labels, values, 127, 3, true, QString());
            QCOMPARE(zipped(labels, values), QStringList({text("指定价=11")}));
            QCOMPARE(priceTypes(untouched), before);
        }
    }
    BaseTableProbe moduleOff({5, 3});
    const QString before = priceTypes(moduleOff);
    moduleOff.setOperationType(ttservice::OPT_SLO_SELL);
    QCOMPARE(priceTypes(moduleOff), before);
}

void tst_PriceTypeLists::afterHoursPricingNeedsMarket3PlainOrderAndIdentity_data()
{
    QTest::addColumn<int>("id");
    for (const int id : {4, 5, 7, 15, 30, 31, 32, 36})
        QTest::addRow("identity %d", id) << id;
}

void tst_PriceTypeLists::afterHoursPricingNeedsMarket3PlainOrderAndIdentity()
{
    QFETCH(int, id);
    BaseTableProbe table({id});
    for (int market = -1; market <= 7; ++market) {
        for (int orderType = 0; orderType <= 3; ++orderType) {
            table.m_orderType = ttservice::EOrderType(orderType);
            QStringList labels;
            QVector<QVariant> values;
            table.doResetPriceType(labels, values, 127, market, false, QString());
            QCOMPARE(labels.contains(text("盘后定价")), market == 3 && orderType == 0 && (id == 5 || id == 31));
        }
    }
    QVERIFY(!priceTypes(table).contains(text("盘后定价")));
}

void tst_PriceTypeLists::bestFiveLevelsHaveTwoValues_data()
{
    QTest::addColumn<int>("market");
    QTest::addColumn<int>("value");
    for (const auto& row : {std::pair(1, 42), std::pair(2, 47), std::pair(3, 42), std::pair(4, 47), std::pair(5, 47)})
        QTest::addRow("market %d", row.first) << row.first << row.second;
}

void tst_PriceTypeLists::bestFiveLevelsHaveTwoValues()
{
    QFETCH(int, market);
    QFETCH(int, value);
    const ModuleGuard on({modules::kStockMarketPrice});
    BaseTableProbe table;
    QStringList labels;
    QVector<QVariant> values;
    table.doResetPriceType(labels, values, 0, market, false, QString());
    const int at = labels.indexOf(text("最优五档即成剩撤"));
    QVERIFY(at >= 0);
    QCOMPARE(values.value(at).toInt(), value);
    QCOMPARE(labels.lastIndexOf(text("最优五档即成剩撤")), at);
}

void tst_PriceTypeLists::optionTableOfIdentity43OffersNoMarketOrders()
{
    BaseTableProbe table({43, 6});
    QStringList labels;
    QVector<QVariant> values;
    table.doResetPriceType(labels, values, 31, 5, false, QString());
    QVERIFY(values.contains(26));
    for (const int marketOrder : {27, 28, 29})
        QVERIFY(!values.contains(marketOrder));
}

void tst_PriceTypeLists::bookLevelsByBrokerType()
{
    for (const int brokerType : {1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 99, 1001, 1002}) {
        BaseTableProbe table({5, brokerType});
        QStringList labels;
        QVector<QVariant> values;
        table.genPriceTypeBySubType(labels, values);
        QCOMPARE(zipped(labels, values).join(QLatin1Char(' ')),
                 brokerType == 6 ? text("卖①价=4 最新价=5 买①价=6") : text(kFullLevels));
    }
}

QTEST_MAIN(tst_PriceTypeLists)
#include "tst_PriceTypeLists.moc"
