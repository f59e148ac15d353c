#include "workbench/EventDecoder.h"
#include "workbench/TableBench.h"

#include "reference/services/ServiceControl.h"

#include <OrderParamTable_mini/tables/CCodeOrderParamTable.h>
#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>
#include <OrderParamTable_mini/tables/CStopLossOrderParamTable.h>
#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>

#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include <limits>

using namespace workbench;

namespace {

TableDrive driven(int orderType)
{
    TableDrive drive;
    drive.orderType = orderType;
    drive.expanded = true;
    return drive;
}

WQ::CPushButton* modeButton(const TableBench& bench, int id)
{
    for (auto* button : bench.findChildren<WQ::CPushButton*>())
        if (button->id() == id)
            return button;
    return nullptr;
}

} // namespace

class tst_TableBench : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void everyClassCanBeBuilt();
    void theHostAddsItsModeButtons();
    void theThirdAlgorithmIsNamedWhenItsModuleIsOn();
    void theDriveIsAppliedInOrder();
    void itCanBeRebuiltFromInsideItsEvents_data();
    void itCanBeRebuiltFromInsideItsEvents();
    void itCanBeRebuiltFromInsideAModeClick();
    void theEventThatHandsTheTableOverNamesIt();
    void unknownNumbersBuildATable_data();
    void unknownNumbersBuildATable();
};

void tst_TableBench::init()
{
    reference::resetServices();
}

void tst_TableBench::everyClassCanBeBuilt()
{
    TableBench bench;
    TableSetup setup;
    bench.rebuild(setup, {});
    QVERIFY(dynamic_cast<TC::CGlobalOrderParamTable*>(bench.table()));
    setup.tableClass = TableClass::Code;
    bench.rebuild(setup, {});
    QVERIFY(dynamic_cast<TC::CCodeOrderParamTable*>(bench.table()));
    setup.tableClass = TableClass::StopLoss;
    bench.rebuild(setup, {});
    QVERIFY(dynamic_cast<TC::CStopLossOrderParamTable*>(bench.table()));
    QCOMPARE(bench.findChildren<TC::COrderParamBaseTable*>().size(), 1);
}

void tst_TableBench::theHostAddsItsModeButtons()
{
    TableBench bench;
    bench.rebuild({}, {});
    auto* group = bench.findChild<WQ::CDropDownButtonGroup*>();
    QCOMPARE(group->getButtonList(), (QList<int>{600, 601, 602, 605, 613}));
    QCOMPARE(bench.table()->getBtnIDByName(QStringLiteral("隔时交易")), 613);

    TableSetup bare;
    bare.modeButtons = false;
    bench.rebuild(bare, {});
    QCOMPARE(bench.findChild<WQ::CDropDownButtonGroup*>()->getButtonList(), QList<int>());
}

void tst_TableBench::theThirdAlgorithmIsNamedWhenItsModuleIsOn()
{
    reference::setModules({QStringLiteral("mdl_order/mdl_order_algorithm3")});
    TableBench bench;
    bench.rebuild({}, {});
    QCOMPARE(bench.table()->getBtnNameByID(603), QStringLiteral("算法三"));
}

void tst_TableBench::theDriveIsAppliedInOrder()
{
    TableDrive drive = driven(1);
    drive.operationType = 18;
    drive.flags = 0x7903fff;
    TableBench bench;
    bench.rebuild({}, drive);
    QCOMPARE(int(bench.table()->orderType()), 1);
    QCOMPARE(int(bench.table()->getOperationType()), 18);
    QVERIFY(bench.table()->isExpand());
}

void tst_TableBench::itCanBeRebuiltFromInsideItsEvents_data()
{
    QTest::addColumn<int>("event");
    QTest::newRow("parameters changed") << 129;
    QTest::newRow("price type applied") << 1061;
}

void tst_TableBench::itCanBeRebuiltFromInsideItsEvents()
{
    QFETCH(int, event);
    TableBench bench;
    bench.rebuild({}, driven(0));
    const QPointer<TC::COrderParamBaseTable> old = bench.table();
    int rebuilds = 0;
    connect(&bench, &PanelHost::eventArrived, &bench, [&](int arrived) {
        if (arrived != event || rebuilds > 0)
            return;
        ++rebuilds;
        bench.rebuild({}, driven(1));
    });
    old->setFixedPrice(10.0);
    QCOMPARE(rebuilds, 1);
    QVERIFY(!old);
    QVERIFY(bench.table());
    QCOMPARE(int(bench.table()->orderType()), 1);
}

void tst_TableBench::itCanBeRebuiltFromInsideAModeClick()
{
    TableBench bench;
    bench.rebuild({}, driven(0));
    bench.resize(240, 340);
    bench.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bench));
    const QPointer<TC::COrderParamBaseTable> old = bench.table();
    connect(&bench, &PanelHost::eventArrived, &bench, [&](int event) {
        if (event == 1064 && bench.table() == old)
            bench.rebuild({}, driven(2));
    });
    QTest::mouseClick(modeButton(bench, 601), Qt::LeftButton);
    QTRY_VERIFY(!old);
    QCOMPARE(int(bench.table()->orderType()), 2);
}

void tst_TableBench::theEventThatHandsTheTableOverNamesIt()
{
    TableBench bench;
    bench.rebuild({}, driven(0));
    QStringList handed;
    connect(&bench, &PanelHost::eventArrived, &bench, [&](int event, int a, int b, const QString& text, void* payload) {
        if (event == 1206)
            handed << capture(event, a, b, text, payload).data;
    });
    bench.table()->handleEvent(5, 601, 0, QString(), nullptr);
    QCOMPARE(handed, QStringList{QStringLiteral("table 5")});
}

void tst_TableBench::unknownNumbersBuildATable_data()
{
    QTest::addColumn<int>("number");
    for (const int number : {-1, 0, 9, 9999, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QTest::addRow("%d", number) << number;
}

void tst_TableBench::unknownNumbersBuildATable()
{
    QFETCH(int, number);
    TableSetup setup;
    setup.identity = number;
    setup.brokerType = number;
    setup.traderType = number;
    TableBench bench;
    bench.rebuild(setup, driven(number));
    QVERIFY(bench.table());
    QCOMPARE(int(bench.table()->getId()), number);
}

QTEST_MAIN(tst_TableBench)
#include "tst_TableBench.moc"
