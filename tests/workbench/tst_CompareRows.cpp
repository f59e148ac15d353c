#include "workbench/CompareCapture.h"
#include "workbench/CompareModel.h"
#include "workbench/CompareRows.h"

#include "reference/services/ServiceControl.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

using namespace workbench;

namespace {

const QString kRemarkModule = QStringLiteral("mdl_order/mdl_order_command_remark");

CompareSetup setupOf(int identity, int broker, int orderType = 0)
{
    CompareSetup setup;
    setup.table.identity = identity;
    setup.table.brokerType = broker;
    setup.orderType = orderType;
    return setup;
}

std::vector<CompareRow> compared(const CompareSetup& left, const CompareSetup& right)
{
    return compareTables(captureTable(left), captureTable(right));
}

/// "left | right" of a fact, with a mark in front where they differ.
QString fact(const std::vector<CompareRow>& rows, int cell, const char* what)
{
    for (const CompareRow& row : rows) {
        if (row.cell == cell && qstrcmp(row.what, what) == 0)
            return QStringLiteral("%1%2 | %3").arg(QLatin1String(row.isDifferent ? "* " : ""), row.left, row.right);
    }
    return QStringLiteral("no such row");
}

int differencesIn(const std::vector<CompareRow>& rows)
{
    return static_cast<int>(
        std::count_if(rows.begin(), rows.end(), [](const CompareRow& row) { return row.isDifferent; }));
}

} // namespace

class tst_CompareRows : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void aTableDoesNotDifferFromItself();
    void unitsAndLimitsFollowTheBrokerType();
    void aCellOfOneTableAloneHasNoTextsInTheOther();
    void orderTypesShowOtherCells();
    void eachSideHasItsOwnModules();
    void theModulesOfTheProcessAreOnAgain();
    void unknownNumbersAreCompared();
    void commasAndTabs();
    void theModelMarksWhatDiffers();
};

void tst_CompareRows::init()
{
    reference::resetServices();
}

void tst_CompareRows::aTableDoesNotDifferFromItself()
{
    for (const int broker : {1, 2, 6, 7, 10, 1001}) {
        const std::vector<CompareRow> rows = compared(setupOf(5, broker, 1), setupOf(5, broker, 1));
        QVERIFY(rows.size() > 50);
        QCOMPARE(differencesIn(rows), 0);
    }
}

void tst_CompareRows::unitsAndLimitsFollowTheBrokerType()
{
    const std::vector<CompareRow> rows = compared(setupOf(5, 2), setupOf(5, 6));
    QCOMPARE(fact(rows, 0, "price type"), QStringLiteral("* 11 指定价 | 5 最新价"));
    QCOMPARE(fact(rows, 0x200, "unit"), QStringLiteral("* 股 | 张"));
    QCOMPARE(fact(rows, 0x200, "value"), QStringLiteral("* 10000 | 100"));
    QCOMPARE(fact(rows, 0x200, "limits"), QStringLiteral("* 100 … 1000000 / 100 | 1 … 1000000 / 1"));
    QCOMPARE(fact(rows, 0x200, "label"), QStringLiteral("单笔最小量 | 单笔最小量"));
    QCOMPARE(fact(rows, 0x800, "value"), QStringLiteral("09:30:00-15:00:00 | 09:30:00-15:00:00"));
    QCOMPARE(fact(rows, 0x80000, "limits"), QStringLiteral("* 0 … 100 / 0.01 | 0 … 100 / 0.0001"));
    QCOMPARE(fact(rows, 0x1, "entries").section(QLatin1Char(' '), -3),
             QStringLiteral("市价剩转限价=29; 卖①价=4; 买①价=6"));
}

void tst_CompareRows::aCellOfOneTableAloneHasNoTextsInTheOther()
{
    const std::vector<CompareRow> rows = compared(setupOf(5, 7), setupOf(5, 2));
    QCOMPARE(fact(rows, 0x10, "in the table"), QStringLiteral("*  | ✓"));
    QCOMPARE(fact(rows, 0x10, "label"), QStringLiteral("*  | 单笔基准量"));
    QCOMPARE(fact(rows, 0x40, "in the table"), QStringLiteral("✓ | ✓"));
    QCOMPARE(rows.back().cell, 0x4);
    QCOMPARE(rows.back().label, QStringLiteral("超价启用笔数"));
}

