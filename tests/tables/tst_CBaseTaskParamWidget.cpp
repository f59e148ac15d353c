#include "TaskExpectations.h"

#include "support/CellText.h"
#include "support/EventLog.h"
#include "support/ModuleGuard.h"

#include "reference/toolkit/Resources.h"

#include <OrderParamTable_mini/tables/CBaseTaskParamWidget.h>
#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>

#include <WQ/CMultiParamsTable.h>
#include <WQ/CParameterCell.h>
#include <WQ/CPushButton.h>

#include <QFrame>
#include <QHBoxLayout>
#include <QPointer>
#include <QtTest>

#include <limits>

using namespace ttservice;

namespace {

class DialogProbe : public TC::CBaseTaskParamWidget
{
public:
    explicit DialogProbe(CCodeOrderParam task, int trader = 1, bool tableFlag = false, QWidget* parent = nullptr)
        : TC::CBaseTaskParamWidget(task, QStringLiteral("p"), parent, true, ENvTraderType(trader), tableFlag, "s")
    {
    }

    /// The fact cells, in order.
    QList<WQ::CParameterCell*> facts() const
    {
        return findChildren<WQ::CParameterCell*>();
    }

    QStringList factTexts() const
    {
        QStringList texts;
        for (const WQ::CParameterCell* const fact : facts())
            texts.append(fact->label() + QLatin1Char('=') + fact->text());
        return texts;
    }

    WQ::CParameterCell* basePrice() const
    {
        return facts().value(6);
    }

    using TC::CBaseTaskParamWidget::handleEvent;
    using TC::CBaseTaskParamWidget::m_expandButton;
    using TC::CBaseTaskParamWidget::m_expanded;
    using TC::CBaseTaskParamWidget::m_table;
};

const QString kExpand = QStringLiteral("tc_img_operation_expand_btn");
const QString kContract = QStringLiteral("tc_img_operation_contract_btn");
const QString kNotice = QStringLiteral("task_param_notice");
constexpr double kLargest = std::numeric_limits<double>::max();

} // namespace

class tst_CBaseTaskParamWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTableFollowsTheBrokerType_data();
    void theTableFollowsTheBrokerType();
    void theTableFlagReachesStockTablesAlone();
    void taskTypes6And7AreShownAs0And1();
    void theRecordIsNotWritten();
    void theFactsReadTheRecord();
    void traderType4HasNoFacts();
    void aRecordWithoutAccountShowsNone();
    void anAccountWithoutTableShowsANotice();
    void theNoticeKeepsItsSizeAtEveryUiScale();
    void operationsWithoutBasePriceHaveSixFacts_data();
    void operationsWithoutBasePriceHaveSixFacts();
    void theBasePriceFollowsBrokerAndPriceType_data();
    void theBasePriceFollowsBrokerAndPriceType();
    void factsAreDisabledAndOfFixedSize();
    void aFactIsNeverBounded();
    void theLayoutIsAsDrawn();
    void theLineIsRaised();
    void theModuleWidensTheTable();
    void theButtonIsHiddenForPlainOrders();
    void twoClicksBringTheFirstIconBack();
    void everyButtonExpands();
    void otherEventsGoToTheBase();
    void aPersonsClickExpands();
    void longNamesAreKept();
    void aTableDeletedByItsHostLeavesTheNotice();
    void aDeletedTableOrButtonIsNotTouchedAgain();
    void closingDeletesDialogAndTable_data();
    void closingDeletesDialogAndTable();
    void twoHundredDialogsLeaveNoWidgetBehind();
};

void tst_CBaseTaskParamWidget::theTableFollowsTheBrokerType_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("orderType");
    QTest::addColumn<int>("trader");
    for (int row = 0; row < int(std::size(kTaskRows)); ++row) {
        for (const int type : kTaskOrderTypes) {
            for (const int trader : {1, 2, 4}) {
                const QByteArray name = "broker " + QByteArray::number(kTaskRows[row].broker) + ", order type "
                    + QByteArray::number(type) + ", trader " + QByteArray::number(trader);
                QTest::newRow(name.constData()) << row << type << trader;
            }
        }
    }
}

