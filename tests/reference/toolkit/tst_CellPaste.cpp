#include "MenuPanel.h"

using Cell = EditorPanel;

/// Texts from the clipboard, and the way back to what a cell was added with.
class tst_CellPaste : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void aRightTextIsCommittedAsATypedOne_data();
    void aRightTextIsCommittedAsATypedOne();
    void aWrongTextIsRefused_data();
    void aWrongTextIsRefused();
    void aRefusalSpeaksAsTheEditorDoes();
    void theRefusalGoesWithTheNextKey();
    void aPasteThatChangesNothingSendsNothing();
    void aNumberOffTheGridIsTakenAsItIs();
    void whatStandsInAnEditorIsCommittedBeforeThePasteOfTheMenu();
    void pasteInAnEditorIsItsLines();
    void theMenuPastes();
    void aMegabyteIsRefusedAtOnce_data();
    void aMegabyteIsRefusedAtOnce();
    void aListenerMayDeleteTheTableAtThePaste();
    void whoeverSeesTheFocusMoveMayDisableTheTableAtThePaste();

    void theWayBackSendsWhatAPersonsCommitSends_data();
    void theWayBackSendsWhatAPersonsCommitSends();
    void theWayBackTakesUnitCheckAndNumber();
    void theWayBackIsExactToTheLastDecimal();
    void aNumberThatItsLimitsNowForbidIsNotRestored();
    void anEntryThatIsGoneIsNotRestored();
    void anEntryThatMovedIsFoundByItsValue();
    void aListenerMayDeleteTheTableAtTheWayBack();

private:
    std::unique_ptr<MenuPanel> m_panel;
};

void tst_CellPaste::init()
{
    m_panel = std::make_unique<MenuPanel>();
    QVERIFY(m_panel->open());
}

void tst_CellPaste::cleanup()
{
    m_panel.reset();
    MenuPanel::setClipboard(QString());
}

void tst_CellPaste::aRightTextIsCommittedAsATypedOne_data()
{
    QTest::addColumn<int>("cell");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("event");
    const auto row = [](const char* name, int cell, const char* pasted, const char* event) {
        QTest::newRow(name) << cell << QString::fromUtf8(pasted) << QString::fromUtf8(event);
    };
    row("a number", Cell::Least, "300", "87 cell=3 b=0 text=300");
    row("a number with groups", Cell::Least, "12,300", "87 cell=3 b=0 text=12300");
    row("a number from a spreadsheet", Cell::Least, "300\r\n", "87 cell=3 b=0 text=300");
    row("a number in full width", Cell::Least, "３００", "87 cell=3 b=0 text=300");
    row("a fraction", Cell::Price, "1.25", "87 cell=2 b=0 text=1.25");
    row("the number of a check", Cell::Swing, "4", "87 cell=4 b=0 text=4.00");
    row("a combo's entry", Cell::Combo, "买①价", "73 cell=1 b=2 text=买①价 data=6");
    row("an entry from a spreadsheet", Cell::Combo, "买①价\n", "73 cell=1 b=2 text=买①价 data=6");
    row("a range as it is copied", Cell::Span, "200 - 5000", "87 cell=5 b=0 text=200 - 5000");
    row("a range without blanks", Cell::Span, "200-5000", "87 cell=5 b=0 text=200 - 5000");
    row("a range as it is shown", Cell::Span, "200 – 5,000", "87 cell=5 b=0 text=200 - 5000");
    row("a range with a tilde", Cell::Span, "200~5000", "87 cell=5 b=0 text=200 - 5000");
    row("a clock range as it is copied", Cell::Period, "10:00:00-14:30:15", "101 cell=6 b=0 text=10:00:00-14:30:15");
    row("a clock range as it is shown", Cell::Period, "10:00 – 14:30", "101 cell=6 b=0 text=10:00:00-14:30:00");
    row("a line", Cell::Remark, "季度 调仓", "102 cell=7 b=0 text=季度 调仓");
    row("a line with a pattern", Cell::Code, "600000", "102 cell=8 b=0 text=600000");
    row("a text", Cell::Text, "1e5", "87 cell=9 b=0 text=1e5");
}

