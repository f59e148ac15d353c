#include "EditorPanel.h"

using Cell = EditorPanel;

class tst_TextEditors : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void aRangeIsTypedFieldByField();
    void aRangeWhoseEndsAreCrossedIsWrong();
    void clickingAnEndOfARangeSelectsThatEnd();
    void eachEndOfARangeSteps();
    void aClockRangeIsTypedFieldByField();
    void aTimeThatIsNoneIsWrong();
    void aTimeStepsInTheSectionUnderTheCursor();
    void altDownMakesThePeriodADurationAndBack();
    void switchingThePeriodAloneIsAnEdit();
    void theWrittenKindOfPeriodSwitchesByMouse();
    void aLineIsCommittedAsItsOwnEvent();
    void anEmptyLineShowsItsPlaceholder();
    void spaceIsALetterOfALine();
    void aLineAgainstItsPatternIsWrong();
    void upAndDownDoNotChangeALine();
    void aTextCellTakesAnyText();
    void aLineOfAMegabyteIsNotCutByTyping();
    void theFieldsKeepTheirLookUnderAnApplicationStyleSheet();

private:
    std::unique_ptr<EditorPanel> m_panel;
};

void tst_TextEditors::init()
{
    m_panel = std::make_unique<EditorPanel>();
    QVERIFY(m_panel->open());
}

void tst_TextEditors::cleanup()
{
    m_panel.reset();
    qApp->setStyleSheet(QString());
}

void tst_TextEditors::aRangeIsTypedFieldByField()
{
    m_panel->focusRow(Cell::Span);
    m_panel->press(Qt::Key_F2);
    QCOMPARE(m_panel->line()->selectedText(), QStringLiteral("1"));
    m_panel->type(QStringLiteral("200"));
    m_panel->press(Qt::Key_Tab);
    QVERIFY(m_panel->isEditing(Cell::Span));
    QCOMPARE(m_panel->line()->selectedText(), QStringLiteral("1000000"));
    m_panel->type(QStringLiteral("5000"));
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=5 b=0 text=200 - 5000")});
}

void tst_TextEditors::aRangeWhoseEndsAreCrossedIsWrong()
{
    m_panel->focusRow(Cell::Span);
    m_panel->press(Qt::Key_F2);
    m_panel->type(QStringLiteral("300"));
    m_panel->press(Qt::Key_Tab);
    m_panel->type(QStringLiteral("299"));
    m_panel->press(Qt::Key_Return);
    QVERIFY(m_panel->isEditing(Cell::Span));
    QVERIFY(m_panel->inner().rowState(m_panel->cell(Cell::Span)).wrong);
    QVERIFY(m_panel->wrongText(Cell::Span).contains(QStringLiteral("单笔量区间")));
    m_panel->type(QStringLiteral("9"));
    QVERIFY(!m_panel->inner().rowState(m_panel->cell(Cell::Span)).wrong);
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=5 b=0 text=300 - 2999")});
}

void tst_TextEditors::clickingAnEndOfARangeSelectsThatEnd()
{
    const QRect value = m_panel->layoutOf(Cell::Span).value;
    m_panel->click(QRect(value.right() - 4, value.top(), 4, value.height()));
    QCOMPARE(m_panel->line()->selectedText(), QStringLiteral("1000000"));
    m_panel->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(m_panel->line()->selectedText(), QStringLiteral("1"));
}

void tst_TextEditors::eachEndOfARangeSteps()
{
    m_panel->focusRow(Cell::Span);
    m_panel->press(Qt::Key_F2);
    m_panel->press(Qt::Key_Up, Qt::ShiftModifier);
    m_panel->press(Qt::Key_Tab);
    m_panel->press(Qt::Key_Down);
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=5 b=0 text=11 - 999999")});
}

void tst_TextEditors::aClockRangeIsTypedFieldByField()
{
    m_panel->focusRow(Cell::Period);
    m_panel->type(QStringLiteral("10:00"));
    QCOMPARE(m_panel->line()->text(), QStringLiteral("10:00"));
    m_panel->press(Qt::Key_Tab);
    QCOMPARE(m_panel->line()->selectedText(), QStringLiteral("15:00:00"));
    m_panel->type(QStringLiteral("143015"));
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("101 cell=6 b=0 text=10:00:00-14:30:15")});
    QCOMPARE(m_panel->table->itemTimeRangeType(Cell::Period), WQ::TimeRangeClock);
}

void tst_TextEditors::aTimeThatIsNoneIsWrong()
{
    m_panel->focusRow(Cell::Period);
    m_panel->type(QStringLiteral("25:00"));
    m_panel->press(Qt::Key_Return);
    QVERIFY(m_panel->isEditing(Cell::Period));
    QVERIFY(m_panel->wrongText(Cell::Period).contains(QStringLiteral("有效时间")));
    QVERIFY(m_panel->wrongText(Cell::Period).contains(QStringLiteral("23:59:59")));
    m_panel->after->setFocus();
    QCOMPARE(m_panel->table->itemText(Cell::Period), QStringLiteral("09:30:00-15:00:00"));
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_TextEditors::aTimeStepsInTheSectionUnderTheCursor()
{
    m_panel->focusRow(Cell::Period);
    m_panel->press(Qt::Key_F2);
    m_panel->line()->setCursorPosition(4);
    m_panel->press(Qt::Key_Up);
    QCOMPARE(m_panel->line()->text(), QStringLiteral("09:31:00"));
    QCOMPARE(m_panel->line()->selectedText(), QStringLiteral("31"));
    m_panel->press(Qt::Key_Up, Qt::ShiftModifier);
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("101 cell=6 b=0 text=09:41:00-15:00:00")});
}