void tst_CBaseTaskParamWidget::theTableFollowsTheBrokerType()
{
    QFETCH(int, row);
    QFETCH(int, orderType);
    QFETCH(int, trader);
    const TaskRow& expected = kTaskRows[row];
    const DialogProbe dialog(taskOf(expected.broker, orderType), trader, true);
    QVERIFY(dialog.m_table);
    const int shownTrader = expected.trader == 0 ? trader : expected.trader;
    const bool book = expected.broker == 2;
    QCOMPARE(TableReader::construction(*dialog.m_table),
             constructionText(expected.identity, expected.broker, shownTrader, book));
    QCOMPARE(dialog.m_table->size(), QSize(220, 310));
    QCOMPARE(int(dialog.m_table->orderType()), 0);
    QCOMPARE(int(dialog.m_table->getOperationType()), expected.appliesOperation ? 18 : -1);
    int flags = 0;
    const int shownType = orderType == 6 ? 0 : orderType == 7 ? 1 : orderType;
    if (shownType == 0)
        flags = expected.broker == 1 && trader != 4 ? 0x7700003 : 0x7100003;
    else if (shownType == 1 || (shownType == 2 && expected.broker == 2))
        flags = trader == 4 ? expected.flagsOfTrader4 : expected.flags;
    const TaskTableProbe peer(expected.identity, expected.broker, shownTrader, book);
    QCOMPARE(tableText(*dialog.m_table), peer.textAfter(expected.appliesOperation, flags, flags != 0));
    QCOMPARE(dialog.facts().size(), trader == 4 ? 0 : 7);
    QCOMPARE(dialog.m_expandButton->isHidden(), shownType == 0);
}

void tst_CBaseTaskParamWidget::theTableFlagReachesStockTablesAlone()
{
    const DialogProbe stock(taskOf(2, 1), 1, true);
    stock.m_table->getMultiParamsTable()->setComboData(1, 15);
    QCOMPARE(stock.m_table->getMultiParamsTable()->itemData(1).toInt(), 15);
    const DialogProbe credit(taskOf(3, 1), 1, true);
    credit.m_table->getMultiParamsTable()->setComboData(1, 15);
    QVERIFY(credit.m_table->getMultiParamsTable()->itemData(1).toInt() != 15);
}

void tst_CBaseTaskParamWidget::taskTypes6And7AreShownAs0And1()
{
    const DialogProbe plain(taskOf(1, 6));
    QVERIFY(plain.m_expandButton->isHidden());
    QCOMPARE(tableText(*plain.m_table), TaskTableProbe(32, 1, 1, false).textAfter(false, 0x7700003, true));
    const DialogProbe algorithm(taskOf(1, 7));
    QVERIFY(!algorithm.m_expandButton->isHidden());
    QCOMPARE(tableText(*algorithm.m_table), TaskTableProbe(32, 1, 1, false).textAfter(false, 0x7703FFF, true));
}

void tst_CBaseTaskParamWidget::theRecordIsNotWritten()
{
    CCodeOrderParam task = taskOf(2, 6);
    const TC::CBaseTaskParamWidget dialog(task, QString(), nullptr, false, TRADER_TYPE_1, false, std::string());
    QCOMPARE(int(task.orderType), 6);
    QCOMPARE(task.volume, 12000);
}

void tst_CBaseTaskParamWidget::theFactsReadTheRecord()
{
    const QStringList expected = {QStringLiteral("    账号=88001234"), QStringLiteral("账号名称=示例账户"),
                                  QStringLiteral("    代码=600000"),   QStringLiteral("    名称=示例股份"),
                                  QStringLiteral("    方向="),         QStringLiteral("    数量=12000"),
                                  QStringLiteral("  基准价=10.230")};
    QCOMPARE(DialogProbe(taskOf(2, 1)).factTexts(), expected);
}

void tst_CBaseTaskParamWidget::traderType4HasNoFacts()
{
    const DialogProbe dialog(taskOf(2, 1), 4);
    QVERIFY(dialog.m_table);
    QVERIFY(dialog.m_expandButton);
    QVERIFY(dialog.facts().isEmpty());
    QCOMPARE(dialog.layout()->count(), 1);
}

void tst_CBaseTaskParamWidget::aRecordWithoutAccountShowsNone()
{
    CCodeOrderParam task = taskOf(2, 1);
    task.account.reset();
    const DialogProbe dialog(task);
    QVERIFY(!dialog.m_table);
    QVERIFY(dialog.m_expandButton->isHidden());
    QCOMPARE(dialog.factTexts().value(0), QStringLiteral("    账号="));
    QCOMPARE(dialog.factTexts().value(1), QStringLiteral("账号名称=空"));
    QCOMPARE(dialog.factTexts().value(6), QStringLiteral("  基准价=10.230"));
    QVERIFY(dialog.findChild<QWidget*>(kNotice));
}

