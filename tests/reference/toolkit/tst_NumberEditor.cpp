#include "EditorPanel.h"

using Cell = EditorPanel;

class tst_NumberEditor : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void clickingTheValueSelectsItWholeWithoutGrouping();
    void enterCommitsAndSendsTheTextOnce();
    void theCellHoldsTheNumberBeforeTheEventArrives();
    void enterOnAnUntouchedValueSendsNothing();
    void typingTheSameNumberSendsNothing();
    void escapeTakesTheEditBack();
    void typingOnTheRowReplacesTheValue();
    void f2EditsTheRow();
    void upAndDownStepByTheStepAndShiftByTen();
    void fullWidthDigitsAndStopsAreRead();
    void wrongTextIsMarkedAndEnterKeepsTheEditorOpen_data();
    void wrongTextIsMarkedAndEnterKeepsTheEditorOpen();
    void aNumberOffTheGridIsSaidWhileItIsTypedAndStored();
    void bothNumbersOfARangeMayBeOffTheGrid();
    void aWrongTextIsDroppedWhenAnotherCellIsClicked();
    void aWrongTextIsDroppedWhenTheWindowCloses();
    void aPendingNumberIsCommittedWhenAnotherCellIsClicked();
    void aPendingNumberIsCommittedWhenTheFocusLeaves();
    void aPendingNumberIsCommittedWhenTheWindowCloses();
    void aPendingNumberIsCommittedWhenTheProgramHidesTheCell();
    void aPendingNumberOfACellMadeReadOnlyIsDropped();
    void theWheelStepsInTheEditorThatHasTheFocus();
    void theWheelOverARowLeavesItsValueAndGoesOn();
    void anUntouchedEditorFollowsTheProgramAndATouchedOneStays();
    void aDoubleClickIsReported();
    void oneEditorServesAllCells();

private:
    void sendWheel(QWidget* to, int delta);

    std::unique_ptr<EditorPanel> m_panel;
};

void tst_NumberEditor::init()
{
    m_panel = std::make_unique<EditorPanel>();
    QVERIFY(m_panel->open());
}

void tst_NumberEditor::cleanup()
{
    m_panel.reset();
}

void tst_NumberEditor::sendWheel(QWidget* to, int delta)
{
    const QPointF at(to->rect().center());
    QWheelEvent wheel(at, to->mapToGlobal(at.toPoint()), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(to, &wheel);
}

void tst_NumberEditor::clickingTheValueSelectsItWholeWithoutGrouping()
{
    m_panel->clickValue(Cell::Least);
    QVERIFY(m_panel->isEditing(Cell::Least));
    QCOMPARE(m_panel->line()->text(), QStringLiteral("10000"));
    QCOMPARE(m_panel->line()->selectedText(), QStringLiteral("10000"));
}

void tst_NumberEditor::enterCommitsAndSendsTheTextOnce()
{
    bool pressed = false;
    connect(m_panel->after, &QPushButton::clicked, this, [&] { pressed = true; });
    m_panel->after->setDefault(true);
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("500"));
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->table->itemInt(Cell::Least), 500);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=3 b=0 text=500")});
    QVERIFY(!m_panel->isEditing(Cell::Least));
    QCOMPARE(QApplication::focusWidget(), m_panel->table.data());
    m_panel->press(Qt::Key_Return);
    QVERIFY(!pressed);
}

void tst_NumberEditor::theCellHoldsTheNumberBeforeTheEventArrives()
{
    int held = 0;
    m_panel->host.onEvent = [&](int) { held = m_panel->table->itemInt(Cell::Least); };
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("700"));
    m_panel->press(Qt::Key_Enter);
    QCOMPARE(held, 0);
    QCOMPARE(m_panel->host.take().size(), 1);
    QCOMPARE(held, 700);
}

void tst_NumberEditor::enterOnAnUntouchedValueSendsNothing()
{
    m_panel->clickValue(Cell::Least);
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->host.take(), QStringList());
    QVERIFY(!m_panel->line());
}

