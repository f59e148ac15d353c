#include "CountingHands.h"
#include "WindowPerson.h"

#include "workbench/Appearance.h"
#include "workbench/EventPanel.h"
#include "workbench/HostForm.h"
#include "workbench/Language.h"
#include "workbench/MainWindow.h"
#include "workbench/NumberCombo.h"
#include "workbench/OrderHeader.h"
#include "workbench/QuoteFeed.h"
#include "workbench/QuoteLadder.h"
#include "workbench/QuoteModel.h"
#include "workbench/QuotePanel.h"
#include "workbench/SetupForm.h"
#include "workbench/TableBench.h"
#include "workbench/WhyPanel.h"

#include "reference/services/ServiceControl.h"

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>

#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QtTest>

using namespace workbench;

class tst_OrderHeader : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void aPartOfTheNameChoosesTheInstrument();
    void aWholeCodeWinsOverTheFirstOfTheList();
    void theListIsGoneThroughByKeys();
    void aCodeThatNobodyKnowsIsTaken();
    void whatIsTypedAndLeftChangesNothing();
    void theQuoteNamesTheInstrumentAndStartsFromItsPrice();
    void aDearInstrumentMovesToo();
    void theAccountGoesWithTheBrokerType();
    void theAccountIsBackAfterARestart();
    void theOperationIsTheOneOfTheHostCalls();
    void anEventOfAHiddenCellIsExplained();
    void theFormFollowsTheConfigurationFile();
    void thePanelThatWasAloneGetsItsPartsBackAfterARestart();

private:
    QTemporaryDir m_settings;
};

namespace {

HostData threeTasks()
{
    HostData data;
    data.tasks.resize(3);
    const char* const codes[] = {"1005", "100", "2000"};
    const char* const names[] = {"甲银行", "乙酒业", "丙科技"};
    const double prices[] = {12.34, 1688.0, 7.02};
    for (std::size_t i = 0; i < 3; ++i) {
        data.tasks[i].code = codes[i];
        data.tasks[i].name = names[i];
        data.tasks[i].price = prices[i];
    }
    return data;
}

OrderHeader& headerOf(const MainWindow& window)
{
    return *window.findChild<OrderHeader*>();
}

QString shownName(const MainWindow& window)
{
    return headerOf(window).findChild<QLabel*>(QStringLiteral("instrumentName"))->text();
}

void choose(person::CountingHands& hands, const QString& typed)
{
    hands.press(Qt::Key_I, Qt::ControlModifier);
    hands.type(typed);
    hands.press(Qt::Key_Return);
}

void write(const QString& path, const QByteArray& text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

} // namespace

void tst_OrderHeader::initTestCase()
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
    dressApplication();
}

void tst_OrderHeader::init()
{
    QFile::remove(m_settings.filePath(QStringLiteral("orderparam/workbench.json")));
    reference::resetServices();
    setLanguage(QStringLiteral("en"));
}

void tst_OrderHeader::aPartOfTheNameChoosesTheInstrument()
{
    const auto window = person::open(threeTasks());
    person::CountingHands hands(*window);
    choose(hands, QStringLiteral("科技"));
    QCOMPARE(headerOf(*window).instrument().code, QStringLiteral("2000"));
    QCOMPARE(shownName(*window), QStringLiteral("丙科技"));
    QCOMPARE(headerOf(*window).findChild<QLineEdit*>()->text(), QStringLiteral("2000"));
}

void tst_OrderHeader::aWholeCodeWinsOverTheFirstOfTheList()
{
    const auto window = person::open(threeTasks());
    person::CountingHands hands(*window);
    choose(hands, QStringLiteral("100"));
    QCOMPARE(shownName(*window), QStringLiteral("乙酒业"));
    choose(hands, QStringLiteral("10"));
    QCOMPARE(shownName(*window), QStringLiteral("甲银行"));
}

