#include "MenuPanel.h"

#include "reference/toolkit/ThemeKeys.h"

#include <QShortcut>

using Cell = EditorPanel;

namespace {

const QString kCopyValue = QStringLiteral("复制数值");
const QString kCopyCell = QStringLiteral("复制名称和数值");
const QString kCopyAll = QStringLiteral("复制全部");
const QString kPaste = QStringLiteral("粘贴");
const QString kInitial = QStringLiteral("恢复初始值");
const QString kUnits = QStringLiteral("切换单位");

/// Every entry as "text|key|enabled", separators left out.
QStringList entries(const QMenu& menu)
{
    QStringList lines;
    for (const QAction* action : menu.actions()) {
        if (!action->isSeparator())
            lines << QStringLiteral("%1|%2|%3")
                         .arg(action->text(), action->shortcut().toString(QKeySequence::PortableText),
                              action->isEnabled() ? QStringLiteral("yes") : QStringLiteral("no"));
    }
    return lines;
}

} // namespace

class tst_CellMenu : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void theMenuNamesItsEntriesAndTheirKeys();
    void whatDoesNotApplyIsDisabled();
    void aTableThatIsDisabledCanOnlyBeCopied();
    void aTableWhoseWidgetIsDisabledCanBeCopiedByMouse();
    void theKeyboardAsksForTheMenu_data();
    void theKeyboardAsksForTheMenu();
    void outsideTheRowsThereIsNoMenu();
    void theMenuCopiesTheValue();
    void theMenuCopiesLabelAndValue();
    void allCellsAreCopiedAsColumns();
    void onlyCellsThatAreShownAreCopied();
    void tabsAndLineBreaksInsideATextBecomeBlanks();
    void theValueOfEveryKindIsCopied_data();
    void theValueOfEveryKindIsCopied();
    void aDurationIsCopiedAsItsLength();
    void theKeysCopyWithoutTheMenu();
    void aShortcutOfTheHostDoesNotTakeTheKeyOfARow();
    void aShortcutOfTheHostKeepsItsKeyElsewhere();
    void theUnitsAreEntriesAndTheCurrentOneIsTicked();
    void aUnitIsSwitchedFromTheMenu();
    void aCellThatHasBeenDisabledMeanwhileKeepsItsUnit();
    void theMenuGoesWithTheTable();
    void theMenuClosesWhenTheTableIsHidden();
    void theMenuStaysOpenOverAnEditor();
    void theRowOfTheMenuStaysMarked();
    void theArrowOfTheUnitsGrowsWithTheScale();
    void anEntryIsAsHighAsThatOfAList_data();
    void anEntryIsAsHighAsThatOfAList();

private:
    std::unique_ptr<MenuPanel> m_panel;
};

void tst_CellMenu::init()
{
    m_panel = std::make_unique<MenuPanel>();
    QVERIFY(m_panel->open());
    MenuPanel::setClipboard(QString());
}

void tst_CellMenu::cleanup()
{
    m_panel.reset();
}

void tst_CellMenu::theMenuNamesItsEntriesAndTheirKeys()
{
    MenuPanel::setClipboard(QStringLiteral("1"));
    m_panel->table->setItemDouble(Cell::Price, 2);
    const QStringList expected{
        kCopyValue + QStringLiteral("|Ctrl+C|yes"),       kCopyCell + QStringLiteral("|Ctrl+Shift+C|yes"),
        kCopyAll + QStringLiteral("|Ctrl+Shift+A|yes"),   kPaste + QStringLiteral("|Ctrl+V|yes"),
        kInitial + QStringLiteral("|Ctrl+Backspace|yes"), kUnits + QStringLiteral("||yes")};
    WQ::CellMenu* menu = m_panel->menuOf(Cell::Price);
    QVERIFY(menu);
    QCOMPARE(entries(*menu), expected);
}

void tst_CellMenu::whatDoesNotApplyIsDisabled()
{
    WQ::CellMenu* menu = m_panel->menuOf(Cell::Least);
    QVERIFY(menu);
    // Nothing on the clipboard, the initial value, one unit.
    QVERIFY(!MenuPanel::entry(menu, kPaste)->isEnabled());
    QVERIFY(!MenuPanel::entry(menu, kInitial)->isEnabled());
    QVERIFY(!MenuPanel::entry(menu, kUnits)->isEnabled());
    menu->close();
    menu = m_panel->menuOf(Cell::Combo);
    QVERIFY(menu);
    QVERIFY(!MenuPanel::entry(menu, kUnits)->isEnabled());
}