void tst_NumberEditor::typingTheSameNumberSendsNothing()
{
    m_panel->clickValue(Cell::Price);
    m_panel->type(QStringLiteral("0.5"));
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->host.take(), QStringList());
    QCOMPARE(m_panel->table->itemText(Cell::Price), QStringLiteral("0.50"));
}

void tst_NumberEditor::escapeTakesTheEditBack()
{
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("500"));
    m_panel->press(Qt::Key_Escape);
    QCOMPARE(m_panel->table->itemInt(Cell::Least), 10000);
    QCOMPARE(m_panel->host.take(), QStringList());
    QVERIFY(m_panel->host.isVisible());
}

void tst_NumberEditor::typingOnTheRowReplacesTheValue()
{
    m_panel->focusRow(Cell::Least);
    QVERIFY(!m_panel->line());
    m_panel->type(QStringLiteral("2"));
    QVERIFY(m_panel->isEditing(Cell::Least));
    m_panel->type(QStringLiteral("00"));
    QCOMPARE(m_panel->line()->text(), QStringLiteral("200"));
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->table->itemInt(Cell::Least), 200);
}

void tst_NumberEditor::f2EditsTheRow()
{
    m_panel->focusRow(Cell::Least);
    m_panel->press(Qt::Key_F2);
    QVERIFY(m_panel->isEditing(Cell::Least));
    QCOMPARE(m_panel->line()->selectedText(), QStringLiteral("10000"));
}

void tst_NumberEditor::upAndDownStepByTheStepAndShiftByTen()
{
    m_panel->clickValue(Cell::Least);
    m_panel->press(Qt::Key_Up);
    QCOMPARE(m_panel->line()->text(), QStringLiteral("10100"));
    m_panel->press(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(m_panel->line()->text(), QStringLiteral("9100"));
    QCOMPARE(m_panel->line()->selectedText(), QStringLiteral("9100"));
    QCOMPARE(m_panel->table->itemInt(Cell::Least), 10000);
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=3 b=0 text=9100")});
}

void tst_NumberEditor::fullWidthDigitsAndStopsAreRead()
{
    for (const QString& typed : {QStringLiteral("１。２５"), QStringLiteral("１．２５")}) {
        m_panel->table->setItemDouble(Cell::Price, 0.5);
        m_panel->clickValue(Cell::Price);
        m_panel->line()->insert(typed);
        m_panel->press(Qt::Key_Return);
        QCOMPARE(m_panel->table->itemDouble(Cell::Price), 1.25);
        QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=2 b=0 text=1.25")});
    }
}

void tst_NumberEditor::wrongTextIsMarkedAndEnterKeepsTheEditorOpen_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("letters") << QStringLiteral("abc");
    QTest::newRow("below the range") << QStringLiteral("99");
    QTest::newRow("above the range") << QStringLiteral("1000001");
    QTest::newRow("a fraction of a whole number") << QStringLiteral("100.5");
    QTest::newRow("an exponent") << QStringLiteral("1e4");
}

