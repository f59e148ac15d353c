// What tables and dialogs derived from the library's may lack: the cell table, the root of a dialog's layout.

#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>
#include <OrderParamTable_mini/tables/CHpfBasketTaskParamWidget.h>

#include <QVBoxLayout>
#include <QtTest>

namespace {

struct GlobalTable : TC::CGlobalOrderParamTable
{
    GlobalTable()
        : TC::CGlobalOrderParamTable(TC::EOpParamWidgetID(31), ttservice::ENVBrokerType(2), true, nullptr, true,
                                     ttservice::TRADER_TYPE_1, false)
    {
    }

    using TC::CGlobalOrderParamTable::m_table;
};

struct Basket : TC::CHpfBasketTaskParamWidget
{
    explicit Basket(std::vector<ttservice::CCodeOrderParam> tasks = {})
        : TC::CHpfBasketTaskParamWidget(tasks, QString(), nullptr, std::string())
    {
    }

    using TC::CHpfBasketTaskParamWidget::m_columnLayout;
    using TC::CHpfBasketTaskParamWidget::m_firstTitle;
    using TC::CHpfBasketTaskParamWidget::m_firstView;
    using TC::CHpfBasketTaskParamWidget::m_secondView;
    using TC::CHpfBasketTaskParamWidget::m_swapButton;
    using TC::CHpfBasketTaskParamWidget::reloadWidget;
};

} // namespace

class tst_DerivedTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutItsCellTableNoPeriodIsWritten();
    void viewsAreSwappedWithoutARootLayout();
};

void tst_DerivedTables::withoutItsCellTableNoPeriodIsWritten()
{
    GlobalTable table;
    table.m_table = nullptr;
    ttservice::CCodeOrderParam task;
    task.orderType = ttservice::EOrderType(1);
    task.validTimeStart = 5;
    task.validTimeEnd = 6;
    table.transferTimePeriod(&task);
    QCOMPARE(task.validTimeStart, 5);
    QCOMPARE(task.validTimeEnd, 6);
}

void tst_DerivedTables::viewsAreSwappedWithoutARootLayout()
{
    Basket dialog;
    QWidget column;
    dialog.m_columnLayout = new QVBoxLayout(&column);
    dialog.m_firstView = new QWidget(&column);
    dialog.m_secondView = new QWidget(&column);
    dialog.m_swapButton = new QWidget(&column);
    dialog.m_firstTitle = QStringLiteral("组合");
    dialog.reloadWidget(false);
    QCOMPARE(dialog.m_columnLayout->indexOf(dialog.m_firstView), 0);
    QCOMPARE(dialog.m_columnLayout->indexOf(dialog.m_swapButton), 1);
    QCOMPARE(dialog.m_columnLayout->indexOf(dialog.m_secondView), -1);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("组合"));
    QVERIFY(!dialog.layout());
}

QTEST_MAIN(tst_DerivedTables)
#include "tst_DerivedTables.moc"
