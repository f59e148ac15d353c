#include "EditorPanel.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QAccessible>
#include <QImage>

#include <algorithm>

using Cell = EditorPanel;

namespace {

int editorCount()
{
    const QWidgetList all = QApplication::allWidgets();
    return static_cast<int>(std::count_if(all.begin(), all.end(), [](const QWidget* widget) {
        return qobject_cast<const WQ::CellEditor*>(widget) != nullptr;
    }));
}

WQ::CellEditor* editorOf(const EditorPanel& panel)
{
    return panel.table->findChild<WQ::CellEditor*>();
}

void goTo(EditorPanel& panel)
{
    panel.host.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&panel.host));
}

/// Goes to the window of a panel and opens the editor of a cell.
void edit(EditorPanel& panel, int cell)
{
    goTo(panel);
    panel.clickValue(cell);
    QVERIFY(panel.isEditing(cell));
}

/// Opens the editor of a cell and closes it, so that it is idle.
void visit(EditorPanel& panel, int cell)
{
    edit(panel, cell);
    panel.press(Qt::Key_Escape);
    QVERIFY(!panel.line());
}

/// What the open editor of a cell looks like.
QImage lookOf(EditorPanel& panel, int cell)
{
    edit(panel, cell);
    const QImage image = editorOf(panel)->grab().toImage();
    panel.press(Qt::Key_Escape);
    return image;
}

/// Tells of every widget that is shown.
class ShowWatch : public QObject
{
public:
    explicit ShowWatch(std::function<void(QWidget&)> shown)
        : m_shown(std::move(shown))
    {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && watched->isWidgetType())
            m_shown(static_cast<QWidget&>(*watched));
        return false;
    }

private:
    const std::function<void(QWidget&)> m_shown;
};

} // namespace

/// Two panels, each in its window: one editor serves both.
class tst_SharedEditor : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void theEditorGoesToTheTableThatOpensOne();
    void whatIsTypedReachesItsOwnTableOnly();
    void twoWindowsEditAtATime();
    void anEditorInUseIsNotTaken();
    void anIdleEditorOutlivesItsTable();
    void anOpenEditorGoesWithItsTable();
    void anOpenEditorGoesWithItsWindow();
    void theLastTableTakesTheEditorWithIt();
    void aWindowGoesWithADialogWhoseTableHasTheEditor();
    void tablesOfOneWindowMayGoInAnyOrder_data();
    void tablesOfOneWindowMayGoInAnyOrder();
    void aListenerMayDeleteTheTableThatLentTheEditor();
    void whoeverSeesTheEditCloseMayOpenOneInAnotherTable();
    void whoeverSeesTheEditorOpenMayHideTheTable();
    void nothingOfAnotherCellStaysBehind();
    void theHistoryOfAnotherTableIsNotUndone();
    void anEditorOfADisabledTableIsUsableElsewhere();
    void theEditorTakesTheScaleOfItsTable();
    void theEditorTakesAThemeThatChangedMeanwhile();
    void aStyleSheetOfTheWindowBeforeLeavesNoTrace();
    void accessibilityFindsTheEditorInItsTable();
    void tabStaysInTheTableThatEdits();

private:
    std::unique_ptr<EditorPanel> m_first;
    std::unique_ptr<EditorPanel> m_second;
};

void tst_SharedEditor::init()
{
    m_first = std::make_unique<EditorPanel>();
    m_second = std::make_unique<EditorPanel>();
    QVERIFY(m_first->open());
    QVERIFY(m_second->open());
    QCOMPARE(editorCount(), 0);
}

void tst_SharedEditor::cleanup()
{
    m_first.reset();
    m_second.reset();
    WQ::resources::setScale(1.0);
    WQ::resources::setTheme(QStringLiteral("dark"));
    QCOMPARE(editorCount(), 0);
}

void tst_SharedEditor::theEditorGoesToTheTableThatOpensOne()
{
    visit(*m_first, Cell::Least);
    const QPointer<WQ::CellEditor> editor(editorOf(*m_first));
    edit(*m_second, Cell::Span);
    QVERIFY(!editorOf(*m_first));
    QCOMPARE(editorOf(*m_second), editor.data());
    QCOMPARE(editor->geometry().right(), m_second->layoutOf(Cell::Span).value.right() + 3);
    QVERIFY(m_second->table->viewport()->rect().contains(editor->geometry().center()));
    m_second->press(Qt::Key_Escape);
    visit(*m_first, Cell::Least);
    QCOMPARE(editorOf(*m_first), editor.data());
    QCOMPARE(editorCount(), 1);
}