void tst_TextEditors::altDownMakesThePeriodADurationAndBack()
{
    m_panel->focusRow(Cell::Period);
    m_panel->press(Qt::Key_F2);
    m_panel->press(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(m_panel->line()->text(), QStringLiteral("05:30:00"));
    m_panel->line()->selectAll();
    m_panel->type(QStringLiteral("1:00"));
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->table->itemTimeRangeType(Cell::Period), WQ::TimeRangeDuration);
    QCOMPARE(m_panel->table->timeElapse(Cell::Period), 3600);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("101 cell=6 b=0 text=09:30:00-15:00:00")});
    m_panel->press(Qt::Key_F2);
    QCOMPARE(m_panel->line()->text(), QStringLiteral("01:00:00"));
    m_panel->press(Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(m_panel->line()->text(), QStringLiteral("09:30:00"));
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->table->itemTimeRangeType(Cell::Period), WQ::TimeRangeClock);
    QCOMPARE(m_panel->host.take().size(), 1);
}

void tst_TextEditors::switchingThePeriodAloneIsAnEdit()
{
    m_panel->focusRow(Cell::Period);
    m_panel->press(Qt::Key_Down, Qt::AltModifier);
    QVERIFY(m_panel->isEditing(Cell::Period));
    m_panel->press(Qt::Key_Escape);
    QCOMPARE(m_panel->table->itemTimeRangeType(Cell::Period), WQ::TimeRangeClock);
    m_panel->press(Qt::Key_Down, Qt::AltModifier);
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->table->itemTimeRangeType(Cell::Period), WQ::TimeRangeDuration);
    QCOMPARE(m_panel->table->timeElapse(Cell::Period), 19800);
    QCOMPARE(m_panel->host.take().size(), 1);
}

void tst_TextEditors::theWrittenKindOfPeriodSwitchesByMouse()
{
    m_panel->focusRow(Cell::Period);
    m_panel->press(Qt::Key_F2);
    auto* editor = m_panel->table->findChild<WQ::CellEditor*>();
    const int left = m_panel->line()->x();
    QVERIFY2(left > 20, "no room for the kind beside the fields");
    QTest::mouseClick(editor, Qt::LeftButton, Qt::NoModifier, QPoint(left - 16, editor->height() / 2));
    QCOMPARE(m_panel->line()->text(), QStringLiteral("05:30:00"));
    QVERIFY(m_panel->isEditing(Cell::Period));
}

void tst_TextEditors::aLineIsCommittedAsItsOwnEvent()
{
    m_panel->clickValue(Cell::Remark);
    m_panel->line()->insert(QStringLiteral("季度调仓"));
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->table->itemText(Cell::Remark), QStringLiteral("季度调仓"));
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("102 cell=7 b=0 text=季度调仓")});
}

void tst_TextEditors::anEmptyLineShowsItsPlaceholder()
{
    m_panel->clickValue(Cell::Remark);
    QCOMPARE(m_panel->line()->placeholderText(), QStringLiteral("备注"));
    m_panel->clickValue(Cell::Least);
    QCOMPARE(m_panel->line()->placeholderText(), QString());
}

void tst_TextEditors::spaceIsALetterOfALine()
{
    m_panel->focusRow(Cell::Remark);
    m_panel->type(QStringLiteral("a b"));
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->table->itemText(Cell::Remark), QStringLiteral("a b"));
}

void tst_TextEditors::aLineAgainstItsPatternIsWrong()
{
    m_panel->focusRow(Cell::Code);
    m_panel->type(QStringLiteral("12a"));
    m_panel->press(Qt::Key_Return);
    QVERIFY(m_panel->isEditing(Cell::Code));
    QVERIFY(m_panel->wrongText(Cell::Code).contains(QStringLiteral("指定还券")));
    m_panel->press(Qt::Key_Backspace);
    QCOMPARE(m_panel->wrongText(Cell::Code), QString());
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("102 cell=8 b=0 text=12")});
}

void tst_TextEditors::upAndDownDoNotChangeALine()
{
    m_panel->focusRow(Cell::Code);
    m_panel->type(QStringLiteral("12"));
    m_panel->press(Qt::Key_Up);
    m_panel->press(Qt::Key_Down);
    QCOMPARE(m_panel->line()->text(), QStringLiteral("12"));
    QVERIFY(m_panel->isEditing(Cell::Code));
}

void tst_TextEditors::aTextCellTakesAnyText()
{
    m_panel->focusRow(Cell::Text);
    m_panel->type(QStringLiteral("IF2406 +1"));
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=9 b=0 text=IF2406 +1")});
}

void tst_TextEditors::aLineOfAMegabyteIsNotCutByTyping()
{
    const QString longText(100000, QLatin1Char('7'));
    m_panel->table->setItemText(Cell::Code, longText);
    m_panel->clickValue(Cell::Code);
    QCOMPARE(m_panel->line()->text().size(), longText.size());
    m_panel->press(Qt::Key_End);
    m_panel->press(Qt::Key_Backspace);
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->table->itemText(Cell::Code).size(), longText.size() - 1);
}

void tst_TextEditors::theFieldsKeepTheirLookUnderAnApplicationStyleSheet()
{
    m_panel->clickValue(Cell::Least);
    const QImage plain = m_panel->table->findChild<WQ::CellEditor*>()->grab().toImage();
    m_panel->press(Qt::Key_Escape);
    qApp->setStyleSheet(QStringLiteral("* { font-size: 30px; color: red; } QLineEdit, QLineEdit:focus { border: 3px"
                                       " solid red; padding: 5px; background: yellow; min-height: 60px; }"));
    m_panel->clickValue(Cell::Least);
    QCOMPARE(m_panel->table->findChild<WQ::CellEditor*>()->grab().toImage(), plain);
}

QTEST_MAIN(tst_TextEditors)
#include "tst_TextEditors.moc"
