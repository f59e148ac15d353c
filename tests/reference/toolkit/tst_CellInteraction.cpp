#include "EditorPanel.h"
#include "TableFixture.h"

#include <QDialog>
#include <QSignalSpy>

#include <QScrollArea>
#include <QScrollBar>

using Cell = EditorPanel;

class tst_CellInteraction : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void enterWithoutARowPressesNoButton();
    void tabGoesThroughTheEditableValuesAndLeaves();
    void backtabComesInAtTheEndAndLeavesAtTheStart();
    void tabCommitsWhatWasTyped();
    void tabScrollsThePanelToTheCell();
    void arrowsMoveAmongTheRows();
    void escapeOnARowIsTheHostsOwn();
    void keysThatReachTheTableAreTheEditors();
    void aKeyThatTheEditorHasNoUseForReachesTheHostOnce();
    void aComposedTextOpensTheLine();
    void aHiddenTableTakesNoKeys();
    void theMenuOfALineClosesWithTheTable();
    void programmaticChangesSendNothing();
    void noWidgetStandsBeforeAnEditorOpens();
    void theTableMayBeDeletedInAnyEvent_data();
    void theTableMayBeDeletedInAnyEvent();
    void theTableMayBeDeletedWhileAnEditorOrAListIsOpen();
    void aListenerMayRefillAndHideTheRows();
    void disablingTheTableDropsTheEdit();
    void theEditorFollowsItsRow();
    void aNewThemeReachesTheOpenEditor();
    void theFocusRepaintsTheCurrentRowAlone();
    void anEditorIsPaintedOnceWithItsRowAlone();

private:
    std::unique_ptr<EditorPanel> m_panel;
};

void tst_CellInteraction::init()
{
    m_panel = std::make_unique<EditorPanel>();
    QVERIFY(m_panel->open());
}

void tst_CellInteraction::cleanup()
{
    m_panel.reset();
}

void tst_CellInteraction::tabGoesThroughTheEditableValuesAndLeaves()
{
    m_panel->table->setItemHidden(Cell::Price, true);
    m_panel->table->setItemEditable(Cell::Swing, false);
    m_panel->press(Qt::Key_Tab);
    QVERIFY(m_panel->table->hasFocus());
    QCOMPARE(m_panel->inner().currentCell()->id(), static_cast<int>(Cell::Combo));
    for (const int id :
         {Cell::Least, Cell::Span, Cell::Span, Cell::Period, Cell::Period, Cell::Remark, Cell::Code, Cell::Text}) {
        m_panel->press(Qt::Key_Tab);
        QVERIFY2(m_panel->isEditing(id), qPrintable(QString::number(id)));
        QCOMPARE(m_panel->line()->selectedText(), m_panel->line()->text());
    }
    m_panel->press(Qt::Key_Tab);
    QVERIFY(m_panel->after->hasFocus());
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_CellInteraction::backtabComesInAtTheEndAndLeavesAtTheStart()
{
    m_panel->after->setFocus();
    for (const int id : {Cell::Text, Cell::Code, Cell::Remark}) {
        m_panel->press(Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY2(m_panel->isEditing(id), qPrintable(QString::number(id)));
    }
    for (int presses = 0; presses < 8 && !m_panel->table->hasFocus(); ++presses)
        m_panel->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(m_panel->inner().currentCell()->id(), static_cast<int>(Cell::Combo));
    m_panel->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(m_panel->before->hasFocus());
}

void tst_CellInteraction::tabCommitsWhatWasTyped()
{
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("600"));
    m_panel->press(Qt::Key_Tab);
    QVERIFY(m_panel->isEditing(Cell::Swing));
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=3 b=0 text=600")});
}

void tst_CellInteraction::tabScrollsThePanelToTheCell()
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* area = new QScrollArea(&window);
    auto* table = new WQ::CMultiParamsTable(area, true);
    auto* button = new QPushButton(&window);
    layout->addWidget(area);
    layout->addWidget(button);
    for (int id = 0; id < 20; ++id)
        table->addParamCell(id, QStringLiteral("x"), 2, 0, 9, 1, QString(), 3, 4);
    table->setFixedSize(240, table->realHeight());
    area->setWidget(table);
    window.resize(280, 200);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(m_panel->line());
    const QRect line(m_panel->line()->mapTo(area->viewport(), QPoint()), m_panel->line()->size());
    QVERIFY(area->viewport()->rect().contains(line));
    QVERIFY(area->verticalScrollBar()->value() > 0);
}