void tst_CompareRows::orderTypesShowOtherCells()
{
    const std::vector<CompareRow> rows = compared(setupOf(5, 2, 1), setupOf(5, 2, 2));
    QCOMPARE(fact(rows, 0, "order type"), QStringLiteral("* 1  algorithm | 2  random volume"));
    QCOMPARE(fact(rows, 0x200, "shown"), QStringLiteral("* ✓ | ✗"));
    QCOMPARE(fact(rows, 0x1000, "shown"), QStringLiteral("✓ | ✓"));
}

void tst_CompareRows::eachSideHasItsOwnModules()
{
    CompareSetup with = setupOf(5, 2);
    with.modules = QStringList{kRemarkModule};
    const std::vector<CompareRow> rows = compared(setupOf(5, 2), with);
    QCOMPARE(fact(rows, 0x4000000, "in the table"), QStringLiteral("*  | ✓"));
    QCOMPARE(fact(rows, 0x4000000, "shown"), QStringLiteral("*  | ✓"));
}

void tst_CompareRows::theModulesOfTheProcessAreOnAgain()
{
    const QSet<QString> before{QStringLiteral("mdl_order/mdl_order_trigger_price"), QStringLiteral("own/one")};
    reference::setModules(before);
    CompareSetup setup = setupOf(5, 2);
    setup.modules = QStringList{kRemarkModule};
    captureTable(setup);
    QCOMPARE(reference::modules(), before);
}

void tst_CompareRows::unknownNumbersAreCompared()
{
    for (const int number : {INT_MIN, -7, 4711, INT_MAX}) {
        CompareSetup odd = setupOf(number, number, number);
        odd.operationType = number;
        odd.table.traderType = number;
        QCOMPARE(differencesIn(compared(odd, odd)), 0);
        QVERIFY(differencesIn(compared(odd, setupOf(5, 1))) > 0);
    }
}

void tst_CompareRows::commasAndTabs()
{
    const std::vector<QStringList> lines{{QStringLiteral("a,b"), QStringLiteral("say \"x\""), QStringLiteral("c")},
                                         {QStringLiteral("d\te"), QStringLiteral("f\ng"), QString()}};
    QCOMPARE(commaSeparated(lines), QStringLiteral("\"a,b\",\"say \"\"x\"\"\",c\r\nd\te,\"f\ng\",\r\n"));
    QCOMPARE(tabSeparated(lines), QStringLiteral("a,b\tsay \"x\"\tc\nd e\tf g\t\n"));
}

void tst_CompareRows::theModelMarksWhatDiffers()
{
    CompareModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    model.setRows({{0, QString(), "order type", QStringLiteral("1"), QStringLiteral("1"), false},
                   {0x200, QStringLiteral("单笔最小量"), "unit", QStringLiteral("股"), QStringLiteral("张"), true}});
    QCOMPARE(resets.count(), 1);
    QCOMPARE(model.differences(), 1);
    QCOMPARE(model.index(0, CompareModel::Mark).data().toString(), QString());
    QVERIFY(!model.index(0, CompareModel::Left).data(Qt::FontRole).isValid());
    QCOMPARE(model.index(1, CompareModel::Mark).data().toString(), QStringLiteral("≠"));
    QCOMPARE(model.index(1, CompareModel::Cell).data().toString(), QStringLiteral("0x200 单笔最小量"));
    QCOMPARE(model.index(1, CompareModel::Right).data().toString(), QStringLiteral("张"));
    QVERIFY(model.index(1, CompareModel::Left).data(Qt::FontRole).isValid());
    QCOMPARE(model.index(1, CompareModel::Left).data(Qt::AccessibleDescriptionRole).toString(),
             QStringLiteral("differs"));
    QVERIFY(model.index(1, CompareModel::Left).data(CompareModel::kDiffersRole).toBool());
}

QTEST_MAIN(tst_CompareRows)
#include "tst_CompareRows.moc"