void tst_CellPaste::aRightTextIsCommittedAsATypedOne()
{
    QFETCH(int, cell);
    QFETCH(QString, pasted);
    QFETCH(QString, event);
    m_panel->paste(cell, pasted);
    QCOMPARE(m_panel->host.take(), QStringList{event});
    QCOMPARE(m_panel->notice(), QString());
    QVERIFY(!m_panel->line());
}

void tst_CellPaste::aWrongTextIsRefused_data()
{
    QTest::addColumn<int>("cell");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("says");
    const auto row = [](const char* name, int cell, const char* pasted, const char* says) {
        QTest::newRow(name) << cell << QString::fromUtf8(pasted) << QString::fromUtf8(says);
    };
    row("no number", Cell::Least, "12a", "不是数字");
    row("a number with its unit", Cell::Least, "300 股", "不是数字");
    row("a fraction where whole ones are", Cell::Least, "100.5", "须为整数");
    row("below the range", Cell::Least, "99", "超出范围");
    row("above the range", Cell::Price, "100.01", "超出范围");
    row("two lines", Cell::Least, "300\n400", "不是数字");
    row("an entry with a blank", Cell::Combo, "买①价 ", "没有这个选项");
    row("no entry", Cell::Combo, "市价", "没有这个选项");
    row("one number of a range", Cell::Span, "200", "不是数字");
    row("a crossed range", Cell::Span, "300 - 200", "上限不能小于下限");
    row("a range beyond", Cell::Span, "0 - 200", "超出范围");
    row("three numbers", Cell::Span, "1 - 2 - 3", "不是数字");
    row("no time", Cell::Period, "25:00-26:00", "不是时间");
    row("a midnight that is tomorrow", Cell::Period, "23:00-24:00", "不是时间");
    row("a line against its pattern", Cell::Code, "60a", "格式不符");
    row("a line of two", Cell::Remark, "a\nb", "不能含有换行或制表符");
    row("a line with a tab", Cell::Remark, "a\tb", "不能含有换行或制表符");
}

void tst_CellPaste::aWrongTextIsRefused()
{
    QFETCH(int, cell);
    QFETCH(QString, pasted);
    QFETCH(QString, says);
    const QString before = m_panel->table->itemText(cell);
    m_panel->paste(cell, pasted);
    QCOMPARE(m_panel->host.take(), QStringList());
    QCOMPARE(m_panel->table->itemText(cell), before);
    QVERIFY2(m_panel->notice().contains(says), qPrintable(m_panel->notice()));
    QVERIFY(m_panel->notice().startsWith(m_panel->cell(cell).label()));
    QVERIFY(m_panel->inner().rowState(m_panel->cell(cell)).wrong);
    QCOMPARE(m_panel->wrongText(cell), m_panel->notice());
}

void tst_CellPaste::aRefusalSpeaksAsTheEditorDoes()
{
    m_panel->focusRow(Cell::Least);
    m_panel->type(QStringLiteral("99"));
    const QString typed = m_panel->notice();
    m_panel->press(Qt::Key_Escape);
    QVERIFY(!typed.isEmpty());
    m_panel->paste(Cell::Least, QStringLiteral("99"));
    QCOMPARE(m_panel->notice(), typed);
}

void tst_CellPaste::theRefusalGoesWithTheNextKey()
{
    m_panel->paste(Cell::Least, QStringLiteral("99"));
    QVERIFY(!m_panel->notice().isEmpty());
    m_panel->press(Qt::Key_Down);
    QCOMPARE(m_panel->notice(), QString());
    QVERIFY(!m_panel->inner().rowState(m_panel->cell(Cell::Least)).wrong);
    QCOMPARE(m_panel->wrongText(Cell::Least), QString());
}

void tst_CellPaste::aPasteThatChangesNothingSendsNothing()
{
    m_panel->paste(Cell::Least, QStringLiteral("10,000"));
    m_panel->paste(Cell::Combo, QStringLiteral("卖①价"));
    QCOMPARE(m_panel->host.take(), QStringList());
    QCOMPARE(m_panel->notice(), QString());
}

void tst_CellPaste::aNumberOffTheGridIsTakenAsItIs()
{
    m_panel->paste(Cell::Least, QStringLiteral("12345"));
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=3 b=0 text=12345")});
    QCOMPARE(m_panel->table->itemDouble(Cell::Least), 12345.0);
}

