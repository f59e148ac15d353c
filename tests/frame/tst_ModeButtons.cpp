#include "support/HelpButton.h"
#include "support/ModuleGuard.h"
#include "support/Panel.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>
#include <WQ/CScrollArea.h>

#include <QtTest>

using namespace support;

namespace {

const QString kClick = QStringLiteral("clicked");
const QString kSave = QStringLiteral("save");
const QString kReload = QStringLiteral("reload");
const QString kTableName = QStringLiteral("vtmq_pelorin_orderparambasetable");
const QString kGlobalText = QStringLiteral("clr_global_text");

} // namespace

/// What a click on an order-mode button does, and the small operations around the buttons and their help.
class tst_ModeButtons : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void plainModeIsChosen_data();
    void plainModeIsChosen();
    void plainModeOfAPriceThatColoursTheDisplay_data();
    void plainModeOfAPriceThatColoursTheDisplay();
    void plainModeWithoutPriceTypeSendsNo1061();
    void parameterSetModeIsChosen_data();
    void parameterSetModeIsChosen();
    void parameterSetModeSendsWhateverPriceTypeItHas();
    void buttonsBelow600AreNotTheTables();
    void tableUnderConstructionNeitherSavesNorAnnounces();
    void modeWithAnOperationSendsNo1206();
    void helpButtonAfterAClick_data();
    void helpButtonAfterAClick();
    void hintIsStoredAndShown();
    void buttonTypeFollowsTheFirstButton();
    void algorithmButtonsAreAnnouncedInTwoClientModes();
    void intervalButtonIsFoundByItsText();
    void orderButtonsOfASetting();
};

void tst_ModeButtons::plainModeIsChosen_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("clientMode");
    for (const int button : {600, 601, 602, 603}) {
        for (const int mode : {0, 99, 100, 101, 102})
            QTest::addRow("button %d in client mode %d", button, mode) << button << mode;
    }
}

void tst_ModeButtons::plainModeIsChosen()
{
    QFETCH(int, button);
    QFETCH(int, clientMode);
    const ClientModeGuard mode(clientMode);
    Panel panel;
    panel.host.show();
    panel.table->m_paramIndex = 3;
    const int type = button - 600;

    QVERIFY(panel.table->sendEvent(5, button, kClick));

    QStringList expected = {kSave,
                            kReload,
                            eventLine(1064, 5, type, kClick),
                            eventLine(1061, 5, 11, kClick),
                            eventLine(129, 5, 0, kClick),
                            eventLine(1206, 0, 0, kClick, kTableName)};
    if (clientMode == 100 || clientMode == 101)
        expected << eventLine(1244, type, 0);
    QCOMPARE(panel.host.take(), expected);
    QCOMPARE(int(panel.table->orderType()), type);
    QCOMPARE(panel.table->m_paramIndex, -1);
    QVERIFY(panel.table->m_table->isVisible());
    QVERIFY(panel.table->m_scrollArea->isVisible());
}

void tst_ModeButtons::plainModeOfAPriceThatColoursTheDisplay_data()
{
    QTest::addColumn<int>("priceType");
    QTest::addColumn<QString>("colour");
    for (const int type : {12, 18, 19, 20, 21, 22, 23, 24, 42, 43, 44, 45, 46, 47, 48})
        QTest::addRow("price type %d", type) << type << eventLine(1062, 5, 1, kGlobalText);
    QTest::newRow("price type 49") << 49 << eventLine(1063, 5, 1, QStringLiteral("clr_disabled_widget_text"));
    for (const int type : {0, 5, 10, 11, 13, 14, 15, 16, 17, 25, 26, 29, 41, 50})
        QTest::addRow("price type %d", type) << type << QString();
}

void tst_ModeButtons::plainModeOfAPriceThatColoursTheDisplay()
{
    QFETCH(int, priceType);
    QFETCH(QString, colour);
    Panel panel;
    panel.table->m_originalPrice = 12.5;
    offerPriceType(*panel.table, priceType);

    panel.table->sendEvent(5, 601, kClick);

    QStringList expected = {kSave, kReload, eventLine(1064, 5, 1, kClick), eventLine(1061, 5, priceType, kClick)};
    if (!colour.isEmpty())
        expected << colour;
    expected << eventLine(129, 5, 0, kClick) << eventLine(1206, 0, 0, kClick, kTableName);
    QCOMPARE(panel.host.take(), expected);
    QCOMPARE(panel.table->m_originalPrice, colour.isEmpty() ? 12.5 : TC::kNoPrice);
}

void tst_ModeButtons::plainModeWithoutPriceTypeSendsNo1061()
{
    Panel panel({5, 1});
    panel.table->sendEvent(5, 600, kClick);
    QCOMPARE(panel.host.take(),
             QStringList({kSave, kReload, eventLine(1064, 5, 0, kClick), eventLine(129, 5, 0, kClick),
                          eventLine(1206, 0, 0, kClick, kTableName)}));
}

