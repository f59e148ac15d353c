#include "contract/RecordedPanel.h"

#include <QtTest>

using contract::lines;
using contract::setupOf;
using support::BaseTableProbe;
using support::TableSetup;

namespace {

bool isAdding(const QString& line)
{
    return line.startsWith(QLatin1String("table.add")) || line.startsWith(QLatin1String("table.setItemHidden"));
}

/// The calls before the first cell and after the last one.
QStringList withoutCells(const QStringList& calls)
{
    QStringList others;
    for (const QString& call : calls) {
        if (!isAdding(call))
            others << call;
    }
    return others;
}

constexpr char kColours[] = R"(["clr_order_operation_background", "clr_order_operation_background", )"
                            R"("clr_btn_algorithm_normal", "clr_btn_algorithm_normal"])";

} // namespace

/// What a base table asks of its platform while it is built, and what it leaves alone.
class tst_ContractConstruction : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void everyCallButTheCellsInOrder();
    void withoutModeButtonsTheStripIsFlat();
    void tableWithoutFontScaleIsToldSoAfterTheScrollArea();
    void button603HasNoTextAndComesWithItsModuleAlone_data();
    void button603HasNoTextAndComesWithItsModuleAlone();
    void helpButtonIsHiddenExceptOnTablesWithAHelpOfTheirOwn();
    void sizesAreReadByTheirKeys();
    void modulesAskedWhileATableIsBuilt_data();
    void modulesAskedWhileATableIsBuilt();
    void modulesAreAskedInTheirPlaces();
    void configurationIsListenedToOnceATable();
    void buildingSendsNothingAndCallsNoHook();
    void destructionCallsNothing();
};

void tst_ContractConstruction::init()
{
    recorder::reset();
}

void tst_ContractConstruction::everyCallButTheCellsInOrder()
{
    recorder::state().buttonMinWidth = 63;
    recorder::state().sizes = {{QStringLiteral("tc_siz_operation_panel_param_table_width"), 230}};

    const BaseTableProbe table(setupOf(5));

    const QString colours = QLatin1String(kColours);
    QStringList expected = lines(R"(
        new CBaseWidget("vtmq_pelorin_orderparambasetable", false, null)
        new CWidgetList(1, panel)
        strip.setMargin(0, 0, 0, 0)
        strip.setSpacing(2)
        new CDropDownButtonGroup(1, strip)
        group.setHelpButtonVisible(false)
        new CPushButton(COLOURS, 600, group)
        button600.setTextColorKey("clr_param_table_order_mode_inactive", "clr_param_table_order_mode_inactive", "clr_param_table_order_mode_active", "clr_param_table_order_mode_inactive")
        button600.setButtonDownStyle(1)
        button600.setChecked(true)
        button600.setText("普通交易")
        button600.setFixedWidth(73)
        group.addButton(button600, 0)
        strip.addStretchWidget(group, 1, 3, false)
        strip.setFixedHeight(28)
        new CMultiParamsTable(panel, true)
        new CScrollArea(panel)
        scroll.setWidget(table)
        scroll.setBackgroundColorKey("clr_order_operation_background")
        table.setFocusPolicy(11)
        panel.setFixedWidth(230)
    )");
    expected.replaceInStrings(QStringLiteral("COLOURS"), colours);
    QCOMPARE(withoutCells(recorder::calls()), expected);
}

void tst_ContractConstruction::withoutModeButtonsTheStripIsFlat()
{
    TableSetup setup = setupOf(5);
    setup.modeButtons = false;

    const BaseTableProbe table(setup);

    const QStringList calls = recorder::calls();
    QVERIFY(!calls.filter(QStringLiteral("new CWidgetList")).isEmpty());
    QVERIFY(calls.filter(QStringLiteral("CPushButton")).isEmpty());
    QVERIFY(calls.contains(QStringLiteral("strip.setFixedHeight(0)")));
}

