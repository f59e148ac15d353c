#include "support/EventLog.h"

#include "workbench/QuoteLadder.h"
#include "workbench/QuoteModel.h"
#include "workbench/TicketModel.h"
#include "workbench/TicketPanel.h"
#include "workbench/TicketReading.h"

#include "reference/toolkit/editors/PersonEdits.h"

#include <OrderParamTable_mini/tables/CGlobalOrderParamTable.h>

#include <WQ/CMultiParamsTable.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

using namespace workbench;

namespace {

TC::CGlobalOrderParamTable* makeTable(QWidget* parent)
{
    return new TC::CGlobalOrderParamTable(TC::EOpParamWidgetID(5), ttservice::BROKER_TYPE_STOCK, true, parent, true,
                                          ttservice::TRADER_TYPE_1, false);
}

QStringList markedNames(const TicketModel& model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(); ++row) {
        if (model.isMarked(row))
            names.append(model.index(row, TicketModel::Name).data().toString());
    }
    return names;
}

} // namespace

class tst_Ticket : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLadderRunsFromTheFifthAskToTheFifthBid();
    void aClickChoosesThePriceType();
    void aDoubleClickChoosesThePrice();
    void enterAndControlEnterDoTheSame();
    void theChosenLevelIsMarked();
    void theLastChangeIsMarked();
    void otherNamesMarkNothing();
    void theTicketReadsTheDefaultRecordOfTheTrader();
    void anEditedPeriodReachesTheRecordAndIsMarked();
    void readingSendsNoEvent();
    void aDeletedTableEmptiesTheTicket();
};

void tst_Ticket::theLadderRunsFromTheFifthAskToTheFifthBid()
{
    QuoteModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setQuotes(quotesAround(10.0));
    QCOMPARE(model.rowCount(), 11);
    QCOMPARE(model.index(0, QuoteModel::Level).data().toString(), QStringLiteral("卖⑤价"));
    QCOMPARE(model.index(0, QuoteModel::Price).data().toString(), QStringLiteral("10.05"));
    QCOMPARE(model.index(5, QuoteModel::Level).data().toString(), QStringLiteral("最新价"));
    QCOMPARE(model.index(5, QuoteModel::Price).data().toString(), QStringLiteral("10.00"));
    QCOMPARE(model.index(10, QuoteModel::Level).data().toString(), QStringLiteral("买⑤价"));
    QCOMPARE(model.index(10, QuoteModel::Price).data().toString(), QStringLiteral("9.95"));
    QCOMPARE(model.priceTypeOf(4), 4);
}

void tst_Ticket::aClickChoosesThePriceType()
{
    QuoteLadder ladder;
    ladder.resize(300, 400);
    ladder.show();
    QVERIFY(QTest::qWaitForWindowExposed(&ladder));
    QSignalSpy types(&ladder, &QuoteLadder::priceTypeChosen);
    QTest::mouseClick(ladder.viewport(), Qt::LeftButton, Qt::NoModifier,
                      ladder.visualRect(ladder.quotes()->index(6, 0)).center());
    QCOMPARE(types.count(), 1);
    QCOMPARE(types.at(0).at(0).toInt(), 6);
}

