#include "Listener.h"

#include "reference/toolkit/IconButton.h"
#include "reference/toolkit/PopupList.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <WQ/CDropDownButtonGroup.h>

#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QPointer>
#include <QtTest>

#include <memory>

using namespace WQ;

namespace {

/// A group of five buttons of 50 pixels, 600 to 604, in a host. Without the help button four of them and the drop-down
/// button take 4 * 50 + 3 * 2 + 18 pixels, all five take 258.
struct Group
{
    Group()
        : group(new CDropDownButtonGroup(Qt::Horizontal, &host))
    {
        group->setHelpButtonVisible(false);
        for (int id = 600; id < 605; ++id)
            add(id);
        group->resize(300, 28);
        host.resize(400, 28);
        host.show();
    }

    CPushButton* add(int id)
    {
        auto* button = new CPushButton({keys::kWindow, keys::kWindow, keys::kRow, keys::kRow}, id, group);
        button->setText(QStringLiteral("按钮%1").arg(id));
        button->setFixedWidth(50);
        group->addButton(button, AnchorStart);
        return button;
    }

    CPushButton* button(int id) const
    {
        for (CPushButton* each : group->findChildren<CPushButton*>())
            if (each->id() == id)
                return each;
        return nullptr;
    }

    /// The IDs in the strip, as a person sees them from the left.
    QString strip() const
    {
        QMap<int, QString> seen;
        for (const CPushButton* each : group->findChildren<CPushButton*>())
            if (each->isVisible())
                seen.insert(each->x(), QString::number(each->id()));
        return QStringList(seen.values()).join(QLatin1Char(' '));
    }

    QWidget* named(const QString& name) const
    {
        for (QWidget* each : group->findChildren<QWidget*>())
            if (each->accessibleName() == name && !each->isWindow())
                return each;
        return nullptr;
    }

    bool shows(const QString& name) const
    {
        const QWidget* found = named(name);
        return found && found->isVisible();
    }

    Listener host;
    CDropDownButtonGroup* const group;
};

/// Counts the layout requests that come to a widget.
class LayoutRequests : public QObject
{
public:
    explicit LayoutRequests(QObject* watched)
    {
        watched->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::LayoutRequest ? 1 : 0;
        return false;
    }

    int count = 0;
};

PopupList* popup()
{
    return qobject_cast<PopupList*>(QApplication::activePopupWidget());
}

} // namespace

class CDropDownButtonGroupTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void buttonsAreTakenInOrder();
    void nullAndKnownIdsAreRefused();
    void oneButtonIsChecked();
    void anUnknownIdKeepsTheChoice();
    void aClickChecksTheButtonAndSendsItsEvent();
    void aClickOnTheCheckedButtonKeepsItChecked();
    void programmaticChoiceSendsNothing();
    void whatDoesNotFitGoesIntoTheDropDown();
    void theCheckedButtonStaysInTheStrip();
    void aShownButtonComesIntoTheStrip();
    void hiddenButtonsTakeNoRoom();
    void aButtonWithoutTextTakesNoRoom();
    void fillingButtonsShareTheRoom();
    void theDropDownChoosesAButton();
    void theDropDownIsWorkedByKeys();
    void theDropDownSendsNoEventOfItsOwn();
    void buttonsMayGoWhileTheDropDownIsOpen();
    void theHelpButtonSendsItsEvent();
    void theHelpButtonIsVisibleUntilItIsHidden();
    void aCriticalHelpButtonHasADot();
    void textAndIdsFindEachOther();
    void theTextListsTheVisibleButtons();
    void theTextOrdersAndHidesButtons_data();
    void theTextOrdersAndHidesButtons();
    void aMegabyteOfTextIsRead();
    void arrowKeysMoveTheFocus();
    void theTabKeyComesToLateButtonsFromWithinTheGroup_data();
    void theTabKeyComesToLateButtonsFromWithinTheGroup();
    void aMarkGivenToHiddenHelpIsSeenWithIt();
    void whatIsThereAlreadyAsksForNoLayout();
    void verticalGroupsStandBelowEachOther();
    void ownersMayDeleteTheirButtons();
    void aButtonMayLeaveForAnotherParent();
    void theGroupMayGoWhenAButtonIsChecked();
    void theGroupMayGoInItsEvent();
    void theApplicationsStyleSheetDoesNotShow();
    void itsButtonsAreAccessible();
};

