#include "support/BaseTableProbe.h"
#include "support/CellText.h"
#include "support/EventLog.h"
#include "support/ModuleGuard.h"

#include <WQ/CMultiParamsTable.h>

#include <QtTest>

using namespace support;

namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

QString priceTypes(BaseTableProbe& table)
{
    return comboEntries(*table.m_table, TC::OCF_PriceType);
}

int chosen(BaseTableProbe& table)
{
    const QVariant value = table.m_table->itemData(TC::OCF_PriceType);
    return value.isValid() ? value.toInt() : -1000;
}

const char kFullLevels[] = "卖⑤价=0 卖④价=1 卖③价=2 卖②价=3 卖①价=4 最新价=5 买①价=6 买②价=7 买③价=8 买④价=9 买⑤价=10";

} // namespace

/// When the price-type cell is refilled, what becomes of the choice, and its name.
class tst_PriceTypeCell : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initialListOffersMarketOrdersWithTheirModule();
    void rebuildByIdentity_data();
    void rebuildByIdentity();
    void compositeTableWithoutItsModuleIsEmptied();
    void compositeTableWithItsModule();
    void rememberedChoiceSurvivesARebuild();
    void priceTypeIsChosenWithoutEventAndNotFromOutsideTheList();
    void selectingAPriceTellsTheHost();
    void namesFollowTheCell();
    void namesOfAlgorithmsAreEmpty();
    void storedNameStaysUntilItIsEmptiedOrReplaced();
    void emptiedCellMakesThePriceTypeZero();
    void stockCodeStoresThenRebuilds();
    void tableWithoutPriceTypeCellKeepsItsState();
};

void tst_PriceTypeCell::initialListOffersMarketOrdersWithTheirModule()
{
    const ModuleGuard on({modules::kStockMarketPrice});
    const QString family = text(" 最优五档即成剩撤=47");
    for (const int id : {5, 7, 22, 24, 31, 36}) {
        BaseTableProbe table({id});
        QCOMPARE(priceTypes(table).endsWith(family), id != 22 && id != 24);
    }
    BaseTableProbe point({5, 1001});
    QVERIFY(!priceTypes(point).contains(family));
    BaseTableProbe closing({36});
    closing.setOrderType(ttservice::EOrderType(2));
    QVERIFY(priceTypes(closing).endsWith(family));
    closing.setOrderType(ttservice::EOrderType(1));
    QVERIFY(!priceTypes(closing).contains(family));
}

void tst_PriceTypeCell::rebuildByIdentity_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("rebuilt");
    for (const int id : {36, 38, 39})
        QTest::addRow("identity %d is refilled", id) << id << text("*挂单价=13 对手价=14 ") + text(kFullLevels);
    for (const int id : {0, 5, 8, 10, 15, 23, 31, 35, 37, 40, 43})
        QTest::addRow("identity %d keeps its list", id) << id << QString();
}

void tst_PriceTypeCell::rebuildByIdentity()
{
    QFETCH(int, id);
    QFETCH(QString, rebuilt);
    BaseTableProbe table({id, 3});
    table.setPriceType(ttservice::PRTP_BUY2);
    const QString before = priceTypes(table);
    table.resetPriceType();
    QCOMPARE(priceTypes(table), rebuilt.isEmpty() ? before : rebuilt);
}

void tst_PriceTypeCell::compositeTableWithoutItsModuleIsEmptied()
{
    for (const int id : {7, 9, 22, 24}) {
        BaseTableProbe table({id});
        table.resetPriceType();
        QCOMPARE(priceTypes(table), QString());
        QVERIFY(!table.m_table->itemData(TC::OCF_PriceType).isValid());
    }
    for (const int brokerType : {7, 11}) {
        BaseTableProbe table({7, brokerType});
        const QString before = priceTypes(table);
        table.resetPriceType();
        QCOMPARE(priceTypes(table), before);
    }
}

void tst_PriceTypeCell::compositeTableWithItsModule()
{
    const ModuleGuard on({modules::kComposeFullPriceType});
    const QString plain = text("挂单价=13 对手价=14 ") + text(kFullLevels);
    struct Case
    {
        int id, brokerType, traderType, orderType;
        QString list;
    };
    const QString closing = text("*挂单价=13 对手价=14 昨收价=16 ") + text(kFullLevels);
    const QVector<Case> cases = {
        {7, 2, 2, 0, QLatin1Char('*') + plain},
        {7, 2, 4, 0, closing},
        {7, 3, 4, 0, QLatin1Char('*') + plain},
        {7, 2, 4096, 1, QLatin1Char('*') + plain},
        {9, 2, 4, 1, QLatin1Char('*') + plain},
        {24, 2, 1, 0, QLatin1Char('*') + plain},
        {22, 2, 1, 0, text("*模型价=11 ") + plain},
        {7, 2, 4, 2, QString()},
        {9, 2, 4, 5, QString()},
    };
    for (const Case& c : cases) {
        BaseTableProbe table({c.id, c.brokerType, c.traderType});
        table.m_table->setComboData(TC::OCF_PriceType, c.id == 22 ? 11 : 13);
        table.m_orderType = ttservice::EOrderType(c.orderType);
        table.resetPriceType();
        QCOMPARE(priceTypes(table), c.list);
    }
}