void tst_CellPaste::whatStandsInAnEditorIsCommittedBeforeThePasteOfTheMenu()
{
    MenuPanel::setClipboard(QStringLiteral("500"));
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("300"));
    QVERIFY(m_panel->menuOf(Cell::Least));
    m_panel->choose(QStringLiteral("粘贴"));
    QCOMPARE(m_panel->host.take(),
             QStringList({QStringLiteral("87 cell=3 b=0 text=300"), QStringLiteral("87 cell=3 b=0 text=500")}));
}

void tst_CellPaste::pasteInAnEditorIsItsLines()
{
    MenuPanel::setClipboard(QStringLiteral("50"));
    m_panel->clickValue(Cell::Least);
    m_panel->press(Qt::Key_End);
    m_panel->press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_panel->line()->text(), QStringLiteral("1000050"));
    m_panel->press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_panel->line()->text(), QStringLiteral("10000"));
    m_panel->press(Qt::Key_A, Qt::ControlModifier);
    m_panel->press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(MenuPanel::clipboard(), QStringLiteral("10000"));
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_CellPaste::theMenuPastes()
{
    MenuPanel::setClipboard(QStringLiteral("700"));
    QVERIFY(m_panel->menuOf(Cell::Least));
    m_panel->choose(QStringLiteral("粘贴"));
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=3 b=0 text=700")});
}

void tst_CellPaste::aMegabyteIsRefusedAtOnce_data()
{
    QTest::addColumn<int>("cell");
    QTest::newRow("number") << int(Cell::Least);
    QTest::newRow("range") << int(Cell::Span);
    QTest::newRow("period") << int(Cell::Period);
    QTest::newRow("line") << int(Cell::Remark);
    QTest::newRow("text") << int(Cell::Text);
    QTest::newRow("combo") << int(Cell::Combo);
}

void tst_CellPaste::aMegabyteIsRefusedAtOnce()
{
    QFETCH(int, cell);
    const QString before = m_panel->table->itemText(cell);
    m_panel->paste(cell, QStringLiteral("1-").repeated(500000));
    QCOMPARE(m_panel->host.take(), QStringList());
    QCOMPARE(m_panel->table->itemText(cell), before);
    QVERIFY(!m_panel->notice().isEmpty());
    QVERIFY(m_panel->notice().size() < 200);
}

void tst_CellPaste::aListenerMayDeleteTheTableAtThePaste()
{
    m_panel->host.onEvent = [this](int) { delete m_panel->table; };
    m_panel->paste(Cell::Least, QStringLiteral("300"));
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=3 b=0 text=300")});
    QVERIFY(!m_panel->table);
}