void CDropDownButtonGroupTest::init()
{
    resources::setTheme(QStringLiteral("dark"));
    resources::setScale(1.0);
}

void CDropDownButtonGroupTest::buttonsAreTakenInOrder()
{
    Group g;
    QCOMPARE(g.group->getButtonList(), (QList<int>{600, 601, 602, 603, 604}));
    QCOMPARE(g.strip(), QStringLiteral("600 601 602 603 604"));
    QCOMPARE(g.button(601)->geometry(), QRect(52, 0, 50, 28));
}

void CDropDownButtonGroupTest::nullAndKnownIdsAreRefused()
{
    Group g;
    QCOMPARE(g.group->addButton(nullptr, AnchorStart), -1);
    CPushButton twin({}, 600, nullptr);
    QCOMPARE(g.group->addButton(&twin, AnchorStart), -1);
    QCOMPARE(g.group->getButtonList().size(), 5);
    auto* next = new CPushButton(CButtonColor(), 605, nullptr);
    QCOMPARE(g.group->addButton(next, static_cast<EWidgetAnchor>(99)), 5);
    QCOMPARE(next->parentWidget(), g.group);
}

void CDropDownButtonGroupTest::oneButtonIsChecked()
{
    Group g;
    QCOMPARE(g.group->selectedButton(), -1);
    g.group->setCheckedByID(601);
    g.group->setCheckedByID(603);
    QCOMPARE(g.group->selectedButton(), 603);
    QVERIFY(!g.button(601)->isChecked());
    g.button(602)->setChecked(true);
    QCOMPARE(g.group->selectedButton(), 602);
    QVERIFY(!g.button(603)->isChecked());
    g.group->clearAllCheck();
    QCOMPARE(g.group->selectedButton(), -1);
    QVERIFY(!g.button(602)->isChecked());
    g.group->setCheckedByID(600);
    QCOMPARE(g.group->selectedButton(), 600);
}

void CDropDownButtonGroupTest::anUnknownIdKeepsTheChoice()
{
    Group g;
    g.group->setCheckedByID(601);
    g.group->setCheckedByID(699);
    g.group->setCheckedByID(-1);
    QCOMPARE(g.group->selectedButton(), 601);
    g.group->setVisibleByID(699, true);
    g.group->showSelectButton(699);
    QCOMPARE(g.strip(), QStringLiteral("600 601 602 603 604"));
}

void CDropDownButtonGroupTest::aClickChecksTheButtonAndSendsItsEvent()
{
    Group g;
    int selectedThen = 0;
    g.host.then = [&] { selectedThen = g.group->selectedButton(); };
    QTest::mouseClick(g.button(603), Qt::LeftButton);
    QCOMPARE(g.group->selectedButton(), 603);
    QCoreApplication::processEvents();
    QCOMPARE(g.host.heard, QStringList{QStringLiteral("5 603 0 按钮603")});
    QCOMPARE(selectedThen, 603);
}

void CDropDownButtonGroupTest::aClickOnTheCheckedButtonKeepsItChecked()
{
    Group g;
    g.group->setCheckedByID(603);
    QTest::mouseClick(g.button(603), Qt::LeftButton);
    QCoreApplication::processEvents();
    QCOMPARE(g.group->selectedButton(), 603);
    QCOMPARE(g.host.heard.size(), 1);
}

void CDropDownButtonGroupTest::programmaticChoiceSendsNothing()
{
    Group g;
    g.group->setCheckedByID(603);
    g.group->clearAllCheck();
    g.group->setParam(QStringLiteral("603"));
    g.group->showSelectButton(601);
    QCoreApplication::processEvents();
    QVERIFY(g.host.heard.isEmpty());
}

