#include "TableFixture.h"

#include "reference/toolkit/Resources.h"

#include <WQ/CScrollArea.h>

#include <QAbstractItemModelTester>

using namespace table_fixture;

class tst_CMultiParamsTableRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void visibleSet();
    void realHeightIsExactAtOnce();
    void aFreeHeightInAnAreaFollowsTheRows();
    void aFixedHeightStaysAsItsOwnerWants();
    void footerCountsWhileItIsVisible();
    void filterIsEnabledWhileCollapsedAndEnabled();
    void theLeastSizeIsQtsOwnUnderAnyStyleSheet();
    void scaleComesFromTheOwnerAlone();
    void withoutFontScaleTheTableStaysAtScaleOne();
    void modelStaysSoundUnderTheView();
    void hostsColumnWidthSticks();
    void labelColumnTakesTheWidestLabel();
    void partsUseTheRoomThatTheOthersLeave();
    void elidedTextIsTheTooltip();
    void wholeRowFitsIntoADialogOf220Pixels();
    void rowStandsWhereQtLooksForIt();
    void currentRowStaysWithItsCell();
};

void tst_CMultiParamsTableRows::cleanup()
{
    WQ::resources::setScale(1.0);
    WQ::resources::setTheme(QStringLiteral("dark"));
    qApp->setStyleSheet(QString());
}

void tst_CMultiParamsTableRows::visibleSet()
{
    Table table;
    table.addVisibleItemSet(kInt);
    table.addVisibleItemSet(kNoCell);
    QCOMPARE(table.getVisibleItemIdSet(), (QSet<int>{kInt, kNoCell}));
    QCOMPARE(table.model()->rowCount(), 1);
    table.removeVisbleItemSet(kInt);
    QCOMPARE(table.model()->rowCount(), 0);
    table.setItemHidden(kLine, true);
    table.showAllItems();
    QVERIFY(table.getVisibleItemIdSet().isEmpty());
    QCOMPARE(table.model()->rowCount(), kCells - 1);
    table.setVisibleItemSet({kInt});
    table.setExpand(true);
    QCOMPARE(table.model()->rowCount(), kCells - 1);
    table.setExpand(false);
    QCOMPARE(table.model()->rowCount(), 1);
    table.clearVisibleItem();
    QVERIFY(table.getVisibleItemIdSet().isEmpty());
    QCOMPARE(table.model()->rowCount(), kCells - 1);
}

void tst_CMultiParamsTableRows::realHeightIsExactAtOnce()
{
    Table table;
    QCOMPARE(table.realHeight(), kCells * 26 + 20);
    table.setItemHidden(kLine, true);
    table.setItemHidden(kText, true);
    QCOMPARE(table.realHeight(), (kCells - 2) * 26 + 20);
    showAtItsHeight(table, 240);
    table.setVisibleItemSet({kInt, kLine});
    QCOMPARE(table.realHeight(), 26 + 20);
    table.setExpand(true);
    QCOMPARE(table.realHeight(), (kCells - 2) * 26 + 20);
}

void tst_CMultiParamsTableRows::footerCountsWhileItIsVisible()
{
    Table table;
    table.setCustomWidgetVisible(false);
    QCOMPARE(table.realHeight(), kCells * 26);
    QVERIFY(inner(table).footerRect().isEmpty());
    table.setCustomWidgetVisible(true);
    QCOMPARE(table.realHeight(), kCells * 26 + 20);
    showAtItsHeight(table, 240);
    QCOMPARE(inner(table).footerRect(), QRect(0, kCells * 26, 240, 20));
}

void tst_CMultiParamsTableRows::filterIsEnabledWhileCollapsedAndEnabled()
{
    Table table;
    QVERIFY(inner(table).isFilterEnabled());
    table.setExpand(true);
    QVERIFY(!inner(table).isFilterEnabled());
    table.setExpand(false);
    table.setAllItemEnable(false);
    QVERIFY(!inner(table).isFilterEnabled());
    table.setAllItemEnable(true);
    table.setCustomWidgetVisible(false);
    QVERIFY(!inner(table).isFilterEnabled());
}

