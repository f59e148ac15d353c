#include "reference/services/ServiceControl.h"
#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/Resources.h"

#include <WQ/CCheckParamUnitCellDelegate.h>
#include <WQ/CComboBoxDelegate.h>
#include <WQ/CMultiParamsTable.h>
#include <WQ/CParamCellDelegate.h>

#include <QAbstractItemModelTester>
#include <QtTest>

#include <limits>

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr int kNoCell = 4711;

// The cells that each test finds in its table, by ID.
constexpr int kCombo = 1;
constexpr int kUnits = 2;
constexpr int kCheck = 3;
constexpr int kInt = 4;
constexpr int kRange = 5;
constexpr int kPeriod = 6;
constexpr int kLine = 7;
constexpr int kText = 8;
constexpr int kCells = 8;

QList<WQ::CParamCellUnitInfo> percentAndMoney()
{
    WQ::CParamCellUnitInfo percent;
    percent.text = QStringLiteral("%");
    percent.type = 6;
    percent.min = -100.0;
    percent.max = 100.0;
    WQ::CParamCellUnitInfo money = percent;
    money.text = QStringLiteral("元");
    money.min = -1000000.0;
    money.max = 1000000.0;
    money.step = 0.001;
    return {percent, money};
}

constexpr auto kRight = Qt::AlignRight | Qt::AlignVCenter;

int addCombo(WQ::CMultiParamsTable& table, int id, int index)
{
    QStringList texts{QStringLiteral("最新价"), QStringLiteral("对手价"), QStringLiteral("买①价")};
    QVector<QVariant> values{5, 14, 6};
    return table.addComboBox(id, QStringLiteral("报价方式"), texts, values, index, false, kRight, kRight);
}

void fill(WQ::CMultiParamsTable& table)
{
    addCombo(table, kCombo, 1);
    table.addParamUnitCell(kUnits, QStringLiteral("单笔超价"), percentAndMoney(), 0.5, -1.0);
    table.addCheckParamUnitCell(kCheck, QStringLiteral("波动区间"), QStringLiteral("单向"), false, percentAndMoney(), 3,
                                -1.0);
    table.addParamCell(kInt, QStringLiteral("单笔最小量"), 2, 100, 1000000, 100, QStringLiteral("股"), 10000, 4);
    table.addRangeCell(kRange, QStringLiteral("单笔量区间"), 2, 1, 1000000, 1, 1000000, 1, QStringLiteral("股"), 1, -1,
                       QStringLiteral(" - "), false);
    QTime start(9, 30);
    QTime end(15, 0);
    table.addTimePeriod(kPeriod, QStringLiteral("有效时间"), start, end);
    table.addLineEdit(kLine, QStringLiteral("投资备注"), QStringLiteral("季度调仓"), false, QStringLiteral("备注"));
    table.addParamCell(kText, QStringLiteral("未还合约数量"), 10, 0, 0, 0, QStringLiteral("股"), 0, 4);
}

class Table : public WQ::CMultiParamsTable
{
public:
    explicit Table(bool fontScale = true)
        : CMultiParamsTable(nullptr, fontScale)
    {
        fill(*this);
    }
};

const WQ::CMultiParamsTablePrivate& inner(const WQ::CMultiParamsTable& table)
{
    return *WQ::CMultiParamsTablePrivate::of(&table);
}

int labelWidth(const WQ::CMultiParamsTable& table, int id)
{
    return inner(table).layoutOf(*inner(table).model().cell(id)).label.width();
}

void showAtItsHeight(WQ::CMultiParamsTable& table, int width)
{
    table.setFixedSize(width, table.realHeight());
    table.show();
    QVERIFY(QTest::qWaitForWindowExposed(&table));
    // Without focus, so that no row looks different from the others.
    QTRY_VERIFY(table.isActiveWindow());
    table.clearFocus();
    QTRY_VERIFY(!table.hasFocus());
}

