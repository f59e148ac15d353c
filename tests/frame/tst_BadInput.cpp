#include "support/BaseTableProbe.h"
#include "support/CellText.h"
#include "support/EventLog.h"
#include "support/ModuleGuard.h"

#include <WQ/CMultiParamsTable.h>

#include <QtTest>

#include <cmath>
#include <limits>

using namespace support;

namespace {

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kLargest = std::numeric_limits<double>::max();

QString megabyte()
{
    return QString(1 << 20, QChar(0x91CF));
}

/// The fixed-price list of a table that no rule knows: general branches throughout.
const char kGeneralPriceTypes[] =
    "*挂单价=13 对手价=14 卖⑤价=0 卖④价=1 卖③价=2 卖②价=3 卖①价=4 最新价=5 买①价=6 买②价=7 买③价=8 买④价=9 买⑤价=10";

/// Everything public that takes a number, with the same value.
void callEverything(BaseTableProbe& table, int value)
{
    table.setOperationType(ttservice::EOperationType(value));
    table.setPriceType(ttservice::EPriceType(value));
    table.selectPrice(ttservice::EPriceType(value));
    table.setOrderType(ttservice::EOrderType(value));
    table.setFlag(TC::OperationCellFlags(value));
    table.setVisibleByID(value, true);
    table.setVisibleByOrderType(ttservice::EOrderType(value), true);
    table.showSelectButton(value);
    table.getBtnNameByID(value);
    table.bShowHelp(ttservice::EOrderType(value));
    table.onVolumeTypeChange(ttservice::EVolumeType(value));
    table.slotShouldHintAlgorithm(value, true);
    table.getModifiedPriceByOptTypeForCalc(ttservice::EOperationType(value), true);
    table.getModifiedPriceByOptTypeForOrder(ttservice::EOperationType(value));
    table.getOrderSettings(value);
    table.sendEvent(5, value);
    for (const int event : {73, 87, 97, 101, 102, 118, 124, 248, 249, 1071, 1213, value})
        table.sendEvent(event, value);
    table.sendCellChanged(value, QString(), QVariant());
    table.sendCellChanged(TC::OCF_PriceType, QString(), value);
    table.sendCellChanged(TC::OCF_BaseVolume, QString(), QVariant(QStringLiteral("x")));
    QStringList labels;
    QVector<QVariant> values;
    table.doResetPriceType(labels, values, value, value, true, QString());
    table.resetLayout(QSize(0, 0));
    table.setExpandItemsHidden(false);
    table.saveVisibleFlag(false);
    table.loadVisibleFlag();
    table.resetBtnType();
}

} // namespace

/// Whatever a host hands in, nothing crashes, and what cannot be understood changes nothing or takes the general
/// branch.
class tst_BadInput : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void unknownConstructorArguments_data();
    void unknownConstructorArguments();
    void unknownIdentityTakesTheGeneralBranches();
    void everythingWithAnyInteger_data();
    void everythingWithAnyInteger();
    void unknownOrderTypeIsStoredAndShowsAllThatIsAllowed();
    void unknownOperationTypeIsAnyOperation();
    void pricesThatAreNoNumbers_data();
    void pricesThatAreNoNumbers();
    void cellsTakeNoNotANumber();
    void unknownCellsChangeNothing();
    void megabyteTexts();
    void nullPointers();
    void flagsWithEveryBit();
    void settingsWithExtremeKeys();
};

void tst_BadInput::unknownConstructorArguments_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("brokerType");
    QTest::addColumn<int>("traderType");
    for (const int value : {kLeast, -1, 0, 53, 255, 1 << 16, kMost}) {
        QTest::addRow("identity %d", value) << value << 2 << 1;
        QTest::addRow("broker type %d", value) << 5 << value << 1;
        QTest::addRow("trader type %d", value) << 5 << 2 << value;
        QTest::addRow("all %d", value) << value << value << value;
    }
}

void tst_BadInput::unknownConstructorArguments()
{
    QFETCH(int, id);
    QFETCH(int, brokerType);
    QFETCH(int, traderType);
    const ModuleGuard on({modules::kAlgorithm3, modules::kCommandRemark, modules::kRandomVolume});
    BaseTableProbe table({id, brokerType, traderType, true});
    QCOMPARE(int(table.getId()), id);
    QVERIFY(table.m_table->getItem(TC::OCF_TailMinVolume));
    table.show();
    table.setOrderType(ttservice::EOrderType(1));
    table.setExpandItemsHidden(false);
    QCOMPARE(int(table.orderType()), 1);
    QVERIFY(table.isExpand());
}