void tst_SharedEditor::whatIsTypedReachesItsOwnTableOnly()
{
    visit(*m_first, Cell::Least);
    edit(*m_second, Cell::Least);
    QCOMPARE(m_second->line()->selectedText(), QStringLiteral("10000"));
    m_second->type(QStringLiteral("500"));
    m_second->press(Qt::Key_Return);
    QCOMPARE(m_second->host.take(), QStringList{QStringLiteral("87 cell=3 b=0 text=500")});
    QCOMPARE(m_first->host.take(), QStringList());
    QCOMPARE(m_first->table->itemInt(Cell::Least), 10000);
}

// A window that loses the focus keeps its edit: the person may come back.
void tst_SharedEditor::twoWindowsEditAtATime()
{
    edit(*m_first, Cell::Least);
    m_first->type(QStringLiteral("50"));
    edit(*m_second, Cell::Price);
    m_second->type(QStringLiteral("2.5"));
    QCOMPARE(editorCount(), 2);
    QVERIFY(editorOf(*m_first)->isVisible());
    QCOMPARE(editorOf(*m_first)->field()->text(), QStringLiteral("50"));
    m_second->press(Qt::Key_Return);
    QCOMPARE(m_second->host.take(), QStringList{QStringLiteral("87 cell=2 b=0 text=2.50")});
    goTo(*m_first);
    QVERIFY(m_first->isEditing(Cell::Least));
    m_first->type(QStringLiteral("0"));
    m_first->press(Qt::Key_Return);
    QCOMPARE(m_first->host.take(), QStringList{QStringLiteral("87 cell=3 b=0 text=500")});
}

void tst_SharedEditor::anEditorInUseIsNotTaken()
{
    edit(*m_first, Cell::Remark);
    const QPointer<WQ::CellEditor> editor(editorOf(*m_first));
    visit(*m_second, Cell::Least);
    visit(*m_second, Cell::Period);
    QCOMPARE(editorOf(*m_first), editor.data());
    QVERIFY(editor->isVisible());
    QVERIFY(editorOf(*m_second) != editor);
}

void tst_SharedEditor::anIdleEditorOutlivesItsTable()
{
    visit(*m_second, Cell::Least);
    visit(*m_first, Cell::Least);
    const QPointer<WQ::CellEditor> editor(editorOf(*m_first));
    QVERIFY(editor);
    m_first.reset();
    QVERIFY(editor);
    QCOMPARE(editorOf(*m_second), editor.data());
    QVERIFY(!editor->isVisible());
    visit(*m_second, Cell::Span);
    QCOMPARE(editorOf(*m_second), editor.data());
}

void tst_SharedEditor::anOpenEditorGoesWithItsTable()
{
    visit(*m_second, Cell::Least);
    edit(*m_first, Cell::Least);
    m_first->type(QStringLiteral("500"));
    const QPointer<WQ::CellEditor> editor(editorOf(*m_first));
    delete m_first->table;
    QVERIFY(!editor);
    QCOMPARE(editorCount(), 0);
    edit(*m_second, Cell::Least);
}

void tst_SharedEditor::anOpenEditorGoesWithItsWindow()
{
    visit(*m_second, Cell::Least);
    edit(*m_first, Cell::Period);
    m_first.reset();
    // The window closes first, and with that the edit ends.
    QCOMPARE(editorCount(), 1);
    QVERIFY(!editorOf(*m_second)->isVisible());
    visit(*m_second, Cell::Period);
}

void tst_SharedEditor::theLastTableTakesTheEditorWithIt()
{
    const int windows = QApplication::topLevelWidgets().size();
    visit(*m_second, Cell::Least);
    visit(*m_first, Cell::Least);
    QCOMPARE(QApplication::topLevelWidgets().size(), windows);
    m_first.reset();
    QCOMPARE(editorCount(), 1);
    m_second.reset();
    QCOMPARE(editorCount(), 0);
}

// The dialog is deleted while its window is half gone, and the window's own table would be the heir.
void tst_SharedEditor::aWindowGoesWithADialogWhoseTableHasTheEditor()
{
    auto* dialog = new QWidget(nullptr, Qt::Dialog);
    m_second->table->setParent(dialog);
    dialog->setParent(&m_first->host, Qt::Dialog);
    m_first->table->raise(); // so that it goes after the dialog
    dialog->show();
    visit(*m_first, Cell::Least);
    m_second->table->show();
    m_second->clickValue(Cell::Least);
    QVERIFY(editorOf(*m_second));
    m_second->press(Qt::Key_Escape);
    const QPointer<WQ::CellEditor> editor(editorOf(*m_second));
    m_first.reset();
    QVERIFY(!editor);
    QVERIFY(!m_second->table);
}

void tst_SharedEditor::tablesOfOneWindowMayGoInAnyOrder_data()
{
    QTest::addColumn<bool>("lenderFirst");
    QTest::addColumn<bool>("isOpen");
    for (const bool lenderFirst : {false, true}) {
        for (const bool isOpen : {false, true})
            QTest::addRow("%d %d", lenderFirst, isOpen) << lenderFirst << isOpen;
    }
}