void tst_ModeButtons::parameterSetModeIsChosen_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("brokerType");
    QTest::addColumn<int>("clientMode");
    for (const int button : {604, 605, 612, 613, 700}) {
        for (const int brokerType : {1, 2, 6})
            QTest::addRow("button %d, broker type %d", button, brokerType) << button << brokerType << button % 2 * 100;
    }
}

void tst_ModeButtons::parameterSetModeIsChosen()
{
    QFETCH(int, button);
    QFETCH(int, brokerType);
    QFETCH(int, clientMode);
    const ClientModeGuard mode(clientMode);
    Panel panel({5, brokerType});
    panel.host.show();
    const int type = button - 600;

    QVERIFY(panel.table->sendEvent(5, button, kClick));

    QStringList expected = {kSave,
                            eventLine(1064, 5, type, kClick),
                            kReload,
                            eventLine(1061, 5, 12, kClick),
                            eventLine(1062, 5, 1, kGlobalText),
                            eventLine(129, 5, 0, kClick),
                            eventLine(1206, 0, 0, kClick, kTableName)};
    if (clientMode == 100)
        expected << eventLine(1244, type, 0);
    QCOMPARE(panel.host.take(), expected);
    QCOMPARE(int(panel.table->orderType()), type);
    QCOMPARE(panel.table->m_paramIndex, button - 604);
    QCOMPARE(int(panel.table->priceType()), 12);
    QCOMPARE(panel.table->getCurrentPriceTypeName(), QString());
    QVERIFY(!panel.table->m_table->isVisible());
    QVERIFY(!panel.table->m_scrollArea->isVisible());

    panel.table->sendEvent(5, 600, kClick);
    QVERIFY(panel.table->m_table->isVisible());
    QCOMPARE(int(panel.table->priceType()), brokerType == 1 ? 12 : brokerType == 6 ? 5 : 11);
}

void tst_ModeButtons::parameterSetModeSendsWhateverPriceTypeItHas()
{
    Panel panel;
    panel.table->m_paramPriceType = ttservice::PRTP_NONE;
    panel.table->sendEvent(5, 605, kClick);
    QVERIFY(panel.host.take().contains(eventLine(1061, 5, -1, kClick)));
}

void tst_ModeButtons::buttonsBelow600AreNotTheTables()
{
    Panel panel;
    for (const int button : {std::numeric_limits<int>::min(), -1, 0, 5, 599})
        QVERIFY(!panel.table->sendEvent(5, button, kClick));
    // The host above hears nothing of it: the table was called, no event was on its way up.
    QCOMPARE(panel.host.take(), QStringList());
    QCOMPARE(int(panel.table->orderType()), 0);
}

void tst_ModeButtons::tableUnderConstructionNeitherSavesNorAnnounces()
{
    Panel panel;
    panel.table->m_ready = false;
    QVERIFY(panel.table->sendEvent(5, 601, kClick));
    QCOMPARE(panel.host.take(),
             QStringList({kReload, eventLine(1064, 5, 1, kClick), eventLine(1061, 5, 11, kClick),
                          eventLine(1206, 0, 0, kClick, kTableName)}));
    QVERIFY(panel.table->sendEvent(5, 605, kClick));
    QCOMPARE(panel.host.take(),
             QStringList({eventLine(1064, 5, 5, kClick), kReload, eventLine(1061, 5, 12, kClick),
                          eventLine(1062, 5, 1, kGlobalText), eventLine(1206, 0, 0, kClick, kTableName)}));
    for (const int event : {101, 102})
        QVERIFY(!panel.table->sendEvent(event, 0x800, kClick));
    QCOMPARE(panel.host.take(), QStringList());
}

void tst_ModeButtons::modeWithAnOperationSendsNo1206()
{
    for (const int operation : {-3, 0, 1, 21}) {
        Panel panel;
        panel.table->m_operationType = ttservice::EOperationType(operation);
        panel.table->sendEvent(5, 600);
        panel.table->sendEvent(5, 604);
        QVERIFY(!panel.host.takeNumbers().contains(1206));
    }
    Panel cleared;
    cleared.table->m_operationType = ttservice::OPT_UNSET;
    cleared.table->sendEvent(5, 604);
    QVERIFY(cleared.host.takeNumbers().contains(1206));
    QCOMPARE(cleared.host.lastData, static_cast<void*>(static_cast<TC::COrderParamBaseTable*>(cleared.table)));
}

void tst_ModeButtons::helpButtonAfterAClick_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("offered");
    QTest::addColumn<bool>("leftAlone");
    for (const int button : {600, 601, 602, 603, 604, 605, 612, 613, 614}) {
        const bool offered = QSet<int>({601, 602, 605, 613}).contains(button);
        QTest::addRow("identity 5, button %d", button) << 5 << button << offered << false;
        for (const int id : {15, 20, 30, 36, 40, 51})
            QTest::addRow("identity %d, button %d", id, button) << id << button << false << (button < 604);
    }
}

