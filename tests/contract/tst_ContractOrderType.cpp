#include "contract/RecordedPanel.h"
#include "contract/Sequences.h"

#include <QtTest>

using contract::cellVisibilities;
using contract::lines;
using contract::RecordedPanel;
using contract::setupOf;
using contract::tableByPriceType;
using support::TableSetup;

namespace {

QString utf8(const char* text)
{
    return QString::fromUtf8(text);
}

} // namespace

/// What a new order type calls, in order, and what the volume types ask.
class tst_ContractOrderType : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void plainOrderTypeCallsInOrder_data();
    void plainOrderTypeCallsInOrder();
    void parameterSetOrderTypeCallsInOrder_data();
    void parameterSetOrderTypeCallsInOrder();
    void priceTypesAreRebuiltBeforeTheTypeIsStored();
    void sameOrderTypeRebuildsNoPriceTypes();
    void helpButtonIsLeftAloneOnTablesWithTheirOwn();
    void volumeTypeShowsTheTailVolume();
    void singleVolumeTypeReadsTheCell();
    void randomVolumeAsksItsModule();
};

void tst_ContractOrderType::init()
{
    recorder::reset();
}

void tst_ContractOrderType::plainOrderTypeCallsInOrder_data()
{
    QTest::addColumn<int>("orderType");
    QTest::addColumn<bool>("help");
    QTest::addColumn<quint32>("visible");
    QTest::newRow("0") << 0 << false << 0x3000003u;
    QTest::newRow("1") << 1 << true << 0x2003FBBu;
    QTest::newRow("2") << 2 << true << 0x188Bu;
    QTest::newRow("3") << 3 << false << 0x82u;
}

void tst_ContractOrderType::plainOrderTypeCallsInOrder()
{
    QFETCH(int, orderType);
    QFETCH(bool, help);
    QFETCH(quint32, visible);
    RecordedPanel panel(setupOf(6));
    panel.table.m_hintMap = {{orderType, true}};
    recorder::state().clientMode = 100;

    panel.table.setOrderType(ttservice::EOrderType(orderType));

    const contract::ShownCells cells{orderType, false, visible, 0};
    QStringList expected{QStringLiteral("group.setCheckedByID(%1)").arg(600 + orderType),
                         QStringLiteral("group.showSelectButton(%1)").arg(600 + orderType),
                         QStringLiteral("group.setHelpButtonVisible(%1)").arg(recorder::written(help))};
    if (help)
        expected << QStringLiteral("group.setHelpButtonCritical(true)");
    expected << lines("table.setVisible(true)\n scroll.setVisible(true)") << cellVisibilities(cells);
    expected << QStringLiteral("deliver(1244, %1, 0, \"\", null)").arg(orderType) << tableByPriceType(cells);
    QCOMPARE(recorder::calls(), expected);
}

void tst_ContractOrderType::parameterSetOrderTypeCallsInOrder_data()
{
    QTest::addColumn<int>("orderType");
    QTest::addColumn<QStringList>("help");
    const QStringList none{QStringLiteral("group.setHelpButtonVisible(false)")};
    const QStringList both = lines(R"(
        group.setHelpButtonVisible(true)
        group.setHelpButtonCritical(true)
    )");
    QTest::newRow("4") << 4 << none;
    QTest::newRow("5") << 5 << both;
    QTest::newRow("12") << 12 << none;
    QTest::newRow("13") << 13 << both;
}