void tst_CellMenu::aTableThatIsDisabledCanOnlyBeCopied()
{
    MenuPanel::setClipboard(QStringLiteral("7"));
    m_panel->table->setItemDouble(Cell::Price, 2);
    m_panel->focusRow(Cell::Price);
    m_panel->table->setAllItemEnable(false);
    WQ::CellMenu* menu = m_panel->menuOf(Cell::Price);
    QVERIFY(menu);
    for (const QString& text : {kCopyValue, kCopyCell, kCopyAll})
        QVERIFY(MenuPanel::entry(menu, text)->isEnabled());
    for (const QString& text : {kPaste, kInitial, kUnits})
        QVERIFY(!MenuPanel::entry(menu, text)->isEnabled());
    menu->close();
    m_panel->comeBack();
    m_panel->press(Qt::Key_V, Qt::ControlModifier);
    m_panel->press(Qt::Key_Backspace, Qt::ControlModifier);
    QCOMPARE(m_panel->table->itemText(Cell::Price), QStringLiteral("2.00"));
    m_panel->press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(MenuPanel::clipboard(), QStringLiteral("2.00"));
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_CellMenu::aTableWhoseWidgetIsDisabledCanBeCopiedByMouse()
{
    MenuPanel::setClipboard(QStringLiteral("7"));
    m_panel->host.setEnabled(false);
    WQ::CellMenu* menu = m_panel->menuOf(Cell::Least);
    QVERIFY(menu);
    QVERIFY(!MenuPanel::entry(menu, kPaste)->isEnabled());
    m_panel->choose(kCopyValue);
    QCOMPARE(MenuPanel::clipboard(), QStringLiteral("10000"));
}

void tst_CellMenu::theKeyboardAsksForTheMenu_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("Menu") << int(Qt::Key_Menu) << int(Qt::NoModifier);
    QTest::newRow("Shift+F10") << int(Qt::Key_F10) << int(Qt::ShiftModifier);
}

void tst_CellMenu::theKeyboardAsksForTheMenu()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    m_panel->focusRow(Cell::Least);
    m_panel->press(Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    WQ::CellMenu* menu = m_panel->menu();
    QVERIFY(menu);
    const QRect row = m_panel->inner().rowRect(m_panel->cell(Cell::Least));
    QCOMPARE(menu->pos().y(), m_panel->table->viewport()->mapToGlobal(row.bottomLeft()).y() + 1);
    // The first entry is not chosen before the person goes to it.
    m_panel->press(Qt::Key_Down);
    m_panel->press(Qt::Key_Return);
    m_panel->comeBack();
    QCOMPARE(MenuPanel::clipboard(), QStringLiteral("10000"));
    QVERIFY(m_panel->table->hasFocus());
}