void tst_ModeButtons::helpButtonAfterAClick()
{
    QFETCH(int, id);
    QFETCH(int, button);
    QFETCH(bool, offered);
    QFETCH(bool, leftAlone);
    for (const bool before : {false, true}) {
        Panel panel({id});
        panel.table->m_hintMap[button - 600] = true;
        panel.table->m_btnGroup->setHelpButtonVisible(before);
        panel.table->m_btnGroup->setHelpButtonCritical(false);
        panel.table->sendEvent(5, button);
        QCOMPARE(isHelpButtonOffered(*panel.table->m_btnGroup), leftAlone ? before : offered);
        QCOMPARE(isHelpButtonCritical(*panel.table->m_btnGroup), !leftAlone);
        panel.table->m_hintMap.clear();
        panel.table->sendEvent(5, button);
        QVERIFY(!isHelpButtonCritical(*panel.table->m_btnGroup));
    }
}

void tst_ModeButtons::hintIsStoredAndShown()
{
    Panel panel;
    for (const bool hint : {true, false}) {
        panel.table->slotShouldHintAlgorithm(9, hint);
        QCOMPARE(panel.table->m_hintMap.value(9, !hint), hint);
        QCOMPARE(isHelpButtonCritical(*panel.table->m_btnGroup), hint);
    }
}

void tst_ModeButtons::buttonTypeFollowsTheFirstButton()
{
    Panel panel;
    panel.host.show();
    panel.table->m_orderType = ttservice::EOrderType(2);
    panel.table->m_paramIndex = 7;
    panel.table->resetBtnType();
    QCOMPARE(int(panel.table->orderType()), 0);
    QCOMPARE(panel.table->m_paramIndex, -4);
    QVERIFY(panel.table->m_table->isVisible());
    panel.table->m_paramIndex = 7;
    panel.table->resetBtnType();
    QCOMPARE(panel.table->m_paramIndex, 7);

    TableSetup setup;
    setup.modeButtons = false;
    Panel algorithm(setup);
    algorithm.host.show();
    algorithm.table->resetBtnType();
    QCOMPARE(algorithm.table->m_paramIndex, -1);
    addModeButton(*algorithm.table->m_btnGroup, 605, "algorithm");
    algorithm.table->resetBtnType();
    QCOMPARE(int(algorithm.table->orderType()), 5);
    QCOMPARE(algorithm.table->m_paramIndex, 1);
    QCOMPARE(algorithm.table->getSelectedButton(), 605);
    QVERIFY(!algorithm.table->m_table->isVisible());
    QVERIFY(!algorithm.table->m_scrollArea->isVisible());
    QCOMPARE(algorithm.host.take(), QStringList());
}

void tst_ModeButtons::algorithmButtonsAreAnnouncedInTwoClientModes()
{
    Panel panel;
    panel.table->m_orderType = ttservice::EOrderType(3);
    for (const int mode : {-1, 0, 1, 99, 100, 101, 102, 200}) {
        const ClientModeGuard client(mode);
        panel.table->setAlgoBtnVisible();
        QCOMPARE(panel.host.take(), mode == 100 || mode == 101 ? QStringList({eventLine(1244, 3, 0)}) : QStringList());
    }
}

void tst_ModeButtons::intervalButtonIsFoundByItsText()
{
    Panel panel;
    panel.table->setShowTimeAlgorith(false);
    QCOMPARE(panel.table->loadCheckParam(), QStringLiteral("600"));
    addModeButton(*panel.table->m_btnGroup, 605, "隔时交易");
    QCOMPARE(panel.table->getBtnIDByName(QStringLiteral("隔时交易")), 605);
    panel.table->setShowTimeAlgorith(false);
    QCOMPARE(panel.table->loadCheckParam(), QStringLiteral("600"));
    panel.table->setShowTimeAlgorith(true);
    QCOMPARE(panel.table->loadCheckParam(), QStringLiteral("600,605"));
    QVERIFY(panel.table->getBtnIDByName(QStringLiteral("隔时")) < 0);
}

void tst_ModeButtons::orderButtonsOfASetting()
{
    Panel panel;
    addModeButton(*panel.table->m_btnGroup, 605, "algorithm");
    panel.table->setVisibleByID(605, false);
    ttservice::COrderSetting setting;
    setting.orderType = ttservice::EOrderType(5);
    panel.table->showOrderParamBtn(&setting);
    QCOMPARE(panel.table->loadCheckParam(), QStringLiteral("600"));
    panel.table->showSelectButton(605);
    QCOMPARE(panel.table->loadCheckParam(), QStringLiteral("600,605"));
    setting.orderType = ttservice::EOrderType(99);
    panel.table->showOrderParamBtn(&setting);
    QCOMPARE(panel.table->loadCheckParam(), QStringLiteral("600,605"));
    QCOMPARE(panel.table->getSelectedButton(), 600);
}

QTEST_MAIN(tst_ModeButtons)
#include "tst_ModeButtons.moc"