void tst_CBaseTaskParamWidget::anAccountWithoutTableShowsANotice()
{
    DialogProbe dialog(taskOf(8, 1));
    QVERIFY(!dialog.m_table);
    QVERIFY(dialog.m_expandButton->isHidden());
    QCOMPARE(dialog.facts().size(), 7);
    const auto* const notice = dialog.findChild<QWidget*>(kNotice);
    QVERIFY(notice);
    QVERIFY(!notice->accessibleName().isEmpty());
    QCOMPARE(notice->size(), QSize(220, 310));
    QVERIFY(dialog.handleEvent(5, 0, 0, QString(), nullptr));
}

void tst_CBaseTaskParamWidget::theNoticeKeepsItsSizeAtEveryUiScale()
{
    WQ::resources::setScale(2.0);
    const DialogProbe dialog(taskOf(8, 1));
    WQ::resources::setScale(1.0);
    QCOMPARE(dialog.findChild<QWidget*>(kNotice)->font().pixelSize(), 12);
}

void tst_CBaseTaskParamWidget::operationsWithoutBasePriceHaveSixFacts_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<int>("count");
    QTest::newRow("40") << 40 << 6;
    QTest::newRow("41") << 41 << 6;
    QTest::newRow("1089") << 1089 << 6;
    QTest::newRow("39") << 39 << 7;
    QTest::newRow("42") << 42 << 7;
    QTest::newRow("-1") << -1 << 7;
}

void tst_CBaseTaskParamWidget::operationsWithoutBasePriceHaveSixFacts()
{
    QFETCH(int, operation);
    QFETCH(int, count);
    CCodeOrderParam task = taskOf(2, 1);
    task.operationType = EOperationType(operation);
    const DialogProbe dialog(task);
    QCOMPARE(dialog.facts().size(), count);
    QCOMPARE(dialog.facts().value(5)->label(), QStringLiteral("    数量"));
}

void tst_CBaseTaskParamWidget::theBasePriceFollowsBrokerAndPriceType_data()
{
    QTest::addColumn<int>("broker");
    QTest::addColumn<int>("priceType");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("step");
    QTest::newRow("option") << 6 << 11 << QStringLiteral("10.2300") << kLargest << 0.0001;
    // The price follows the words, so it is what stays.
    QTest::newRow("option, market") << 6 << 12 << QStringLiteral("10.2300") << kLargest << 0.0001;
    QTest::newRow("option, after hours") << 6 << 49 << QStringLiteral("10.2300") << kLargest << 0.0001;
    QTest::newRow("futures, after hours") << 1 << 49 << QStringLiteral("10.230") << kLargest << 0.001;
    QTest::newRow("points, after hours") << 5 << 49 << QStringLiteral("10.230") << kLargest << 0.001;
    QTest::newRow("stock") << 2 << 11 << QStringLiteral("10.230") << kLargest << 0.001;
    QTest::newRow("stock, market") << 2 << 12 << QStringLiteral("10.230") << kLargest << 0.001;
    QTest::newRow("stock, after hours") << 2 << 49 << QStringLiteral("盘后定价") << 1e6 << 0.001;
    QTest::newRow("other points, after hours") << 4 << 49 << QStringLiteral("盘后定价") << 1e6 << 0.001;
    QTest::newRow("unlisted, after hours") << 8 << 49 << QStringLiteral("盘后定价") << 1e6 << 0.001;
}

void tst_CBaseTaskParamWidget::theBasePriceFollowsBrokerAndPriceType()
{
    QFETCH(int, broker);
    QFETCH(int, priceType);
    QFETCH(QString, text);
    QFETCH(double, maximum);
    QFETCH(double, step);
    CCodeOrderParam task = taskOf(broker, 1);
    task.priceType = EPriceType(priceType);
    const DialogProbe dialog(task);
    QVERIFY(dialog.basePrice());
    QCOMPARE(dialog.basePrice()->text(), text);
    QCOMPARE(dialog.basePrice()->minimum(), 0.0);
    QCOMPARE(dialog.basePrice()->maximum(), maximum);
    QCOMPARE(dialog.basePrice()->step(), step);
}

void tst_CBaseTaskParamWidget::factsAreDisabledAndOfFixedSize()
{
    const DialogProbe dialog(taskOf(2, 1));
    for (const WQ::CParameterCell* const fact : dialog.facts()) {
        QVERIFY(!fact->isEnabled());
        QCOMPARE(fact->id(), 0);
        QCOMPARE(fact->minimumSize(), QSize(200, 22));
        QCOMPARE(fact->maximumSize(), QSize(200, 22));
    }
    for (int i = 0; i < 6; ++i) {
        QCOMPARE(dialog.facts().at(i)->minimum(), 0.0);
        QCOMPARE(dialog.facts().at(i)->maximum(), 1e6);
        QCOMPARE(dialog.facts().at(i)->step(), 0.001);
    }
}