/// A table in a window, its last cell hidden, all painted.
struct HostedTable
{
    HostedTable()
    {
        window.resize(300, 400);
        table.setParent(&window);
        table.setItemHidden(kText, true);
        table.setFixedSize(240, table.realHeight());
        window.show();
        isShown = QTest::qWaitForWindowExposed(&window) && QTest::qWaitForWindowActive(&window);
        window.setFocus();
        QCoreApplication::processEvents();
        window.repaint();
        QCoreApplication::processEvents();
    }

    bool isShown = false;
    QWidget window;
    Table table;
};

/// Counts what reaches a widget.
class EventCounter : public QObject
{
public:
    EventCounter(QObject* watched, QEvent::Type type)
        : m_type(type)
    {
        watched->installEventFilter(this);
    }

    int count = 0;
    QRegion region;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == m_type) {
            ++count;
            if (m_type == QEvent::Paint)
                region += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }

private:
    const QEvent::Type m_type;
};

} // namespace

class tst_CMultiParamsTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void addingAnswersTheRow();
    void idThatExistsLeavesTheTableAsItIs();
    void missingCellAnswersNothingAndTakesNothing_data();
    void missingCellAnswersNothingAndTakesNothing();
    void itemsCanBeCast();
    void numbers();
    void notANumberAndInfinities();
    void textCellHoldsTextAndNoRange();
    void unitsBySixArguments();
    void ticks();
    void combos();
    void comboAskedForAnUnknownValueKeepsItsChoice();
    void resetToAnEmptyList();
    void checkCell();
    void lineTakesPatternOrPlaceholder();
    void timeRangeIsTodayByTheClientsClock();
    void itemTexts();
    void programSendsNoEvents();
    void visibleSet();
    void realHeightIsExactAtOnce();
    void footerCountsWhileItIsVisible();
    void filterIsEnabledWhileCollapsedAndEnabled();
    void scaleComesFromTheOwnerAlone();
    void withoutFontScaleTheTableStaysAtScaleOne();
    void modelStaysSoundUnderTheView();
    void hostsColumnWidthSticks();
    void labelColumnTakesTheWidestLabel();
    void partsUseTheRoomThatTheOthersLeave();
    void elidedTextIsTheTooltip();
    void wholeRowFitsIntoADialogOf220Pixels();
    void rowStandsWhereQtLooksForIt();
    void changedValueRepaintsItsRowAlone();
    void changesThatShowNothingPaintNothing();
    void batchPaintsOnce();
    void looksTheSameUnderAnyStyleSheet();
    void separatorIsOneDevicePixel_data();
    void separatorIsOneDevicePixel();
    void themeRepaints();
    void megabyteTexts();
    void wildCallsLeaveNoTrace();
    void currentRowStaysWithItsCell();
};

void tst_CMultiParamsTable::cleanup()
{
    WQ::resources::setScale(1.0);
    WQ::resources::setTheme(QStringLiteral("dark"));
    qApp->setStyleSheet(QString());
}

void tst_CMultiParamsTable::addingAnswersTheRow()
{
    Table table;
    QCOMPARE(addCombo(table, 99, 0), kCells);
    QCOMPARE(table.model()->rowCount(), kCells + 1);
    QCOMPARE(table.model()->columnCount(), 2);
}

void tst_CMultiParamsTable::idThatExistsLeavesTheTableAsItIs()
{
    Table table;
    WQ::CMultiParamsTableItem* item = table.getItem(kInt);
    QCOMPARE(addCombo(table, kInt, 0), -1);
    QCOMPARE(table.addLineEdit(kInt, QString(), QString(), false, QString()), -1);
    QCOMPARE(table.getItem(kInt), item);
    QCOMPARE(table.itemInt(kInt), 10000);
    QCOMPARE(table.model()->rowCount(), kCells);
}