void tst_ContractConstruction::tableWithoutFontScaleIsToldSoAfterTheScrollArea()
{
    TableSetup setup = setupOf(5);
    setup.fontScale = false;

    const BaseTableProbe table(setup);

    const QStringList calls = recorder::calls();
    const int told = calls.indexOf(QStringLiteral("table.setFontScale(false)"));
    QVERIFY(calls.contains(QStringLiteral("new CMultiParamsTable(panel, false)")));
    QCOMPARE(calls.at(told - 1), QStringLiteral("scroll.setBackgroundColorKey(\"clr_order_operation_background\")"));
    QVERIFY(isAdding(calls.at(told + 1)));
}

void tst_ContractConstruction::button603HasNoTextAndComesWithItsModuleAlone_data()
{
    QTest::addColumn<bool>("modeButtons");
    QTest::newRow("with the strip's buttons") << true;
    QTest::newRow("without the strip's buttons") << false;
}

void tst_ContractConstruction::button603HasNoTextAndComesWithItsModuleAlone()
{
    QFETCH(bool, modeButtons);
    recorder::state().modulesOn = {QStringLiteral("mdl_order/mdl_order_algorithm3")};
    TableSetup setup = setupOf(5);
    setup.modeButtons = modeButtons;

    const BaseTableProbe table(setup);

    const QStringList calls = recorder::calls();
    QStringList expected = lines(R"(
        new CPushButton(COLOURS, 603, group)
        button603.setTextColorKey("clr_param_table_order_mode_inactive", "clr_param_table_order_mode_inactive", "clr_param_table_order_mode_active", "clr_param_table_order_mode_inactive")
        group.addButton(button603, 0)
    )");
    expected.replaceInStrings(QStringLiteral("COLOURS"), QLatin1String(kColours));
    int at = -1;
    for (const QString& call : qAsConst(expected)) {
        QVERIFY2(calls.indexOf(call) > at, qPrintable(call));
        at = calls.indexOf(call);
    }
    QVERIFY(calls.filter(QStringLiteral("button603.setText(")).isEmpty());
    QVERIFY(calls.filter(QStringLiteral("button603.setFixedWidth")).isEmpty());
    QCOMPARE(calls.at(at + 1), QStringLiteral("strip.addStretchWidget(group, 1, 3, false)"));
}

void tst_ContractConstruction::helpButtonIsHiddenExceptOnTablesWithAHelpOfTheirOwn()
{
    const QSet<int> others = {15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27,
                              28, 29, 30, 36, 37, 38, 39, 40, 43, 45, 48, 49, 51};
    for (int id = -1; id <= 60; ++id) {
        recorder::reset();
        const BaseTableProbe table(setupOf(id));
        const QStringList expected =
            others.contains(id) ? QStringList() : QStringList{QStringLiteral("group.setHelpButtonVisible(false)")};
        QVERIFY2(recorder::callsOf({QStringLiteral("group.setHelpButtonVisible")}) == expected,
                 qPrintable(QString::number(id)));
    }
}

void tst_ContractConstruction::sizesAreReadByTheirKeys()
{
    const QString width = QStringLiteral("tc_siz_operation_panel_param_table_width");
    const QString quotes = QStringLiteral("tc_siz_code_quotes_height");
    const QString top = QStringLiteral("tc_siz_operation_panel_top_height");
    recorder::state().sizes = {{width, 231}, {quotes, 400}, {top, 17}};

    const BaseTableProbe table(setupOf(5));

    QSet<QString> asked;
    for (const QString& call : recorder::calls(recorder::Resource))
        asked << call;
    const QString call = QStringLiteral("resources.getSize(\"%1\")");
    QCOMPARE(asked, QSet<QString>({call.arg(width), call.arg(quotes), call.arg(top)}));
    QCOMPARE(table.size(), QSize(231, 417));
}

void tst_ContractConstruction::modulesAskedWhileATableIsBuilt_data()
{
    QTest::addColumn<int>("brokerType");
    QTest::addColumn<bool>("asksForMarketPrices");
    for (const int broker : {1, 5, 6, 7, 10, 11, 1001, 1002})
        QTest::addRow("broker type %d has a list of its own", broker) << broker << false;
    for (const int broker : {2, 3, 4, 8, 99})
        QTest::addRow("broker type %d builds its list", broker) << broker << true;
}