void CDropDownButtonGroupTest::whatDoesNotFitGoesIntoTheDropDown()
{
    Group g;
    QVERIFY(!g.shows(QStringLiteral("更多")));
    g.group->resize(258, 28);
    QCOMPARE(g.strip(), QStringLiteral("600 601 602 603 604"));
    QVERIFY(!g.shows(QStringLiteral("更多")));
    g.group->resize(257, 28);
    QCOMPARE(g.strip(), QStringLiteral("600 601 602 603"));
    QVERIFY(g.shows(QStringLiteral("更多")));
    QCOMPARE(g.named(QStringLiteral("更多"))->geometry(), QRect(239, 0, 18, 28));
    g.group->resize(258, 28);
    QVERIFY(!g.shows(QStringLiteral("更多")));
    g.group->resize(257, 28);
    QVERIFY(g.shows(QStringLiteral("更多")));
    g.group->resize(223, 28);
    QCOMPARE(g.strip(), QStringLiteral("600 601 602"));
    g.group->resize(40, 28);
    QCOMPARE(g.strip(), QString());
    QVERIFY(g.shows(QStringLiteral("更多")));
}

void CDropDownButtonGroupTest::theCheckedButtonStaysInTheStrip()
{
    Group g;
    g.group->setCheckedByID(604);
    g.group->resize(180, 28);
    QCOMPARE(g.strip(), QStringLiteral("600 601 604"));
    g.group->setCheckedByID(603);
    QCOMPARE(g.strip(), QStringLiteral("600 601 603"));
}

void CDropDownButtonGroupTest::aShownButtonComesIntoTheStrip()
{
    Group g;
    g.group->resize(180, 28);
    g.group->setVisibleByID(604, false);
    g.group->showSelectButton(604);
    QCOMPARE(g.strip(), QStringLiteral("600 601 604"));
    QCOMPARE(g.group->selectedButton(), -1);
    QCOMPARE(g.group->getParam(), QStringLiteral("600,601,602,603,604"));
}

void CDropDownButtonGroupTest::hiddenButtonsTakeNoRoom()
{
    Group g;
    g.group->setVisibleByID(601, false);
    QCOMPARE(g.strip(), QStringLiteral("600 602 603 604"));
    QCOMPARE(g.button(602)->x(), 52);
    g.group->setVisibleByID(601, true);
    QCOMPARE(g.strip(), QStringLiteral("600 601 602 603 604"));
}

void CDropDownButtonGroupTest::aButtonWithoutTextTakesNoRoom()
{
    Group g;
    g.button(601)->setText(QString());
    g.group->resetLayout();
    QCOMPARE(g.strip(), QStringLiteral("600 602 603 604"));
    QCOMPARE(g.button(602)->x(), 52);
    g.button(601)->setText(QStringLiteral("智能"));
    QTRY_COMPARE(g.strip(), QStringLiteral("600 601 602 603 604"));
}

void CDropDownButtonGroupTest::fillingButtonsShareTheRoom()
{
    CDropDownButtonGroup group(Qt::Horizontal, nullptr);
    group.setHelpButtonVisible(false);
    QList<CPushButton*> buttons;
    for (EWidgetAnchor anchor : {AnchorFill, AnchorStart, AnchorFill}) {
        auto* button = new CPushButton(CButtonColor(), buttons.size(), &group);
        button->setText(QStringLiteral("甲"));
        button->setMinimumWidth(40);
        group.addButton(button, anchor);
        buttons.append(button);
    }
    group.resize(225, 28);
    group.resetLayout();
    QCOMPARE(buttons.at(0)->width() + buttons.at(2)->width(), 225 - 4 - 40);
    QVERIFY(qAbs(buttons.at(0)->width() - buttons.at(2)->width()) <= 1);
    QCOMPARE(buttons.at(2)->geometry().right(), 224);
}