void tst_CellInteraction::arrowsMoveAmongTheRows()
{
    m_panel->focusRow(Cell::Least);
    m_panel->press(Qt::Key_Down);
    QCOMPARE(m_panel->inner().currentCell()->id(), static_cast<int>(Cell::Swing));
    QVERIFY(!m_panel->line());
    m_panel->press(Qt::Key_Home);
    QCOMPARE(m_panel->inner().currentCell()->id(), static_cast<int>(Cell::Combo));
    m_panel->press(Qt::Key_End);
    QCOMPARE(m_panel->inner().currentCell()->id(), static_cast<int>(Cell::Text));
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_CellInteraction::escapeOnARowIsTheHostsOwn()
{
    m_panel->focusRow(Cell::Least);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(m_panel->table, &escape);
    QVERIFY(!escape.isAccepted());
}

void tst_CellInteraction::keysThatReachTheTableAreTheEditors()
{
    m_panel->focusRow(Cell::Least);
    QTest::keyClicks(m_panel->table, QStringLiteral("500"));
    QTest::keyClick(m_panel->table, Qt::Key_Return);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=3 b=0 text=500")});
}

void tst_CellInteraction::aKeyThatTheEditorHasNoUseForReachesTheHostOnce()
{
    struct KeyCounter : QObject
    {
        bool eventFilter(QObject*, QEvent* event) override
        {
            count += event->type() == QEvent::KeyPress;
            return false;
        }
        int count = 0;
    };
    KeyCounter counter;
    m_panel->host.installEventFilter(&counter);
    m_panel->clickValue(Cell::Least);
    QTest::keyClick(m_panel->line(), Qt::Key_F5);
    QCOMPARE(counter.count, 1);
    QTest::keyClick(m_panel->table, Qt::Key_F5);
    QCOMPARE(counter.count, 2);
    QTest::keyClick(m_panel->line(), Qt::Key_Return);
    QCOMPARE(counter.count, 2);
}

void tst_CellInteraction::aComposedTextOpensTheLine()
{
    m_panel->focusRow(Cell::Remark);
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("季度"));
    QApplication::sendEvent(m_panel->table, &composed);
    QVERIFY(m_panel->isEditing(Cell::Remark));
    QCOMPARE(m_panel->line()->text(), QStringLiteral("季度"));
}

void tst_CellInteraction::aHiddenTableTakesNoKeys()
{
    m_panel->focusRow(Cell::Combo);
    m_panel->table->hide();
    QTest::keyClick(m_panel->table.data(), Qt::Key_Space);
    QTest::keyClick(m_panel->table.data(), Qt::Key_Return);
    QVERIFY(!QApplication::activePopupWidget());
    m_panel->table->show();
    m_panel->focusRow(Cell::Remark);
    m_panel->table->hide();
    QTest::keyClick(m_panel->table.data(), Qt::Key_F2);
    QInputMethodEvent composed(QStringLiteral("备"), {});
    QCoreApplication::sendEvent(m_panel->table.data(), &composed);
    m_panel->table->show();
    QVERIFY(!m_panel->inner().rowState(m_panel->cell(Cell::Remark)).editing);
}