void tst_CMultiParamsTableRows::theLeastSizeIsQtsOwnUnderAnyStyleSheet()
{
    Table table;
    table.show();
    const QString sheet = QStringLiteral("QScrollBar:vertical { width: 77px } QScrollBar:horizontal { height: 55px }");
    for (const QString& each : {QString(), sheet, QString()}) {
        qApp->setStyleSheet(each);
        QCOMPARE(table.minimumSizeHint(), table.QTableView::minimumSizeHint());
    }
}

void tst_CMultiParamsTableRows::scaleComesFromTheOwnerAlone()
{
    Table table;
    WQ::resources::setScale(1.5);
    QCOMPARE(table.realHeight(), kCells * 26 + 20);
    table.scaleChanged();
    QCOMPARE(table.realHeight(), kCells * 39 + 30);
    QCOMPARE(table.rowHeight(0), 39);
    const Table later;
    QCOMPARE(later.realHeight(), kCells * 39 + 30);
}

void tst_CMultiParamsTableRows::withoutFontScaleTheTableStaysAtScaleOne()
{
    WQ::resources::setScale(2.0);
    Table fixed(false);
    fixed.scaleChanged();
    QCOMPARE(fixed.realHeight(), kCells * 26 + 20);
    Table switched;
    QCOMPARE(switched.realHeight(), kCells * 52 + 40);
    switched.setFontScale(false);
    QCOMPARE(switched.realHeight(), kCells * 26 + 20);
    switched.setFontScale(true);
    QCOMPARE(switched.realHeight(), kCells * 52 + 40);
}