void tst_CMultiParamsTable::missingCellAnswersNothingAndTakesNothing_data()
{
    QTest::addColumn<int>("id");
    for (const int id : {0, -1, kNoCell, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QTest::addRow("%d", id) << id;
}

void tst_CMultiParamsTable::missingCellAnswersNothingAndTakesNothing()
{
    QFETCH(int, id);
    Table table;
    table.setItemDouble(id, 5);
    table.setItemInt(id, 5);
    table.setCheckDouble(id, true, 5, false);
    table.setComboData(id, 5);
    table.resetComboData(id, {QStringLiteral("a")}, {1}, 0);
    table.resetCellRange(id, 0, 1);
    table.setItemText(id, QStringLiteral("x"));
    table.setItemName(id, QStringLiteral("x"));
    table.setItemUnit(id, QStringLiteral("x"));
    table.setItemUnit(id, QStringLiteral("x"), 0, 1, 1, true);
    table.setItemTick(id, QStringLiteral("x"), 1);
    table.setItemEditable(id, false);
    table.setItemHidden(id, true);
    QVERIFY(!table.getItem(id));
    QCOMPARE(table.itemDouble(id), 0.0);
    QCOMPARE(table.itemInt(id), 0);
    QVERIFY(!table.itemData(id).isValid());
    QCOMPARE(table.itemText(id), QString());
    QCOMPARE(table.itemUnit(id), QString());
    QCOMPARE(int(table.itemTimeRangeType(id)), 0);
    QCOMPARE(table.timeRange(id), qMakePair(0, 0));
    QCOMPARE(table.timeElapse(id), 0);
    QCOMPARE(table.cellRange(id), qMakePair(0.0, 0.0));
    QCOMPARE(table.model()->rowCount(), kCells);
}

void tst_CMultiParamsTable::itemsCanBeCast()
{
    Table table;
    const auto* combo = dynamic_cast<WQ::CComboBoxDelegate*>(table.getItem(kCombo));
    QVERIFY(combo);
    QCOMPARE(combo->id(), kCombo);
    QCOMPARE(combo->currentData(), QVariant(14));
    QCOMPARE(combo->textOf(6), QStringLiteral("买①价"));
    QCOMPARE(combo->textOf(99), QString());
    const auto* units = dynamic_cast<WQ::CParamCellDelegate*>(table.getItem(kUnits));
    QVERIFY(units);
    QCOMPARE(units->unit(), QStringLiteral("%"));
    QVERIFY(dynamic_cast<WQ::CCheckParamUnitCellDelegate*>(table.getItem(kCheck)));
    QVERIFY(!dynamic_cast<WQ::CCheckParamUnitCellDelegate*>(table.getItem(kUnits)));
    QVERIFY(!dynamic_cast<WQ::CComboBoxDelegate*>(table.getItem(kLine)));
}

void tst_CMultiParamsTable::numbers()
{
    Table table;
    table.setItemDouble(kInt, 1250.9);
    QCOMPARE(table.itemDouble(kInt), 1250.0);
    table.setItemInt(kInt, 7);
    QCOMPARE(table.itemInt(kInt), 100);
    table.setItemDouble(kUnits, 1.75);
    QCOMPARE(table.itemDouble(kUnits), 1.75);
    QCOMPARE(table.itemInt(kUnits), 1);
    table.setItemDouble(kUnits, -1.75);
    QCOMPARE(table.itemInt(kUnits), -1);
    table.resetCellRange(kInt, 200, 150);
    QCOMPARE(table.cellRange(kInt), qMakePair(200.0, 200.0));
    QCOMPARE(table.itemInt(kInt), 200);
}

void tst_CMultiParamsTable::notANumberAndInfinities()
{
    Table table;
    for (const int id : {kUnits, kCheck, kInt}) {
        const double before = table.itemDouble(id);
        table.setItemDouble(id, kNan);
        QCOMPARE(table.itemDouble(id), before);
        table.setItemDouble(id, kInfinity);
        QCOMPARE(table.itemDouble(id), table.cellRange(id).second);
        table.setItemDouble(id, -kInfinity);
        QCOMPARE(table.itemDouble(id), table.cellRange(id).first);
        table.resetCellRange(id, kNan, kNan);
        QVERIFY(table.cellRange(id).first <= table.cellRange(id).second);
    }
    table.resetCellRange(kInt, -kInfinity, kInfinity);
    table.setItemDouble(kInt, kInfinity);
    QCOMPARE(table.itemInt(kInt), 2147483647);
}

void tst_CMultiParamsTable::textCellHoldsTextAndNoRange()
{
    Table table;
    QCOMPARE(table.itemText(kText), QString());
    QCOMPARE(table.itemUnit(kText), QStringLiteral("股"));
    table.setItemText(kText, QStringLiteral("3000"));
    QCOMPARE(table.itemText(kText), QStringLiteral("3000"));
    QCOMPARE(table.itemDouble(kText), 3000.0);
    QCOMPARE(table.cellRange(kText), qMakePair(0.0, 0.0));
    table.setItemText(kText, QStringLiteral("no number"));
    QCOMPARE(table.itemDouble(kText), 0.0);
    table.setItemUnit(kText, QStringLiteral("元"), 0, 0, 0, true);
    QCOMPARE(table.itemUnit(kText), QStringLiteral("元"));
}

void tst_CMultiParamsTable::unitsBySixArguments()
{
    Table table;
    table.setItemUnit(kUnits, QStringLiteral("元"), 0, 50, 0, false);
    QCOMPARE(table.itemUnit(kUnits), QStringLiteral("%"));
    table.setItemUnit(kUnits, QStringLiteral("元"));
    QCOMPARE(table.cellRange(kUnits), qMakePair(0.0, 50.0));
    QCOMPARE(table.itemText(kUnits), QStringLiteral("0.500"));
    table.setItemUnit(kUnits, QStringLiteral("点"), 1, 2, 0.5, false);
    QCOMPARE(table.itemUnit(kUnits), QStringLiteral("元"));
    table.setItemUnit(kUnits, QStringLiteral("点"), 1, 2, 0.5, true);
    QCOMPARE(table.itemUnit(kUnits), QStringLiteral("点"));
    QCOMPARE(table.itemDouble(kUnits), 1.0);
    table.setItemUnit(kUnits, QStringLiteral("股"));
    QCOMPARE(table.itemUnit(kUnits), QStringLiteral("股"));
    QCOMPARE(table.cellRange(kUnits), qMakePair(1.0, 2.0));
}

void tst_CMultiParamsTable::ticks()
{
    Table table;
    table.setItemTick(kUnits, QStringLiteral("元"), 0.0001);
    QCOMPARE(table.itemText(kUnits), QStringLiteral("0.50"));
    table.setItemUnit(kUnits, QStringLiteral("元"));
    QCOMPARE(table.itemText(kUnits), QStringLiteral("0.5000"));
    table.setItemTick(kUnits, QStringLiteral("港币"), 0.1);
    QCOMPARE(table.itemText(kUnits), QStringLiteral("0.5000"));
}

void tst_CMultiParamsTable::combos()
{
    Table table;
    QCOMPARE(table.itemData(kCombo), QVariant(14));
    QCOMPARE(table.itemInt(kCombo), 14);
    QCOMPARE(table.itemText(kCombo), QStringLiteral("对手价"));
    table.setComboData(kCombo, 6);
    QCOMPARE(table.itemText(kCombo), QStringLiteral("买①价"));
    QCOMPARE(table.model()->index(0, 1).data().toString(), QStringLiteral("买①价"));
}

void tst_CMultiParamsTable::comboAskedForAnUnknownValueKeepsItsChoice()
{
    Table table;
    table.setComboData(kCombo, 99);
    table.setComboData(kCombo, QVariant());
    table.setComboData(kCombo, QStringLiteral("5"));
    table.setItemText(kCombo, QStringLiteral("无"));
    QCOMPARE(table.itemData(kCombo), QVariant(14));
}

void tst_CMultiParamsTable::resetToAnEmptyList()
{
    Table table;
    table.resetComboData(kCombo, {}, {}, 0);
    QVERIFY(!table.itemData(kCombo).isValid());
    QCOMPARE(table.itemText(kCombo), QString());
    QCOMPARE(table.itemInt(kCombo), 0);
    table.resetComboData(kCombo, {QStringLiteral("a"), QStringLiteral("b")}, {1}, 1);
    QVERIFY2(!table.itemData(kCombo).isValid(), "the shorter list counts");
    table.resetComboData(kCombo, {QStringLiteral("a"), QStringLiteral("b")}, {1}, 0);
    QCOMPARE(table.itemData(kCombo), QVariant(1));
}

void tst_CMultiParamsTable::checkCell()
{
    Table table;
    table.setCheckDouble(kCheck, true, 4.5, false);
    QVERIFY(table.getItem(kCheck)->cell()->isChecked());
    QCOMPARE(table.itemDouble(kCheck), 4.5);
    table.setCheckDouble(kCheck, false, kNan, true);
    QVERIFY(!table.getItem(kCheck)->cell()->isChecked());
    QCOMPARE(table.itemDouble(kCheck), 4.5);
    table.setCheckDouble(kUnits, true, 9, false);
    QCOMPARE(table.itemDouble(kUnits), 0.5);
}

void tst_CMultiParamsTable::lineTakesPatternOrPlaceholder()
{
    WQ::CMultiParamsTable table(nullptr, true);
    table.addLineEdit(1, QString(), QStringLiteral("[a-z]*"), true, QStringLiteral("abc"));
    table.addLineEdit(2, QString(), QStringLiteral("abc"), false, QStringLiteral("hint"));
    const auto* judged = static_cast<const WQ::LineCell*>(table.getItem(1)->cell());
    QCOMPARE(judged->pattern(), QStringLiteral("[a-z]*"));
    QCOMPARE(judged->text(), QStringLiteral("abc"));
    QCOMPARE(judged->placeholder(), QString());
    const auto* free = static_cast<const WQ::LineCell*>(table.getItem(2)->cell());
    QCOMPARE(free->pattern(), QString());
    QCOMPARE(free->text(), QStringLiteral("abc"));
    QCOMPARE(free->placeholder(), QStringLiteral("hint"));
}

void tst_CMultiParamsTable::timeRangeIsTodayByTheClientsClock()
{
    // 2024-03-15 in Shanghai begins at 1710432000.
    reference::freezeClock(1710432000 + 50400);
    Table table;
    QCOMPARE(table.timeRange(kPeriod), qMakePair(1710432000 + 34200, 1710432000 + 54000));
    QCOMPARE(table.timeElapse(kPeriod), 19800);
    QCOMPARE(int(table.itemTimeRangeType(kPeriod)), 1);
    QTime start(21, 0);
    QTime end(2, 30);
    table.addTimePeriod(99, QString(), start, end);
    QCOMPARE(table.timeRange(99), qMakePair(1710432000 + 75600, 1710432000 + 86400 + 9000));
    reference::freezeClock(std::nullopt);
}

void tst_CMultiParamsTable::itemTexts()
{
    Table table;
    QCOMPARE(table.itemText(kInt), QStringLiteral("10000"));
    QCOMPARE(table.itemText(kUnits), QStringLiteral("0.50"));
    QCOMPARE(table.itemText(kRange), QStringLiteral("1 - 1000000"));
    QCOMPARE(table.itemText(kPeriod), QStringLiteral("09:30:00-15:00:00"));
    QCOMPARE(table.itemText(kLine), QStringLiteral("季度调仓"));
    table.setItemText(kInt, QStringLiteral("500"));
    QCOMPARE(table.itemInt(kInt), 500);
    table.setItemText(kInt, QStringLiteral("abc"));
    QCOMPARE(table.itemInt(kInt), 500);
    table.setItemName(kInt, QStringLiteral("量"));
    QCOMPARE(table.model()->index(3, 0).data().toString(), QStringLiteral("量"));
}

namespace {

class Listener : public WQ::CEventWidgetT<QWidget>
{
public:
    bool handleEvent(int event, int, int, QString, void*) override
    {
        events << event;
        return false;
    }

    QList<int> events;
};

} // namespace

void tst_CMultiParamsTable::programSendsNoEvents()
{
    Listener listener;
    auto* table = new WQ::CMultiParamsTable(&listener, true);
    fill(*table);
    table->setComboData(kCombo, 6);
    table->resetComboData(kCombo, {QStringLiteral("a")}, {1}, 0);
    table->setItemDouble(kUnits, 2);
    table->setItemUnit(kUnits, QStringLiteral("元"));
    table->setCheckDouble(kCheck, true, 1, false);
    table->setItemText(kLine, QStringLiteral("x"));
    table->setVisibleItemSet({kLine});
    table->setExpand(true);
    table->setAllItemEnable(false);
    QCoreApplication::processEvents();
    QVERIFY(listener.events.isEmpty());
}

void tst_CMultiParamsTable::visibleSet()
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

void tst_CMultiParamsTable::realHeightIsExactAtOnce()
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

void tst_CMultiParamsTable::footerCountsWhileItIsVisible()
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

void tst_CMultiParamsTable::filterIsEnabledWhileCollapsedAndEnabled()
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

void tst_CMultiParamsTable::scaleComesFromTheOwnerAlone()
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

void tst_CMultiParamsTable::withoutFontScaleTheTableStaysAtScaleOne()
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

void tst_CMultiParamsTable::modelStaysSoundUnderTheView()
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

void tst_CMultiParamsTable::hostsColumnWidthSticks()
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

void tst_CMultiParamsTable::labelColumnTakesTheWidestLabel()
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

void tst_CMultiParamsTable::partsUseTheRoomThatTheOthersLeave()
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

void tst_CMultiParamsTable::elidedTextIsTheTooltip()
{
    WQ::CMultiParamsTable table(nullptr, true);
    const QString text = QStringLiteral("一二三四五六七八九十一二三四五六七八九十");
    table.addLineEdit(1, QStringLiteral("投资备注"), text, false, QString());
    table.addLineEdit(2, QStringLiteral("投资备注"), QStringLiteral("短"), false, QString());
    showAtItsHeight(table, 240);
    QCOMPARE(table.model()->index(0, 1).data(Qt::ToolTipRole).toString(), text);
    QVERIFY(!table.model()->index(1, 1).data(Qt::ToolTipRole).isValid());
}

void tst_CMultiParamsTable::wholeRowFitsIntoADialogOf220Pixels()
{
    Table table(false);
    showAtItsHeight(table, 220);
    for (int id = 1; id <= kCells; ++id)
        QVERIFY2(!inner(table).layoutOf(*inner(table).model().cell(id)).elided, qPrintable(table.itemText(id)));
}

void tst_CMultiParamsTable::rowStandsWhereQtLooksForIt()
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

void tst_CMultiParamsTable::changedValueRepaintsItsRowAlone()
{
    HostedTable host;
    QVERIFY(host.isShown);
    EventCounter paints(host.table.viewport(), QEvent::Paint);
    host.table.setItemInt(kInt, 500);
    QTRY_COMPARE(paints.count, 1);
    QCOMPARE(paints.region.boundingRect(), QRect(0, 3 * 26, 240, 26));
}

void tst_CMultiParamsTable::changesThatShowNothingPaintNothing()
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

void tst_CMultiParamsTable::batchPaintsOnce()
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

void tst_CMultiParamsTable::looksTheSameUnderAnyStyleSheet()
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

void tst_CMultiParamsTable::separatorIsOneDevicePixel_data()
{
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 1.25, 1.5, 2.0})
        QTest::addRow("%g", ratio) << ratio;
}

