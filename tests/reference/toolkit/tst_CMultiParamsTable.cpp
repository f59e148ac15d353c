#include "TableFixture.h"

#include "reference/services/ServiceControl.h"
#include "reference/toolkit/Resources.h"

#include <WQ/CCheckParamUnitCellDelegate.h>
#include <WQ/CComboBoxDelegate.h>
#include <WQ/CParamCellDelegate.h>

using namespace table_fixture;

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
    void megabyteTexts();
    void wildCallsLeaveNoTrace();
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

QTEST_MAIN(tst_CMultiParamsTable)
#include "tst_CMultiParamsTable.moc"
