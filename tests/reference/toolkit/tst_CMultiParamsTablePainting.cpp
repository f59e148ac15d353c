#include "TableFixture.h"

#include "reference/toolkit/Resources.h"

#include <WQ/CBaseWidget.h>

using namespace table_fixture;

class tst_CMultiParamsTablePainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void changesThatShowNothingPaintNothing();
    void batchPaintsOnce();
    void looksTheSameUnderAnyStyleSheet();
    void separatorIsOneDevicePixel_data();
    void separatorIsOneDevicePixel();
    void themeRepaints();
    void thePlaceOfWhatGoesIsPaintedOnce_data();
    void thePlaceOfWhatGoesIsPaintedOnce();
};

void tst_CMultiParamsTablePainting::cleanup()
{
    WQ::resources::setScale(1.0);
    WQ::resources::setTheme(QStringLiteral("dark"));
    qApp->setStyleSheet(QString());
}

void tst_CMultiParamsTablePainting::changesThatShowNothingPaintNothing()
{
    HostedTable host;
    QVERIFY(host.isShown);
    Table& table = host.table;
    EventCounter paints(table.viewport(), QEvent::Paint);
    EventCounter layouts(&table, QEvent::LayoutRequest);
    EventCounter resizes(&table, QEvent::Resize);
    table.setItemInt(kInt, 10000);
    table.setComboData(kCombo, 14);
    table.setItemUnit(kUnits, QStringLiteral("%"));
    table.resetCellRange(kUnits, -50, 50);
    table.setItemName(kInt, QStringLiteral("单笔最小量"));
    table.setItemText(kText, QStringLiteral("hidden"));
    table.setItemHidden(kUnits, true);
    table.setItemHidden(kUnits, false);
    table.setVisibleItemSet({});
    table.setExpand(false);
    table.setAllItemEnable(true);
    table.setFixedHeight(table.realHeight());
    // What follows is painted; had anything before been, it would be in the same paint or in one before.
    table.setItemInt(kCheck, 50);
    QTRY_VERIFY(!paints.region.isEmpty());
    QCOMPARE(paints.region.boundingRect(), QRect(0, 2 * 26, 240, 26));
    QCOMPARE(paints.count, 1);
    QCOMPARE(layouts.count, 0);
    QCOMPARE(resizes.count, 0);
}

void tst_CMultiParamsTablePainting::batchPaintsOnce()
{
    HostedTable host;
    QVERIFY(host.isShown);
    Table& table = host.table;
    EventCounter paints(table.viewport(), QEvent::Paint);
    table.setItemHidden(kUnits, true);
    table.setItemHidden(kCheck, true);
    table.setItemHidden(kPeriod, true);
    table.setItemHidden(kText, false);
    table.setItemInt(kInt, 500);
    table.setItemText(kLine, QStringLiteral("x"));
    table.setItemUnit(kInt, QStringLiteral("手"));
    table.setFixedHeight(table.realHeight());
    QTRY_VERIFY(paints.count > 0);
    // A second paint of the batch would come before the one of this.
    const int first = paints.count;
    table.setItemInt(kInt, 600);
    QTRY_VERIFY(paints.count > first);
    QCOMPARE(paints.count, 2);
}

void tst_CMultiParamsTablePainting::looksTheSameUnderAnyStyleSheet()
{
    Table plain;
    showAtItsHeight(plain, 240);
    const QImage before = plain.grab().toImage();
    qApp->setStyleSheet(QStringLiteral("* { background: #ffff00; color: #ff0000; font: 30px; padding: 7px; border: 3px "
                                       "solid #00ff00; } QHeaderView::section { height: 60px; }"));
    Table styled;
    showAtItsHeight(styled, 240);
    for (WQ::CMultiParamsTable* table : {&plain, &styled}) {
        QCOMPARE(table->viewport()->geometry(), QRect(0, 0, 240, kCells * 26 + 20));
        QCOMPARE(table->realHeight(), kCells * 26 + 20);
        QVERIFY(table->grab().toImage() == before);
    }
}

void tst_CMultiParamsTablePainting::separatorIsOneDevicePixel_data()
{
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 1.25, 1.5, 2.0})
        QTest::addRow("%g", ratio) << ratio;
}

void tst_CMultiParamsTablePainting::separatorIsOneDevicePixel()
{
    QFETCH(qreal, ratio);
    Table table;
    showAtItsHeight(table, 240);
    QImage image(table.size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::magenta);
    table.render(&image);
    // In the padding at the left nothing but ground and separators is painted.
    QVector<int> separators;
    for (int y = 0; y < int(kCells * 26 * ratio); ++y) {
        const QRgb pixel = image.pixel(int(3 * ratio), y);
        if (pixel == QColor(0x23, 0x29, 0x32).rgb())
            separators << y;
        else
            QCOMPARE(QColor(pixel).name(), QStringLiteral("#171b21"));
    }
    QVector<int> expected;
    for (int row = 1; row <= kCells; ++row)
        expected << qRound(row * 26 * ratio) - 1;
    QCOMPARE(separators, expected);
}

void tst_CMultiParamsTablePainting::themeRepaints()
{
    Table table;
    showAtItsHeight(table, 240);
    QCOMPARE(table.grab().toImage().pixelColor(2, 2).name(), QStringLiteral("#171b21"));
    EventCounter paints(table.viewport(), QEvent::Paint);
    QVERIFY(WQ::resources::setTheme(QStringLiteral("light")));
    QTRY_VERIFY(paints.count > 0);
    QCOMPARE(table.grab().toImage().pixelColor(2, 2).name(), QStringLiteral("#ffffff"));
}

void tst_CMultiParamsTablePainting::thePlaceOfWhatGoesIsPaintedOnce_data()
{
    QTest::addColumn<bool>("isHeld");
    QTest::newRow("a table") << false;
    QTest::newRow("a widget that holds a table") << true;
}

void tst_CMultiParamsTablePainting::thePlaceOfWhatGoesIsPaintedOnce()
{
    QFETCH(bool, isHeld);
    QWidget window;
    window.resize(300, 200);
    auto* table = new Table;
    QWidget* going = isHeld ? new WQ::CBaseWidget(QString(), false, &window) : static_cast<QWidget*>(table);
    table->setParent(isHeld ? going : &window);
    going->setGeometry(20, 30, 240, 104);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
    EventCounter paints(&window, QEvent::Paint);
    delete going;
    QTRY_VERIFY(!paints.region.isEmpty());
    QCOMPARE(paints.region, QRegion(20, 30, 240, 104));
    QCOMPARE(paints.count, 1);
}

QTEST_MAIN(tst_CMultiParamsTablePainting)
#include "tst_CMultiParamsTablePainting.moc"