void tst_CBaseTaskParamWidget::aFactIsNeverBounded()
{
    CCodeOrderParam task = taskOf(2, 1);
    task.volume = 2000000;
    QCOMPARE(DialogProbe(task).factTexts().value(5), QStringLiteral("    数量=2000000"));
    task.volume = INT_MIN;
    QCOMPARE(DialogProbe(task).factTexts().value(5), QStringLiteral("    数量=-2147483648"));
}

void tst_CBaseTaskParamWidget::theLineIsRaised()
{
    DialogProbe dialog(taskOf(2, 1));
    QWidget* const line = dialog.layout()->itemAt(1)->widget();
    QPalette shades;
    shades.setColor(QPalette::Light, Qt::yellow);
    shades.setColor(QPalette::Dark, Qt::green);
    line->setPalette(shades);
    dialog.show();
    QCoreApplication::processEvents();
    QImage image(line->size(), QImage::Format_RGB32);
    image.fill(Qt::magenta);
    line->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    const auto column = [&image](int x) {
        QStringList colors;
        for (int y = 1; y < image.height() - 1; ++y)
            colors << image.pixelColor(x, y).name();
        colors.removeDuplicates();
        return colors.join(QLatin1Char(' '));
    };
    QCOMPARE(image.width(), 3);
    QCOMPARE(column(0), QStringLiteral("#ffff00")); // light
    QCOMPARE(column(1), QStringLiteral("#00ff00")); // dark
    QCOMPARE(column(2), QStringLiteral("#ff00ff")); // nothing
}

