#include "support/ModuleGuard.h"
#include "support/Panel.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CMultiParamsTable.h>
#include <WQ/CPushButton.h>
#include <WQ/CScrollArea.h>
#include <WQ/CUiResource.h>
#include <WQ/CWidgetList.h>

#include <QtTest>

using namespace support;

namespace {

constexpr int kStripHeight = 28;
constexpr int kHigh = 4000;
constexpr int kLow = 90;

int panelWidth()
{
    return WQ::CUiResource::instance()->getSize(QStringLiteral("tc_siz_operation_panel_param_table_width"));
}

int panelHeight()
{
    const WQ::CUiResource* resources = WQ::CUiResource::instance();
    return resources->getSize(QStringLiteral("tc_siz_code_quotes_height"))
        + resources->getSize(QStringLiteral("tc_siz_operation_panel_top_height"));
}

bool hasFixedWidth(const QWidget& widget, int width)
{
    return widget.minimumWidth() == width && widget.maximumWidth() == width;
}

class PaintCounter : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }

    int paints = 0;
};

/// A table in a window that is seen; as a child it takes any height at once.
struct ShownTable
{
    ShownTable(const TableSetup& setup, int height)
        : panel(setup)
    {
        panel.host.show();
        panel.table->resize(panel.table->width(), height);
    }

    BaseTableProbe* operator->() const
    {
        return panel.table;
    }

    Panel panel;
};

} // namespace

/// Where the strip and the scroll area stand, how wide and high the cell table is, and what a scale changes.
class tst_PanelLayout : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void sizesAtConstruction_data();
    void sizesAtConstruction();
    void stripIs28HighOrFlat();
    void firstButtonIsTenWiderThanItNeeds();
    void roomForAllCells_data();
    void roomForAllCells();
    void tooLowForTheCells_data();
    void tooLowForTheCells();
    void layoutForASizeThatIsNotTheWidgets();
    void stripsOfTables31To35OnResize_data();
    void stripsOfTables31To35OnResize();
    void heightOfTheCellTableFollowsItsCells();
    void expandingLaysOutForTheCurrentSize();
    void scaleIsTakenWhenTheHostSaysSo_data();
    void scaleIsTakenWhenTheHostSaysSo();
    void scaleIsIgnoredWithoutFontScale();
    void groundIsFilledWithTheThemesColour();
    void themeChangeRepaints();
};

void tst_PanelLayout::sizesAtConstruction_data()
{
    QTest::addColumn<double>("scale");
    for (const double scale : {1.0, 1.25, 2.0})
        QTest::addRow("scale %g", scale) << scale;
}

void tst_PanelLayout::sizesAtConstruction()
{
    QFETCH(double, scale);
    const ScaleGuard guard(scale);
    BaseTableProbe table;
    QCOMPARE(panelWidth(), qRound(240 * scale));
    QCOMPARE(table.size(), QSize(panelWidth(), panelHeight()));
    QVERIFY(hasFixedWidth(table, panelWidth()));
    QCOMPARE(table.minimumHeight(), 0);
}

void tst_PanelLayout::stripIs28HighOrFlat()
{
    for (const double scale : {1.0, 2.0}) {
        const ScaleGuard guard(scale);
        TableSetup setup;
        QCOMPARE(BaseTableProbe(setup).m_btnList->height(), kStripHeight);
        setup.modeButtons = false;
        BaseTableProbe flat(setup);
        QCOMPARE(flat.m_btnList->height(), 0);
        QCOMPARE(flat.m_btnList->maximumHeight(), 0);
    }
}

void tst_PanelLayout::firstButtonIsTenWiderThanItNeeds()
{
    BaseTableProbe table;
    const auto buttons = table.m_btnGroup->findChildren<WQ::CPushButton*>();
    const auto first = std::find_if(buttons.begin(), buttons.end(), [](auto* button) { return button->id() == 600; });
    QVERIFY(first != buttons.end());
    QVERIFY(hasFixedWidth(**first, (*first)->getMinWidth() + 10));
    QVERIFY((*first)->isChecked());
}

