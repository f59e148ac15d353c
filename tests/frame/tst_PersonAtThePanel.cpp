#include "support/CellText.h"
#include "support/HelpButton.h"
#include "support/ModuleGuard.h"
#include "support/Panel.h"
#include "support/Person.h"

#include "reference/toolkit/editors/FilterPopup.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>
#include <WQ/CScrollArea.h>

#include <QLineEdit>
#include <QPointer>
#include <QtTest>

#include <functional>
#include <memory>

using namespace support;

namespace {

const QString kSave = QStringLiteral("save");
const QString kReload = QStringLiteral("reload");
const QString kTableName = QStringLiteral("vtmq_pelorin_orderparambasetable");

/// A panel of order type 1, expanded, with mode buttons of the host, on the screen.
struct Desk
{
    Desk()
        : person(*panel.table)
    {
        for (const int id : {601, 602, 605})
            addModeButton(*panel.table->m_btnGroup, id, "模式");
        panel.table->setOrderType(ttservice::EOrderType(1));
        panel.table->setExpandItemsHidden(false);
        isReady = person.sitDown();
        panel.host.take();
    }

    Panel panel;
    Person person;
    bool isReady = false;
};

// clang-format off
/// What a person does that the host hears of.
struct Deed
{
    const char* name;
    void (*act)(Desk&);
};

const Deed kDeeds[] = {
    {"a plain mode is clicked", [](Desk& desk) { desk.person.clickModeButton(602); }},
    {"a parameter-set mode is clicked", [](Desk& desk) { desk.person.clickModeButton(605); }},
    {"a price type is chosen", [](Desk& desk) { desk.person.choose(0x1, QStringLiteral("对手价")); }},
    {"a base volume is chosen", [](Desk& desk) { desk.person.choose(0x10, QStringLiteral("目标剩余量")); }},
    {"a number is entered", [](Desk& desk) { desk.person.enter(0x200, QStringLiteral("20000")); }},
    {"a unit is switched", [](Desk& desk) { desk.person.chooseUnit(0x2, QStringLiteral("元")); }},
    {"a check is toggled", [](Desk& desk) { desk.person.clickCheck(0x8); }},
    {"a remark is entered", [](Desk& desk) { desk.person.enter(0x4000000, QStringLiteral("remark")); }},
    {"a cell is double-clicked", [](Desk& desk) { desk.person.doubleClick(0x1000); }},
    {"the filter is applied", [](Desk& desk) {
        desk.panel.table->setExpandItemsHidden(true);
        desk.person.openFilter();
        desk.person.toggleInFilter(0);
        desk.person.applyFilter();
    }},
};
// clang-format on

} // namespace

/// A person's clicks and keys at the panel, and what the host hears of them.
class tst_PersonAtThePanel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void choosesAMode();
    void choosesAParameterSetModeAndComesBack();
    void choosesAPriceType();
    void choosesTheRemainingTargetVolume();
    void entersAMinimumAboveTheMaximum();
    void entersAMaximumBelowTheMinimum();
    void switchesTheUnitOfTheSuperPrice();
    void entersASuperPriceAboveTwiceTheFluctuation();
    void togglesTheOneWayCheck();
    void changesThePeriodAndTheRemark();
    void doubleClicksACell();
    void filtersCellsCollapsesExpandsAndResets();
    void takesAnEditBack();
    void cannotEditADisabledTable();
    void deletionFromInsideWhatAPersonCaused_data();
    void deletionFromInsideWhatAPersonCaused();

private:
    std::unique_ptr<ModuleGuard> m_modules;
    std::unique_ptr<Desk> m_desk;
};

void tst_PersonAtThePanel::initTestCase()
{
    m_modules.reset(new ModuleGuard({modules::kCommandRemark}));
}

void tst_PersonAtThePanel::init()
{
    m_desk = std::make_unique<Desk>();
    QVERIFY(m_desk->isReady);
}

void tst_PersonAtThePanel::cleanup()
{
    m_desk.reset();
}