void tst_CellInteraction::theMenuOfALineClosesWithTheTable()
{
    m_panel->clickValue(Cell::Remark);
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(), m_panel->line()->mapToGlobal(QPoint()));
    QApplication::sendEvent(m_panel->line(), &asked);
    QVERIFY(QApplication::activePopupWidget());
    m_panel->table->hide();
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_CellInteraction::programmaticChangesSendNothing()
{
    WQ::CMultiParamsTable& table = *m_panel->table;
    table.setItemDouble(Cell::Price, 1);
    table.setItemInt(Cell::Least, 300);
    table.setComboData(Cell::Combo, 6);
    table.setItemUnit(Cell::Price, QStringLiteral("元"));
    table.setCheckDouble(Cell::Swing, true, 1, false);
    table.setItemText(Cell::Remark, QStringLiteral("x"));
    table.setItemText(Cell::Period, QStringLiteral("10:00:00-11:00:00"));
    table.resetCellRange(Cell::Least, 500, 600);
    QCoreApplication::processEvents();
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_CellInteraction::noWidgetStandsBeforeAnEditorOpens()
{
    QCOMPARE(m_panel->table->viewport()->findChildren<QWidget*>().size(), 0);
    m_panel->focusRow(Cell::Least);
    m_panel->press(Qt::Key_Down);
    QCOMPARE(m_panel->table->viewport()->findChildren<QWidget*>().size(), 0);
    QVERIFY(m_panel->table->findChildren<WQ::PopupRows*>().isEmpty());
}

void tst_CellInteraction::theTableMayBeDeletedInAnyEvent_data()
{
    QTest::addColumn<int>("event");
    QTest::addColumn<int>("cell");
    QTest::addColumn<QList<int>>("keys");
    QTest::newRow("combo") << 73 << static_cast<int>(Cell::Combo)
                           << QList<int>{Qt::Key_F2, Qt::Key_Down, Qt::Key_Return};
    QTest::newRow("number") << 87 << static_cast<int>(Cell::Least)
                            << QList<int>{Qt::Key_F2, Qt::Key_Up, Qt::Key_Return};
    QTest::newRow("number left by Tab") << 87 << static_cast<int>(Cell::Least)
                                        << QList<int>{Qt::Key_F2, Qt::Key_Up, Qt::Key_Tab};
    QTest::newRow("check") << 118 << static_cast<int>(Cell::Swing) << QList<int>{Qt::Key_F2, Qt::Key_Space};
    QTest::newRow("period") << 101 << static_cast<int>(Cell::Period)
                            << QList<int>{Qt::Key_F2, Qt::Key_Up, Qt::Key_Return};
    QTest::newRow("line") << 102 << static_cast<int>(Cell::Code) << QList<int>{Qt::Key_1, Qt::Key_Return};
    QTest::newRow("filter") << 124 << static_cast<int>(Cell::Text)
                            << QList<int>{Qt::Key_Down, Qt::Key_Return, Qt::Key_Return};
}

void tst_CellInteraction::theTableMayBeDeletedInAnyEvent()
{
    QFETCH(int, event);
    QFETCH(int, cell);
    QFETCH(QList<int>, keys);
    m_panel->table->setAllItemSet({Cell::Combo, Cell::Price});
    QList<int> arrived;
    m_panel->host.onEvent = [&](int number) {
        arrived << number;
        delete m_panel->table.data();
    };
    m_panel->focusRow(cell);
    for (const int key : keys)
        m_panel->press(static_cast<Qt::Key>(key));
    QCOMPARE(arrived, QList<int>());
    QCoreApplication::processEvents();
    QCOMPARE(arrived, QList<int>{event});
    QVERIFY(!m_panel->table);
}

void tst_CellInteraction::theTableMayBeDeletedWhileAnEditorOrAListIsOpen()
{
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("5"));
    delete m_panel->table.data();
    QCoreApplication::processEvents();
    QVERIFY(!QApplication::focusWidget() || QApplication::focusWidget()->window() == &m_panel->host);

    for (const bool isFilter : {false, true}) {
        EditorPanel other;
        QVERIFY(other.open());
        if (isFilter)
            other.click(other.inner().footerRect());
        else
            other.clickValue(Cell::Combo);
        QVERIFY(QApplication::activePopupWidget());
        delete other.table.data();
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(other.host.take(), QStringList());
    }
}

void tst_CellInteraction::aListenerMayRefillAndHideTheRows()
{
    m_panel->host.onEvent = [this](int) {
        m_panel->table->setItemHidden(Cell::Swing, true);
        m_panel->table->resetCellRange(Cell::Least, 1, 300);
        m_panel->table->resetComboData(Cell::Combo, {}, {}, -1);
        m_panel->table->setItemHidden(Cell::Least, true);
    };
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("500"));
    m_panel->press(Qt::Key_Tab);
    QVERIFY(m_panel->isEditing(Cell::Swing));
    m_panel->type(QStringLiteral("7"));
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=3 b=0 text=500")});
    QCoreApplication::processEvents();
    // The row that was being edited has gone: what had been typed there was right, and is kept.
    QCOMPARE(m_panel->table->itemDouble(Cell::Swing), 7.0);
    QVERIFY(!m_panel->table->findChild<WQ::CellEditor*>()->isVisible());
    QCOMPARE(m_panel->table->itemInt(Cell::Least), 300);
}

