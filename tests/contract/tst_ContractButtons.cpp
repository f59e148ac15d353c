#include "contract/RecordedPanel.h"

#include <QtTest>

using contract::addModeButton;
using contract::lines;
using contract::RecordedPanel;

/// What the operations around the order-mode buttons ask of the button group.
class tst_ContractButtons : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void forwardedOperationsCallTheGroupOnce();
    void hintMarksTheHelpButton();
    void resettingTheButtonChecksTheFirstOne_data();
    void resettingTheButtonChecksTheFirstOne();
    void resettingTheButtonChangesNothingWhileItIsRight();
    void resettingTheButtonChangesNothingWithoutButtons();
    void algorithmButtonsAreAnnouncedInTwoClientModes_data();
    void algorithmButtonsAreAnnouncedInTwoClientModes();
    void parameterButtonIsShownOnlyWhenTheGroupLacksIt();
    void timeAlgorithmIsFoundByItsText_data();
    void timeAlgorithmIsFoundByItsText();
    void forcingTheHelpButtonAwayIsOnlyStored();
    void checkTextIsSetAndThenLaidOut();
    void checkTextIsTheGroups();
};

void tst_ContractButtons::init()
{
    recorder::reset();
}

void tst_ContractButtons::forwardedOperationsCallTheGroupOnce()
{
    RecordedPanel panel;

    panel.table.showSelectButton(607);
    QCOMPARE(panel.table.getSelectedButton(), 600);
    QCOMPARE(panel.table.getBtnIDByName(QStringLiteral("普通交易")), 600);
    QCOMPARE(panel.table.getBtnNameByID(600), QStringLiteral("普通交易"));
    panel.table.setVisibleByID(604, false);

    QCOMPARE(recorder::calls(recorder::kEverything), lines(R"(
        group.showSelectButton(607)
        group.selectedButton()
        group.getBtnIDByName("普通交易")
        group.getBtnNameByID(600)
        group.setVisibleByID(604, false)
    )"));
}

void tst_ContractButtons::hintMarksTheHelpButton()
{
    RecordedPanel panel;

    panel.table.slotShouldHintAlgorithm(5, true);
    panel.table.slotShouldHintAlgorithm(5, false);

    QCOMPARE(recorder::calls(recorder::kEverything),
             lines("group.setHelpButtonCritical(true)\n group.setHelpButtonCritical(false)"));
}

void tst_ContractButtons::resettingTheButtonChecksTheFirstOne_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<bool>("cells");
    QTest::newRow("a plain mode first") << 603 << true;
    QTest::newRow("a parameter set first") << 605 << false;
}

void tst_ContractButtons::resettingTheButtonChecksTheFirstOne()
{
    QFETCH(int, first);
    QFETCH(bool, cells);
    support::TableSetup setup;
    setup.modeButtons = false;
    RecordedPanel panel(setup);
    addModeButton(panel.table, first);
    addModeButton(panel.table, 609);

    panel.table.resetBtnType();

    QCOMPARE(recorder::calls(),
             QStringList({QStringLiteral("group.setCheckedByID(%1)").arg(first),
                          QStringLiteral("table.setVisible(%1)").arg(recorder::written(cells)),
                          QStringLiteral("scroll.setVisible(%1)").arg(recorder::written(cells))}));
}

void tst_ContractButtons::resettingTheButtonChangesNothingWhileItIsRight()
{
    RecordedPanel panel;

    panel.table.resetBtnType();

    QCOMPARE(recorder::calls(), QStringList());
}

void tst_ContractButtons::resettingTheButtonChangesNothingWithoutButtons()
{
    support::TableSetup setup;
    setup.modeButtons = false;
    RecordedPanel panel(setup);

    panel.table.resetBtnType();

    QCOMPARE(recorder::calls(), QStringList());
    QCOMPARE(recorder::calls(recorder::Ask), lines("group.selectedButton()\n group.getButtonList()"));
}

void tst_ContractButtons::algorithmButtonsAreAnnouncedInTwoClientModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("announced");
    for (const int mode : {-1, 0, 1, 99, 102, 1000})
        QTest::addRow("client mode %d", mode) << mode << false;
    for (const int mode : {100, 101})
        QTest::addRow("client mode %d", mode) << mode << true;
}

void tst_ContractButtons::algorithmButtonsAreAnnouncedInTwoClientModes()
{
    QFETCH(int, mode);
    QFETCH(bool, announced);
    RecordedPanel panel;
    recorder::state().clientMode = mode;

    panel.table.setAlgoBtnVisible();

    QCOMPARE(recorder::calls(), announced ? lines(R"(deliver(1244, 0, 0, "", null))") : QStringList());
    QCOMPARE(recorder::calls(recorder::Service), lines("getUserConfig()\n config.clientMode()"));
}

void tst_ContractButtons::parameterButtonIsShownOnlyWhenTheGroupLacksIt()
{
    RecordedPanel panel;
    ttservice::COrderSetting setting;
    panel.table.showOrderParamBtn(&setting);
    QCOMPARE(recorder::calls(), QStringList());

    setting.orderType = ttservice::EOrderType(7);
    panel.table.showOrderParamBtn(&setting);
    QCOMPARE(recorder::calls(), lines("group.showSelectButton(607)"));
}

void tst_ContractButtons::timeAlgorithmIsFoundByItsText_data()
{
    QTest::addColumn<bool>("visible");
    QTest::newRow("shown") << true;
    QTest::newRow("hidden") << false;
}

void tst_ContractButtons::timeAlgorithmIsFoundByItsText()
{
    QFETCH(bool, visible);
    RecordedPanel panel;
    panel.table.setShowTimeAlgorith(visible);
    QCOMPARE(recorder::calls(recorder::kEverything), lines(R"(group.getBtnIDByName("隔时交易"))"));
    addModeButton(panel.table, 606, QStringLiteral("隔时交易"));

    panel.table.setShowTimeAlgorith(visible);

    QCOMPARE(recorder::calls(),
             QStringList{QStringLiteral("group.setVisibleByID(606, %1)").arg(recorder::written(visible))});
}

void tst_ContractButtons::forcingTheHelpButtonAwayIsOnlyStored()
{
    RecordedPanel panel;

    panel.table.forceHideHelpBtn(true);

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractButtons::checkTextIsSetAndThenLaidOut()
{
    RecordedPanel panel;

    panel.table.setCheckParam(QStringLiteral("600,603"));

    QCOMPARE(recorder::calls(recorder::kEverything), lines("group.setParam(\"600,603\")\n group.resetLayout()"));
}

void tst_ContractButtons::checkTextIsTheGroups()
{
    RecordedPanel panel;
    recorder::state().groupParam = QStringLiteral("603,600");

    QCOMPARE(panel.table.loadCheckParam(), QStringLiteral("603,600"));

    QCOMPARE(recorder::calls(recorder::kEverything), lines("group.getParam()"));
}

QTEST_MAIN(tst_ContractButtons)
#include "tst_ContractButtons.moc"
