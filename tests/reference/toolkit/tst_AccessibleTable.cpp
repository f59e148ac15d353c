#include "TableFixture.h"

#include <QAccessible>
#include <QApplication>

using namespace table_fixture;

namespace {

QAccessibleInterface* treeOf(WQ::CMultiParamsTable& table)
{
    return QAccessible::queryAccessibleInterface(&table);
}

/// The child that stands for the value of a cell.
QAccessibleInterface* valueOf(WQ::CMultiParamsTable& table, int id)
{
    return treeOf(table)->child(2 * inner(table).model().rowOf(id) + 1);
}

/// "editable popup collapsed": what its state says of a child, in the order of the words below.
QString words(const QAccessible::State& state)
{
    struct Word
    {
        quint64 holds;
        const char* word;
    };
    const Word all[] = {{state.disabled, "disabled"},   {state.editable, "editable"}, {state.readOnly, "readonly"},
                        {state.focusable, "focusable"}, {state.focused, "focused"},   {state.hasPopup, "popup"},
                        {state.collapsed, "collapsed"}, {state.expanded, "expanded"}, {state.checkable, "checkable"},
                        {state.checked, "checked"},     {state.invalid, "invalid"}};
    QStringList said;
    for (const Word& each : all)
        if (each.holds)
            said << QLatin1String(each.word);
    return said.join(QLatin1Char(' '));
}

/// What was announced, as "event child value".
QStringList& announced()
{
    static QStringList lines;
    return lines;
}

void noteAnnouncement(QAccessibleEvent* event)
{
    const auto type = event->type();
    if (type != QAccessible::Focus && type != QAccessible::ValueChanged)
        return;
    QString line = QStringLiteral("%1 %2")
                       .arg(type == QAccessible::Focus ? QStringLiteral("focus") : QStringLiteral("value"))
                       .arg(event->child());
    if (type == QAccessible::ValueChanged)
        line += QLatin1Char(' ') + static_cast<QAccessibleValueChangeEvent*>(event)->value().toString();
    announced() << line;
}

bool& isListening()
{
    static bool listening = false;
    return listening;
}

/// While one stands, somebody listens.
struct Listening
{
    Listening()
    {
        isListening() = true;
        announced().clear();
    }

    ~Listening()
    {
        isListening() = false;
    }

    Listening(const Listening&) = delete;
    Listening& operator=(const Listening&) = delete;
};

bool open(WQ::CMultiParamsTable& table)
{
    table.resize(240, 400);
    table.show();
    if (!QTest::qWaitForWindowActive(&table))
        return false;
    table.setFocus();
    return table.hasFocus();
}

QString nameAndValue(const QAccessibleInterface* cell)
{
    return cell->text(QAccessible::Name) + QLatin1Char('=') + cell->text(QAccessible::Value);
}

} // namespace

// Without a screen Qt has nobody who listens, and no public way to say that somebody does: these stand before its own.

bool QAccessible::isActive()
{
    return isListening();
}

void QAccessible::updateAccessibility(QAccessibleEvent* event)
{
    if (isListening())
        noteAnnouncement(event);
}

class tst_AccessibleTable : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aValueCellHasItsLabelAsNameAndItsTextAsValue();
    void theTreeHoldsTheShownRows();
    void aCellStaysWithItsInterfaceWhenRowsGo();
    void statesFollowTheCells();
    void everyKindSaysWhatItIsAndHolds_data();
    void everyKindSaysWhatItIsAndHolds();
    void aListIsSaidToBeOpen();
    void theDescriptionIsTheTooltip();
    void focusIsTheCurrentRow();
    void theFooterIsAButton();
    void theFocusIsAnnounced();
    void valuesAreAnnouncedWhileTheTableIsSeen();
    void anOpenEditorHasTheNameOfItsCell();
    void anInterfaceOutlivesItsTable();
};

void tst_AccessibleTable::aValueCellHasItsLabelAsNameAndItsTextAsValue()
{
    WQ::CMultiParamsTable table(nullptr, true);
    fill(table);
    QAccessibleInterface* const tree = treeOf(table);
    QVERIFY(tree);
    QCOMPARE(tree->role(), QAccessible::Table);
    QCOMPARE(nameAndValue(tree->child(1)), QStringLiteral("报价方式=对手价"));
    QCOMPARE(nameAndValue(tree->child(3)), QStringLiteral("单笔超价=0.50 %"));
    QCOMPARE(nameAndValue(tree->child(7)), QStringLiteral("单笔最小量=10,000 股"));
    QCOMPARE(nameAndValue(tree->child(0)), QStringLiteral("报价方式="));
    QCOMPARE(tree->child(0)->role(), QAccessible::StaticText);
    table.setItemInt(kInt, 20000);
    QCOMPARE(nameAndValue(tree->child(7)), QStringLiteral("单笔最小量=20,000 股"));
}

