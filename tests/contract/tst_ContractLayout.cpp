#include "contract/RecordedPanel.h"

#include <WQ/CMultiParamsTable.h>
#include <WQ/CScrollArea.h>
#include <WQ/CWidgetList.h>

#include <QPainter>
#include <QPixmap>
#include <QtTest>

using contract::lines;
using contract::RecordedPanel;
using support::TableSetup;

namespace {

TableSetup setupOf(int id, bool fontScale = true)
{
    TableSetup setup;
    setup.id = id;
    setup.fontScale = fontScale;
    return setup;
}

} // namespace

/// What laying out, scaling and painting ask of the toolkit.
class tst_ContractLayout : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void scaleReachesTheTableBeforeTheSizes();
    void sizesFollowTheScale();
    void withoutFontScaleAScaleChangeDoesNothing();
    void paintingAsksForTheGroundAlone();
    void themeChangeAsksForNothing();
    void narrowTableLeavesRoomForTheScrollBar();
    void wideTableIsNotAskedForItsScrollBar();
    void stripIsPlacedByTheIdentity_data();
    void stripIsPlacedByTheIdentity();
    void resizingPlacesTheStripOfTable34AtLast();
};

void tst_ContractLayout::init()
{
    recorder::reset();
}

void tst_ContractLayout::scaleReachesTheTableBeforeTheSizes()
{
    RecordedPanel panel;
    recorder::state().sizes = {{QStringLiteral("tc_siz_operation_panel_param_table_width"), 345}};

    panel.table.handleScaleChanged();

    // The new width lays the table out anew; what that calls is told elsewhere.
    const QStringList calls = recorder::calls();
    QCOMPARE(calls.first(), QStringLiteral("table.scaleChanged()"));
    QCOMPARE(calls.at(1), QStringLiteral("table.setFixedHeight(realHeight)"));
    QVERIFY(calls.indexOf(QStringLiteral("panel.setFixedWidth(345)")) > 1);
    QCOMPARE(calls.filter(QStringLiteral("table.scaleChanged")).size(), 1);
    QCOMPARE(recorder::calls(recorder::kEverything).at(1), QStringLiteral("table.realHeight()"));
}

void tst_ContractLayout::sizesFollowTheScale()
{
    RecordedPanel panel;
    recorder::state().sizes = {{QStringLiteral("tc_siz_operation_panel_param_table_width"), 345},
                               {QStringLiteral("tc_siz_code_quotes_height"), 600},
                               {QStringLiteral("tc_siz_operation_panel_top_height"), 31}};

    panel.table.handleScaleChanged();

    QCOMPARE(panel.table.size(), QSize(345, 631));
    QCOMPARE(panel.table.minimumWidth(), 345);
    QCOMPARE(panel.table.maximumWidth(), 345);
}

void tst_ContractLayout::withoutFontScaleAScaleChangeDoesNothing()
{
    RecordedPanel panel(setupOf(5, false));
    recorder::state().sizes = {{QStringLiteral("tc_siz_operation_panel_param_table_width"), 345}};

    panel.table.handleScaleChanged();

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractLayout::paintingAsksForTheGroundAlone()
{
    RecordedPanel panel;
    QPixmap picture(panel.table.size());
    panel.table.render(&picture, QPoint(), QRegion(), QWidget::RenderFlags());

    QCOMPARE(recorder::calls(recorder::Do), QStringList());
    QCOMPARE(recorder::calls(recorder::Resource), lines(R"(resources.getColor("clr_order_operation_background"))"));
    QCOMPARE(picture.toImage().pixelColor(panel.table.rect().bottomRight()), QColor(Qt::darkCyan));
}

void tst_ContractLayout::themeChangeAsksForNothing()
{
    RecordedPanel panel;

    panel.table.themeChanged();

    QCOMPARE(recorder::calls(recorder::kEverything), QStringList());
}

void tst_ContractLayout::narrowTableLeavesRoomForTheScrollBar()
{
    RecordedPanel panel;
    recorder::state().scrollBarWidth = 11;

    panel.table.resetLayout(QSize(300, 400));

    QCOMPARE(recorder::calls(recorder::Ask), lines("table.realHeight()\n scroll.getScrollBarWidth()"));
    QCOMPARE(panel.table.m_table->minimumWidth(), panel.table.width() - 11);
    QCOMPARE(panel.table.m_table->maximumWidth(), panel.table.width() - 11);
    QCOMPARE(panel.table.m_btnList->geometry(), QRect(0, 0, 300, 28));
    QCOMPARE(panel.table.m_scrollArea->geometry(), QRect(0, 28, 300, 372));
}

void tst_ContractLayout::wideTableIsNotAskedForItsScrollBar()
{
    RecordedPanel panel;
    recorder::state().height = 371; // the next answer is 372, exactly the room below the strip

    panel.table.resetLayout(QSize(300, 400));

    QCOMPARE(recorder::calls(recorder::Ask), lines("table.realHeight()"));
    QCOMPARE(panel.table.m_table->maximumWidth(), 300);
}

void tst_ContractLayout::stripIsPlacedByTheIdentity_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<bool>("placed");
    for (const int id : {5, 10, 30, 34, 36, 52})
        QTest::addRow("table %d", id) << id << true;
    for (const int id : {31, 32, 33, 35})
        QTest::addRow("table %d", id) << id << false;
}

void tst_ContractLayout::stripIsPlacedByTheIdentity()
{
    QFETCH(int, id);
    QFETCH(bool, placed);
    RecordedPanel panel(setupOf(id));
    panel.table.m_btnList->setGeometry(3, 4, 50, 28);
    recorder::clear();

    panel.table.resetLayout(QSize(300, 400));

    const QStringList places = recorder::calls(recorder::Place);
    QCOMPARE(places.contains(QStringLiteral("strip.setGeometry(0, 0, 300, 28)")), placed);
    QCOMPARE(places.filter(QStringLiteral("strip")).isEmpty(), !placed);
    QCOMPARE(panel.table.m_scrollArea->geometry(), placed ? QRect(0, 28, 300, 372) : QRect(0, 0, 300, 400));
}

void tst_ContractLayout::resizingPlacesTheStripOfTable34AtLast()
{
    RecordedPanel panel(setupOf(34));
    panel.table.m_btnList->setGeometry(3, 4, 50, 28);
    panel.table.show();
    recorder::clear();

    panel.table.resize(panel.table.width(), 300);

    // First without the strip, as for all its kin, then with it.
    const QStringList places = recorder::calls(recorder::Place).filter(QStringLiteral("scroll.setGeometry"));
    const QString place = QStringLiteral("scroll.setGeometry(0, %1, %2, %3)");
    const int width = panel.table.width();
    QVERIFY(places.contains(place.arg(0).arg(width).arg(300)));
    QCOMPARE(places.last(), place.arg(28).arg(width).arg(272));
    QCOMPARE(panel.table.m_btnList->geometry(), QRect(0, 0, width, 28));
}

QTEST_MAIN(tst_ContractLayout)
#include "tst_ContractLayout.moc"