void tst_PanelLayout::roomForAllCells_data()
{
    QTest::addColumn<bool>("modeButtons");
    QTest::addColumn<int>("top");
    QTest::newRow("with the strip") << true << kStripHeight;
    QTest::newRow("with a flat strip") << false << 0;
}

void tst_PanelLayout::roomForAllCells()
{
    QFETCH(bool, modeButtons);
    QFETCH(int, top);
    TableSetup setup;
    setup.modeButtons = modeButtons;
    const ShownTable table(setup, kHigh);
    QCOMPARE(table->m_btnList->geometry(), QRect(0, 0, panelWidth(), top));
    QCOMPARE(table->m_scrollArea->geometry(), QRect(0, top, panelWidth(), kHigh - top));
    QVERIFY(hasFixedWidth(*table->m_table, panelWidth()));
}

void tst_PanelLayout::tooLowForTheCells_data()
{
    roomForAllCells_data();
}

void tst_PanelLayout::tooLowForTheCells()
{
    QFETCH(bool, modeButtons);
    QFETCH(int, top);
    TableSetup setup;
    setup.modeButtons = modeButtons;
    const ShownTable table(setup, kHigh);
    const int needed = table->m_table->realHeight() + top;
    const int narrow = panelWidth() - table->m_scrollArea->getScrollBarWidth();
    QVERIFY(table->m_scrollArea->getScrollBarWidth() > 0);

    table->resize(panelWidth(), needed);
    QVERIFY(hasFixedWidth(*table->m_table, panelWidth()));
    table->resize(panelWidth(), needed - 1);
    QVERIFY(hasFixedWidth(*table->m_table, narrow));
    QCOMPARE(table->m_scrollArea->geometry(), QRect(0, top, panelWidth(), needed - 1 - top));
    table->resize(panelWidth(), needed);
    QVERIFY(hasFixedWidth(*table->m_table, panelWidth()));
}

void tst_PanelLayout::layoutForASizeThatIsNotTheWidgets()
{
    const ShownTable table({}, kLow);
    table->resetLayout(QSize(panelWidth() + 60, kHigh));
    QVERIFY(hasFixedWidth(*table->m_table, panelWidth() + 60));
    QCOMPARE(table->m_scrollArea->geometry(), QRect(0, kStripHeight, panelWidth() + 60, kHigh - kStripHeight));
    QCOMPARE(table->m_btnList->geometry(), QRect(0, 0, panelWidth() + 60, kStripHeight));

    table->resetLayout(QSize(panelWidth() + 60, kLow));
    QVERIFY(hasFixedWidth(*table->m_table, panelWidth() - table->m_scrollArea->getScrollBarWidth()));
    QCOMPARE(table->m_scrollArea->geometry(), QRect(0, kStripHeight, panelWidth() + 60, kLow - kStripHeight));
}

void tst_PanelLayout::stripsOfTables31To35OnResize_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<bool>("placed");
    for (const int id : {31, 32, 33, 35})
        QTest::addRow("identity %d keeps its strip unplaced", id) << id << false;
    for (const int id : {5, 30, 34, 36, 52})
        QTest::addRow("identity %d places its strip", id) << id << true;
}

void tst_PanelLayout::stripsOfTables31To35OnResize()
{
    QFETCH(int, id);
    QFETCH(bool, placed);
    const ShownTable table({id}, kHigh);
    const QRect elsewhere(7, 9, 11, kStripHeight);
    const int top = placed ? kStripHeight : 0;
    table->m_btnList->setGeometry(elsewhere);
    table->resize(panelWidth(), kHigh - 100);
    QCOMPARE(table->m_btnList->geometry(), placed ? QRect(0, 0, panelWidth(), kStripHeight) : elsewhere);
    QCOMPARE(table->m_scrollArea->geometry(), QRect(0, top, panelWidth(), kHigh - 100 - top));

    table->m_btnList->setGeometry(elsewhere);
    table->resetLayout(table->size());
    QCOMPARE(table->m_btnList->geometry(), placed ? QRect(0, 0, panelWidth(), kStripHeight) : elsewhere);
}