void tst_ContractOrderType::parameterSetOrderTypeCallsInOrder()
{
    QFETCH(int, orderType);
    QFETCH(QStringList, help);
    RecordedPanel panel(setupOf(6));
    panel.table.m_hintMap = {{orderType, true}};
    panel.table.m_priceType = ttservice::EPriceType(49);
    recorder::state().clientMode = 101;

    panel.table.setOrderType(ttservice::EOrderType(orderType));

    QStringList expected{QStringLiteral("group.setCheckedByID(%1)").arg(600 + orderType),
                         QStringLiteral("group.showSelectButton(%1)").arg(600 + orderType)};
    expected << help << lines("table.setVisible(false)\n scroll.setVisible(false)");
    if (help.size() > 1)
        expected << help;
    expected << QStringLiteral("deliver(1063, 6, 1, \"clr_disabled_widget_text\", null)");
    expected << cellVisibilities({orderType, false, 0x3003FBB, 0});
    expected << QStringLiteral("deliver(1244, %1, 0, \"\", null)").arg(orderType);
    QCOMPARE(recorder::calls(), expected);
}

void tst_ContractOrderType::priceTypesAreRebuiltBeforeTheTypeIsStored()
{
    recorder::state().modulesOn = {QStringLiteral("mdl_order/mdl_order_compose_full_pricetype")};
    RecordedPanel panel(setupOf(9));
    const auto firstEntries = [] { return recorder::callsOf({QStringLiteral("table.resetComboData")}).value(0); };

    panel.table.setOrderType(ttservice::EOrderType(2));
    QVERIFY(recorder::calls().first().startsWith(QLatin1String("table.resetComboData(0x1, ")));
    QVERIFY(firstEntries().contains(utf8("卖⑤价"))); // as the plain order that is being left offers them

    recorder::clear();
    panel.table.setOrderType(ttservice::EOrderType(0));
    QCOMPARE(firstEntries(), QStringLiteral("table.resetComboData(0x1, [], [], 0)"));
}

void tst_ContractOrderType::sameOrderTypeRebuildsNoPriceTypes()
{
    RecordedPanel panel(setupOf(9));

    panel.table.setOrderType(ttservice::EOrderType(0));

    QCOMPARE(recorder::callsOf({QStringLiteral("table.resetComboData")}), QStringList());
    QVERIFY(recorder::calls().contains(QStringLiteral("group.showSelectButton(600)")));
}

void tst_ContractOrderType::helpButtonIsLeftAloneOnTablesWithTheirOwn()
{
    for (const int id : {15, 20, 30, 36, 40, 43, 45, 48, 49, 51}) {
        RecordedPanel panel(setupOf(id));
        for (const int type : {0, 1, 5, 13, 4})
            panel.table.setOrderType(ttservice::EOrderType(type));
        QCOMPARE(recorder::callsOf({QStringLiteral("group.setHelpButtonVisible")}), QStringList());
    }
}

void tst_ContractOrderType::volumeTypeShowsTheTailVolume()
{
    RecordedPanel panel;

    panel.table.onVolumeTypeChange(ttservice::EVolumeType(11));
    panel.table.onVolumeTypeChange(ttservice::EVolumeType(10));

    QCOMPARE(recorder::calls(recorder::kEverything),
             lines("table.setItemHidden(0x40, false)\n table.setItemHidden(0x40, true)"));
}

void tst_ContractOrderType::singleVolumeTypeReadsTheCell()
{
    RecordedPanel panel;

    QCOMPARE(panel.table.singleVolType(), 0);

    QCOMPARE(recorder::calls(recorder::kEverything), lines("table.getItem(0x10)"));
}

void tst_ContractOrderType::randomVolumeAsksItsModule()
{
    TableSetup setup = setupOf(33);
    setup.traderType = 1;
    RecordedPanel panel(setup);
    QVERIFY(!panel.table.isRandVolume());

    recorder::state().modulesOn = {QStringLiteral("mdl_alg/mdl_alg_randvolume")};
    QVERIFY(panel.table.isRandVolume());

    const QString question = QStringLiteral("modules.isOn(\"mdl_alg\", \"mdl_alg_randvolume\")");
    QCOMPARE(recorder::calls(recorder::kEverything), QStringList({question, question}));
}

QTEST_MAIN(tst_ContractOrderType)
#include "tst_ContractOrderType.moc"