void tst_CMultiParamsTable::separatorIsOneDevicePixel()
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

void tst_CMultiParamsTable::themeRepaints()
{
    Table table;
    showAtItsHeight(table, 240);
    QCOMPARE(table.grab().toImage().pixelColor(2, 2).name(), QStringLiteral("#171b21"));
    EventCounter paints(table.viewport(), QEvent::Paint);
    QVERIFY(WQ::resources::setTheme(QStringLiteral("light")));
    QTRY_VERIFY(paints.count > 0);
    QCOMPARE(table.grab().toImage().pixelColor(2, 2).name(), QStringLiteral("#ffffff"));
}

void tst_CMultiParamsTable::megabyteTexts()
{
    const QString text = QString(1 << 20, QChar(0x91CF)) + QLatin1Char('\n');
    WQ::CMultiParamsTable table(nullptr, true);
    QStringList texts{text};
    QVector<QVariant> values{text};
    table.addComboBox(1, text, texts, values, 0, false, kRight, kRight);
    table.addParamCell(2, text, 6, 0, 100, 0.01, text, 5, 4);
    table.addCheckParamUnitCell(3, text, text, true, {}, 5, -1);
    table.addLineEdit(4, text, text, true, text);
    table.addParamCell(5, text, 10, 0, 0, 0, text, 0, 4);
    table.addRangeCell(6, text, 6, 0, 1, 0, 1, 0.1, text, 1, -1, text, false);
    for (int id = 1; id <= 6; ++id)
        table.setItemText(id, text);
    showAtItsHeight(table, 240);
    QVERIFY(!table.grab().isNull());
    QVERIFY(table.model()->index(0, 1).data(Qt::ToolTipRole).toString().size() <= 1001);
    QCOMPARE(table.itemText(1).size(), text.size());
    QCOMPARE(table.realHeight(), 6 * 26 + 20);
}

