#include "TableFixture.h"

#include <QAccessible>
#include <QApplication>

using namespace table_fixture;

namespace {

QAccessibleInterface* treeOf(WQ::CMultiParamsTable& table)
{
    return QAccessible::queryAccessibleInterface(&table);
}

QString nameAndValue(const QAccessibleInterface* cell)
{
    return cell->text(QAccessible::Name) + QLatin1Char('=') + cell->text(QAccessible::Value);
}

} // namespace

class tst_AccessibleTable : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aValueCellHasItsLabelAsNameAndItsTextAsValue();
    void theTreeHoldsTheShownRows();
    void aCellStaysWithItsInterfaceWhenRowsGo();
    void statesFollowTheCells();
    void focusIsTheCurrentRow();
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
    QCOMPARE(tree->childCount(), kCells * 2);
    table.setItemHidden(kCombo, true);
    QCOMPARE(tree->childCount(), (kCells - 1) * 2);
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