void CDropDownButtonGroupTest::theDropDownChoosesAButton()
{
    Group g;
    g.group->resize(180, 28);
    QTest::mouseClick(g.named(QStringLiteral("更多")), Qt::LeftButton);
    QVERIFY(popup());
    QCOMPARE(popup()->model()->rowCount(), 2);
    QCOMPARE(popup()->model()->index(1, 0).data().toString(), QStringLiteral("按钮604"));
    const QRect entry = popup()->visualRect(popup()->model()->index(1, 0));
    QTest::mouseClick(popup()->viewport(), Qt::LeftButton, {}, entry.center());
    QVERIFY(!popup());
    QCOMPARE(g.group->selectedButton(), 604);
    QCOMPARE(g.strip(), QStringLiteral("600 601 604"));
    QCoreApplication::processEvents();
    QCOMPARE(g.host.heard, QStringList{QStringLiteral("5 604 0 按钮604")});
}

void CDropDownButtonGroupTest::theDropDownIsWorkedByKeys()
{
    Group g;
    g.group->resize(180, 28);
    QWidget* more = g.named(QStringLiteral("更多"));
    QTest::keyClick(more, Qt::Key_Space);
    QVERIFY(popup());
    QTest::keyClick(popup(), Qt::Key_Escape);
    QVERIFY(!popup());
    QCOMPARE(g.group->selectedButton(), -1);
    QTest::keyClick(more, Qt::Key_Space);
    QTest::keyClick(popup(), Qt::Key_Down);
    QTest::keyClick(popup(), Qt::Key_Return);
    QCOMPARE(g.group->selectedButton(), 604);
}

void CDropDownButtonGroupTest::theDropDownSendsNoEventOfItsOwn()
{
    Group g;
    g.group->resize(180, 28);
    QTest::mouseClick(g.named(QStringLiteral("更多")), Qt::LeftButton);
    QVERIFY(popup());
    popup()->close();
    QCoreApplication::processEvents();
    QVERIFY(g.host.heard.isEmpty());
}

void CDropDownButtonGroupTest::buttonsMayGoWhileTheDropDownIsOpen()
{
    Group g;
    g.group->resize(180, 28);
    QTest::mouseClick(g.named(QStringLiteral("更多")), Qt::LeftButton);
    delete g.button(603);
    QTest::keyClick(popup(), Qt::Key_Return);
    QCoreApplication::processEvents();
    QVERIFY(g.host.heard.isEmpty());
    QCOMPARE(g.group->getButtonList(), (QList<int>{600, 601, 602, 604}));
    QTest::mouseClick(g.named(QStringLiteral("更多")), Qt::LeftButton);
    QPointer<PopupList> list = popup();
    delete g.group;
    QVERIFY(!list);
}

void CDropDownButtonGroupTest::theHelpButtonSendsItsEvent()
{
    Group g;
    g.group->setHelpButtonVisible(true);
    g.group->setCheckedByID(601);
    QTest::mouseClick(g.named(QStringLiteral("帮助")), Qt::LeftButton);
    QCoreApplication::processEvents();
    QCOMPARE(g.host.heard, QStringList{QStringLiteral("5 0 0 ")});
    QCOMPARE(g.group->selectedButton(), 601);
}

void CDropDownButtonGroupTest::theHelpButtonIsVisibleUntilItIsHidden()
{
    Listener host;
    CDropDownButtonGroup group(Qt::Horizontal, &host);
    group.resize(200, 28);
    host.show();
    IconButton* help = nullptr;
    for (IconButton* each : group.findChildren<IconButton*>())
        if (each->isVisible())
            help = each;
    QVERIFY(help);
    QCOMPARE(help->geometry(), QRect(176, 0, 24, 28));
    group.setHelpButtonVisible(false);
    QVERIFY(!help->isVisible());
    group.setHelpButtonVisible(true);
    QVERIFY(help->isVisible());
}