void tst_BadInput::unknownIdentityTakesTheGeneralBranches()
{
    for (const int id : {53, 255, kMost}) {
        BaseTableProbe table({id, 99, 99});
        QCOMPARE(comboEntries(*table.m_table, TC::OCF_PriceType), QString::fromUtf8(kGeneralPriceTypes));
        QVERIFY(cellRow(*table.m_table, TC::OCF_SuperPrice).contains(QStringLiteral("元")));
        QVERIFY(table.showAlgo());
        QVERIFY(table.showAlgoHelpButton());
        QVERIFY(!table.isOrderService());
        QVERIFY(!table.isCloseSetting());
    }
    BaseTableProbe negative({kLeast, 99, 99});
    QVERIFY(comboEntries(*negative.m_table, TC::OCF_PriceType).startsWith(QStringLiteral("*指定价=11 ")));
}

void tst_BadInput::everythingWithAnyInteger_data()
{
    QTest::addColumn<int>("value");
    for (const int value :
         {kLeast, kLeast + 600, -1000, -600, -2, -1, 4, 9, 31, 99, 599, 604, 1000, kMost - 600, kMost})
        QTest::addRow("%d", value) << value;
}

void tst_BadInput::everythingWithAnyInteger()
{
    QFETCH(int, value);
    for (const int mode : {0, 100}) {
        const ClientModeGuard client(mode);
        for (const int id : {5, 7, 10, 36, kMost}) {
            for (const int brokerType : {1, 2, 6, 7, kMost}) {
                EventLog host;
                TableSetup setup;
                setup.id = id;
                setup.brokerType = brokerType;
                setup.parent = &host;
                const auto table = new BaseTableProbe(setup);
                callEverything(*table, value);
                callEverything(*table, value);
                QCOMPARE(int(table->getId()), id);
                table->setOrderType(ttservice::EOrderType(0));
                QCOMPARE(int(table->orderType()), id == 10 ? 1 : 0);
            }
        }
    }
}

void tst_BadInput::unknownOrderTypeIsStoredAndShowsAllThatIsAllowed()
{
    for (const int orderType : {kLeast, -7, 8, 700, kMost}) {
        BaseTableProbe table;
        table.setOrderType(ttservice::EOrderType(orderType));
        QCOMPARE(int(table.orderType()), orderType);
        QVERIFY(!isHidden(*table.m_table, TC::OCF_ValidTime));
        QVERIFY(isHidden(*table.m_table, TC::OCF_InitialQuote));
        table.loadVisibleFlag();
        table.saveVisibleFlag(false);
        for (const quint32 word : table.m_visibleFlags)
            QCOMPARE(word, 0u);
        QVERIFY(table.isTrdParamTable());
    }
}

void tst_BadInput::unknownOperationTypeIsAnyOperation()
{
    for (const int operation : {kLeast, -77, 5000, kMost}) {
        BaseTableProbe table;
        table.setOperationType(ttservice::EOperationType(operation));
        QCOMPARE(int(table.getOperationType()), operation);
        QVERIFY(comboEntries(*table.m_table, TC::OCF_BaseVolume).startsWith(QStringLiteral("买①量=5 ")));
    }
}

void tst_BadInput::pricesThatAreNoNumbers_data()
{
    QTest::addColumn<double>("price");
    QTest::newRow("not a number") << kNaN;
    QTest::newRow("infinity") << kInfinity;
    QTest::newRow("minus infinity") << -kInfinity;
    QTest::newRow("the largest double") << kLargest;
    QTest::newRow("the least double") << -kLargest;
    QTest::newRow("a denormal") << std::numeric_limits<double>::denorm_min();
}

void tst_BadInput::pricesThatAreNoNumbers()
{
    QFETCH(double, price);
    EventLog host;
    TableSetup setup;
    setup.parent = &host;
    const auto table = new BaseTableProbe(setup);
    const QStringList before = cellRows(*table->m_table);
    table->setOriginalPrice(price);
    QVERIFY(table->m_originalPrice == price || (std::isnan(price) && std::isnan(table->m_originalPrice)));
    table->setFixedPrice(price);
    QVERIFY(table->m_originalPrice == price || (std::isnan(price) && std::isnan(table->m_originalPrice)));
    table->getModifiedPriceByOptTypeForCalc(ttservice::EOperationType(1), false);
    table->changeSuperPrice(price);
    table->fixPriceInRange(price);
    table->setPriceType(ttservice::PRTP_LATEST);
    table->setPriceImpl(price, QStringLiteral("quoted"));
    QCOMPARE(host.take().size(), 3);
    table->setPriceType(ttservice::PRTP_FIX);
    QCOMPARE(cellRow(*table->m_table, TC::OCF_PriceType), before.first());
}

