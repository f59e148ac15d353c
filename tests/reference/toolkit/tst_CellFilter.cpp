#include "EditorPanel.h"

#include "reference/toolkit/editors/PersonEdits.h"

using Cell = EditorPanel;

class tst_CellFilter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void theFooterCountsInTheHeightAndCanBeTakenAway();
    void theListOffersTheAllSetWithoutBlacklistedAndMissingCells();
    void anEmptyVisibleSetTicksAll();
    void theVisibleSetTicksItsCells();
    void applyStoresTheTickedCellsAndSendsOneEvent();
    void applyShowsATickedCellThatWasHidden();
    void applyIsNotOfferedWhileNothingIsTicked();
    void resetEmptiesTheSetAndSendsItsEvent();
    void escapeClosesTheListAndChangesNothing();
    void theKeyboardFiltersAlone();
    void theFilterIsDeadWhileExpandedOrDisabled();
    void theFooterLosesTheFocusWithItsUse();
    void expandingClosesTheOpenList();
    void anOpenListFollowsTheProgram();
    void aPendingEditIsCommittedWhenTheFilterOpens();
    void programmaticChangesSendNothing();
    void appliedAsAPerson();
    void refusedAsAPerson();

private:
    void openByMouse();
    void clickRow(int row);

    std::unique_ptr<EditorPanel> m_panel;
};

void tst_CellFilter::init()
{
    m_panel = std::make_unique<EditorPanel>();
    m_panel->table->setAllItemSet({Cell::Combo, Cell::Price, Cell::Least, 4711});
    QVERIFY(m_panel->open());
}

void tst_CellFilter::cleanup()
{
    m_panel.reset();
}

void tst_CellFilter::openByMouse()
{
    m_panel->click(m_panel->inner().footerRect());
}

void tst_CellFilter::clickRow(int row)
{
    QTest::mouseClick(m_panel->filter(), Qt::LeftButton, Qt::NoModifier, m_panel->filter()->rowRect(row).center());
}

void tst_CellFilter::theFooterCountsInTheHeightAndCanBeTakenAway()
{
    QCOMPARE(m_panel->table->realHeight(), 9 * 26 + 20);
    m_panel->table->setCustomWidgetVisible(false);
    QCOMPARE(m_panel->table->realHeight(), 9 * 26);
    QVERIFY(m_panel->inner().footerRect().isEmpty());
    QVERIFY(!WQ::resetPersonFilter(*m_panel->table));
}

void tst_CellFilter::theListOffersTheAllSetWithoutBlacklistedAndMissingCells()
{
    m_panel->table->setItemFilterBlacklist(Cell::Price, true);
    openByMouse();
    QVERIFY(m_panel->filter());
    QCOMPARE(m_panel->filter()->ticked(), (QSet<int>{Cell::Combo, Cell::Least}));
    QVERIFY(!m_panel->filter()->rowRect(1).isEmpty());
    QVERIFY(m_panel->filter()->rowRect(2).isEmpty());
}

void tst_CellFilter::anEmptyVisibleSetTicksAll()
{
    openByMouse();
    QCOMPARE(m_panel->filter()->ticked(), (QSet<int>{Cell::Combo, Cell::Price, Cell::Least}));
}

void tst_CellFilter::theVisibleSetTicksItsCells()
{
    m_panel->table->setVisibleItemSet({Cell::Least, Cell::Remark});
    openByMouse();
    QCOMPARE(m_panel->filter()->ticked(), QSet<int>{Cell::Least});
}

void tst_CellFilter::applyStoresTheTickedCellsAndSendsOneEvent()
{
    openByMouse();
    clickRow(1);
    QCOMPARE(m_panel->filter()->ticked(), (QSet<int>{Cell::Combo, Cell::Least}));
    QTest::mouseClick(m_panel->filter(), Qt::LeftButton, Qt::NoModifier, m_panel->filter()->applyRect().center());
    QVERIFY(!m_panel->filter());
    QCOMPARE(m_panel->table->getVisibleItemIdSet(), (QSet<int>{Cell::Combo, Cell::Least}));
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("124 cell=0 b=0 text=")});
    QCOMPARE(m_panel->table->realHeight(), 2 * 26 + 20);
}

void tst_CellFilter::applyShowsATickedCellThatWasHidden()
{
    m_panel->table->setItemHidden(Cell::Least, true);
    m_panel->table->setItemHidden(Cell::Remark, true);
    openByMouse();
    m_panel->press(Qt::Key_Return);
    QVERIFY(!m_panel->cell(Cell::Least).isHidden());
    QVERIFY(m_panel->cell(Cell::Remark).isHidden());
    QCOMPARE(m_panel->table->realHeight(), 3 * 26 + 20);
}

void tst_CellFilter::applyIsNotOfferedWhileNothingIsTicked()
{
    openByMouse();
    for (int row = 0; row < 3; ++row)
        clickRow(row);
    QVERIFY(!m_panel->filter()->canApply());
    QTest::mouseClick(m_panel->filter(), Qt::LeftButton, Qt::NoModifier, m_panel->filter()->applyRect().center());
    m_panel->press(Qt::Key_Return);
    QVERIFY(m_panel->filter());
    QCOMPARE(m_panel->host.take(), QStringList());
    clickRow(0);
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->table->getVisibleItemIdSet(), QSet<int>{Cell::Combo});
}

void tst_CellFilter::resetEmptiesTheSetAndSendsItsEvent()
{
    m_panel->table->setVisibleItemSet({Cell::Least});
    openByMouse();
    QTest::mouseClick(m_panel->filter(), Qt::LeftButton, Qt::NoModifier, m_panel->filter()->resetRect().center());
    QVERIFY(!m_panel->filter());
    QCOMPARE(m_panel->table->getVisibleItemIdSet(), QSet<int>());
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("248 cell=0 b=0 text=")});
}