void tst_CMultiParamsTable::wildCallsLeaveNoTrace()
{
    WQ::CMultiParamsTable table(nullptr, true);
    QStringList none;
    QVector<QVariant> values;
    QTime noTime;
    table.addComboBox(-1, QString(), none, values, 99, true, {}, {});
    table.addParamUnitCell(-2, QString(), {}, kNan, kNan);
    table.addParamCell(-3, QString(), -77, 100, -100, kNan, QString(), kInfinity, -1);
    table.addParamCell(-4, QString(), 2, kNan, kNan, -1, QString(), kNan, 4);
    table.addRangeCell(-5, QString(), 2, kInfinity, -kInfinity, kNan, kNan, kNan, QString(), kNan, 0, QString(), true);
    table.addTimePeriod(-6, QString(), noTime, noTime);
    table.addLineEdit(-7, QString(), QStringLiteral("(["), true, QString());
    for (int id = -7; id < 0; ++id) {
        table.setItemUnit(id, QString(), kNan, kInfinity, kNan, true);
        table.setItemTick(id, QString(), kInfinity);
        table.setItemInt(id, std::numeric_limits<int>::min());
        table.setItemText(id, QString());
        table.setComboData(id, QVariant::fromValue<void*>(nullptr));
    }
    QCOMPARE(table.itemDouble(-2), double(std::numeric_limits<int>::min()));
    QCOMPARE(table.itemText(-6), QStringLiteral("00:00:00-00:00:00"));
    QVERIFY(!table.itemData(-1).isValid());
    showAtItsHeight(table, 1);
    QVERIFY(!table.grab().isNull());
}

void tst_CMultiParamsTable::currentRowStaysWithItsCell()
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

QTEST_MAIN(tst_CMultiParamsTable)
#include "tst_CMultiParamsTable.moc"
