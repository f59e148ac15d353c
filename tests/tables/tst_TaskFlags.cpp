// What a task's table allows and whether a person may touch it: flags of cells that need a module show in no cell.

#include "TaskExpectations.h"

#include <OrderParamTable_mini/tables/CBaseTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CHpfBasketTaskParamWidget.h>

#include <QtTest>

namespace {

constexpr int kPlain = 0x7100003;
constexpr int kPlainOfFutures = 0x7700003;
constexpr int kAsBuilt = 0x7103FFF;

class Flags : public TC::CGlobalOrderParamTable
{
public:
    static int of(const TC::CGlobalOrderParamTable& table)
    {
        return int(table.*(&Flags::m_flags));
    }
};

struct Basket : TC::CHpfBasketTaskParamWidget
{
    explicit Basket(std::vector<ttservice::CCodeOrderParam> tasks = {})
        : TC::CHpfBasketTaskParamWidget(tasks, QString(), nullptr, std::string())
    {
    }

    TC::CGlobalOrderParamTable* table(const ttservice::CCodeOrderParam& task)
    {
        return creatTable(task, QString(), std::string());
    }
};

/// The order type that the task dialog shows for a recorded one.
int shown(int orderType)
{
    return orderType == 6 ? 0 : orderType == 7 ? 1 : orderType;
}

int dialogFlags(const TaskRow& row, int orderType, int trader)
{
    if (orderType == 0)
        return row.broker == 1 && trader != 4 ? kPlainOfFutures : kPlain;
    if (orderType == 1 || (orderType == 2 && row.broker == 2))
        return trader == 4 ? row.flagsOfTrader4 : row.flags;
    return kAsBuilt;
}

int basketFlags(const TaskRow& row, int orderType)
{
    if (orderType == 0)
        return kPlain;
    return orderType == 1 || (orderType == 2 && row.broker == 2) ? row.basketFlags : kAsBuilt;
}

/// Whether a person may do anything with a cell.
bool isAnyCellEnabled(TC::CGlobalOrderParamTable& table)
{
    const QAbstractItemModel& model = *table.getMultiParamsTable()->model();
    for (int row = 0; row < model.rowCount(); ++row) {
        if (model.index(row, 1).flags() & (Qt::ItemIsEnabled | Qt::ItemIsEditable))
            return true;
    }
    return model.rowCount() == 0;
}

} // namespace

class tst_TaskFlags : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTaskDialogSetsThem();
    void theBasketDialogSetsThem();
    void nobodyEditsATask();
};

void tst_TaskFlags::theTaskDialogSetsThem()
{
    for (const TaskRow& row : kTaskRows) {
        for (const int orderType : kTaskOrderTypes) {
            for (const int trader : {1, 2, 4, 4096}) {
                ttservice::CCodeOrderParam task = taskOf(row.broker, orderType);
                const TC::CBaseTaskParamWidget dialog(task, QString(), nullptr, false, ttservice::ENvTraderType(trader),
                                                      false, std::string());
                const auto* const table = dialog.findChild<TC::CGlobalOrderParamTable*>();
                QVERIFY(table);
                QCOMPARE(Flags::of(*table), dialogFlags(row, shown(orderType), trader));
            }
        }
    }
}

void tst_TaskFlags::theBasketDialogSetsThem()
{
    Basket dialog;
    for (const TaskRow& row : kTaskRows) {
        for (const int orderType : kTaskOrderTypes) {
            const auto* const table = dialog.table(taskOf(row.broker, orderType));
            QVERIFY(table);
            QCOMPARE(Flags::of(*table), basketFlags(row, orderType));
        }
    }
}

void tst_TaskFlags::nobodyEditsATask()
{
    Basket basket;
    for (const TaskRow& row : kTaskRows) {
        ttservice::CCodeOrderParam task = taskOf(row.broker, 1);
        const TC::CBaseTaskParamWidget dialog(task, QString(), nullptr, false, ttservice::TRADER_TYPE_1, false,
                                              std::string());
        auto* const table = dialog.findChild<TC::CGlobalOrderParamTable*>();
        QVERIFY(table && !isAnyCellEnabled(*table));
        QVERIFY(!isAnyCellEnabled(*basket.table(task)));
    }
}

QTEST_MAIN(tst_TaskFlags)
#include "tst_TaskFlags.moc"