void tst_PanelLayout::heightOfTheCellTableFollowsItsCells()
{
    BaseTableProbe table;
    table.setFlag(TC::OperationCellFlags(TC::kDefaultCellFlags));
    QCOMPARE(table.m_table->minimumHeight(), table.m_table->realHeight());
    QCOMPARE(table.m_table->maximumHeight(), table.m_table->realHeight());
    const int before = table.m_table->height();
    table.setOrderType(ttservice::EOrderType(1));
    table.setExpandItemsHidden(false);
    QVERIFY(table.m_table->height() > before);
    QCOMPARE(table.m_table->height(), table.m_table->realHeight());
}

void tst_PanelLayout::expandingLaysOutForTheCurrentSize()
{
    const ShownTable table({}, kHigh);
    table->setOrderType(ttservice::EOrderType(1));
    table->setExpandItemsHidden(false);
    const int expanded = table->m_table->realHeight();
    table->setExpandItemsHidden(true);
    table->setOrderType(ttservice::EOrderType(0));
    table->resize(panelWidth(), expanded + kStripHeight - 1);
    QVERIFY(hasFixedWidth(*table->m_table, panelWidth()));
    table->setOrderType(ttservice::EOrderType(1));
    table->setExpandItemsHidden(false);
    QVERIFY(hasFixedWidth(*table->m_table, panelWidth() - table->m_scrollArea->getScrollBarWidth()));
}

void tst_PanelLayout::scaleIsTakenWhenTheHostSaysSo_data()
{
    sizesAtConstruction_data();
}

void tst_PanelLayout::scaleIsTakenWhenTheHostSaysSo()
{
    QFETCH(double, scale);
    const ShownTable table({}, 200);
    const int rowsBefore = table->m_table->realHeight();
    const ScaleGuard guard(scale);
    QCOMPARE(table->m_table->realHeight(), rowsBefore);
    table->handleScaleChanged();
    QCOMPARE(table->size(), QSize(panelWidth(), panelHeight()));
    QVERIFY(hasFixedWidth(*table.panel.table, panelWidth()));
    QCOMPARE(table->m_table->height(), table->m_table->realHeight());
    QCOMPARE(table->m_table->realHeight() > rowsBefore, scale > 1.0);
    QCOMPARE(table->m_btnList->height(), kStripHeight);
}

void tst_PanelLayout::scaleIsIgnoredWithoutFontScale()
{
    TableSetup setup;
    setup.fontScale = false;
    const ShownTable table(setup, 200);
    const QSize before = table->size();
    const QSize cells = table->m_table->size();
    const int rows = table->m_table->realHeight();
    const ScaleGuard guard(2.0);
    table->handleScaleChanged();
    QCOMPARE(table->size(), before);
    QCOMPARE(table->m_table->size(), cells);
    QCOMPARE(table->m_table->realHeight(), rows);
}

void tst_PanelLayout::groundIsFilledWithTheThemesColour()
{
    BaseTableProbe table;
    QImage image(table.size(), QImage::Format_RGB32);
    image.fill(Qt::magenta);
    table.render(&image, QPoint(), QRegion(), QWidget::DrawWindowBackground);
    const QColor ground = *WQ::CUiResource::instance()->getColor(QStringLiteral("clr_order_operation_background"));
    for (const QPoint corner : {QPoint(0, 0), QPoint(table.width() - 1, 0), QPoint(0, table.height() - 1),
                                QPoint(table.width() - 1, table.height() - 1), table.rect().center()})
        QCOMPARE(image.pixelColor(corner), ground);
}

void tst_PanelLayout::themeChangeRepaints()
{
    const ShownTable table({}, 300);
    QVERIFY(QTest::qWaitForWindowExposed(table->window()));
    QCoreApplication::processEvents();
    PaintCounter counter;
    table->installEventFilter(&counter);
    const QSize before = table->size();
    table->themeChanged();
    QCOMPARE(counter.paints, 0);
    QTRY_COMPARE(counter.paints, 1);
    QCOMPARE(table->size(), before);
    QCOMPARE(table->hooks, QStringList());
}

QTEST_MAIN(tst_PanelLayout)
#include "tst_PanelLayout.moc"