void tst_AccessibleTable::theTreeHoldsTheShownRows()
{
    WQ::CMultiParamsTable table(nullptr, true);
    fill(table);
    QAccessibleInterface* const tree = treeOf(table);
    QCOMPARE(tree->childCount(), kCells * 2 + 1);
    table.setItemHidden(kCombo, true);
    QCOMPARE(tree->childCount(), (kCells - 1) * 2 + 1);
    table.setCustomWidgetVisible(false);
    QCOMPARE(tree->childCount(), (kCells - 1) * 2);
    table.setCustomWidgetVisible(true);
    QVERIFY(!tree->child(tree->childCount()));
    QVERIFY(!tree->child(-1));
    for (int i = 0; i < tree->childCount(); ++i) {
        QCOMPARE(tree->indexOfChild(tree->child(i)), i);
        QCOMPARE(tree->child(i)->parent(), tree);
    }
}

void tst_AccessibleTable::aCellStaysWithItsInterfaceWhenRowsGo()
{
    WQ::CMultiParamsTable table(nullptr, true);
    fill(table);
    QAccessibleInterface* const tree = treeOf(table);
    QAccessibleInterface* const units = tree->child(3);
    table.setItemHidden(kCombo, true);
    QCOMPARE(tree->child(1), units);
    QCOMPARE(units->text(QAccessible::Name), QStringLiteral("单笔超价"));
    table.setItemHidden(kUnits, true);
    QVERIFY(!units->isValid());
    QCOMPARE(units->text(QAccessible::Name), QString());
}

void tst_AccessibleTable::statesFollowTheCells()
{
    WQ::CMultiParamsTable table(nullptr, true);
    fill(table);
    QAccessibleInterface* const cell = treeOf(table)->child(7);
    QVERIFY(cell->state().editable);
    table.setItemEditable(kInt, false);
    QVERIFY(cell->state().readOnly);
    QVERIFY(!cell->state().disabled);
    table.setAllItemEnable(false);
    QVERIFY(cell->state().disabled);
}

void tst_AccessibleTable::everyKindSaysWhatItIsAndHolds_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("states");
    const QString typed = QStringLiteral("editable focusable");
    const QString listed = QStringLiteral("editable focusable popup collapsed");
    const auto row = [](const char* kind, int id, const QString& name, const QString& value, const QString& states) {
        QTest::newRow(kind) << id << name << value << states;
    };
    row("combo", kCombo, QStringLiteral("报价方式"), QStringLiteral("对手价"), listed);
    row("units", kUnits, QStringLiteral("单笔超价"), QStringLiteral("0.50 %"), listed);
    row("check", kCheck, QStringLiteral("波动区间"), QStringLiteral("3.00 %"),
        listed + QStringLiteral(" checkable checked"));
    row("number", kInt, QStringLiteral("单笔最小量"), QStringLiteral("10,000 股"), typed);
    row("range", kRange, QStringLiteral("单笔量区间"), QStringLiteral("1 - 1,000,000 股"), typed);
    row("period", kPeriod, QStringLiteral("有效时间"), QStringLiteral("09:30 – 15:00"), typed);
    row("line", kLine, QStringLiteral("投资备注"), QStringLiteral("季度调仓"), typed);
    row("text", kText, QStringLiteral("未还合约数量"), QStringLiteral("股"), typed);
}

void tst_AccessibleTable::everyKindSaysWhatItIsAndHolds()
{
    QFETCH(int, id);
    Table table;
    table.setCheckDouble(kCheck, true, 3, false);
    QAccessibleInterface* const cell = valueOf(table, id);
    QCOMPARE(cell->role(), QAccessible::Cell);
    QTEST(cell->text(QAccessible::Name), "name");
    QTEST(cell->text(QAccessible::Value), "value");
    QTEST(words(cell->state()), "states");
    table.setItemEditable(id, false);
    QVERIFY(cell->state().readOnly && !cell->state().editable && !cell->state().disabled);
    table.setAllItemEnable(false);
    QVERIFY(cell->state().disabled && !cell->state().focusable);
}

void tst_AccessibleTable::aListIsSaidToBeOpen()
{
    Table table;
    QVERIFY(open(table));
    table.setCurrentIndex(table.model()->index(0, 1));
    QTest::keyClick(&table, Qt::Key_Down, Qt::AltModifier);
    QVERIFY(valueOf(table, kCombo)->state().expanded);
    QVERIFY(!valueOf(table, kCombo)->state().collapsed);
    QVERIFY(valueOf(table, kUnits)->state().collapsed);
    QVERIFY(QApplication::activePopupWidget());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    QVERIFY(valueOf(table, kCombo)->state().collapsed);
}