void tst_CMultiParamsTableRows::modelStaysSoundUnderTheView()
{
    Table table;
    const QAbstractItemModelTester tester(table.model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    showAtItsHeight(table, 240);
    for (int round = 0; round < 40; ++round) {
        for (int id = 1; id <= kCells; ++id)
            table.setItemHidden(id, (round * id) % 3 == 0);
        table.setVisibleItemSet(round % 4 == 0 ? QSet<int>{kInt, kLine} : QSet<int>());
        table.setItemInt(kInt, 100 + round);
        table.setFixedHeight(table.realHeight());
        QCoreApplication::processEvents();
        QCOMPARE(table.model()->rowCount() * 26 + 20, table.realHeight());
    }
}

void tst_CMultiParamsTableRows::hostsColumnWidthSticks()
{
    Table table;
    table.setColumnWidth(0, 120);
    showAtItsHeight(table, 240);
    table.setItemName(kInt, QStringLiteral("一个比其他标签都长得多的标签"));
    QCoreApplication::processEvents();
    QCOMPARE(table.columnWidth(0), 120);
    WQ::resources::setScale(1.5);
    table.scaleChanged();
    QCOMPARE(table.columnWidth(0), 120);
    table.setColumnWidth(0, 155);
    QCOMPARE(table.columnWidth(0), 155);
    QCOMPARE(table.columnWidth(1), 240 - 155);
}

void tst_CMultiParamsTableRows::labelColumnTakesTheWidestLabel()
{
    Table table;
    showAtItsHeight(table, 240);
    QCOMPARE(table.columnWidth(0), 10 + labelWidth(table, kText));
    QCOMPARE(table.columnWidth(0) + table.columnWidth(1), 240);
    const int before = table.columnWidth(0);
    table.setItemName(kInt, QStringLiteral("一个更长的标签文字"));
    QVERIFY(table.columnWidth(0) > before);
    QCOMPARE(table.columnWidth(0), 10 + labelWidth(table, kInt));
}

void tst_CMultiParamsTableRows::partsUseTheRoomThatTheOthersLeave()
{
    WQ::CMultiParamsTable table(nullptr, true);
    table.addLineEdit(1, QStringLiteral("量"), QStringLiteral("一二三四五六七八九十一二三"), false, QString());
    table.addLineEdit(2, QStringLiteral("一二三四五六七八九十一二三"), QStringLiteral("量"), false, QString());
    table.addLineEdit(3, QStringLiteral("一二三四五六七八九十一二三"), QStringLiteral("一二三四五六七八九十一二三"),
                      false, QString());
    showAtItsHeight(table, 240);
    table.setColumnWidth(0, 80);
    const auto layout = [&table](int id) { return inner(table).layoutOf(*inner(table).model().cell(id)); };
    QVERIFY2(!layout(1).elided, "a long value takes what a short label leaves");
    QVERIFY2(!layout(2).elided, "a long label takes what a short value leaves");
    QVERIFY(layout(3).elided);
    QCOMPARE(layout(3).label.right() + 1, 80);
    QCOMPARE(layout(3).value.right() + 1, 230);
}

void tst_CMultiParamsTableRows::elidedTextIsTheTooltip()
{
    WQ::CMultiParamsTable table(nullptr, true);
    const QString text = QStringLiteral("一二三四五六七八九十一二三四五六七八九十");
    table.addLineEdit(1, QStringLiteral("投资备注"), text, false, QString());
    table.addLineEdit(2, QStringLiteral("投资备注"), QStringLiteral("短"), false, QString());
    showAtItsHeight(table, 240);
    QCOMPARE(table.model()->index(0, 1).data(Qt::ToolTipRole).toString(), text);
    QVERIFY(!table.model()->index(1, 1).data(Qt::ToolTipRole).isValid());
}

void tst_CMultiParamsTableRows::wholeRowFitsIntoADialogOf220Pixels()
{
    Table table(false);
    showAtItsHeight(table, 220);
    for (int id = 1; id <= kCells; ++id)
        QVERIFY2(!inner(table).layoutOf(*inner(table).model().cell(id)).elided, qPrintable(table.itemText(id)));
}

void tst_CMultiParamsTableRows::rowStandsWhereQtLooksForIt()
{
    Table table;
    showAtItsHeight(table, 240);
    table.setItemHidden(kUnits, true);
    const QRect row = inner(table).rowRect(*inner(table).model().cell(kInt));
    QCOMPARE(row, QRect(0, 2 * 26, 240, 26));
    QCOMPARE(table.rowViewportPosition(2), 52);
    QVERIFY(row.contains(table.visualRect(table.model()->index(2, 1))));
    QCOMPARE(table.indexAt(QPoint(200, 60)).row(), 2);
    QCOMPARE(inner(table).cellAt(QPoint(200, 60))->id(), kInt);
    QVERIFY(!inner(table).cellAt(QPoint(200, 26 * kCells + 5)));
    QVERIFY(inner(table).rowRect(*inner(table).model().cell(kUnits)).isEmpty());
}

void tst_CMultiParamsTableRows::currentRowStaysWithItsCell()
{
    Table table;
    showAtItsHeight(table, 240);
    WQ::CMultiParamsTablePrivate& inside = *WQ::CMultiParamsTablePrivate::of(&table);
    inside.setCurrentCell(*inside.model().cell(kInt));
    table.setItemHidden(kCombo, true);
    table.setItemHidden(kUnits, true);
    QCoreApplication::processEvents();
    QVERIFY(inside.currentCell());
    QCOMPARE(inside.currentCell()->id(), kInt);
    QCOMPARE(table.currentIndex().row(), 1);
}

void tst_CMultiParamsTableRows::aFreeHeightInAnAreaFollowsTheRows()
{
    WQ::CScrollArea area(nullptr);
    auto* table = new WQ::CMultiParamsTable(nullptr, true);
    area.setWidget(table);
    fill(*table);
    area.show();
    QTRY_COMPARE(table->height(), kCells * 26 + 20);
    table->setItemHidden(kInt, true);
    QTRY_COMPARE(table->height(), (kCells - 1) * 26 + 20);
}

void tst_CMultiParamsTableRows::aFixedHeightStaysAsItsOwnerWants()
{
    WQ::CScrollArea area(nullptr);
    auto* table = new WQ::CMultiParamsTable(nullptr, true);
    area.setWidget(table);
    fill(*table);
    table->setFixedHeight(60);
    area.show();
    QCoreApplication::processEvents();
    table->setItemHidden(kInt, true);
    QTRY_COMPARE(table->model()->rowCount(), kCells - 1);
    QCOMPARE(table->height(), 60);
}

QTEST_MAIN(tst_CMultiParamsTableRows)
#include "tst_CMultiParamsTableRows.moc"