void tst_ContractConstruction::modulesAskedWhileATableIsBuilt()
{
    QFETCH(int, brokerType);
    QFETCH(bool, asksForMarketPrices);

    const BaseTableProbe table(setupOf(5, brokerType, 1));

    QStringList asked = recorder::callsOf({QStringLiteral("modules.isOn")});
    QCOMPARE(asked.first(), QStringLiteral("modules.isOn(\"mdl_order\", \"mdl_order_algorithm3\")"));
    QCOMPARE(asked.last(), QStringLiteral("modules.isOn(\"mdl_order\", \"mdl_order_command_remark\")"));
    const QString marketPrices = QStringLiteral("modules.isOn(\"mdl_order\", \"mdl_order_stock_multi_market_price\")");
    QCOMPARE(asked.count(marketPrices), asksForMarketPrices ? 1 : 0);
    QVERIFY(brokerType != 2 || asked.contains(QStringLiteral("modules.isOn(\"mdl_alg\", \"mdl_alg_randvolume\")")));
    for (const char* later : {"mdl_order_trigger_price", "mdl_order_stop_profit_loss", "mdl_order_multi_market_price",
                              "mdl_order_compose_full_pricetype"})
        QVERIFY2(asked.filter(QLatin1Char('"') + QLatin1String(later) + QLatin1Char('"')).isEmpty(), later);
}

void tst_ContractConstruction::configurationIsListenedToOnceATable()
{
    const int before = recorder::hintReceivers();
    {
        const BaseTableProbe one(setupOf(5));
        const BaseTableProbe other(setupOf(6));
        QCOMPARE(recorder::hintReceivers(), before + 2);
        recorder::clear();

        recorder::emitHint(2, true);

        QCOMPARE(recorder::calls(), lines("group.setHelpButtonCritical(true)\n group.setHelpButtonCritical(true)"));
        QCOMPARE(one.m_hintMap.value(2), true);
    }
    QCOMPARE(recorder::hintReceivers(), before);
}

void tst_ContractConstruction::buildingSendsNothingAndCallsNoHook()
{
    recorder::state().clientMode = 100;

    const BaseTableProbe table(setupOf(5));

    QCOMPARE(recorder::calls(recorder::Send), QStringList());
    QCOMPARE(table.hooks, QStringList());
    QVERIFY(!recorder::calls(recorder::Service).contains(QStringLiteral("config.clientMode()")));
}

void tst_ContractConstruction::destructionCallsNothing()
{
    auto table = std::make_unique<BaseTableProbe>(setupOf(5));
    recorder::clear();

    table.reset();

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractConstruction::modulesAreAskedInTheirPlaces()
{
    const BaseTableProbe table(setupOf(5, 2, 1));

    const QStringList calls = recorder::calls(recorder::Do | recorder::Service);
    const auto at = [&calls](const char* start) {
        for (int i = 0; i < calls.size(); ++i) {
            if (calls.at(i).startsWith(QLatin1String(start)))
                return i;
        }
        return -1;
    };
    // Each is asked where its cell or button would be made.
    QCOMPARE(at("modules.isOn(\"mdl_order\", \"mdl_order_algorithm3\")"), at("group.addButton(button600") + 1);
    QCOMPARE(at("strip.addStretchWidget"), at("group.addButton(button600") + 2);
    QVERIFY(at("modules.isOn(\"mdl_order\", \"mdl_order_stock_multi_market_price\")") < at("table.addComboBox(0x1,"));
    QCOMPARE(at("modules.isOn(\"mdl_alg\""), at("table.addComboBox(0x2000,") + 1);
    QCOMPARE(at("table.addComboBox(0x10000,"), at("table.addComboBox(0x2000,") + 2);
    QVERIFY(at("modules.isOn(\"mdl_order\", \"mdl_order_command_remark\")") > at("table.addParamCell(0x2000000,"));
}

QTEST_MAIN(tst_ContractConstruction)
#include "tst_ContractConstruction.moc"
