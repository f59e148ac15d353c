#include "EditorPanel.h"
#include "reference/toolkit/FieldEditor.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QShortcut>
#include <QWheelEvent>

using Cell = EditorPanel;

namespace {

void repeat(QWidget* widget, Qt::Key key, const QString& text = QString())
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text, true);
    QCoreApplication::sendEvent(widget, &event);
}

void turn(QWidget* widget, int notches)
{
    const QPointF at(widget->rect().center());
    QWheelEvent event(at, widget->mapToGlobal(at.toPoint()), QPoint(), QPoint(0, notches * 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

/// Keys, wheel and double clicks of an open editor.
class tst_EditorKeys : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void aNumericEditorStartsWithItsPlainDigitsAllSelected_data();
    void aNumericEditorStartsWithItsPlainDigitsAllSelected();
    void steppingTypesNoSeparators();
    void pagesAreTenSteps();
    void aKeyHeldDownGoesOnStepping();
    void enterHeldDownEndsTheEditOnce();
    void spaceHeldDownTicksOnce_data();
    void spaceHeldDownTicksOnce();
    void theWheelStepsOnlyWhereTheFocusIs();
    void aHostsShortcutTakesNoKeyOfTheEdit_data();
    void aHostsShortcutTakesNoKeyOfTheEdit();
    void aHostsShortcutTakesNoKeyOfASingleCell_data();
    void aHostsShortcutTakesNoKeyOfASingleCell();
    void aDoubleClickBesideTheFieldsIsTheCells();
    void onlyTheLeftButtonClicksTwice();
    void aDisabledTableTellsOfNoDoubleClick();
    void aReadOnlyCellTellsOfItsDoubleClick();

private:
    std::unique_ptr<EditorPanel> m_panel;
};

void tst_EditorKeys::init()
{
    m_panel = std::make_unique<EditorPanel>();
    QVERIFY(m_panel->open());
}

void tst_EditorKeys::cleanup()
{
    m_panel.reset();
}

void tst_EditorKeys::aNumericEditorStartsWithItsPlainDigitsAllSelected_data()
{
    QTest::addColumn<int>("cell");
    QTest::addColumn<QString>("digits");
    QTest::newRow("fraction") << int(Cell::Price) << QStringLiteral("0.50");
    QTest::newRow("whole number") << int(Cell::Least) << QStringLiteral("10000");
    QTest::newRow("number with a check") << int(Cell::Swing) << QStringLiteral("3.00");
    QTest::newRow("range") << int(Cell::Span) << QStringLiteral("1");
}

void tst_EditorKeys::aNumericEditorStartsWithItsPlainDigitsAllSelected()
{
    QFETCH(int, cell);
    QFETCH(QString, digits);
    m_panel->clickValue(cell);
    QVERIFY(m_panel->isEditing(cell));
    QCOMPARE(m_panel->line()->text(), digits);
    QCOMPARE(m_panel->line()->selectedText(), digits);
}

void tst_EditorKeys::steppingTypesNoSeparators()
{
    m_panel->clickValue(Cell::Least);
    m_panel->press(Qt::Key_Up);
    QCOMPARE(m_panel->line()->text(), QStringLiteral("10100"));
    QCOMPARE(m_panel->line()->selectedText(), QStringLiteral("10100"));
    m_panel->line()->setText(QStringLiteral("999,900"));
    m_panel->press(Qt::Key_Up);
    QCOMPARE(m_panel->line()->text(), QStringLiteral("1000000"));
}

void tst_EditorKeys::pagesAreTenSteps()
{
    m_panel->clickValue(Cell::Least);
    m_panel->press(Qt::Key_PageUp);
    QCOMPARE(m_panel->line()->text(), QStringLiteral("11000"));
    m_panel->press(Qt::Key_PageDown);
    m_panel->press(Qt::Key_PageDown);
    QCOMPARE(m_panel->line()->text(), QStringLiteral("9000"));
}

void tst_EditorKeys::aKeyHeldDownGoesOnStepping()
{
    m_panel->clickValue(Cell::Least);
    m_panel->press(Qt::Key_Up);
    for (int i = 0; i < 5; ++i)
        repeat(m_panel->line(), Qt::Key_Up);
    QCOMPARE(m_panel->line()->text(), QStringLiteral("10600"));
    QCOMPARE(m_panel->host.take(), QStringList());
    m_panel->press(Qt::Key_Return);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("87 cell=3 b=0 text=10600")});
}

void tst_EditorKeys::enterHeldDownEndsTheEditOnce()
{
    m_panel->clickValue(Cell::Least);
    m_panel->press(Qt::Key_Return);
    for (int i = 0; i < 3; ++i) {
        repeat(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY(!m_panel->line());
    }
    m_panel->press(Qt::Key_Return);
    QVERIFY(m_panel->isEditing(Cell::Least));
}

void tst_EditorKeys::spaceHeldDownTicksOnce_data()
{
    QTest::addColumn<bool>("isEdited");
    QTest::newRow("on the row") << false;
    QTest::newRow("in the editor") << true;
}

void tst_EditorKeys::spaceHeldDownTicksOnce()
{
    QFETCH(bool, isEdited);
    m_panel->focusRow(Cell::Swing);
    if (isEdited)
        m_panel->press(Qt::Key_F2);
    m_panel->press(Qt::Key_Space);
    for (int i = 0; i < 3; ++i)
        repeat(QApplication::focusWidget(), Qt::Key_Space, QStringLiteral(" "));
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("118 cell=4 b=1 text=单向")});
    QCOMPARE(m_panel->line() != nullptr, isEdited);
}