void CDropDownButtonGroupTest::aCriticalHelpButtonHasADot()
{
    Group g;
    g.group->setHelpButtonVisible(true);
    QWidget* help = g.named(QStringLiteral("帮助"));
    const auto hasDot = [help] {
        const QImage image = help->grab().toImage();
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) == resources::color(keys::kNotice))
                    return true;
        return false;
    };
    QVERIFY(!hasDot());
    g.group->setHelpButtonCritical(true);
    QVERIFY(hasDot());
    QVERIFY(!help->accessibleDescription().isEmpty());
    g.group->setHelpButtonCritical(false);
    QVERIFY(!hasDot());
}

void CDropDownButtonGroupTest::textAndIdsFindEachOther()
{
    Group g;
    QCOMPARE(g.group->getBtnIDByName(QStringLiteral("按钮602")), 602);
    QCOMPARE(g.group->getBtnIDByName(QStringLiteral("没有")), -1);
    QCOMPARE(g.group->getBtnNameByID(602), QStringLiteral("按钮602"));
    QCOMPARE(g.group->getBtnNameByID(699), QString());
    g.button(604)->setText(QStringLiteral("按钮602"));
    QCOMPARE(g.group->getBtnIDByName(QStringLiteral("按钮602")), 602);
}

void CDropDownButtonGroupTest::theTextListsTheVisibleButtons()
{
    Group g;
    QCOMPARE(g.group->getParam(), QStringLiteral("600,601,602,603,604"));
    g.group->setVisibleByID(602, false);
    g.group->resize(120, 28);
    // Those in the drop-down are visible, too.
    QCOMPARE(g.group->getParam(), QStringLiteral("600,601,603,604"));
}

void CDropDownButtonGroupTest::theTextOrdersAndHidesButtons_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("all");

    QTest::newRow("some in another order")
        << QStringLiteral("603,600") << QStringLiteral("603 600") << QStringLiteral("603 600 601 602 604");
    QTest::newRow("skipped pieces") << QStringLiteral("699,603,x,,600,603") << QStringLiteral("603 600")
                                    << QStringLiteral("603 600 601 602 604");
    QTest::newRow("empty") << QString() << QStringLiteral("600 601 602 603 604")
                           << QStringLiteral("600 601 602 603 604");
    QTest::newRow("nothing of its own") << QStringLiteral("a,b,699") << QStringLiteral("600 601 602 603 604")
                                        << QStringLiteral("600 601 602 603 604");
}

void CDropDownButtonGroupTest::theTextOrdersAndHidesButtons()
{
    QFETCH(QString, text);
    QFETCH(QString, shown);
    QFETCH(QString, all);
    Group g;
    g.group->setCheckedByID(601);
    g.group->setParam(text);
    QCOMPARE(g.strip(), shown);
    QStringList ids;
    for (int id : g.group->getButtonList())
        ids.append(QString::number(id));
    QCOMPARE(ids.join(QLatin1Char(' ')), all);
    QCOMPARE(g.group->getParam(), QString(shown).replace(QLatin1Char(' '), QLatin1Char(',')));
    QCOMPARE(g.group->selectedButton(), 601);
}

void CDropDownButtonGroupTest::aMegabyteOfTextIsRead()
{
    Group g;
    g.group->setParam(QString(1 << 20, QLatin1Char('6')));
    QString many = QStringLiteral("602,");
    for (int i = 1000; i < 150000; ++i)
        many += QString::number(i) + QLatin1Char(',');
    g.group->setParam(many);
    QCOMPARE(g.group->getParam(), QStringLiteral("602"));
}

void CDropDownButtonGroupTest::arrowKeysMoveTheFocus()
{
    Group g;
    g.group->resize(180, 28);
    QApplication::setActiveWindow(&g.host);
    g.button(601)->setFocus();
    QTest::keyClick(g.button(601), Qt::Key_Right);
    QVERIFY(g.button(602)->hasFocus());
    QTest::keyClick(g.button(602), Qt::Key_Right);
    QVERIFY(g.named(QStringLiteral("更多"))->hasFocus());
    QTest::keyClick(g.named(QStringLiteral("更多")), Qt::Key_Right);
    QVERIFY(g.named(QStringLiteral("更多"))->hasFocus());
    QTest::keyClick(g.named(QStringLiteral("更多")), Qt::Key_Left);
    QVERIFY(g.button(602)->hasFocus());
    QTest::keyClick(g.button(602), Qt::Key_Up);
    QVERIFY(g.button(602)->hasFocus());
    QTest::keyClick(g.button(602), Qt::Key_Space);
    QCOMPARE(g.group->selectedButton(), 602);
    QTest::keyClick(g.button(602), Qt::Key_Left);
    QCOMPARE(g.group->selectedButton(), 602);
}