void tst_PersonAtThePanel::choosesAMode()
{
    const QString text = QStringLiteral("模式");
    m_desk->person.clickModeButton(602);
    Person::wait();
    QCOMPARE(m_desk->panel.host.take(),
             QStringList({kSave, kReload, eventLine(1064, 5, 2, text), eventLine(1061, 5, 11, text),
                          eventLine(129, 5, 0, text), eventLine(1206, 0, 0, text, kTableName)}));
    QCOMPARE(int(m_desk->panel.table->orderType()), 2);
    QCOMPARE(m_desk->panel.table->getSelectedButton(), 602);
    QVERIFY(m_desk->panel.cells().isVisible());
    QCOMPARE(idText(shownCells(m_desk->panel.cells())),
             QStringLiteral("0x1 0x2 0x4 0x8 0x800 0x1000 0x2000000 0x4000000"));
}

void tst_PersonAtThePanel::choosesAParameterSetModeAndComesBack()
{
    m_desk->person.clickModeButton(605);
    Person::wait();
    QCOMPARE(m_desk->panel.host.takeNumbers(), QList<int>({1064, 1061, 1062, 129, 1206}));
    QCOMPARE(m_desk->panel.table->m_paramIndex, 1);
    QVERIFY(!m_desk->panel.cells().isVisible());
    QVERIFY(!m_desk->panel.table->m_scrollArea->isVisible());
    m_desk->person.clickModeButton(600);
    Person::wait();
    QCOMPARE(int(m_desk->panel.table->orderType()), 0);
    QVERIFY(m_desk->panel.cells().isVisible());
    QCOMPARE(int(m_desk->panel.table->priceType()), 11);
}

void tst_PersonAtThePanel::choosesAPriceType()
{
    const QString text = QStringLiteral("对手价");
    m_desk->person.choose(TC::OCF_PriceType, text);
    QCOMPARE(m_desk->panel.host.take(), QStringList());
    Person::wait();
    // The list begins with 指定价, 挂单价, 对手价.
    QCOMPARE(m_desk->panel.host.take(),
             QStringList({kSave, eventLine(129, 5, 0, text), eventLine(73, 1, 2, text, QStringLiteral("14"))}));
    QCOMPARE(int(m_desk->panel.table->priceType()), 14);
    QCOMPARE(m_desk->panel.table->getCurrentPriceTypeName(), text);
    m_desk->person.choose(TC::OCF_PriceType, text);
    Person::wait();
    QCOMPARE(m_desk->panel.host.take(), QStringList());
}

void tst_PersonAtThePanel::choosesTheRemainingTargetVolume()
{
    const int before = m_desk->panel.cells().height();
    QVERIFY(!shownCells(m_desk->panel.cells()).contains(TC::OCF_TailMinVolume));
    m_desk->person.choose(TC::OCF_BaseVolume, QStringLiteral("目标剩余量"));
    Person::wait();
    QVERIFY(shownCells(m_desk->panel.cells()).contains(TC::OCF_TailMinVolume));
    QVERIFY(m_desk->panel.cells().height() > before);
    QCOMPARE(m_desk->panel.cells().height(), m_desk->panel.cells().realHeight());
    m_desk->person.choose(TC::OCF_BaseVolume, QStringLiteral("目标量"));
    Person::wait();
    QVERIFY(!shownCells(m_desk->panel.cells()).contains(TC::OCF_TailMinVolume));
    QCOMPARE(m_desk->panel.cells().height(), before);
}

void tst_PersonAtThePanel::entersAMinimumAboveTheMaximum()
{
    m_desk->person.enter(TC::OCF_MinSingleVolume, QStringLiteral("20000"));
    Person::wait();
    QCOMPARE(m_desk->panel.host.take(),
             QStringList({kSave, eventLine(129, 5, 0, QStringLiteral("20000")),
                          eventLine(87, 0x200, 0, QStringLiteral("20000"))}));
    QCOMPARE(m_desk->panel.cells().itemInt(TC::OCF_MaxSingleVolume), 20000);
    QCOMPARE(m_desk->panel.cells().cellRange(TC::OCF_MaxSingleVolume), qMakePair(20000.0, 1000000.0));

    m_desk->person.enter(TC::OCF_MaxSingleVolume, QStringLiteral("500"));
    Person::wait();
    QCOMPARE(m_desk->panel.host.take(), QStringList());
    QCOMPARE(m_desk->panel.cells().itemInt(TC::OCF_MaxSingleVolume), 20000);
}

