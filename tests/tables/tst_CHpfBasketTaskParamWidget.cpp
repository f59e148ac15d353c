#include "TaskExpectations.h"

#include "support/CellText.h"
#include "support/ModuleGuard.h"

#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>
#include <OrderParamTable_mini/tables/CHpfBasketTaskParamWidget.h>

#include <WQ/CMultiParamsTable.h>

#include <QBoxLayout>
#include <QPointer>
#include <QtTest>

#include <memory>

using namespace ttservice;

namespace {

class BasketProbe : public TC::CHpfBasketTaskParamWidget
{
public:
    explicit BasketProbe(std::vector<CCodeOrderParam> tasks = {})
        : TC::CHpfBasketTaskParamWidget(tasks, QStringLiteral("p"), nullptr, "s")
    {
    }

    TC::CGlobalOrderParamTable* table(const CCodeOrderParam& task)
    {
        return creatTable(task, QStringLiteral("p"), "s");
    }

    using TC::CHpfBasketTaskParamWidget::changeOrderType;
    using TC::CHpfBasketTaskParamWidget::createUi;
    using TC::CHpfBasketTaskParamWidget::handleEvent;
    using TC::CHpfBasketTaskParamWidget::m_columnLayout;
    using TC::CHpfBasketTaskParamWidget::m_firstTitle;
    using TC::CHpfBasketTaskParamWidget::m_firstView;
    using TC::CHpfBasketTaskParamWidget::m_flag;
    using TC::CHpfBasketTaskParamWidget::m_rootLayout;
    using TC::CHpfBasketTaskParamWidget::m_secondTitle;
    using TC::CHpfBasketTaskParamWidget::m_secondView;
    using TC::CHpfBasketTaskParamWidget::m_swapButton;
    using TC::CHpfBasketTaskParamWidget::reloadWidget;
};

/// A dialog with two views and a button, as a host that fills it would have.
struct FilledBasket
{
    FilledBasket()
    {
        dialog.m_firstView = new QWidget(&dialog);
        dialog.m_secondView = new QWidget(&dialog);
        dialog.m_swapButton = new QWidget(&dialog);
        dialog.m_rootLayout = dialog.m_columnLayout = new QVBoxLayout;
        dialog.m_firstTitle = QStringLiteral("组合");
        dialog.m_secondTitle = QStringLiteral("明细");
    }

    QList<QWidget*> column() const
    {
        QList<QWidget*> widgets;
        for (int i = 0; i < dialog.m_columnLayout->count(); ++i)
            widgets.append(dialog.m_columnLayout->itemAt(i)->widget());
        return widgets;
    }

    BasketProbe dialog;
};

} // namespace

class tst_CHpfBasketTaskParamWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFreshDialogHasNoContent();
    void aClickFlipsTheFlagAndChangesNothingElse();
    void otherEventsGoToTheBase();
    void clicksShowTheViewsInTurnWithTheirTitles();
    void aMissingPieceStopsTheSwap_data();
    void aMissingPieceStopsTheSwap();
    void changeOrderTypeMapsTaskTypes_data();
    void changeOrderTypeMapsTaskTypes();
    void creatTableFollowsTheBrokerType_data();
    void creatTableFollowsTheBrokerType();
    void creatTableAnswersNullWithoutATable_data();
    void creatTableAnswersNullWithoutATable();
    void creatTableLeavesTaskTypesUnmapped();
    void theModuleWidensTheTable();
    void closingDeletesTheDialog();
};

void tst_CHpfBasketTaskParamWidget::aFreshDialogHasNoContent()
{
    BasketProbe dialog(std::vector<CCodeOrderParam>(3, taskOf(2, 0)));
    std::vector<CCodeOrderParam> tasks(1);
    dialog.createUi(tasks, QString(), std::string());
    QVERIFY(!dialog.layout());
    QVERIFY(!dialog.findChild<TC::CGlobalOrderParamTable*>());
    QVERIFY(!dialog.m_firstView && !dialog.m_secondView && !dialog.m_swapButton);
    QVERIFY(!dialog.m_rootLayout && !dialog.m_columnLayout);
    QVERIFY(!dialog.m_flag);
    QVERIFY(dialog.testAttribute(Qt::WA_DeleteOnClose));
}

void tst_CHpfBasketTaskParamWidget::aClickFlipsTheFlagAndChangesNothingElse()
{
    BasketProbe dialog;
    const QString title = dialog.windowTitle();
    QVERIFY(dialog.handleEvent(5, 600, 0, QString(), nullptr));
    QVERIFY(dialog.m_flag);
    QVERIFY(dialog.handleEvent(5, 0, 0, QString(), nullptr));
    QVERIFY(!dialog.m_flag);
    QVERIFY(!dialog.layout());
    QCOMPARE(dialog.windowTitle(), title);
}

void tst_CHpfBasketTaskParamWidget::otherEventsGoToTheBase()
{
    BasketProbe dialog;
    QVERIFY(!dialog.handleEvent(73, 1, 0, QString(), nullptr));
    QVERIFY(!dialog.m_flag);
}

void tst_CHpfBasketTaskParamWidget::clicksShowTheViewsInTurnWithTheirTitles()
{
    FilledBasket basket;
    BasketProbe& dialog = basket.dialog;
    for (int round = 0; round < 2; ++round) {
        QVERIFY(dialog.handleEvent(5, 0, 0, QString(), nullptr));
        QVERIFY(!dialog.m_firstView->isHidden());
        QVERIFY(dialog.m_secondView->isHidden());
        QCOMPARE(basket.column(), (QList<QWidget*>{dialog.m_firstView, dialog.m_swapButton}));
        QCOMPARE(dialog.windowTitle(), QStringLiteral("组合"));
        QCOMPARE(dialog.layout(), dialog.m_rootLayout);

        QVERIFY(dialog.handleEvent(5, 0, 0, QString(), nullptr));
        QVERIFY(dialog.m_firstView->isHidden());
        QVERIFY(!dialog.m_secondView->isHidden());
        QCOMPARE(basket.column(), (QList<QWidget*>{dialog.m_secondView, dialog.m_swapButton}));
        QCOMPARE(dialog.windowTitle(), QStringLiteral("明细"));
    }
}