void tst_CellInteraction::disablingTheTableDropsTheEdit()
{
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("500"));
    m_panel->table->setAllItemEnable(false);
    QCoreApplication::processEvents();
    QVERIFY(!m_panel->line());
    QCOMPARE(m_panel->table->itemInt(Cell::Least), 10000);
    m_panel->table->setAllItemEnable(true);
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("500"));
    m_panel->table->setEnabled(false);
    QVERIFY(!m_panel->line());
    QCOMPARE(m_panel->table->itemInt(Cell::Least), 10000);
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_CellInteraction::theEditorFollowsItsRow()
{
    m_panel->clickValue(Cell::Least);
    auto* editor = m_panel->table->findChild<WQ::CellEditor*>();
    const int before = editor->y();
    m_panel->table->setItemHidden(Cell::Combo, true);
    QCoreApplication::processEvents();
    QCOMPARE(editor->y(), before - 26);
    QVERIFY(m_panel->isEditing(Cell::Least));
}

void tst_CellInteraction::aNewThemeReachesTheOpenEditor()
{
    m_panel->clickValue(Cell::Least);
    const QString dark = m_panel->line()->styleSheet();
    QVERIFY(WQ::resources::setTheme(QStringLiteral("light")));
    const QString light = m_panel->line()->styleSheet();
    QVERIFY(WQ::resources::setTheme(QStringLiteral("dark")));
    QVERIFY2(light.contains(QStringLiteral("#18212d")), qPrintable(light));
    QCOMPARE(m_panel->line()->styleSheet(), dark);
}

void tst_CellInteraction::theFocusRepaintsTheCurrentRowAlone()
{
    m_panel->focusRow(Cell::Least);
    QCoreApplication::processEvents();
    const QRect row = m_panel->inner().rowRect(m_panel->cell(Cell::Least));
    for (QWidget* target : {static_cast<QWidget*>(m_panel->after), static_cast<QWidget*>(m_panel->table)}) {
        table_fixture::EventCounter paints(m_panel->table->viewport(), QEvent::Paint);
        target->setFocus();
        QTRY_COMPARE(paints.count, 1);
        QCOMPARE(paints.region.boundingRect(), row);
    }
    // What asks to be painted later still is.
    table_fixture::EventCounter paints(m_panel->table->viewport(), QEvent::Paint);
    m_panel->table->viewport()->update();
    QTRY_COMPARE(paints.region.boundingRect(), m_panel->table->viewport()->rect());
}

void tst_CellInteraction::anEditorIsPaintedOnceWithItsRowAlone()
{
    m_panel->focusRow(Cell::Least);
    QCoreApplication::processEvents();
    table_fixture::EventCounter paints(m_panel->table->viewport(), QEvent::Paint);
    m_panel->press(Qt::Key_F2);
    table_fixture::EventCounter fieldPaints(m_panel->line(), QEvent::Paint);
    QTRY_VERIFY(paints.count > 0);
    QCoreApplication::processEvents();
    QCOMPARE(paints.count, 1);
    QCOMPARE(fieldPaints.count, 1);
    QCOMPARE(paints.region.boundingRect(), m_panel->inner().rowRect(m_panel->cell(Cell::Least)));
}

void tst_CellInteraction::enterWithoutARowPressesNoButton()
{
    QDialog dialog;
    auto* const table = new WQ::CMultiParamsTable(&dialog, true);
    auto* const button = new QPushButton(&dialog);
    button->setDefault(true);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QSignalSpy pressed(button, &QPushButton::clicked);
    QTest::keyClick(table, Qt::Key_Return);
    QTest::keyClick(table, Qt::Key_Enter);
    QCOMPARE(pressed.count(), 0);
    QTest::keyClick(&dialog, Qt::Key_Return);
    QCOMPARE(pressed.count(), 1);
}

QTEST_MAIN(tst_CellInteraction)
#include "tst_CellInteraction.moc"
