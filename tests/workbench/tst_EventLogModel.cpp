#include "workbench/EventLogModel.h"
#include "workbench/EventPanel.h"

#include <QAbstractButton>
#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTableView>
#include <QtTest>

using namespace workbench;

namespace {

EventRecord changed(int table)
{
    return capture(129, table, 0, QString(), nullptr);
}

QString cell(const QAbstractItemModel& model, int row, EventLogModel::Column column)
{
    return model.index(row, column).data().toString();
}

} // namespace

class tst_EventLogModel : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void eventsStandInOrderOfArrival();
    void itKeepsTheLastEventsAndTheirNumbers();
    void clearingStartsAnew();
    void indexesOutsideTheListAnswerNothing();
    void theFilterLooksAtEveryColumn();
    void copyingTakesWhatIsShown();
    void aPausedListTakesNothing();
};

void tst_EventLogModel::eventsStandInOrderOfArrival()
{
    EventLogModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.append(changed(5));
    model.append(capture(87, 0x200, 0, QStringLiteral("500"), nullptr));
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(cell(model, 0, EventLogModel::Sequence), QStringLiteral("1"));
    QCOMPARE(cell(model, 0, EventLogModel::Source), QStringLiteral("table 5"));
    QCOMPARE(cell(model, 1, EventLogModel::Event), QStringLiteral("87 number committed"));
    QCOMPARE(cell(model, 1, EventLogModel::Text), QStringLiteral("500"));
}

void tst_EventLogModel::itKeepsTheLastEventsAndTheirNumbers()
{
    EventLogModel model(5);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    for (int i = 0; i < 8; ++i)
        model.append(changed(i));
    QCOMPARE(model.rowCount(), 5);
    QCOMPARE(model.arrived(), qint64(8));
    QCOMPARE(cell(model, 0, EventLogModel::Sequence), QStringLiteral("4"));
    QCOMPARE(cell(model, 0, EventLogModel::Source), QStringLiteral("table 3"));
}

void tst_EventLogModel::clearingStartsAnew()
{
    EventLogModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.append(changed(1));
    model.clear();
    QCOMPARE(model.rowCount(), 0);
    model.append(changed(2));
    QCOMPARE(cell(model, 0, EventLogModel::Sequence), QStringLiteral("1"));
}

void tst_EventLogModel::indexesOutsideTheListAnswerNothing()
{
    EventLogModel model;
    QVERIFY(!model.data(QModelIndex(), Qt::DisplayRole).isValid());
    QVERIFY(!model.headerData(-1, Qt::Horizontal, Qt::DisplayRole).isValid());
    QVERIFY(!model.headerData(EventLogModel::ColumnCount, Qt::Horizontal, Qt::DisplayRole).isValid());
    QVERIFY(!model.headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
}

void tst_EventLogModel::theFilterLooksAtEveryColumn()
{
    EventPanel panel;
    panel.add(129, 31, 0, QString(), nullptr);
    panel.add(87, 0x200, 0, QStringLiteral("500"), nullptr);
    const auto* shown = panel.findChild<QTableView*>()->model();
    auto* filter = panel.findChild<QLineEdit*>();
    QCOMPARE(shown->rowCount(), 2);
    filter->setText(QStringLiteral("单笔最小"));
    QCOMPARE(shown->rowCount(), 1);
    filter->setText(QStringLiteral("TABLE 31"));
    QCOMPARE(shown->rowCount(), 1);
    filter->setText(QStringLiteral("[("));
    QCOMPARE(shown->rowCount(), 0);
    // Qt leaves the animation of a line's clear button behind when the line goes before it has faded in or out.
    const auto* const fading = filter->findChild<QAbstractButton*>();
    QVERIFY(fading);
    QTRY_COMPARE(fading->property("opacity").toDouble(), 1.0);
    filter->clear();
    QCOMPARE(shown->rowCount(), 2);
    QTRY_COMPARE(fading->property("opacity").toDouble(), 0.0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void tst_EventLogModel::copyingTakesWhatIsShown()
{
    EventPanel panel;
    panel.add(129, 31, 0, QStringLiteral("a\tb"), nullptr);
    panel.add(130, 5, 0, QStringLiteral("c"), nullptr);
    panel.copy();
    const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.at(0).split(QLatin1Char('\t')).size(), int(EventLogModel::ColumnCount));
    QVERIFY(lines.at(0).endsWith(QStringLiteral("\t129 parameters changed\ttable 31\t\ta b\t")));

    panel.findChild<QTableView*>()->selectRow(1);
    panel.copy();
    QVERIFY(
        QApplication::clipboard()->text().endsWith(QStringLiteral("\t130 parameter double-clicked\ttable 5\t\tc\t")));
    QVERIFY(!QApplication::clipboard()->text().contains(QLatin1Char('\n')));
}

void tst_EventLogModel::aPausedListTakesNothing()
{
    EventPanel panel;
    auto* pause = panel.findChild<QAbstractButton*>(QStringLiteral("pause"));
    QVERIFY(pause);
    pause->click();
    panel.add(129, 31, 0, QString(), nullptr);
    QCOMPARE(panel.model()->rowCount(), 0);
    pause->click();
    panel.add(129, 31, 0, QString(), nullptr);
    QCOMPARE(panel.model()->rowCount(), 1);
}

QTEST_MAIN(tst_EventLogModel)
#include "tst_EventLogModel.moc"