void tst_AccessibleTable::theDescriptionIsTheTooltip()
{
    Table table;
    table.setItemInt(kInt, 1250);
    QCOMPARE(valueOf(table, kInt)->text(QAccessible::Description),
             QStringLiteral("100 – 1,000,000 股\n不是 100 的整数倍：1,200 或 1,300"));
    QCOMPARE(valueOf(table, kCombo)->text(QAccessible::Description), QString());
}

void tst_AccessibleTable::focusIsTheCurrentRow()
{
    WQ::CMultiParamsTable table(nullptr, true);
    fill(table);
    table.resize(240, 400);
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));
    QApplication::setActiveWindow(&table);
    table.setFocus();
    table.setCurrentIndex(table.model()->index(3, 1));
    QTRY_VERIFY(table.hasFocus());
    QAccessibleInterface* const focused = treeOf(table)->focusChild();
    QVERIFY(focused);
    QCOMPARE(focused->text(QAccessible::Name), QStringLiteral("单笔最小量"));
    QVERIFY(focused->state().focused);
    QVERIFY(!focused->rect().isEmpty());
    QCOMPARE(treeOf(table)->childAt(focused->rect().center().x(), focused->rect().center().y()), focused);
}

void tst_AccessibleTable::theFooterIsAButton()
{
    Table table;
    table.addAllItemSet(kInt);
    QVERIFY(open(table));
    QAccessibleInterface* const tree = treeOf(table);
    QAccessibleInterface* const footer = tree->child(tree->childCount() - 1);
    QVERIFY(footer);
    QCOMPARE(footer->role(), QAccessible::ButtonMenu);
    QCOMPARE(footer->text(QAccessible::Name), QStringLiteral("筛选"));
    QCOMPARE(words(footer->state()), QStringLiteral("focusable popup"));
    QCOMPARE(tree->childAt(footer->rect().center().x(), footer->rect().center().y()), footer);
    table.setCurrentIndex(table.model()->index(kCells - 1, 1));
    QTest::keyClick(&table, Qt::Key_Down);
    QCOMPARE(tree->focusChild(), footer);
    QCOMPARE(words(footer->state()), QStringLiteral("focusable focused popup"));
    QVERIFY(!valueOf(table, kText)->state().focused);
    table.setExpand(true);
    QCOMPARE(words(footer->state()), QStringLiteral("disabled popup"));
    table.setCustomWidgetVisible(false);
    QVERIFY(!footer->isValid());
    QCOMPARE(words(footer->state()), QStringLiteral("invalid"));
}

void tst_AccessibleTable::theFocusIsAnnounced()
{
    Table table;
    QVERIFY(open(table));
    table.setCurrentIndex(table.model()->index(kCells - 2, 1));
    const Listening listening;
    QTest::keyClick(&table, Qt::Key_Down);
    QVERIFY2(announced().contains(QStringLiteral("focus 15")), qPrintable(announced().join(QLatin1Char('|'))));
    announced().clear();
    QTest::keyClick(&table, Qt::Key_Down);
    QCOMPARE(announced(), QStringList{QStringLiteral("focus 16")});
}

void tst_AccessibleTable::valuesAreAnnouncedWhileTheTableIsSeen()
{
    Table table;
    const Listening listening;
    table.setItemInt(kInt, 20000);
    QCoreApplication::processEvents();
    QCOMPARE(announced(), QStringList());
    QVERIFY(open(table));
    QCoreApplication::processEvents();
    announced().clear();
    table.setItemInt(kInt, 30000);
    table.setItemUnit(kUnits, QStringLiteral("元"));
    QCoreApplication::processEvents();
    QVERIFY(announced().contains(QStringLiteral("value 7 30,000 股")));
    QVERIFY(announced().contains(QStringLiteral("value 3 0.500 元")));
}

void tst_AccessibleTable::anOpenEditorHasTheNameOfItsCell()
{
    Table table;
    QVERIFY(open(table));
    table.setCurrentIndex(table.model()->index(3, 1));
    QTest::keyClick(&table, Qt::Key_Return);
    QWidget* const line = QApplication::focusWidget();
    QVERIFY(line && line != &table);
    const QAccessibleInterface* const field = QAccessible::queryAccessibleInterface(line);
    QCOMPARE(field->role(), QAccessible::EditableText);
    QCOMPARE(nameAndValue(field), QStringLiteral("单笔最小量=10000"));
    QVERIFY(field->state().focused && field->state().editable);
}

void tst_AccessibleTable::anInterfaceOutlivesItsTable()
{
    auto* const table = new WQ::CMultiParamsTable(nullptr, true);
    fill(*table);
    QVERIFY(treeOf(*table)->child(1)->isValid());
    delete table;
    WQ::CMultiParamsTable other(nullptr, true);
    fill(other);
    QCOMPARE(nameAndValue(treeOf(other)->child(1)), QStringLiteral("报价方式=对手价"));
}

QTEST_MAIN(tst_AccessibleTable)
#include "tst_AccessibleTable.moc"