void tst_PersonAtThePanel::entersAMaximumBelowTheMinimum()
{
    m_desk->person.enter(TC::OCF_MaxSingleVolume, QStringLiteral("5000"));
    Person::wait();
    QCOMPARE(m_desk->panel.host.takeNumbers(), QList<int>({129, 87}));
    QCOMPARE(m_desk->panel.cells().itemInt(TC::OCF_MinSingleVolume), 5000);
    QCOMPARE(m_desk->panel.cells().cellRange(TC::OCF_MinSingleVolume), qMakePair(100.0, 5000.0));
}

void tst_PersonAtThePanel::switchesTheUnitOfTheSuperPrice()
{
    const QString money = QStringLiteral("元");
    m_desk->person.chooseUnit(TC::OCF_SuperPrice, money);
    Person::wait();
    QCOMPARE(m_desk->panel.host.take(),
             QStringList({kSave, eventLine(129, 5, 0, money), eventLine(118, 0x2, 0, money)}));
    QCOMPARE(m_desk->panel.cells().itemUnit(TC::OCF_SuperPrice), money);
    QCOMPARE(m_desk->panel.cells().itemDouble(TC::OCF_SuperPrice), 0.5);
    // The fluctuation range is in percent: money is not compared with it.
    m_desk->person.enter(TC::OCF_SuperPrice, QStringLiteral("50"));
    Person::wait();
    QCOMPARE(m_desk->panel.cells().itemDouble(TC::OCF_SuperPrice), 50.0);
}

void tst_PersonAtThePanel::entersASuperPriceAboveTwiceTheFluctuation()
{
    m_desk->person.enter(TC::OCF_SuperPrice, QStringLiteral("50"));
    Person::wait();
    QCOMPARE(m_desk->panel.host.takeNumbers(), QList<int>({129, 87}));
    QCOMPARE(m_desk->panel.cells().itemDouble(TC::OCF_SuperPrice), 6.0);
}

void tst_PersonAtThePanel::togglesTheOneWayCheck()
{
    m_desk->person.clickCheck(TC::OCF_FluctuationCheck);
    Person::wait();
    const QString text = QStringLiteral("单向");
    QCOMPARE(m_desk->panel.host.take(), QStringList({kSave, eventLine(129, 5, 0, text), eventLine(118, 0x8, 1, text)}));
    QVERIFY(cellRow(m_desk->panel.cells(), TC::OCF_FluctuationCheck).contains(QStringLiteral("[x]")));
}

void tst_PersonAtThePanel::changesThePeriodAndTheRemark()
{
    m_desk->person.enter(TC::OCF_InvestRemark, QStringLiteral("remark"));
    Person::wait();
    QCOMPARE(m_desk->panel.host.take(),
             QStringList({kSave, eventLine(129, 5, 0), eventLine(102, 0x4000000, 0, QStringLiteral("remark"))}));
    QCOMPARE(m_desk->panel.table->getCmdLog(), std::string("remark"));

    m_desk->person.clickValue(TC::OCF_ValidTime);
    QVERIFY(m_desk->person.line());
    m_desk->person.line()->selectAll();
    m_desk->person.type(QStringLiteral("10:00:00"));
    m_desk->person.press(Qt::Key_Return);
    Person::wait();
    const QString period = m_desk->panel.cells().itemText(TC::OCF_ValidTime);
    QVERIFY(period.contains(QStringLiteral("10:00:00")));
    QCOMPARE(m_desk->panel.host.take(), QStringList({kSave, eventLine(129, 5, 0), eventLine(101, 0x800, 0, period)}));
}

void tst_PersonAtThePanel::doubleClicksACell()
{
    m_desk->person.doubleClick(TC::OCF_MaxOrderCount);
    Person::wait();
    QCOMPARE(m_desk->panel.host.take(), QStringList({eventLine(130, 5, 0, QStringLiteral("1000"))}));
}