void tst_CHpfBasketTaskParamWidget::aMissingPieceStopsTheSwap_data()
{
    QTest::addColumn<int>("missing");
    QTest::newRow("first view") << 0;
    QTest::newRow("second view") << 1;
    QTest::newRow("button") << 2;
    QTest::newRow("column layout") << 3;
}

void tst_CHpfBasketTaskParamWidget::aMissingPieceStopsTheSwap()
{
    QFETCH(int, missing);
    FilledBasket basket;
    BasketProbe& dialog = basket.dialog;
    dialog.setLayout(dialog.m_rootLayout);
    const QBoxLayout* const column = dialog.m_columnLayout;
    if (missing == 3)
        dialog.m_columnLayout = nullptr;
    else
        (missing == 0 ? dialog.m_firstView : missing == 1 ? dialog.m_secondView : dialog.m_swapButton) = nullptr;
    const QString title = dialog.windowTitle();
    dialog.reloadWidget(true);
    QCOMPARE(column->count(), 0);
    QCOMPARE(dialog.windowTitle(), title);
}

void tst_CHpfBasketTaskParamWidget::changeOrderTypeMapsTaskTypes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("mapped");
    for (int type = -2; type < 20; ++type) {
        const int mapped = type == 6 ? 0 : type == 7 ? 1 : type;
        QTest::newRow(QByteArray::number(type).constData()) << type << mapped;
    }
}

void tst_CHpfBasketTaskParamWidget::changeOrderTypeMapsTaskTypes()
{
    QFETCH(int, type);
    QFETCH(int, mapped);
    BasketProbe dialog;
    CCodeOrderParam task = taskOf(2, type);
    dialog.changeOrderType(task);
    QCOMPARE(int(task.orderType), mapped);
    QCOMPARE(task.volume, 12000);
}

void tst_CHpfBasketTaskParamWidget::creatTableFollowsTheBrokerType_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("orderType");
    for (int row = 0; row < int(std::size(kTaskRows)); ++row) {
        for (const int type : kTaskOrderTypes) {
            const QByteArray name =
                "broker " + QByteArray::number(kTaskRows[row].broker) + ", order type " + QByteArray::number(type);
            QTest::newRow(name.constData()) << row << type;
        }
    }
}

void tst_CHpfBasketTaskParamWidget::creatTableFollowsTheBrokerType()
{
    QFETCH(int, row);
    QFETCH(int, orderType);
    const TaskRow& expected = kTaskRows[row];
    BasketProbe dialog;
    TC::CGlobalOrderParamTable* const table = dialog.table(taskOf(expected.broker, orderType));
    QVERIFY(table);
    QCOMPARE(table->parentWidget(), &dialog);
    QCOMPARE(TableReader::construction(*table),
             constructionText(expected.identity, expected.broker, expected.basketTrader, false));
    QCOMPARE(int(table->getOperationType()), expected.appliesOperation ? 18 : -1);
    QCOMPARE(table->size(), QSize(220, 310));
    QCOMPARE(table->minimumSize(), table->maximumSize());
    const int flags = orderType == 0                                 ? 0x7100003
        : orderType == 1 || (orderType == 2 && expected.broker == 2) ? expected.basketFlags
                                                                     : 0x7103FFF;
    const TaskTableProbe peer(expected.identity, expected.broker, expected.basketTrader, false);
    QCOMPARE(tableText(*table), peer.textAfter(expected.appliesOperation, flags, flags != 0x7103FFF || orderType == 1));
}

void tst_CHpfBasketTaskParamWidget::creatTableAnswersNullWithoutATable_data()
{
    QTest::addColumn<int>("broker");
    for (const int broker : {8, 0, -1, 9, 1003, INT_MAX})
        QTest::newRow(QByteArray::number(broker).constData()) << broker;
}

void tst_CHpfBasketTaskParamWidget::creatTableAnswersNullWithoutATable()
{
    QFETCH(int, broker);
    BasketProbe dialog;
    QVERIFY(!dialog.table(taskOf(broker, 0)));
    QVERIFY(!dialog.table(CCodeOrderParam()));
    QVERIFY(!dialog.findChild<TC::CGlobalOrderParamTable*>());
}

void tst_CHpfBasketTaskParamWidget::creatTableLeavesTaskTypesUnmapped()
{
    BasketProbe dialog;
    // Order type 6 stands for 0, whose flags are 0x7100003; unmapped it leaves the table as it was built.
    const TaskTableProbe peer(32, 1, 1, false);
    QCOMPARE(tableText(*dialog.table(taskOf(1, 6))), peer.textAfter(false, 0, false));
}

void tst_CHpfBasketTaskParamWidget::theModuleWidensTheTable()
{
    const support::ModuleGuard modules{"mdl_order/mdl_order_multi_market_price"};
    BasketProbe dialog;
    QCOMPARE(dialog.table(taskOf(2, 0))->size(), QSize(240, 310));
}

void tst_CHpfBasketTaskParamWidget::closingDeletesTheDialog()
{
    const QPointer<BasketProbe> dialog = new BasketProbe;
    dialog->show();
    dialog->close();
    QTRY_VERIFY(!dialog);
}

QTEST_MAIN(tst_CHpfBasketTaskParamWidget)
#include "tst_CHpfBasketTaskParamWidget.moc"