void CDropDownButtonGroupTest::theTabKeyComesToLateButtonsFromWithinTheGroup_data()
{
    QTest::addColumn<bool>("helpFirst");
    QTest::newRow("help first") << true;
    QTest::newRow("drop-down first") << false;
}

void CDropDownButtonGroupTest::theTabKeyComesToLateButtonsFromWithinTheGroup()
{
    QFETCH(bool, helpFirst);
    Group g;
    QWidget before(&g.host);
    QWidget after(&g.host);
    for (QWidget* neighbour : {&before, &after})
        neighbour->setFocusPolicy(Qt::StrongFocus);
    QWidget::setTabOrder(g.button(604), &after);
    if (helpFirst)
        g.group->setHelpButtonVisible(true);
    g.group->resize(180, 28);
    g.group->setHelpButtonVisible(true);
    // The chain from the group on: what a tab key passes before it comes to the first of the mode buttons.
    QStringList passed;
    for (QWidget* next = g.group->nextInFocusChain(); next != g.button(600); next = next->nextInFocusChain())
        passed.append(next->accessibleName());
    QCOMPARE(passed, (QStringList{QStringLiteral("更多"), QStringLiteral("帮助")}));
    QCOMPARE(g.button(604)->nextInFocusChain(), &after);
    QCOMPARE(g.group->focusPolicy(), Qt::NoFocus);
}

void CDropDownButtonGroupTest::aMarkGivenToHiddenHelpIsSeenWithIt()
{
    Group g;
    g.group->setHelpButtonCritical(true);
    QVERIFY(!g.shows(QStringLiteral("帮助")));
    g.group->setHelpButtonVisible(true);
    QVERIFY(g.shows(QStringLiteral("帮助")));
    QVERIFY(!g.named(QStringLiteral("帮助"))->accessibleDescription().isEmpty());
    g.group->setHelpButtonVisible(false);
    g.group->setHelpButtonCritical(false);
    g.group->setHelpButtonVisible(true);
    QVERIFY(g.named(QStringLiteral("帮助"))->accessibleDescription().isEmpty());
}

void CDropDownButtonGroupTest::whatIsThereAlreadyAsksForNoLayout()
{
    Group g;
    g.group->setCheckedByID(601);
    g.group->showSelectButton(601);
    QCoreApplication::processEvents();
    LayoutRequests requests(&g.host);
    g.group->setCheckedByID(601);
    g.group->showSelectButton(601);
    g.group->setVisibleByID(602, true);
    g.group->setHelpButtonVisible(false);
    g.group->setHelpButtonCritical(false);
    g.group->setParam(g.group->getParam());
    QCoreApplication::processEvents();
    QCOMPARE(requests.count, 0);
    g.group->setParam(QStringLiteral("602,601"));
    QCoreApplication::processEvents();
    QVERIFY(requests.count > 0);
    requests.count = 0;
    g.group->setVisibleByID(602, false);
    QCoreApplication::processEvents();
    QVERIFY(requests.count > 0);
}

void CDropDownButtonGroupTest::verticalGroupsStandBelowEachOther()
{
    CDropDownButtonGroup group(Qt::Vertical, nullptr);
    group.setHelpButtonVisible(false);
    QList<CPushButton*> buttons;
    for (int id = 1; id < 4; ++id) {
        auto* button = new CPushButton(CButtonColor(), id, &group);
        button->setText(QStringLiteral("甲"));
        button->setFixedHeight(28);
        group.addButton(button, AnchorStart);
        buttons.append(button);
    }
    group.resize(60, 200);
    group.resetLayout();
    QCOMPARE(buttons.at(1)->geometry(), QRect(0, 30, 60, 28));
    group.resize(60, 80);
    group.resetLayout();
    QVERIFY(buttons.at(2)->isHidden());
    QVERIFY(!buttons.at(1)->isHidden());
}