void tst_SharedEditor::tablesOfOneWindowMayGoInAnyOrder()
{
    QFETCH(bool, lenderFirst);
    QFETCH(bool, isOpen);
    visit(*m_first, Cell::Least);
    m_second->table->setParent(&m_first->host);
    m_second->table->setGeometry(0, 0, 240, m_second->table->realHeight());
    m_second->table->show();
    m_second->clickValue(Cell::Least);
    QVERIFY(m_second->isEditing(Cell::Least));
    if (!isOpen)
        m_second->press(Qt::Key_Escape);
    QCOMPARE(editorCount(), 1);
    const QPointer<WQ::CellEditor> editor(editorOf(*m_second));
    delete (lenderFirst ? m_first : m_second)->table;
    QCOMPARE(bool(editor), lenderFirst || !isOpen);
    m_first.reset();
    QCOMPARE(editorCount(), 0);
}

void tst_SharedEditor::aListenerMayDeleteTheTableThatLentTheEditor()
{
    visit(*m_first, Cell::Least);
    edit(*m_second, Cell::Least);
    m_second->host.onEvent = [this](int) { delete m_first->table; };
    m_second->type(QStringLiteral("500"));
    m_second->press(Qt::Key_Return);
    QCOMPARE(m_second->host.take(), QStringList{QStringLiteral("87 cell=3 b=0 text=500")});
    QVERIFY(!m_first->table);
    visit(*m_second, Cell::Span);
    QCOMPARE(editorCount(), 1);
}

void tst_SharedEditor::whoeverSeesTheEditCloseMayOpenOneInAnotherTable()
{
    edit(*m_first, Cell::Least);
    bool isOpened = false;
    const auto watch = connect(qApp, &QApplication::focusChanged, this, [&](QWidget* before, QWidget*) {
        if (isOpened || !before || !m_first->table->isAncestorOf(before))
            return;
        isOpened = true;
        goTo(*m_second);
        m_second->table->setCurrentIndex(m_second->inner().model().valueIndex(Cell::Price));
        QTest::keyClick(m_second->table, Qt::Key_F2);
    });
    m_first->type(QStringLiteral("500"));
    m_first->press(Qt::Key_Return);
    disconnect(watch);
    QVERIFY(isOpened);
    QVERIFY(m_second->inner().rowState(m_second->cell(Cell::Price)).editing);
    QVERIFY(editorOf(*m_second)->isVisible());
    QCOMPARE(editorOf(*m_second)->field()->text(), QStringLiteral("0.50"));
    QVERIFY(!editorOf(*m_first)->isVisible());
    QCOMPARE(m_first->table->itemInt(Cell::Least), 500);
}

void tst_SharedEditor::whoeverSeesTheEditorOpenMayHideTheTable()
{
    visit(*m_first, Cell::Least);
    ShowWatch watch([this](QWidget& shown) {
        if (!qobject_cast<WQ::CellEditor*>(&shown) || !m_second->table->isAncestorOf(&shown))
            return;
        m_second->table->hide();
        m_first->clickValue(Cell::Price);
    });
    goTo(*m_second);
    m_second->clickValue(Cell::Least);
    QVERIFY(!m_second->inner().rowState(m_second->cell(Cell::Least)).editing);
    QVERIFY(m_first->inner().rowState(m_first->cell(Cell::Price)).editing);
    QVERIFY(editorOf(*m_first)->isVisible());
    QCOMPARE(editorOf(*m_first)->field()->text(), QStringLiteral("0.50"));
}

void tst_SharedEditor::nothingOfAnotherCellStaysBehind()
{
    visit(*m_first, Cell::Remark);
    edit(*m_first, Cell::Span);
    m_first->press(Qt::Key_Tab);
    m_first->press(Qt::Key_Escape);
    edit(*m_second, Cell::Least);
    QLineEdit* const line = m_second->line();
    QCOMPARE(line->text(), QStringLiteral("10000"));
    QCOMPARE(line->selectedText(), QStringLiteral("10000"));
    QCOMPARE(line->placeholderText(), QString());
    QCOMPARE(line->accessibleName(), QStringLiteral("单笔最小量"));
    const auto fields = editorOf(*m_second)->findChildren<QLineEdit*>();
    QCOMPARE(std::count_if(fields.begin(), fields.end(), [](QLineEdit* field) { return field->isVisible(); }), 1);
}

void tst_SharedEditor::theHistoryOfAnotherTableIsNotUndone()
{
    edit(*m_first, Cell::Least);
    m_first->type(QStringLiteral("500"));
    m_first->press(Qt::Key_Escape);
    edit(*m_second, Cell::Span);
    QVERIFY(!m_second->line()->isUndoAvailable());
    m_second->press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_second->line()->text(), QStringLiteral("1"));
}