void tst_Ticket::aDoubleClickChoosesThePrice()
{
    QuoteLadder ladder;
    ladder.quotes()->setQuotes(quotesAround(10.0));
    ladder.resize(300, 400);
    ladder.show();
    QVERIFY(QTest::qWaitForWindowExposed(&ladder));
    QSignalSpy prices(&ladder, &QuoteLadder::priceChosen);
    const QPoint place = ladder.visualRect(ladder.quotes()->index(4, 1)).center();
    QTest::mouseClick(ladder.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(ladder.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(prices.count(), 1);
    QCOMPARE(prices.at(0).at(0).toDouble(), 10.01);
}

void tst_Ticket::enterAndControlEnterDoTheSame()
{
    QuoteLadder ladder;
    ladder.quotes()->setQuotes(quotesAround(10.0));
    ladder.setCurrentIndex(ladder.quotes()->index(10, 0));
    QSignalSpy types(&ladder, &QuoteLadder::priceTypeChosen);
    QSignalSpy prices(&ladder, &QuoteLadder::priceChosen);
    QTest::keyClick(&ladder, Qt::Key_Return);
    QCOMPARE(types.count(), 1);
    QCOMPARE(types.at(0).at(0).toInt(), 10);
    QTest::keyClick(&ladder, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(prices.count(), 1);
    QCOMPARE(prices.at(0).at(0).toDouble(), 9.95);
}

void tst_Ticket::theChosenLevelIsMarked()
{
    QuoteModel model;
    model.setChosen(4);
    QVERIFY(model.data(model.index(4, 0), Qt::FontRole).isValid());
    QVERIFY(!model.data(model.index(5, 0), Qt::FontRole).isValid());
    model.setChosen(26);
    QVERIFY(!model.data(model.index(4, 0), Qt::FontRole).isValid());
}

void tst_Ticket::theLastChangeIsMarked()
{
    const auto reading = [](const char* a, const char* b) {
        return std::vector<TicketModel::Entry>{{QStringLiteral("a"), QLatin1String(a)},
                                               {QStringLiteral("b"), QLatin1String(b)}};
    };
    TicketModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setEntries(reading("1", "2"));
    QCOMPARE(markedNames(model), QStringList());
    model.setEntries(reading("1", "3"));
    QCOMPARE(markedNames(model), QStringList(QStringLiteral("b")));
    model.setEntries(reading("1", "3"));
    QCOMPARE(markedNames(model), QStringList(QStringLiteral("b")));
    model.setEntries(reading("9", "3"));
    QCOMPARE(markedNames(model), QStringList(QStringLiteral("a")));
}

void tst_Ticket::otherNamesMarkNothing()
{
    TicketModel model;
    model.setEntries({{QStringLiteral("a"), QStringLiteral("1")}});
    model.setEntries({{QStringLiteral("a"), QStringLiteral("2")}, {QStringLiteral("b"), QStringLiteral("2")}});
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(markedNames(model), QStringList());
    model.setEntries({});
    QCOMPARE(model.rowCount(), 0);
}

void tst_Ticket::theTicketReadsTheDefaultRecordOfTheTrader()
{
    QWidget host;
    TicketPanel panel;
    TC::CGlobalOrderParamTable* const table = makeTable(&host);
    panel.setTable(table, 2);
    const QStringList items = panel.parameterString().split(QLatin1Char('+'));
    QCOMPARE(items.size(), 41);
    QCOMPARE(items.at(5), QStringLiteral("30"));
    QCOMPARE(items.at(15), QStringLiteral("5"));
    QCOMPARE(items.at(36), QString::number(0x7100003));
}

void tst_Ticket::anEditedPeriodReachesTheRecordAndIsMarked()
{
    QWidget host;
    TicketPanel panel;
    TC::CGlobalOrderParamTable* const table = makeTable(&host);
    table->setOrderType(ttservice::ORDER_TYPE_ALGORITHM);
    table->setExpandItemsHidden(false);
    host.show();
    panel.setTable(table, 1);
    WQ::PersonEdit edit;
    edit.time = qMakePair(QStringLiteral("10:00:00"), QStringLiteral("11:00:00"));
    QVERIFY(WQ::applyPersonEdit(*table->getMultiParamsTable(), TC::OCF_ValidTime, edit) == WQ::EditOutcome::Done);
    panel.refresh();
    const QStringList items = panel.parameterString().split(QLatin1Char('+'));
    QCOMPARE(items.at(19).toInt() - items.at(18).toInt(), 3600);
    QCOMPARE(markedNames(*panel.model()),
             (QStringList{QStringLiteral("19 validTimeStart"), QStringLiteral("20 validTimeEnd"),
                          QStringLiteral("0x800 有效时间")}));
}

void tst_Ticket::readingSendsNoEvent()
{
    support::EventLog host;
    TicketPanel panel;
    panel.setTable(makeTable(&host), 1);
    host.take();
    panel.refresh();
    QCOMPARE(host.take(), QStringList());
}

void tst_Ticket::aDeletedTableEmptiesTheTicket()
{
    TicketPanel panel;
    {
        QWidget host;
        panel.setTable(makeTable(&host), 1);
        QVERIFY(panel.model()->rowCount() > 41);
    }
    panel.refresh();
    QCOMPARE(panel.model()->rowCount(), 0);
    QCOMPARE(panel.parameterString(), QString());
}

QTEST_MAIN(tst_Ticket)
#include "tst_Ticket.moc"