void tst_CBaseTaskParamWidget::theLayoutIsAsDrawn()
{
    const DialogProbe dialog(taskOf(2, 1));
    const auto* const root = qobject_cast<QHBoxLayout*>(dialog.layout());
    QVERIFY(root);
    QCOMPARE(root->contentsMargins(), QMargins(15, 36, 15, 13));
    QCOMPARE(root->count(), 3);
    const auto* const column = qobject_cast<QVBoxLayout*>(root->itemAt(0)->layout());
    QVERIFY(column);
    QCOMPARE(column->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(column->itemAt(0)->widget(), dialog.m_table);
    QCOMPARE(column->stretch(0), 1);
    QCOMPARE(column->itemAt(1)->widget(), dialog.m_expandButton);
    QCOMPARE(column->stretch(1), 0);
    const auto* const line = qobject_cast<QFrame*>(root->itemAt(1)->widget());
    QVERIFY(line);
    QCOMPARE(line->frameShape(), QFrame::VLine);
    QCOMPARE(line->frameShadow(), QFrame::Raised);
    QCOMPARE(root->stretch(1), 2);
    QCOMPARE(root->itemAt(2)->layout()->contentsMargins(), QMargins(5, 8, 5, 5));
    QCOMPARE(dialog.m_expandButton->minimumHeight(), 22);
    QCOMPARE(dialog.m_expandButton->maximumHeight(), 22);
    QVERIFY(dialog.testAttribute(Qt::WA_DeleteOnClose));
}

void tst_CBaseTaskParamWidget::theModuleWidensTheTable()
{
    QCOMPARE(DialogProbe(taskOf(2, 1)).m_table->size(), QSize(220, 310));
    const support::ModuleGuard modules{"mdl_order/mdl_order_multi_market_price"};
    QCOMPARE(DialogProbe(taskOf(2, 1)).m_table->size(), QSize(240, 310));
}

void tst_CBaseTaskParamWidget::theButtonIsHiddenForPlainOrders()
{
    QVERIFY(DialogProbe(taskOf(2, 0)).m_expandButton->isHidden());
    QVERIFY(!DialogProbe(taskOf(2, 3)).m_expandButton->isHidden());
}

void tst_CBaseTaskParamWidget::twoClicksBringTheFirstIconBack()
{
    DialogProbe dialog(taskOf(2, 1));
    QCOMPARE(dialog.m_expandButton->iconKey(), kExpand);
    QVERIFY(!dialog.m_table->isExpand());
    const QSet<int> shown = support::shownCells(*dialog.m_table->getMultiParamsTable());
    QVERIFY(dialog.handleEvent(5, 0, 0, QString(), nullptr));
    QCOMPARE(dialog.m_expandButton->iconKey(), kContract);
    QVERIFY(dialog.m_table->isExpand());
    QVERIFY(dialog.handleEvent(5, 0, 0, QString(), nullptr));
    QCOMPARE(dialog.m_expandButton->iconKey(), kExpand);
    QVERIFY(!dialog.m_table->isExpand());
    QVERIFY(!dialog.m_expanded);
    QCOMPARE(support::shownCells(*dialog.m_table->getMultiParamsTable()), shown);
}

void tst_CBaseTaskParamWidget::everyButtonExpands()
{
    DialogProbe dialog(taskOf(2, 1));
    QVERIFY(dialog.handleEvent(5, 4711, 3, QStringLiteral("x"), nullptr));
    QVERIFY(dialog.m_expanded);
}

void tst_CBaseTaskParamWidget::otherEventsGoToTheBase()
{
    DialogProbe dialog(taskOf(2, 1));
    for (const int event : {73, 87, 97, 129, 1206})
        QVERIFY(!dialog.handleEvent(event, 0, 0, QString(), nullptr));
    QVERIFY(!dialog.m_expanded);
}

void tst_CBaseTaskParamWidget::aPersonsClickExpands()
{
    DialogProbe dialog(taskOf(2, 1));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTest::mouseClick(dialog.m_expandButton, Qt::LeftButton);
    QTRY_VERIFY(dialog.m_expanded);
    QTest::mouseClick(dialog.m_expandButton, Qt::LeftButton);
    QTRY_VERIFY(!dialog.m_expanded);
}

void tst_CBaseTaskParamWidget::longNamesAreKept()
{
    CCodeOrderParam task = taskOf(2, 1);
    task.name = QStringLiteral("很长的名称").repeated(200).toStdString();
    const DialogProbe dialog(task);
    QCOMPARE(dialog.facts().value(3)->text(), QStringLiteral("很长的名称").repeated(200));
    QCOMPARE(dialog.facts().value(3)->maximumWidth(), 200);
}

void tst_CBaseTaskParamWidget::aTableDeletedByItsHostLeavesTheNotice()
{
    const support::ClientModeGuard mode(100);
    support::EventLog host;
    host.onEvent = [&host](int event) {
        if (event == 1244)
            delete host.findChild<TC::CGlobalOrderParamTable*>();
    };
    const DialogProbe dialog(taskOf(2, 1), 1, false, &host);
    QVERIFY(!dialog.m_table);
    QVERIFY(dialog.m_expandButton->isHidden());
    QVERIFY(dialog.findChild<QWidget*>(kNotice));
    QCOMPARE(dialog.facts().size(), 7);
}

void tst_CBaseTaskParamWidget::aDeletedTableOrButtonIsNotTouchedAgain()
{
    DialogProbe dialog(taskOf(2, 1));
    delete dialog.m_table;
    QVERIFY(dialog.handleEvent(5, 0, 0, QString(), nullptr));
    delete dialog.m_expandButton;
    QVERIFY(dialog.handleEvent(5, 0, 0, QString(), nullptr));
    QVERIFY(!dialog.m_expanded);
}

void tst_CBaseTaskParamWidget::closingDeletesDialogAndTable_data()
{
    QTest::addColumn<bool>("byEscape");
    QTest::newRow("Esc") << true;
    QTest::newRow("the window manager") << false;
}

void tst_CBaseTaskParamWidget::closingDeletesDialogAndTable()
{
    QFETCH(bool, byEscape);
    const QPointer<DialogProbe> dialog = new DialogProbe(taskOf(2, 1));
    const QPointer<TC::CGlobalOrderParamTable> table = dialog->m_table;
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    if (byEscape)
        QTest::keyClick(dialog, Qt::Key_Escape);
    else
        dialog->close();
    QTRY_VERIFY(!dialog);
    QVERIFY(!table);
}

void tst_CBaseTaskParamWidget::twoHundredDialogsLeaveNoWidgetBehind()
{
    QWidget window;
    window.show();
    const int before = QApplication::allWidgets().size();
    for (int i = 0; i < 200; ++i) {
        auto* const dialog =
            new DialogProbe(taskOf(kTaskRows[i % int(std::size(kTaskRows))].broker, i % 3), i % 5, i % 2 == 0, &window);
        dialog->show();
        dialog->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QTRY_COMPARE(QApplication::allWidgets().size(), before);
}

QTEST_MAIN(tst_CBaseTaskParamWidget)
#include "tst_CBaseTaskParamWidget.moc"