void tst_SharedEditor::anEditorOfADisabledTableIsUsableElsewhere()
{
    visit(*m_first, Cell::Least);
    m_first->host.setEnabled(false);
    edit(*m_second, Cell::Least);
    m_second->type(QStringLiteral("500"));
    m_second->press(Qt::Key_Return);
    QCOMPARE(m_second->table->itemInt(Cell::Least), 500);
}

// A table with its font scale off stays at scale 1 beside one that follows the scale.
void tst_SharedEditor::theEditorTakesTheScaleOfItsTable()
{
    WQ::resources::setScale(2.0);
    m_first->table->setFontScale(false);
    m_second->table->setFontScale(true);
    m_second->table->setMinimumSize(480, m_second->table->realHeight());
    m_second->host.resize(500, 800);
    const int small = WQ::resources::font(WQ::keys::kTextFont, 1.0).pixelSize();
    const int large = WQ::resources::font(WQ::keys::kTextFont, 2.0).pixelSize();
    QVERIFY(large > small);
    for (int i = 0; i < 2; ++i) {
        edit(*m_first, Cell::Least);
        QCOMPARE(m_first->line()->font().pixelSize(), small);
        m_first->press(Qt::Key_Escape);
        edit(*m_second, Cell::Least);
        QCOMPARE(m_second->line()->font().pixelSize(), large);
        m_second->press(Qt::Key_Escape);
    }
    QCOMPARE(editorCount(), 1);
}

void tst_SharedEditor::theEditorTakesAThemeThatChangedMeanwhile()
{
    const auto placeholder = [](const EditorPanel& panel) {
        return editorOf(panel)->field()->palette().color(QPalette::PlaceholderText);
    };
    visit(*m_first, Cell::Remark);
    const QColor dark = WQ::resources::color(WQ::keys::kUnit);
    QCOMPARE(placeholder(*m_first), dark);
    QVERIFY(WQ::resources::setTheme(QStringLiteral("light")));
    const QColor light = WQ::resources::color(WQ::keys::kUnit);
    QVERIFY(light != dark);
    edit(*m_second, Cell::Remark);
    QCOMPARE(placeholder(*m_second), light);
    const QString value = WQ::resources::color(WQ::keys::kValue).name();
    QVERIFY(m_second->line()->styleSheet().contains(QStringLiteral(" color: ") + value));
    QCOMPARE(editorCount(), 1);
}

void tst_SharedEditor::aStyleSheetOfTheWindowBeforeLeavesNoTrace()
{
    const QImage plain = lookOf(*m_second, Cell::Least);
    m_first->host.setStyleSheet(QStringLiteral("* { font-size: 30px; color: red; } QLineEdit { border: 3px solid red;"
                                               " padding: 5px; background: yellow; min-height: 60px; }"));
    QCOMPARE(lookOf(*m_first, Cell::Least), plain);
    QCOMPARE(lookOf(*m_second, Cell::Least), plain);
    m_first->host.setStyleSheet(QString());
    QCOMPARE(lookOf(*m_first, Cell::Least), plain);
    QCOMPARE(editorCount(), 1);
}

void tst_SharedEditor::accessibilityFindsTheEditorInItsTable()
{
    visit(*m_first, Cell::Least);
    QAccessibleInterface* const before = QAccessible::queryAccessibleInterface(editorOf(*m_first));
    QVERIFY(before);
    QCOMPARE(before->window(), m_first->host.windowHandle());
    edit(*m_second, Cell::Span);
    QAccessibleInterface* const line = QAccessible::queryAccessibleInterface(m_second->line());
    QVERIFY(line && line->isValid());
    QCOMPARE(line->role(), QAccessible::EditableText);
    QCOMPARE(line->text(QAccessible::Name), QStringLiteral("单笔量区间"));
    QVERIFY(line->state().focused);
    QCOMPARE(line->window(), m_second->host.windowHandle());
    QVERIFY(m_second->table->isAncestorOf(qobject_cast<QWidget*>(line->parent()->object())));
}

void tst_SharedEditor::tabStaysInTheTableThatEdits()
{
    visit(*m_first, Cell::Least);
    edit(*m_second, Cell::Least);
    m_second->press(Qt::Key_Tab);
    QVERIFY(m_second->isEditing(Cell::Swing));
    m_second->press(Qt::Key_Backtab);
    QVERIFY(m_second->isEditing(Cell::Least));
    edit(*m_second, Cell::Text);
    m_second->press(Qt::Key_Tab);
    QVERIFY(m_second->after->hasFocus());
    m_second->press(Qt::Key_Backtab);
    QVERIFY(m_second->isEditing(Cell::Text));
}

QTEST_MAIN(tst_SharedEditor)
#include "tst_SharedEditor.moc"