void tst_PersonAtThePanel::filtersCellsCollapsesExpandsAndResets()
{
    WQ::CMultiParamsTable& cells = m_desk->panel.cells();
    BaseTableProbe& table = *m_desk->panel.table;
    table.setExpandItemsHidden(true);
    Person::wait();
    const QString collapsed = QStringLiteral("0x1 0x2 0x8 0x10 0x2000000 0x4000000");
    QCOMPARE(idText(shownCells(cells)), collapsed);

    // All that the rules allow is offered, in the order of the cells.
    m_desk->person.openFilter();
    QVERIFY(m_desk->person.filter());
    const QSet<int> offered = m_desk->person.filter()->ticked();
    QVERIFY(offered.contains(TC::OCF_PriceType));
    QVERIFY(offered.contains(TC::OCF_ValidTime));
    m_desk->person.toggleInFilter(0);
    QVERIFY(!m_desk->person.filter()->ticked().contains(TC::OCF_PriceType));
    const QSet<int> chosen = m_desk->person.filter()->ticked();
    m_desk->person.applyFilter();
    Person::wait();
    QCOMPARE(m_desk->panel.host.take(), QStringList({kSave, eventLine(124, 0, 0)}));
    QCOMPARE(idText(cells.getVisibleItemIdSet()), idText(chosen));
    quint32 word = 0;
    for (const int id : chosen)
        word |= quint32(id);
    QCOMPARE(table.m_visibleFlags[1], word);
    QCOMPARE(idText(shownCells(cells)), idText(chosen));
    QCOMPARE(cells.height(), cells.realHeight());

    table.setExpandItemsHidden(false);
    QVERIFY(shownCells(cells).contains(TC::OCF_PriceType));
    table.setExpandItemsHidden(true);
    QVERIFY(!shownCells(cells).contains(TC::OCF_PriceType));
    QVERIFY(shownCells(cells).contains(TC::OCF_ValidTime));

    m_desk->person.openFilter();
    m_desk->person.resetFilter();
    Person::wait();
    QCOMPARE(m_desk->panel.host.take(), QStringList());
    QCOMPARE(table.m_visibleFlags[1], 0u);
    QCOMPARE(idText(shownCells(cells)), collapsed);
}

void tst_PersonAtThePanel::takesAnEditBack()
{
    m_desk->person.clickValue(TC::OCF_MinSingleVolume);
    m_desk->person.type(QStringLiteral("700"));
    m_desk->person.press(Qt::Key_Escape);
    Person::wait();
    QCOMPARE(m_desk->panel.host.take(), QStringList());
    QCOMPARE(m_desk->panel.cells().itemInt(TC::OCF_MinSingleVolume), 10000);
}

void tst_PersonAtThePanel::cannotEditADisabledTable()
{
    m_desk->panel.table->setAllItemEnable(false);
    m_desk->person.clickValue(TC::OCF_MinSingleVolume);
    QVERIFY(!m_desk->person.line());
    m_desk->person.clickValue(TC::OCF_PriceType);
    QVERIFY(!m_desk->person.list());
    m_desk->person.clickCheck(TC::OCF_FluctuationCheck);
    Person::wait();
    QCOMPARE(m_desk->panel.host.take(), QStringList());
}

void tst_PersonAtThePanel::deletionFromInsideWhatAPersonCaused_data()
{
    QTest::addColumn<int>("deed");
    for (int i = 0; i < int(std::size(kDeeds)); ++i)
        QTest::newRow(kDeeds[i].name) << i;
}

void tst_PersonAtThePanel::deletionFromInsideWhatAPersonCaused()
{
    QFETCH(int, deed);
    m_desk.reset();
    int points = 1;
    for (int point = -1; point < points; ++point) {
        Desk desk;
        QVERIFY(desk.isReady);
        const QPointer<BaseTableProbe> table = desk.panel.table;
        int step = 0;
        const auto hook = [&] {
            if (step++ == point)
                delete table.data();
        };
        table->onSave = table->onReload = hook;
        desk.panel.host.onEvent = [&](int) { hook(); };

        kDeeds[deed].act(desk);
        Person::wait();

        if (point < 0) {
            points = step;
            QVERIFY(table);
            QVERIFY(points > 0);
            continue;
        }
        QVERIFY(!table);
        // A toolkit event stops at the table that handled it; nothing arrives after its deletion.
        QCOMPARE(step, point + 1);
    }
}

QTEST_MAIN(tst_PersonAtThePanel)
#include "tst_PersonAtThePanel.moc"