void tst_CellMenu::outsideTheRowsThereIsNoMenu()
{
    m_panel->rightClick(m_panel->inner().footerRect());
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_CellMenu::theMenuCopiesTheValue()
{
    QVERIFY(m_panel->menuOf(Cell::Least));
    m_panel->choose(kCopyValue);
    QCOMPARE(MenuPanel::clipboard(), QStringLiteral("10000"));
    QVERIFY(!m_panel->menu());
}

void tst_CellMenu::theMenuCopiesLabelAndValue()
{
    QVERIFY(m_panel->menuOf(Cell::Least));
    m_panel->choose(kCopyCell);
    QCOMPARE(MenuPanel::clipboard(), QStringLiteral("单笔最小量\t10000"));
}

void tst_CellMenu::allCellsAreCopiedAsColumns()
{
    QVERIFY(m_panel->menuOf(Cell::Combo));
    m_panel->choose(kCopyAll);
    QCOMPARE(MenuPanel::clipboard(),
             QStringLiteral("报价方式\t卖①价\t\n单笔超价\t0.50\t%\n单笔最小量\t10000\t股\n波动区间\t3.00\t%\n"
                            "单笔量区间\t1 - 1000000\t股\n有效时间\t09:30:00-15:00:00\t\n投资备注\t\t\n"
                            "指定还券\t\t\n合约\t\t"));
}

void tst_CellMenu::onlyCellsThatAreShownAreCopied()
{
    m_panel->table->setVisibleItemSet({Cell::Period, Cell::Least, Cell::Price});
    m_panel->table->setItemHidden(Cell::Least, true);
    m_panel->focusRow(Cell::Price);
    m_panel->press(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(MenuPanel::clipboard(), QStringLiteral("单笔超价\t0.50\t%\n有效时间\t09:30:00-15:00:00\t"));
}

void tst_CellMenu::tabsAndLineBreaksInsideATextBecomeBlanks()
{
    m_panel->table->setItemName(Cell::Remark, QStringLiteral("投资\n备注"));
    m_panel->table->setItemText(Cell::Remark, QStringLiteral("a\tb\r\nc"));
    m_panel->focusRow(Cell::Remark);
    m_panel->press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(MenuPanel::clipboard(), QStringLiteral("投资 备注\ta b  c"));
    m_panel->press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(MenuPanel::clipboard(), QStringLiteral("a\tb\r\nc"));
}

void tst_CellMenu::theValueOfEveryKindIsCopied_data()
{
    QTest::addColumn<int>("cell");
    QTest::addColumn<QString>("text");
    QTest::newRow("combo") << int(Cell::Combo) << QStringLiteral("卖①价");
    QTest::newRow("number with units") << int(Cell::Price) << QStringLiteral("0.50");
    QTest::newRow("whole number") << int(Cell::Least) << QStringLiteral("10000");
    QTest::newRow("number with a check") << int(Cell::Swing) << QStringLiteral("3.00");
    QTest::newRow("range") << int(Cell::Span) << QStringLiteral("1 - 1000000");
    QTest::newRow("period") << int(Cell::Period) << QStringLiteral("09:30:00-15:00:00");
    QTest::newRow("line") << int(Cell::Remark) << QStringLiteral("季度调仓");
    QTest::newRow("text") << int(Cell::Text) << QStringLiteral("007");
}

void tst_CellMenu::theValueOfEveryKindIsCopied()
{
    QFETCH(int, cell);
    QFETCH(QString, text);
    m_panel->table->setItemText(Cell::Remark, QStringLiteral("季度调仓"));
    m_panel->table->setItemText(Cell::Text, QStringLiteral("007"));
    m_panel->copyWithKeys(cell);
    QCOMPARE(MenuPanel::clipboard(), text);
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_CellMenu::aDurationIsCopiedAsItsLength()
{
    m_panel->focusRow(Cell::Period);
    m_panel->press(Qt::Key_Down, Qt::AltModifier);
    m_panel->press(Qt::Key_Return);
    m_panel->press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(MenuPanel::clipboard(), QStringLiteral("05:30:00"));
}

void tst_CellMenu::theKeysCopyWithoutTheMenu()
{
    m_panel->copyWithKeys(Cell::Least);
    QVERIFY(!m_panel->menu());
    QVERIFY(!m_panel->line());
    QCOMPARE(MenuPanel::clipboard(), QStringLiteral("10000"));
}

void tst_CellMenu::aShortcutOfTheHostDoesNotTakeTheKeyOfARow()
{
    QShortcut shortcut(QKeySequence(Qt::CTRL + Qt::Key_C), &m_panel->host);
    QSignalSpy taken(&shortcut, &QShortcut::activated);
    m_panel->focusRow(Cell::Least);
    QTest::keyClick(m_panel->host.windowHandle(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(taken.count(), 0);
    QCOMPARE(MenuPanel::clipboard(), QStringLiteral("10000"));
}

void tst_CellMenu::aShortcutOfTheHostKeepsItsKeyElsewhere()
{
    QShortcut shortcut(QKeySequence(Qt::CTRL + Qt::Key_C), &m_panel->host);
    QSignalSpy taken(&shortcut, &QShortcut::activated);
    m_panel->focusRow(Cell::Least);
    m_panel->after->setFocus();
    QTest::keyClick(m_panel->host.windowHandle(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(taken.count(), 1);
    QCOMPARE(MenuPanel::clipboard(), QString());
}

void tst_CellMenu::theUnitsAreEntriesAndTheCurrentOneIsTicked()
{
    m_panel->table->setItemUnit(Cell::Price, QStringLiteral("元"));
    WQ::CellMenu* menu = m_panel->menuOf(Cell::Price);
    QVERIFY(menu);
    const QList<QAction*> units = MenuPanel::entry(menu, kUnits)->menu()->actions();
    QCOMPARE(units.size(), 2);
    QCOMPARE(units.at(0)->text(), QStringLiteral("%"));
    QVERIFY(!units.at(0)->isChecked());
    QCOMPARE(units.at(1)->text(), QStringLiteral("元"));
    QVERIFY(units.at(1)->isChecked());
}

void tst_CellMenu::aUnitIsSwitchedFromTheMenu()
{
    WQ::CellMenu* menu = m_panel->menuOf(Cell::Price);
    QVERIFY(menu);
    QAction* units = MenuPanel::entry(menu, kUnits);
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(units).center());
    QTRY_VERIFY(units->menu()->isVisible());
    QTest::mouseClick(units->menu(), Qt::LeftButton, Qt::NoModifier,
                      units->menu()->actionGeometry(units->menu()->actions().at(1)).center());
    QCoreApplication::processEvents();
    QCOMPARE(m_panel->table->itemUnit(Cell::Price), QStringLiteral("元"));
    QCOMPARE(m_panel->host.take(), QStringList{QStringLiteral("118 cell=2 b=0 text=元")});
}

void tst_CellMenu::aCellThatHasBeenDisabledMeanwhileKeepsItsUnit()
{
    WQ::CellMenu* menu = m_panel->menuOf(Cell::Price);
    QVERIFY(menu);
    QAction* money = MenuPanel::entry(menu, kUnits)->menu()->actions().at(1);
    m_panel->table->setItemEditable(Cell::Price, false);
    money->trigger();
    QCoreApplication::processEvents();
    QCOMPARE(m_panel->table->itemUnit(Cell::Price), QStringLiteral("%"));
    QCOMPARE(m_panel->host.take(), QStringList());
}

void tst_CellMenu::theMenuGoesWithTheTable()
{
    MenuPanel::setClipboard(QStringLiteral("kept"));
    const QPointer<WQ::CellMenu> menu = m_panel->menuOf(Cell::Price);
    QVERIFY(menu);
    MenuPanel::entry(menu, kCopyValue)->trigger();
    delete m_panel->table;
    QVERIFY(!menu);
    QCoreApplication::processEvents();
    QCOMPARE(MenuPanel::clipboard(), QStringLiteral("kept"));
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_CellMenu::theMenuClosesWhenTheTableIsHidden()
{
    QVERIFY(m_panel->menuOf(Cell::Price));
    m_panel->table->hide();
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_CellMenu::theMenuStaysOpenOverAnEditor()
{
    m_panel->clickValue(Cell::Least);
    m_panel->type(QStringLiteral("300"));
    QVERIFY(m_panel->menuOf(Cell::Least));
    m_panel->choose(kCopyValue);
    QCOMPARE(MenuPanel::clipboard(), QStringLiteral("10000"));
    QVERIFY(m_panel->isEditing(Cell::Least));
    QCOMPARE(m_panel->line()->text(), QStringLiteral("300"));
}

void tst_CellMenu::theRowOfTheMenuStaysMarked()
{
    const WQ::CellItem& price = m_panel->cell(Cell::Price);
    QVERIFY(m_panel->menuOf(Cell::Price));
    QVERIFY(m_panel->inner().rowState(price).focus);
    QVERIFY(!m_panel->inner().rowState(m_panel->cell(Cell::Least)).focus);
    m_panel->menu()->close();
    m_panel->comeBack();
    m_panel->before->setFocus();
    QVERIFY(!m_panel->inner().rowState(price).focus);
}

namespace {

/// How high what is painted at the right end of an entry stands.
int paintedHeight(WQ::CellMenu& menu, const QRect& entry)
{
    const QImage picture = menu.grab().toImage();
    QRect painted;
    for (int y = entry.top() + 1; y < entry.bottom(); ++y)
        for (int x = entry.right() - entry.height(); x < entry.right() - 1; ++x)
            if (picture.pixelColor(x, y) != WQ::resources::color(WQ::keys::kRow))
                painted |= QRect(x, y, 1, 1);
    return painted.height();
}

int arrowHeight(const MenuPanel& panel)
{
    WQ::CellMenu* menu = panel.menuOf(Cell::Price);
    const int height = menu ? paintedHeight(*menu, menu->actionGeometry(MenuPanel::entry(menu, kUnits))) : 0;
    if (menu)
        menu->close();
    return height;
}

} // namespace

void tst_CellMenu::theArrowOfTheUnitsGrowsWithTheScale()
{
    const int small = arrowHeight(*m_panel);
    QVERIFY(small >= 5);
    WQ::resources::setScale(2);
    m_panel->table->scaleChanged();
    const int large = arrowHeight(*m_panel);
    WQ::resources::setScale(1);
    QVERIFY2(large >= 2 * small - 2 && large <= 2 * small + 2, qPrintable(QString::number(large)));
}

void tst_CellMenu::anEntryIsAsHighAsThatOfAList_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("height");
    QTest::newRow("as it is") << 1.0 << 24;
    QTest::newRow("twice") << 2.0 << 48;
}

void tst_CellMenu::anEntryIsAsHighAsThatOfAList()
{
    QFETCH(double, scale);
    QFETCH(int, height);
    WQ::resources::setScale(scale);
    m_panel->table->scaleChanged();
    WQ::CellMenu* menu = m_panel->menuOf(Cell::Price);
    QVERIFY(menu);
    const int found = menu->actionGeometry(MenuPanel::entry(menu, kPaste)).height();
    menu->close();
    WQ::resources::setScale(1);
    QVERIFY2(qAbs(found - height) <= 1, qPrintable(QString::number(found)));
}

QTEST_MAIN(tst_CellMenu)
#include "tst_CellMenu.moc"