void tst_OrderHeader::theListIsGoneThroughByKeys()
{
    const auto window = person::open(threeTasks());
    person::CountingHands hands(*window);
    hands.press(Qt::Key_I, Qt::ControlModifier);
    hands.type(QStringLiteral("0"));
    for (const int key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
        hands.press(key);
    QCOMPARE(shownName(*window), QStringLiteral("丙科技"));
}

void tst_OrderHeader::aCodeThatNobodyKnowsIsTaken()
{
    const auto window = person::open(threeTasks());
    person::CountingHands hands(*window);
    choose(hands, QStringLiteral("777777"));
    QCOMPARE(headerOf(*window).instrument().code, QStringLiteral("777777"));
    QCOMPARE(shownName(*window), QStringLiteral("unknown instrument"));
}

void tst_OrderHeader::whatIsTypedAndLeftChangesNothing()
{
    const auto window = person::open(threeTasks());
    person::CountingHands hands(*window);
    choose(hands, QStringLiteral("2000"));
    hands.press(Qt::Key_I, Qt::ControlModifier);
    hands.type(QStringLiteral("77"));
    hands.press(Qt::Key_F6);
    QCOMPARE(headerOf(*window).instrument().code, QStringLiteral("2000"));
    QCOMPARE(headerOf(*window).findChild<QLineEdit*>()->text(), QStringLiteral("2000"));
}

void tst_OrderHeader::theQuoteNamesTheInstrumentAndStartsFromItsPrice()
{
    const auto window = person::open(threeTasks());
    const auto* name = window->quotePanel()->findChild<QLabel*>(QStringLiteral("quoteInstrument"));
    QCOMPARE(name->text(), QStringLiteral("no instrument chosen"));
    person::CountingHands hands(*window);
    choose(hands, QStringLiteral("1005"));
    QCOMPARE(name->text(), QStringLiteral("1005  甲银行"));
    QCOMPARE(window->ladder()->quotes()->priceOf(5), 12.34);
}

void tst_OrderHeader::aDearInstrumentMovesToo()
{
    const auto window = person::open(threeTasks());
    person::CountingHands hands(*window);
    choose(hands, QStringLiteral("100"));
    QCOMPARE(window->ladder()->quotes()->priceOf(5), 1688.0);
    for (int i = 0; i < 100; ++i)
        window->quotePanel()->feed()->step();
    QVERIFY(window->ladder()->quotes()->priceOf(5) != 1688.0);
}

void tst_OrderHeader::theAccountGoesWithTheBrokerType()
{
    reference::addAccount("a", {ttservice::BROKER_TYPE_STOCK, "1", "one"});
    reference::addAccount("b", {ttservice::BROKER_TYPE_STOCK, "2", "two"});
    reference::addAccount("c", {ttservice::BROKER_TYPE_CREDIT, "3", "three"});
    const auto window = person::open();
    QCOMPARE(headerOf(*window).account(), QStringLiteral("a"));
    Q_EMIT headerOf(*window).accountChosen(QStringLiteral("c"), 3);
    QCOMPARE(window->form()->setup().brokerType, 3);
    QCOMPARE(headerOf(*window).account(), QStringLiteral("c"));
    TableSetup setup = window->form()->setup();
    setup.brokerType = 1;
    window->form()->setSetup(setup);
    window->rebuildTable();
    QCOMPARE(headerOf(*window).account(), QString());
}

void tst_OrderHeader::theAccountIsBackAfterARestart()
{
    reference::addAccount("a", {ttservice::BROKER_TYPE_STOCK, "1", "one"});
    reference::addAccount("b", {ttservice::BROKER_TYPE_STOCK, "2", "two"});
    {
        MainWindow window({});
        window.loadState();
        headerOf(window).showAccount(QStringLiteral("b"));
        Q_EMIT headerOf(window).accountChosen(QStringLiteral("b"), 2);
        window.close();
    }
    MainWindow window({});
    window.loadState();
    QCOMPARE(headerOf(window).account(), QStringLiteral("b"));
}

void tst_OrderHeader::theOperationIsTheOneOfTheHostCalls()
{
    const auto window = person::open();
    auto* operation = headerOf(*window).findChild<NumberCombo*>();
    Q_EMIT operation->valueChanged(18);
    QCOMPARE(int(window->bench()->table()->getOperationType()), 18);
    QCOMPARE(operation->value(), 18);
    QCOMPARE(window->findChild<QWidget*>(QStringLiteral("controlsDock"))->findChildren<NumberCombo*>().at(1)->value(),
             18);
}

void tst_OrderHeader::anEventOfAHiddenCellIsExplained()
{
    const auto window = person::open();
    Q_EMIT window->events()->cellWanted(TC::OCF_TailMinVolume);
    auto* why = window->findChild<WhyPanel*>();
    QVERIFY(why->isVisible());
    QCOMPARE(why->cell(), int(TC::OCF_TailMinVolume));
}

void tst_OrderHeader::theFormFollowsTheConfigurationFile()
{
    const QString path = m_settings.filePath(QStringLiteral("follow.ini"));
    write(path, "[client]\nmode=0\n");
    QVERIFY(reference::loadConfiguration(path).isGood());
    const auto window = person::open();
    QVERIFY(window->form()->modules().isEmpty());
    const QPointer<TC::COrderParamBaseTable> before = window->bench()->table();
    write(path, "[client]\nmode=101\n[modules]\non=mdl_order/mdl_order_algorithm3\n");
    QTRY_COMPARE(window->form()->modules(), QStringList{QStringLiteral("mdl_order/mdl_order_algorithm3")});
    QCOMPARE(window->findChild<HostForm*>()->findChild<NumberCombo*>()->value(), 101);
    QVERIFY(!before);
}

void tst_OrderHeader::thePanelThatWasAloneGetsItsPartsBackAfterARestart()
{
    {
        const auto window = person::open();
        window->loadState();
        person::CountingHands hands(*window);
        hands.press(Qt::Key_F11);
        window->close();
    }
    const auto window = person::open();
    window->loadState();
    person::CountingHands hands(*window);
    const auto* quote = window->findChild<QDockWidget*>(QStringLiteral("quoteDock"));
    QVERIFY(quote->isHidden());
    hands.press(Qt::Key_F11);
    QVERIFY(!quote->isHidden());
}

QTEST_MAIN(tst_OrderHeader)
#include "tst_OrderHeader.moc"
