#include "contract/CatalogueCalls.h"
#include "contract/RecordedPanel.h"

#include <QtTest>

using support::BaseTableProbe;
using support::TableSetup;

namespace {

/// The calls that add cells to a table, and those that hide them, while it is built.
QStringList cellCalls(int id, int brokerType)
{
    TableSetup setup;
    setup.id = id;
    setup.brokerType = brokerType;
    setup.traderType = 1;
    const BaseTableProbe table(setup);
    return recorder::callsOf({
        QStringLiteral("table.addComboBox"),
        QStringLiteral("table.addParamCell"),
        QStringLiteral("table.addParamUnitCell"),
        QStringLiteral("table.addCheckParamUnitCell"),
        QStringLiteral("table.addRangeCell"),
        QStringLiteral("table.addTimePeriod"),
        QStringLiteral("table.addLineEdit"),
        QStringLiteral("table.setItemHidden"),
    });
}

QString cellOf(const QString& call)
{
    const int from = call.indexOf(QLatin1Char('(')) + 1;
    return call.mid(from, call.indexOf(QLatin1Char(','), from) - from);
}

} // namespace

/// Every call that adds a cell, argument by argument, and the order of these calls.
class tst_ContractCatalogue : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void everyCellIsAddedWithItsArguments_data();
    void everyCellIsAddedWithItsArguments();
    void cellsAreAddedInTheOrderOfTheCatalogue_data();
    void cellsAreAddedInTheOrderOfTheCatalogue();
    void limitPriceIsHiddenAtOnce();
    void marketPricesWhileTheirModuleIsOn();
};

void tst_ContractCatalogue::init()
{
    recorder::reset();
    recorder::state().modulesOn = {QStringLiteral("mdl_order/mdl_order_command_remark"),
                                   QStringLiteral("mdl_alg/mdl_alg_randvolume")};
}

void tst_ContractCatalogue::everyCellIsAddedWithItsArguments_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("brokerType");
    QTest::addColumn<int>("cell");
    QTest::addColumn<QString>("call");
    for (const AddedCell& row : kAddedCells) {
        for (const int broker : row.brokers) {
            QTest::addRow("%s, broker type %d, cell 0x%x", row.name, broker, unsigned(row.cell))
                << row.id << broker << row.cell << QString::fromUtf8(row.call);
        }
    }
}

void tst_ContractCatalogue::everyCellIsAddedWithItsArguments()
{
    QFETCH(int, id);
    QFETCH(int, brokerType);
    QFETCH(int, cell);
    QFETCH(QString, call);

    QStringList added;
    const QStringList all = cellCalls(id, brokerType);
    for (const QString& one : all) {
        if (cellOf(one) == recorder::written(recorder::Id{cell}) && !one.startsWith(QLatin1String("table.setItem")))
            added << one;
    }

    QCOMPARE(added, call.isEmpty() ? QStringList() : QStringList{call});
}

void tst_ContractCatalogue::cellsAreAddedInTheOrderOfTheCatalogue_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("brokerType");
    QTest::addColumn<QString>("cells");
    const QString all = QStringLiteral("0x1 0x2 0x10 0x40 0x4 0x8 0x200 0x400 0x800 0x1000 0x2000 0x800000 0x10000 "
                                       "0x20000 0x80000 0x2000000 0x2000000 0x4000000");
    QTest::newRow("all cells") << 5 << 2 << all;
    QTest::newRow("futures") << 6 << 1
                             << QStringLiteral("0x2 0x10 0x40 0x4 0x8 0x200 0x400 0x800 0x1000 0x2000 0x10000 0x20000 "
                                               "0x80000 0x4000000");
    QTest::newRow("Hong Kong") << 6 << 7
                               << QStringLiteral("0x1 0x40 0x8 0x200 0x400 0x800 0x1000 0x2000 0x10000 0x20000 "
                                                 "0x80000 0x4000000");
    QTest::newRow("options") << 6 << 6
                             << QStringLiteral("0x1 0x2 0x40 0x4 0x8 0x200 0x400 0x800 0x1000 0x2000 0x10000 0x20000 "
                                               "0x80000 0x4000000");
}

void tst_ContractCatalogue::cellsAreAddedInTheOrderOfTheCatalogue()
{
    QFETCH(int, id);
    QFETCH(int, brokerType);
    QFETCH(QString, cells);

    QStringList order;
    const QStringList all = cellCalls(id, brokerType);
    for (const QString& call : all)
        order << cellOf(call);

    QCOMPARE(order.join(QLatin1Char(' ')), cells);
}

void tst_ContractCatalogue::limitPriceIsHiddenAtOnce()
{
    QStringList calls = cellCalls(11, 2);

    const QStringList hidden = calls.filter(QStringLiteral("setItemHidden"));
    QCOMPARE(hidden, QStringList{QStringLiteral("table.setItemHidden(0x2000000, true)")});
    QVERIFY(calls.at(calls.indexOf(hidden.first()) - 1).startsWith(QLatin1String("table.addParamCell(0x2000000, ")));
}

void tst_ContractCatalogue::marketPricesWhileTheirModuleIsOn()
{
    recorder::state().modulesOn = {QStringLiteral("mdl_order/mdl_order_stock_multi_market_price")};

    const QString added = cellCalls(5, 3).first();

    const QString expected = QString::fromUtf8(
        R"(table.addComboBox(0x1, "报价方式", ["指定价", "挂单价", "对手价", "卖⑤价", "卖④价", "卖③价", "卖②价", )"
        R"("卖①价", "最新价", "买①价", "买②价", "买③价", "买④价", "买⑤价", "最优五档即成剩撤"], )"
        R"([11, 13, 14, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 47], 0, false, right|vcenter, right|vcenter))");
    QCOMPARE(added, expected);
}

QTEST_MAIN(tst_ContractCatalogue)
#include "tst_ContractCatalogue.moc"