// The paste of the menu ends the edit first, which moves the focus.
void tst_CellPaste::whoeverSeesTheFocusMoveMayDisableTheTableAtThePaste()
{
    MenuPanel::setClipboard(QStringLiteral("500"));
    m_panel->clickValue(Cell::Least);
    QVERIFY(m_panel->menuOf(Cell::Least));
    const auto gone = connect(qApp, &QApplication::focusChanged, this, [this](QWidget* from, QWidget*) {
        if (qobject_cast<QLineEdit*>(from))
            m_panel->table->setAllItemEnable(false);
    });
    MenuPanel::entry(m_panel->menu(), QStringLiteral("粘贴"))->trigger();
    QCoreApplication::processEvents();
    disconnect(gone);
    QVERIFY(!m_panel->line());
    QCOMPARE(m_panel->table->itemText(Cell::Least), QStringLiteral("10000"));
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_CellPaste::theWayBackSendsWhatAPersonsCommitSends_data()
{
    QTest::addColumn<int>("cell");
    QTest::addColumn<QString>("other");
    QTest::addColumn<QString>("event");
    const auto row = [](const char* name, int cell, const char* other, const char* event) {
        QTest::newRow(name) << cell << QString::fromUtf8(other) << QString::fromUtf8(event);
    };
    row("combo", Cell::Combo, "买①价", "73 cell=1 b=0 text=卖①价 data=4");
    row("number", Cell::Price, "2", "87 cell=2 b=0 text=0.50");
    row("whole number", Cell::Least, "200", "87 cell=3 b=0 text=10000");
    row("range", Cell::Span, "5 - 6", "87 cell=5 b=0 text=1 - 1000000");
    row("clock range", Cell::Period, "10:00-11:00", "101 cell=6 b=0 text=09:30:00-15:00:00");
    row("duration", Cell::Period, "00:10:00", "101 cell=6 b=0 text=09:30:00-15:00:00");
    row("line", Cell::Remark, "x", "102 cell=7 b=0 text=");
    row("text", Cell::Text, "x", "87 cell=9 b=0 text=");
}

void tst_CellPaste::theWayBackSendsWhatAPersonsCommitSends()
{
    QFETCH(int, cell);
    QFETCH(QString, other);
    QFETCH(QString, event);
    m_panel->paste(cell, other);
    QCOMPARE(m_panel->host.take().size(), 1);
    m_panel->restore(cell);
    QCOMPARE(m_panel->host.take(), QStringList{event});
    QCOMPARE(m_panel->table->itemTimeRangeType(Cell::Period), WQ::TimeRangeClock);
    m_panel->restore(cell);
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_CellPaste::theWayBackTakesUnitCheckAndNumber()
{
    m_panel->table->setItemUnit(Cell::Swing, QStringLiteral("元"));
    m_panel->table->setCheckDouble(Cell::Swing, true, 500, false);
    m_panel->restore(Cell::Swing);
    QCOMPARE(m_panel->host.take(),
             QStringList({QStringLiteral("118 cell=4 b=0 text=%"), QStringLiteral("118 cell=4 b=0 text=单向"),
                          QStringLiteral("87 cell=4 b=0 text=3.00")}));
    QCOMPARE(m_panel->table->itemUnit(Cell::Swing), QStringLiteral("%"));
    QCOMPARE(m_panel->table->itemDouble(Cell::Swing), 3.0);
    QVERIFY(!m_panel->cell(Cell::Swing).isChecked());
}

// What is shown has six decimals.
void tst_CellPaste::theWayBackIsExactToTheLastDecimal()
{
    constexpr int kFine = 77;
    m_panel->table->addParamCell(kFine, QStringLiteral("精确"), 6, 0, 1, 0, QString(), 0.12345678, 4);
    m_panel->table->setMinimumHeight(m_panel->table->realHeight());
    QCoreApplication::processEvents();
    m_panel->paste(kFine, QStringLiteral("0.5"));
    m_panel->restore(kFine);
    QCOMPARE(m_panel->table->itemDouble(kFine), 0.12345678);
}

void tst_CellPaste::aNumberThatItsLimitsNowForbidIsNotRestored()
{
    m_panel->table->setItemUnit(Cell::Price, QStringLiteral("%"), 1, 100, 0, false);
    m_panel->table->setItemUnit(Cell::Price, QStringLiteral("元"));
    m_panel->restore(Cell::Price);
    QCOMPARE(m_panel->host.take(), QStringList());
    QCOMPARE(m_panel->table->itemUnit(Cell::Price), QStringLiteral("元"));
    QVERIFY(m_panel->notice().contains(QStringLiteral("超出范围")));
}

void tst_CellPaste::anEntryThatIsGoneIsNotRestored()
{
    m_panel->table->resetComboData(Cell::Combo, {QStringLiteral("市价")}, {9}, 0);
    m_panel->restore(Cell::Combo);
    QCOMPARE(m_panel->host.take(), QStringList());
    QCOMPARE(m_panel->table->itemText(Cell::Combo), QStringLiteral("市价"));
    QVERIFY(m_panel->notice().contains(QStringLiteral("已没有最初的选项")));
}

void tst_CellPaste::anEntryThatMovedIsFoundByItsValue()
{
    m_panel->table->resetComboData(Cell::Combo, {QStringLiteral("市价"), QStringLiteral("卖一")}, {9, 4}, 0);
    m_panel->restore(Cell::Combo);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("73 cell=1 b=1 text=卖一 data=4")});
}

void tst_CellPaste::aListenerMayDeleteTheTableAtTheWayBack()
{
    m_panel->table->setItemUnit(Cell::Swing, QStringLiteral("元"));
    m_panel->host.onEvent = [this](int) { delete m_panel->table; };
    m_panel->restore(Cell::Swing);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("118 cell=4 b=0 text=%")});
    QVERIFY(!m_panel->table);
}

QTEST_MAIN(tst_CellPaste)
#include "tst_CellPaste.moc"
