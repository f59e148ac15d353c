#include "WindowPerson.h"

#include "workbench/Appearance.h"
#include "workbench/MainWindow.h"
#include "workbench/QuoteFeed.h"
#include "workbench/QuoteLadder.h"
#include "workbench/QuoteModel.h"
#include "workbench/QuotePanel.h"
#include "workbench/Snapshot.h"
#include "workbench/TableBench.h"

#include "reference/services/ServiceControl.h"
#include "reference/toolkit/CMultiParamsTablePrivate.h"

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>
#include <WQ/CMultiParamsTable.h>

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QtTest>

using namespace workbench;

namespace {

constexpr int kUpdates = 200;

QuoteModel::Quotes changed(QuoteModel::Quotes quotes, std::size_t row, double price, int volume)
{
    quotes[row].price = price;
    quotes[row].volume = volume;
    return quotes;
}

/// Counts what is painted of a widget, and where.
class PaintLog : public QObject
{
public:
    explicit PaintLog(QWidget& widget)
    {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent*>(event)->region();
        return QObject::eventFilter(watched, event);
    }

    QRegion region;
};

} // namespace

class tst_QuoteFeed : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void onlyCellsThatShowSomethingElseAreAnnounced();
    void everyWalkIsTheSameAndStaysInItsBounds();
    void theRateIsBounded();
    void theSwitchAndTheRateOfThePanelReachTheFeed();
    void aMovingQuoteLeavesAnOpenEditorAlone();
    void aMovingQuoteLeavesTheSelectionOfTheLadder();
    void anUpdatePaintsWhatChangedAlone();
};

void tst_QuoteFeed::initTestCase()
{
    dressApplication();
}

void tst_QuoteFeed::init()
{
    reference::resetServices();
    setTheme(QStringLiteral("dark"));
    setScale(1.0);
}

void tst_QuoteFeed::onlyCellsThatShowSomethingElseAreAnnounced()
{
    QuoteModel model;
    model.setQuotes(quotesAround(10.0));
    QSignalSpy spy(&model, &QAbstractItemModel::dataChanged);
    model.setQuotes(model.quotes());
    QCOMPARE(spy.count(), 0);
    model.setQuotes(changed(model.quotes(), 2, model.quotes()[2].price, 77));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.last().at(0).toModelIndex(), model.index(2, QuoteModel::Volume));
    QCOMPARE(spy.last().at(1).toModelIndex(), model.index(2, QuoteModel::Volume));
    // Less than what two decimals show.
    model.setQuotes(changed(model.quotes(), 2, model.quotes()[2].price + 0.0001, 77));
    QCOMPARE(spy.count(), 1);
    // The last price rises to that of the first ask, which loses its colour and keeps its text.
    model.setQuotes(changed(model.quotes(), 5, model.quotes()[4].price, 0));
    QCOMPARE(spy.count(), 3);
    QCOMPARE(spy.at(1).at(0).toModelIndex(), model.index(4, QuoteModel::Price));
    QCOMPARE(spy.at(2).at(0).toModelIndex(), model.index(5, QuoteModel::Price));
}

void tst_QuoteFeed::everyWalkIsTheSameAndStaysInItsBounds()
{
    QuoteModel first;
    QuoteModel second;
    first.setQuotes(quotesAround(10.23));
    second.setQuotes(quotesAround(10.23));
    QuoteFeed feed(first);
    QuoteFeed other(second);
    QSet<QString> prices;
    for (int i = 0; i < 20000; ++i) {
        feed.step();
        other.step();
        QCOMPARE(first.priceOf(5), second.priceOf(5));
        QVERIFY(first.priceOf(5) > 8.98 && first.priceOf(5) < 11.52);
        QVERIFY(first.priceOf(4) > first.priceOf(5) && first.priceOf(6) < first.priceOf(5));
        prices.insert(first.index(5, QuoteModel::Price).data().toString());
    }
    QVERIFY(prices.size() > 20);
}