void tst_NumberEditor::wrongTextIsMarkedAndEnterKeepsTheEditorOpen()
{
    QFETCH(QString, typed);
    m_panel->clickValue(Cell::Least);
    m_panel->type(typed);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Tab}) {
        m_panel->press(key);
        QVERIFY(m_panel->isEditing(Cell::Least));
        QVERIFY(m_panel->inner().rowState(m_panel->cell(Cell::Least)).wrong);
        QCOMPARE(m_panel->line()->text(), typed);
    }
    const auto* notice = m_panel->table->findChild<WQ::Notice*>();
    QVERIFY(notice && notice->isVisible());
    QCOMPARE(notice->text(), m_panel->wrongText(Cell::Least));
    QVERIFY2(notice->text().contains(QStringLiteral("单笔最小量")), qPrintable(notice->text()));
    QVERIFY2(notice->text().contains(QStringLiteral("100 – 1,000,000 股")), qPrintable(notice->text()));
    m_panel->press(Qt::Key_Escape);
    QVERIFY(!notice->isVisible());
    QCOMPARE(m_panel->table->itemInt(Cell::Least), 10000);
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_NumberEditor::aNumberOffTheGridIsSaidWhileItIsTypedAndStored()
{
    const QString text = QStringLiteral("不是 100 的整数倍：1,200 或 1,300");
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("1250"));
    const auto* notice = m_panel->table->findChild<WQ::Notice*>();
    QVERIFY(notice && notice->isVisible());
    QCOMPARE(notice->text(), text);
    QCOMPARE(notice->kind(), WQ::Notice::Kind::Remark);
    QVERIFY(!m_panel->inner().rowState(m_panel->cell(Cell::Least)).wrong);
    m_panel->press(Qt::Key_Return);
    QVERIFY(!notice->isVisible());
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=3 b=0 text=1250")});
    QCOMPARE(m_panel->inner().toolTipOf(m_panel->cell(Cell::Least)), QStringLiteral("100 – 1,000,000 股\n") + text);
}

void tst_NumberEditor::bothNumbersOfARangeMayBeOffTheGrid()
{
    m_panel->table->setItemTick(Cell::Span, QStringLiteral("股"), 100);
    m_panel->clickValue(Cell::Span);
    m_panel->type(QStringLiteral("150"));
    m_panel->press(Qt::Key_Tab);
    m_panel->type(QStringLiteral("275"));
    const auto* notice = m_panel->table->findChild<WQ::Notice*>();
    QVERIFY(notice && notice->isVisible());
    const QString both = QStringLiteral("下限 不是 100 的整数倍：100 或 200；上限 不是 100 的整数倍：200 或 300");
    QCOMPARE(notice->text(), both);
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->table->itemText(Cell::Span), QStringLiteral("150 - 275"));
    QCOMPARE(m_panel->cell(Cell::Span).offGridText(), both);
    m_panel->table->setItemText(Cell::Span, QStringLiteral("100 - 275"));
    QCOMPARE(m_panel->cell(Cell::Span).offGridText(), QStringLiteral("上限 不是 100 的整数倍：200 或 300"));
    m_panel->table->setItemText(Cell::Span, QStringLiteral("100 - 300"));
    QCOMPARE(m_panel->cell(Cell::Span).offGridText(), QString());
}

void tst_NumberEditor::aWrongTextIsDroppedWhenAnotherCellIsClicked()
{
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("5"));
    m_panel->clickValue(Cell::Price);
    QVERIFY(m_panel->isEditing(Cell::Price));
    QVERIFY(!m_panel->inner().rowState(m_panel->cell(Cell::Least)).wrong);
    QCOMPARE(m_panel->table->itemInt(Cell::Least), 10000);
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_NumberEditor::aWrongTextIsDroppedWhenTheWindowCloses()
{
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("5"));
    m_panel->host.close();
    QVERIFY(!m_panel->table->findChild<WQ::Notice*>()->isVisible());
    m_panel->host.show();
    QCOMPARE(m_panel->table->itemInt(Cell::Least), 10000);
    QVERIFY(!m_panel->inner().rowState(m_panel->cell(Cell::Least)).editing);
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_NumberEditor::aPendingNumberIsCommittedWhenAnotherCellIsClicked()
{
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("500"));
    m_panel->clickValue(Cell::Price);
    QVERIFY(m_panel->isEditing(Cell::Price));
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=3 b=0 text=500")});
}

void tst_NumberEditor::aPendingNumberIsCommittedWhenTheFocusLeaves()
{
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("500"));
    m_panel->after->setFocus();
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=3 b=0 text=500")});
    QVERIFY(m_panel->after->hasFocus());
    QVERIFY(!m_panel->inner().rowState(m_panel->cell(Cell::Least)).editing);
}

void tst_NumberEditor::aPendingNumberIsCommittedWhenTheWindowCloses()
{
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("500"));
    m_panel->host.close();
    QCOMPARE(m_panel->table->itemInt(Cell::Least), 500);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=3 b=0 text=500")});
}