void CDropDownButtonGroupTest::ownersMayDeleteTheirButtons()
{
    Group g;
    g.group->setCheckedByID(601);
    delete g.button(601);
    QCOMPARE(g.group->selectedButton(), -1);
    QCOMPARE(g.strip(), QStringLiteral("600 602 603 604"));
    QCOMPARE(g.button(602)->x(), 52);
    g.add(601);
    QCOMPARE(g.group->getButtonList(), (QList<int>{600, 602, 603, 604, 601}));
}

void CDropDownButtonGroupTest::aButtonMayLeaveForAnotherParent()
{
    Group g;
    std::unique_ptr<CPushButton> leaving(g.button(600));
    g.group->setCheckedByID(600);
    leaving->setParent(nullptr);
    QCOMPARE(g.group->getButtonList(), (QList<int>{601, 602, 603, 604}));
    QCOMPARE(g.group->selectedButton(), -1);
    g.group->setCheckedByID(602);
    QVERIFY(leaving->isChecked());
}

void CDropDownButtonGroupTest::theGroupMayGoWhenAButtonIsChecked()
{
    Group g;
    const QPointer<CDropDownButtonGroup> group(g.group);
    // Qt itself touches the button after the signal, so that one has to live on.
    const std::unique_ptr<CPushButton> button(g.button(602));
    connect(button.get(), &QAbstractButton::toggled, &g.host, [&group, &button] {
        button->setParent(nullptr);
        delete group.data();
    });
    g.group->setCheckedByID(602);
    QVERIFY(!group);
}

void CDropDownButtonGroupTest::theGroupMayGoInItsEvent()
{
    Group g;
    QPointer<CDropDownButtonGroup> group(g.group);
    g.host.then = [group] { delete group.data(); };
    QTest::mouseClick(g.button(602), Qt::LeftButton);
    QVERIFY(group);
    QCoreApplication::processEvents();
    QVERIFY(!group);
}

void CDropDownButtonGroupTest::theApplicationsStyleSheetDoesNotShow()
{
    Group g;
    g.group->setHelpButtonVisible(true);
    g.group->resize(180, 28);
    const QImage before = g.group->grab().toImage();
    qApp->setStyleSheet(
        QStringLiteral("* { color: red; background: yellow; font-size: 30px; border: 3px solid green }"));
    const QImage after = g.group->grab().toImage();
    qApp->setStyleSheet(QString());
    QCOMPARE(after, before);
}

void CDropDownButtonGroupTest::itsButtonsAreAccessible()
{
    Group g;
    g.group->setHelpButtonVisible(true);
    QAccessibleInterface* help = QAccessible::queryAccessibleInterface(g.named(QStringLiteral("帮助")));
    QVERIFY(help);
    QCOMPARE(help->role(), QAccessible::Button);
    QCOMPARE(help->text(QAccessible::Name), QStringLiteral("帮助"));
    g.group->setCheckedByID(601);
    QAccessibleInterface* button = QAccessible::queryAccessibleInterface(g.button(601));
    QCOMPARE(button->role(), QAccessible::RadioButton);
    QVERIFY(button->state().checkable && button->state().checked && button->state().focusable);
    QCOMPARE(button->text(QAccessible::Name), QStringLiteral("按钮601"));
    g.button(601)->setEnabled(false);
    QVERIFY(button->state().disabled);
    QAccessibleInterface* other = QAccessible::queryAccessibleInterface(g.button(602));
    QVERIFY(other->state().checkable && !other->state().checked);
}

QTEST_MAIN(CDropDownButtonGroupTest)
#include "tst_CDropDownButtonGroup.moc"