void tst_PriceTypeCell::rememberedChoiceSurvivesARebuild()
{
    BaseTableProbe table({7});
    table.setPriceType(ttservice::PRTP_BUY3);
    {
        const ModuleGuard on({modules::kComposeFullPriceType});
        table.resetPriceType();
        QCOMPARE(chosen(table), 8);
        table.m_orderType = ttservice::EOrderType(1);
        table.resetPriceType();
        QCOMPARE(chosen(table), 8);
    }
    table.resetPriceType();
    QCOMPARE(chosen(table), -1000);
    const ModuleGuard on({modules::kComposeFullPriceType});
    table.resetPriceType();
    QCOMPARE(chosen(table), 0);
}

void tst_PriceTypeCell::priceTypeIsChosenWithoutEventAndNotFromOutsideTheList()
{
    EventLog host;
    TableSetup setup;
    setup.parent = &host;
    const auto table = new BaseTableProbe(setup);
    table->setPriceType(ttservice::PRTP_COUNTERPART);
    QCOMPARE(chosen(*table), 14);
    QCOMPARE(int(table->priceType()), 14);
    QCOMPARE(table->getCurrentPriceTypeName(), text("对手价"));
    QCOMPARE(table->m_pendingPriceType, 14);

    table->setPriceType(ttservice::EPriceType(12345));
    QCOMPARE(chosen(*table), 14);
    QCOMPARE(int(table->priceType()), 14);
    QCOMPARE(table->m_pendingPriceType, 12345);
    QCOMPARE(table->hooks, QStringList());
    QCOMPARE(host.take(), QStringList());
}

void tst_PriceTypeCell::selectingAPriceTellsTheHost()
{
    EventLog host;
    TableSetup setup;
    setup.parent = &host;
    const auto table = new BaseTableProbe(setup);
    table->selectPrice(ttservice::PRTP_SELL3);
    QCOMPARE(chosen(*table), 2);
    QCOMPARE(table->m_table->itemData(TC::OCF_InitialQuote), QVariant(2));
    QCOMPARE(int(table->priceType()), 2);
    QCOMPARE(table->hooks, QStringList({QStringLiteral("save")}));
    QCOMPARE(host.take(), QStringList({eventLine(129, 5, 0)}));
    QVERIFY(isHidden(*table->m_table, TC::OCF_InitialQuote));

    table->selectPrice(ttservice::EPriceType(777));
    QCOMPARE(chosen(*table), 2);
    QCOMPARE(int(table->priceType()), 777);
}

void tst_PriceTypeCell::namesFollowTheCell()
{
    BaseTableProbe table;
    QCOMPARE(table.m_priceTypeName, QString());
    QCOMPARE(table.getCurrentPriceTypeName(), text("指定价"));
    table.m_table->setComboData(TC::OCF_PriceType, 6);
    QCOMPARE(table.getCurrentPriceTypeName(), text("指定价"));
    QCOMPARE(int(table.priceType()), 11);
    table.updateCurrentPriceTypeName();
    QCOMPARE(table.getCurrentPriceTypeName(), text("买①价"));
    QCOMPARE(int(table.priceType()), 6);
}

void tst_PriceTypeCell::namesOfAlgorithmsAreEmpty()
{
    for (const int orderType : {4, 5, 12, 13}) {
        BaseTableProbe table;
        table.setOrderType(ttservice::EOrderType(orderType));
        QCOMPARE(table.getCurrentPriceTypeName(), QString());
        table.updateCurrentPriceTypeName();
        QCOMPARE(int(table.priceType()), 12);
    }
}

void tst_PriceTypeCell::storedNameStaysUntilItIsEmptiedOrReplaced()
{
    BaseTableProbe table;
    QCOMPARE(table.getCurrentPriceTypeName(), text("指定价"));
    table.setOrderType(ttservice::EOrderType(4));
    QCOMPARE(table.getCurrentPriceTypeName(), text("指定价"));
    table.updateCurrentPriceTypeName();
    QCOMPARE(table.getCurrentPriceTypeName(), QString());
}

void tst_PriceTypeCell::emptiedCellMakesThePriceTypeZero()
{
    BaseTableProbe table({7});
    table.resetPriceType();
    QCOMPARE(int(table.priceType()), 13);
    table.updateCurrentPriceTypeName();
    QCOMPARE(int(table.priceType()), 0);
    QCOMPARE(table.m_priceTypeName, QString());
}

void tst_PriceTypeCell::stockCodeStoresThenRebuilds()
{
    BaseTableProbe composite({7});
    composite.setStockCode(QStringLiteral("000001"));
    QCOMPARE(composite.getStockCode(), QStringLiteral("000001"));
    QCOMPARE(priceTypes(composite), QString());

    BaseTableProbe closing({36});
    closing.setPriceType(ttservice::PRTP_BUY2);
    closing.setStockCode(QString());
    QCOMPARE(chosen(closing), 13);
}

void tst_PriceTypeCell::tableWithoutPriceTypeCellKeepsItsState()
{
    BaseTableProbe table({5, 1});
    table.setPriceType(ttservice::PRTP_BUY1);
    table.updateCurrentPriceTypeName();
    table.resetPriceType();
    QCOMPARE(int(table.priceType()), -1);
    QCOMPARE(table.getCurrentPriceTypeName(), QString());
    table.selectPrice(ttservice::PRTP_BUY1);
    QCOMPARE(int(table.priceType()), 6);
}

QTEST_MAIN(tst_PriceTypeCell)
#include "tst_PriceTypeCell.moc"