void tst_BadInput::cellsTakeNoNotANumber()
{
    BaseTableProbe table;
    const QStringList before = cellRows(*table.m_table);
    for (const int id : {0x2, 0x4, 0x8, 0x40, 0x200, 0x400, 0x1000, 0x80000, 0x2000000})
        table.m_table->setItemDouble(id, kNaN);
    table.fixSuperPrice();
    QCOMPARE(cellRows(*table.m_table), before);
    table.m_table->setItemDouble(TC::OCF_SuperPrice, kInfinity);
    QCOMPARE(table.m_table->itemDouble(TC::OCF_SuperPrice), 100.0);
    table.fixSuperPrice();
    QCOMPARE(table.m_table->itemDouble(TC::OCF_SuperPrice), 6.0);
}

void tst_BadInput::unknownCellsChangeNothing()
{
    BaseTableProbe table;
    const QStringList before = cellRows(*table.m_table);
    for (const int id : {kLeast, -1, 0, 3, 0x20, 0x100000, 0x8000000, kMost}) {
        table.m_table->setItemDouble(id, 5.0);
        table.m_table->setItemInt(id, 5);
        table.m_table->setItemText(id, QStringLiteral("5"));
        table.m_table->setComboData(id, 5);
        table.m_table->resetComboData(id, {QStringLiteral("5")}, {QVariant(5)}, 0);
        table.m_table->resetCellRange(id, 1.0, 2.0);
        table.m_table->setCheckDouble(id, true, 5.0, false);
        table.m_table->setItemHidden(id, true);
        QVERIFY(!table.m_table->getItem(id));
        QCOMPARE(table.m_table->itemDouble(id), 0.0);
        QCOMPARE(table.m_table->itemText(id), QString());
        QVERIFY(!table.m_table->itemData(id).isValid());
        for (const int event : {87, 118})
            QVERIFY(!table.sendEvent(event, id));
    }
    QCOMPARE(cellRows(*table.m_table), before);
}

void tst_BadInput::megabyteTexts()
{
    EventLog host;
    const ModuleGuard on({modules::kCommandRemark});
    TableSetup setup;
    setup.parent = &host;
    const auto table = new BaseTableProbe(setup);
    const QString text = megabyte();
    table->setStockCode(text);
    QCOMPARE(table->getStockCode(), text);
    QVERIFY(table->getBtnIDByName(text) < 0);
    table->setCheckParam(text);
    table->sendCellChanged(TC::OCF_PriceType, text, 5);
    QCOMPARE(table->getCurrentPriceTypeName(), text);
    QCOMPARE(host.take(), QStringList({eventLine(129, 5, 0, text)}));
    table->handleEvent(97, 1, 0, text, nullptr);
    QCOMPARE(host.take(), QStringList({eventLine(130, 5, 0, text)}));
    table->saveOpParam(text, nullptr);
    table->m_table->setItemText(TC::OCF_InvestRemark, text);
    table->resize(table->width(), 300);
    table->show();
    QCOMPARE(table->getCmdLog().size(), std::size_t(text.size()) * 3);
}

void tst_BadInput::nullPointers()
{
    BaseTableProbe table;
    const QStringList before = cellRows(*table.m_table);
    table.showOrderParamBtn(nullptr);
    table.setInstrument(nullptr);
    table.loadOpParam(nullptr, 0.0);
    table.saveOpParam(QString(), nullptr);
    for (const int event : {73, 1213})
        table.sendEvent(event, TC::OCF_PriceType);
    QCOMPARE(int(table.priceType()), 11);
    QCOMPARE(cellRows(*table.m_table), before);
}

void tst_BadInput::flagsWithEveryBit()
{
    BaseTableProbe table;
    table.setFlag(TC::OperationCellFlags(-1));
    QCOMPARE(int(table.m_flags), -1);
    table.setFlag(TC::OperationCellFlags(kLeast));
    QVERIFY(!isHidden(*table.m_table, TC::OCF_SuperPrice));
    QVERIFY(isHidden(*table.m_table, TC::OCF_PriceType));
}

void tst_BadInput::settingsWithExtremeKeys()
{
    BaseTableProbe table;
    for (const int key : {kLeast, -1, 0, kMost}) {
        ttservice::COrderSetting setting;
        setting.intField2 = key;
        setting.realField8 = kNaN;
        table.setOrderSettings(key, setting);
        QCOMPARE(table.getOrderSettings(key).intField2, key);
    }
    QCOMPARE(table.m_orderSettings.size(), 4);
}

QTEST_MAIN(tst_BadInput)
#include "tst_BadInput.moc"