void tst_EditorKeys::theWheelStepsOnlyWhereTheFocusIs()
{
    m_panel->clickValue(Cell::Least);
    QLineEdit* line = m_panel->line();
    turn(line, 2);
    QCOMPARE(line->text(), QStringLiteral("10200"));
    // Another window is in front, and the edit waits.
    QApplication::setActiveWindow(nullptr);
    QVERIFY(line->isVisible());
    turn(line, 2);
    QCOMPARE(line->text(), QStringLiteral("10200"));
}

void tst_EditorKeys::aHostsShortcutTakesNoKeyOfTheEdit_data()
{
    QTest::addColumn<int>("keys");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    const auto row = [](const char* name, int key, Qt::KeyboardModifiers modifiers) {
        QTest::newRow(name) << (key + int(modifiers)) << key << int(modifiers);
    };
    row("Up", Qt::Key_Up, Qt::NoModifier);
    row("Shift+Up", Qt::Key_Up, Qt::ShiftModifier);
    row("Alt+Down", Qt::Key_Down, Qt::AltModifier);
    row("PageDown", Qt::Key_PageDown, Qt::NoModifier);
    row("Return", Qt::Key_Return, Qt::NoModifier);
    row("Esc", Qt::Key_Escape, Qt::NoModifier);
    row("Tab", Qt::Key_Tab, Qt::NoModifier);
    row("Del", Qt::Key_Delete, Qt::NoModifier);
    row("Backspace", Qt::Key_Backspace, Qt::NoModifier);
    row("Home", Qt::Key_Home, Qt::NoModifier);
    row("Ctrl+C", Qt::Key_C, Qt::ControlModifier);
    row("Ctrl+V", Qt::Key_V, Qt::ControlModifier);
    row("Ctrl+Z", Qt::Key_Z, Qt::ControlModifier);
    row("Ctrl+A", Qt::Key_A, Qt::ControlModifier);
    row("a digit", Qt::Key_7, Qt::NoModifier);
}

void tst_EditorKeys::aHostsShortcutTakesNoKeyOfTheEdit()
{
    QFETCH(int, keys);
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QShortcut shortcut(QKeySequence(keys), &m_panel->host);
    QSignalSpy taken(&shortcut, &QShortcut::activated);
    m_panel->clickValue(Cell::Least);
    QTest::keyClick(m_panel->host.windowHandle(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(taken.count(), 0);
    // Without the editor it is the host's.
    m_panel->after->setFocus();
    QTest::keyClick(m_panel->host.windowHandle(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(taken.count(), 1);
}

void tst_EditorKeys::aHostsShortcutTakesNoKeyOfASingleCell_data()
{
    QTest::addColumn<int>("key");
    for (const Qt::Key key :
         {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Delete})
        QTest::newRow(qPrintable(QKeySequence(key).toString())) << int(key);
}

void tst_EditorKeys::aHostsShortcutTakesNoKeyOfASingleCell()
{
    QFETCH(int, key);
    QShortcut shortcut(QKeySequence(key), &m_panel->host);
    QSignalSpy taken(&shortcut, &QShortcut::activated);
    WQ::FieldEditor field(QStringLiteral("5"), WQ::resources::font(WQ::keys::kTextFont, 1.0), &m_panel->host);
    QSignalSpy stepped(&field, &WQ::FieldEditor::stepped);
    field.show();
    field.setFocus();
    QTest::keyClick(m_panel->host.windowHandle(), Qt::Key(key));
    QCOMPARE(taken.count(), 0);
    const QHash<int, int> steps{{Qt::Key_Up, 1}, {Qt::Key_Down, -1}, {Qt::Key_PageUp, 10}, {Qt::Key_PageDown, -10}};
    QCOMPARE(stepped.count(), steps.contains(key) ? 1 : 0);
    if (steps.contains(key))
        QCOMPARE(stepped.at(0).at(0).toInt(), steps.value(key));
}

void tst_EditorKeys::aDoubleClickBesideTheFieldsIsTheCells()
{
    m_panel->clickValue(Cell::Period);
    QWidget* editor = m_panel->line()->parentWidget();
    QWidget* second = m_panel->line();
    for (auto* line : editor->findChildren<QLineEdit*>())
        second = line->isVisible() && line->x() > second->x() ? line : second;
    // Between the two times.
    const QPoint between(second->x() - 1, editor->height() / 2);
    QVERIFY(!editor->childAt(between));
    QTest::mouseDClick(editor, Qt::LeftButton, Qt::NoModifier, between);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("97 cell=6 b=0 text=09:30:00-15:00:00")});
    QVERIFY(m_panel->isEditing(Cell::Period));
}

void tst_EditorKeys::onlyTheLeftButtonClicksTwice()
{
    m_panel->clickValue(Cell::Span);
    QTest::mouseDClick(m_panel->line(), Qt::RightButton);
    QCOMPARE(m_panel->host.take(), QStringList());
    QTest::mouseDClick(m_panel->line(), Qt::LeftButton);
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("97 cell=5 b=0 text=1 - 1000000")});
}

void tst_EditorKeys::aDisabledTableTellsOfNoDoubleClick()
{
    m_panel->table->setAllItemEnable(false);
    QTest::mouseDClick(m_panel->table->viewport(), Qt::LeftButton, Qt::NoModifier,
                       m_panel->layoutOf(Cell::Least).label.center());
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_EditorKeys::aReadOnlyCellTellsOfItsDoubleClick()
{
    m_panel->table->setItemEditable(Cell::Least, false);
    QTest::mouseDClick(m_panel->table->viewport(), Qt::LeftButton, Qt::NoModifier,
                       m_panel->layoutOf(Cell::Least).label.center());
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("97 cell=3 b=0 text=10000")});
}

QTEST_MAIN(tst_EditorKeys)
#include "tst_EditorKeys.moc"