void tst_CellFilter::escapeClosesTheListAndChangesNothing()
{
    openByMouse();
    clickRow(0);
    m_panel->press(Qt::Key_Escape);
    QVERIFY(!m_panel->filter());
    QCOMPARE(m_panel->table->getVisibleItemIdSet(), QSet<int>());
    QCOMPARE(m_panel->host.take(), QStringList());
    openByMouse();
    QCOMPARE(m_panel->filter()->ticked().size(), 3);
}

void tst_CellFilter::theKeyboardFiltersAlone()
{
    m_panel->focusRow(Cell::Text);
    m_panel->press(Qt::Key_Down);
    m_panel->press(Qt::Key_Return);
    QVERIFY(m_panel->filter());
    m_panel->press(Qt::Key_Space);
    m_panel->press(Qt::Key_End);
    m_panel->press(Qt::Key_Down);
    m_panel->press(Qt::Key_Right);
    m_panel->press(Qt::Key_Space);
    QVERIFY(!m_panel->filter());
    QCOMPARE(m_panel->table->getVisibleItemIdSet(), (QSet<int>{Cell::Price, Cell::Least}));
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("124 cell=0 b=0 text=")});
    QTest::keyClick(m_panel->table, Qt::Key_Down);
    QTest::keyClick(m_panel->table, Qt::Key_Down);
    QTest::keyClick(m_panel->table, Qt::Key_Down);
    QTest::keyClick(m_panel->table, Qt::Key_Space);
    QVERIFY(m_panel->filter());
    m_panel->press(Qt::Key_Tab);
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("248 cell=0 b=0 text=")});
}

void tst_CellFilter::theFilterIsDeadWhileExpandedOrDisabled()
{
    m_panel->table->setExpand(true);
    openByMouse();
    QVERIFY(!m_panel->filter());
    m_panel->table->setExpand(false);
    m_panel->table->setAllItemEnable(false);
    openByMouse();
    QVERIFY(!m_panel->filter());
    m_panel->table->setAllItemEnable(true);
    openByMouse();
    QVERIFY(m_panel->filter());
}

void tst_CellFilter::theFooterLosesTheFocusWithItsUse()
{
    m_panel->focusRow(Cell::Text);
    m_panel->press(Qt::Key_Down);
    QVERIFY(m_panel->inner().interaction().footerState().focus);
    m_panel->table->setCustomWidgetVisible(false);
    QVERIFY(!m_panel->inner().interaction().footerState().focus);
    m_panel->press(Qt::Key_Up);
    QCOMPARE(m_panel->inner().currentCell()->id(), static_cast<int>(Cell::Code));
}

void tst_CellFilter::expandingClosesTheOpenList()
{
    openByMouse();
    m_panel->table->setExpand(true);
    QVERIFY(!m_panel->filter());
}

void tst_CellFilter::anOpenListFollowsTheProgram()
{
    openByMouse();
    m_panel->table->addAllItemSet(Cell::Remark);
    m_panel->table->setItemFilterBlacklist(Cell::Combo, true);
    QCOMPARE(m_panel->filter()->ticked(), (QSet<int>{Cell::Price, Cell::Least, Cell::Remark}));
    m_panel->table->setAllItemSet({});
    QVERIFY(!m_panel->filter()->canApply());
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Down, Qt::Key_Tab, Qt::Key_Home})
        m_panel->press(key);
    QCOMPARE(m_panel->filter()->ticked(), QSet<int>());
}

void tst_CellFilter::aPendingEditIsCommittedWhenTheFilterOpens()
{
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("500"));
    openByMouse();
    QVERIFY(m_panel->filter());
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=3 b=0 text=500")});
}

void tst_CellFilter::programmaticChangesSendNothing()
{
    m_panel->table->setVisibleItemSet({Cell::Least});
    m_panel->table->clearVisibleItem();
    m_panel->table->setMultiFilterWidgetParam();
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_CellFilter::appliedAsAPerson()
{
    QVERIFY(WQ::applyPersonFilter(*m_panel->table, {Cell::Price}));
    QCOMPARE(m_panel->table->getVisibleItemIdSet(), QSet<int>{Cell::Price});
    QVERIFY(WQ::resetPersonFilter(*m_panel->table));
    QCOMPARE(m_panel->host.take(),
             (QStringList{QStringLiteral("124 cell=0 b=0 text="), QStringLiteral("248 cell=0 b=0 text=")}));
}

void tst_CellFilter::refusedAsAPerson()
{
    QVERIFY(!WQ::applyPersonFilter(*m_panel->table, {}));
    QVERIFY(!WQ::applyPersonFilter(*m_panel->table, {Cell::Price, Cell::Remark}));
    QVERIFY(!WQ::applyPersonFilter(*m_panel->table, {4711}));
    m_panel->table->hide();
    QVERIFY(!WQ::applyPersonFilter(*m_panel->table, {Cell::Price}));
    m_panel->table->show();
    m_panel->table->setExpand(true);
    QVERIFY(!WQ::applyPersonFilter(*m_panel->table, {Cell::Price}));
    QVERIFY(!WQ::resetPersonFilter(*m_panel->table));
    QCOMPARE(m_panel->table->getVisibleItemIdSet(), QSet<int>());
    QCOMPARE(m_panel->host.take(), QStringList());
}

QTEST_MAIN(tst_CellFilter)
#include "tst_CellFilter.moc"
