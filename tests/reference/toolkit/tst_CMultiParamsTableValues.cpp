#include "TableFixture.h"

#include "reference/toolkit/Resources.h"

#include <QRandomGenerator>
#include <QScreen>
#include <QScrollBar>
#include <QWindow>

using namespace table_fixture;

namespace {

/// What stands on the screen, against all of it painted anew.
bool isPaintedTrue(HostedTable& host)
{
    const QImage seen = host.window.screen()->grabWindow(host.window.winId()).toImage();
    const QImage fresh = host.window.grab().toImage();
    return seen.size() == fresh.size()
        && seen.convertToFormat(QImage::Format_RGB32) == fresh.convertToFormat(QImage::Format_RGB32);
}

QRect valueOf(const WQ::CMultiParamsTable& table, int id)
{
    return inner(table).layoutOf(*inner(table).model().cell(id)).value;
}

} // namespace

/// A changed value paints its own place and nothing beside it, whatever was there before.
class tst_CMultiParamsTableValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aChangedValuePaintsItsPlaceAlone();
    void aChangedDigitPaintsLittleMore();
    void aChangedUnitPaintsTheRow();
    void aValueOffItsGridPaintsTheRowBothWays();
    void whatIsOnTheScreenIsTrueAfterAnyChange_data();
    void whatIsOnTheScreenIsTrueAfterAnyChange();
    void aPaintOfAnotherPlaceHidesNoChange();
    void aPictureTakenInBetweenHidesNoChange();
};

void tst_CMultiParamsTableValues::aChangedValuePaintsItsPlaceAlone()
{
    HostedTable host;
    QVERIFY(host.isShown);
    EventCounter paints(host.table.viewport(), QEvent::Paint);
    host.table.setItemInt(kInt, 500);
    QTRY_COMPARE(paints.count, 1);
    QCOMPARE(paints.region.boundingRect(), valueOf(host.table, kInt));
    QVERIFY(isPaintedTrue(host));
}

void tst_CMultiParamsTableValues::aChangedDigitPaintsLittleMore()
{
    HostedTable host;
    QVERIFY(host.isShown);
    EventCounter paints(host.table.viewport(), QEvent::Paint);
    host.table.setItemInt(kInt, 10100);
    QTRY_COMPARE(paints.count, 1);
    const QRect painted = paints.region.boundingRect();
    QVERIFY(valueOf(host.table, kInt).contains(painted.adjusted(1, 0, -1, 0)));
    // Ten thousand and ten thousand one hundred differ in one of six characters.
    const int whole = QFontMetrics(inner(host.table).metrics().font).horizontalAdvance(QStringLiteral("10,100"));
    QVERIFY2(painted.width() < whole / 2, qPrintable(QString::number(painted.width())));
    QVERIFY(isPaintedTrue(host));
}

void tst_CMultiParamsTableValues::aChangedUnitPaintsTheRow()
{
    HostedTable host;
    QVERIFY(host.isShown);
    EventCounter paints(host.table.viewport(), QEvent::Paint);
    host.table.setItemDouble(kUnits, 0.25);
    host.table.setItemUnit(kUnits, QStringLiteral("元"));
    host.table.setItemDouble(kUnits, 0.75);
    QTRY_COMPARE(paints.count, 1);
    QCOMPARE(paints.region.boundingRect(), QRect(0, 26, 240, 26));
    QVERIFY(isPaintedTrue(host));
}

void tst_CMultiParamsTableValues::aValueOffItsGridPaintsTheRowBothWays()
{
    HostedTable host;
    QVERIFY(host.isShown);
    for (const int value : {10050, 10000}) {
        EventCounter paints(host.table.viewport(), QEvent::Paint);
        host.table.setItemInt(kInt, value);
        QTRY_COMPARE(paints.count, 1);
        QCOMPARE(paints.region.boundingRect(), QRect(0, 3 * 26, 240, 26));
        QVERIFY(isPaintedTrue(host));
    }
}

void tst_CMultiParamsTableValues::whatIsOnTheScreenIsTrueAfterAnyChange_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1U, 2U, 3U, 4U})
        QTest::addRow("seed %u", seed) << seed;
}

void tst_CMultiParamsTableValues::whatIsOnTheScreenIsTrueAfterAnyChange()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    HostedTable host;
    QVERIFY(host.isShown);
    Table& table = host.table;
    for (int step = 0; step < 300; ++step) {
        const int id = random.bounded(kCombo, kText);
        const double value = random.bounded(2) ? random.bounded(100) * 100 : random.generateDouble() * 1e6;
        switch (random.bounded(12)) {
        case 0:
            table.setItemUnit(id, random.bounded(2) ? QStringLiteral("%") : QStringLiteral("元"));
            break;
        case 1:
            table.setItemText(kLine, QString(random.bounded(40), QLatin1Char('w')));
            break;
        case 2:
            table.setItemHidden(id, random.bounded(3) == 0);
            break;
        case 3:
            table.setItemName(id, QString(random.bounded(1, 12), QChar(0x5355)));
            break;
        case 4:
            table.setFixedSize(random.bounded(180, 240), random.bounded(90, 220));
            break;
        case 5:
            table.verticalScrollBar()->setValue(random.bounded(130));
            break;
        case 6:
            table.setColumnWidth(0, random.bounded(60, 140));
            break;
        default:
            table.setItemDouble(id, value);
        }
        if (random.bounded(3) == 0)
            table.viewport()->update(QRect(random.bounded(240), random.bounded(200), 20, 30));
        if (random.bounded(2) == 0)
            QCoreApplication::processEvents();
        if (step % 10 == 9) {
            QTRY_VERIFY2(isPaintedTrue(host), qPrintable(QString::number(step)));
        }
    }
}

void tst_CMultiParamsTableValues::aPaintOfAnotherPlaceHidesNoChange()
{
    HostedTable host;
    QVERIFY(host.isShown);
    host.table.setItemInt(kInt, 10100);
    host.table.viewport()->repaint(QRect(0, 3 * 26, 20, 26)); // before anybody has heard of the change
    QTRY_VERIFY(isPaintedTrue(host));
}

void tst_CMultiParamsTableValues::aPictureTakenInBetweenHidesNoChange()
{
    HostedTable host;
    QVERIFY(host.isShown);
    host.table.setItemInt(kInt, 10100);
    host.table.grab();
    QTRY_VERIFY(isPaintedTrue(host));
    EventCounter paints(host.table.viewport(), QEvent::Paint);
    host.table.setItemInt(kInt, 10200);
    QTRY_COMPARE(paints.count, 1);
    QVERIFY2(paints.region.boundingRect().width() < 60, "the picture costs no whole row either");
}

QTEST_MAIN(tst_CMultiParamsTableValues)
#include "tst_CMultiParamsTableValues.moc"