void tst_QuoteFeed::theRateIsBounded()
{
    QuoteModel model;
    QuoteFeed feed(model);
    feed.setRate(0);
    QCOMPARE(feed.rate(), 1);
    feed.setRate(1000000);
    QCOMPARE(feed.rate(), 50);
    QVERIFY(!feed.isRunning());
}

void tst_QuoteFeed::theSwitchAndTheRateOfThePanelReachTheFeed()
{
    QuotePanel panel;
    QSignalSpy spy(&panel, &QuotePanel::feedChosen);
    panel.findChild<QSpinBox*>()->setValue(50);
    panel.findChild<QCheckBox*>()->click();
    QCOMPARE(spy.count(), 2);
    QVERIFY(panel.feed()->isRunning());
    QCOMPARE(panel.feed()->rate(), 50);
    QSignalSpy moves(panel.ladder()->quotes(), &QAbstractItemModel::dataChanged);
    QTRY_VERIFY(moves.count() > 5);
    panel.findChild<QCheckBox*>()->click();
    QVERIFY(!panel.feed()->isRunning());
}

void tst_QuoteFeed::aMovingQuoteLeavesAnOpenEditorAlone()
{
    const auto window = person::open();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    WQ::CMultiParamsTable& cells = *window->bench()->table()->getMultiParamsTable();
    const QModelIndex value = WQ::CMultiParamsTablePrivate::of(&cells)->model().valueIndex(TC::OCF_SuperPrice);
    cells.setFocus();
    cells.setCurrentIndex(value);
    QTest::keyClick(&cells, Qt::Key_F2);
    auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    QVERIFY(editor);
    editor->selectAll();
    QTest::keyClicks(editor, QStringLiteral("12"));
    editor->setSelection(0, 1);
    const QString held = cells.itemText(TC::OCF_SuperPrice);
    QSignalSpy moves(window->ladder()->quotes(), &QAbstractItemModel::dataChanged);
    for (int i = 0; i < kUpdates; ++i) {
        window->quotePanel()->feed()->step();
        if (i == kUpdates / 2)
            QTest::keyClick(editor, Qt::Key_End);
        QCoreApplication::processEvents();
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(editor));
        QCOMPARE(editor->text(), QStringLiteral("12"));
        QCOMPARE(editor->selectedText(), i < kUpdates / 2 ? QStringLiteral("1") : QString());
        QCOMPARE(cells.itemText(TC::OCF_SuperPrice), held);
    }
    QVERIFY(moves.count() > kUpdates);
    QTest::keyClicks(editor, QStringLiteral(".5"));
    QCOMPARE(editor->text(), QStringLiteral("12.5"));
}

void tst_QuoteFeed::aMovingQuoteLeavesTheSelectionOfTheLadder()
{
    QuotePanel panel;
    panel.ladder()->selectRow(3);
    for (int i = 0; i < kUpdates; ++i)
        panel.feed()->step();
    QCOMPARE(panel.ladder()->currentIndex().row(), 3);
    QCOMPARE(panel.ladder()->selectionModel()->selectedRows().size(), 1);
}

void tst_QuoteFeed::anUpdatePaintsWhatChangedAlone()
{
    QuotePanel panel;
    panel.resize(280, 400);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    settle();
    QuoteModel* model = panel.ladder()->quotes();
    PaintLog log(*panel.ladder()->viewport());
    model->setQuotes(changed(model->quotes(), 8, model->quotes()[8].price, 4200));
    settle();
    QVERIFY(!log.region.isEmpty());
    const QRect cell = panel.ladder()->visualRect(model->index(8, QuoteModel::Volume));
    QVERIFY2(cell.contains(log.region.boundingRect()), "more than the cell was painted");
}

QTEST_MAIN(tst_QuoteFeed)
#include "tst_QuoteFeed.moc"