void tst_NumberEditor::aPendingNumberIsCommittedWhenTheProgramHidesTheCell()
{
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("500"));
    m_panel->table->setItemHidden(Cell::Least, true);
    QCoreApplication::processEvents();
    QCOMPARE(m_panel->table->itemInt(Cell::Least), 500);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=3 b=0 text=500")});
    QVERIFY(!m_panel->table->findChild<WQ::CellEditor*>()->isVisible());
}

void tst_NumberEditor::aPendingNumberOfACellMadeReadOnlyIsDropped()
{
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("500"));
    m_panel->table->setItemEditable(Cell::Least, false);
    QCoreApplication::processEvents();
    QCOMPARE(m_panel->table->itemInt(Cell::Least), 10000);
    QVERIFY(!m_panel->table->findChild<WQ::CellEditor*>()->isVisible());
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("7"));
    QVERIFY(!m_panel->line());
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_NumberEditor::theWheelStepsInTheEditorThatHasTheFocus()
{
    m_panel->clickValue(Cell::Least);
    sendWheel(m_panel->line(), 120);
    QCOMPARE(m_panel->line()->text(), QStringLiteral("10100"));
    sendWheel(m_panel->line(), -240);
    QCOMPARE(m_panel->line()->text(), QStringLiteral("9900"));
    // Half a notch waits for its other half.
    sendWheel(m_panel->line(), 60);
    QCOMPARE(m_panel->line()->text(), QStringLiteral("9900"));
    sendWheel(m_panel->line(), 60);
    QCOMPARE(m_panel->line()->text(), QStringLiteral("10000"));
}

void tst_NumberEditor::theWheelOverARowLeavesItsValueAndGoesOn()
{
    m_panel->focusRow(Cell::Least);
    const QPointF at = m_panel->layoutOf(Cell::Least).value.center();
    QWheelEvent wheel(at, m_panel->table->viewport()->mapToGlobal(at.toPoint()), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_panel->table->viewport(), &wheel);
    QVERIFY(!wheel.isAccepted());
    QCOMPARE(m_panel->table->itemInt(Cell::Least), 10000);
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_NumberEditor::anUntouchedEditorFollowsTheProgramAndATouchedOneStays()
{
    m_panel->clickValue(Cell::Least);
    m_panel->table->setItemInt(Cell::Least, 20000);
    QCoreApplication::processEvents();
    QCOMPARE(m_panel->line()->text(), QStringLiteral("20000"));
    QCOMPARE(m_panel->line()->selectedText(), QStringLiteral("20000"));
    m_panel->type(QStringLiteral("300"));
    m_panel->table->setItemInt(Cell::Least, 30000);
    QCoreApplication::processEvents();
    QCOMPARE(m_panel->line()->text(), QStringLiteral("300"));
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=3 b=0 text=300")});
}

void tst_NumberEditor::aDoubleClickIsReported()
{
    const QPoint at = m_panel->layoutOf(Cell::Least).label.center();
    QTest::mouseDClick(m_panel->table->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("97 cell=3 b=0 text=10000")});
    m_panel->clickValue(Cell::Least);
    QTest::mouseDClick(m_panel->line(), Qt::LeftButton);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("97 cell=3 b=0 text=10000")});
}

void tst_NumberEditor::oneEditorServesAllCells()
{
    QVERIFY(m_panel->table->findChildren<WQ::CellEditor*>().isEmpty());
    for (const int id :
         {Cell::Price, Cell::Least, Cell::Swing, Cell::Span, Cell::Period, Cell::Remark, Cell::Code, Cell::Text}) {
        m_panel->clickValue(id);
        QVERIFY(m_panel->isEditing(id));
    }
    QCOMPARE(m_panel->table->findChildren<WQ::CellEditor*>().size(), 1);
    QVERIFY(m_panel->table->findChildren<QLineEdit*>().size() <= 2);
}

QTEST_MAIN(tst_NumberEditor)
#include "tst_NumberEditor.moc"
