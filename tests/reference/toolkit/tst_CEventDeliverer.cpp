#include <WQ/CEventWidgetT.h>

#include <QDialog>
#include <QPointer>
#include <QtTest>

#include <functional>
#include <stdexcept>
#include <thread>

using EventWidget = WQ::CEventWidgetT<QWidget>;

namespace {

/// Writes its name into a list when an event arrives, runs what a test gave it, and answers what the test wants.
template <class Widget>
class Listener : public WQ::CEventWidgetT<Widget>
{
public:
    Listener(const QString& name, QStringList& log, QWidget* parent = nullptr)
        : WQ::CEventWidgetT<Widget>(parent)
        , m_name(name)
        , m_log(log)
    {
    }

    bool handleEvent(int event, int a, int b, QString text, void* payload) override
    {
        m_log.append(QStringLiteral("%1: %2 %3 %4 %5")
                         .arg(m_name, QString::number(event), QString::number(a), QString::number(b), text));
        lastData = payload;
        const bool answer = isHandling; // the action may delete this listener
        if (action)
            action();
        return answer;
    }

    bool isHandling = false;
    void* lastData = nullptr;
    std::function<void()> action;

private:
    const QString m_name;
    QStringList& m_log;
};

using Host = Listener<QWidget>;

/// A deliverer that is no widget: it has no ancestors.
class Loner : public WQ::CEventDeliverer
{
};

} // namespace

class tst_CEventDeliverer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyListeningAncestorHearsTheEventNearestFirst();
    void aParentWindowHearsTheEventToo();
    void theSenderItselfHearsNothing();
    void theClimbEndsWhereTheEventIsHandled();
    void theArgumentsArriveAsTheyWereSent();
    void withoutListenersOrParentsNothingHappens();
    void theBaseAnswersFalse();
    void aListenerMayDeleteTheSender();
    void aListenerMayDeleteItself();
    void aListenerMayDeleteAllAbove();
    void aListenerMayMoveItselfElsewhere();
    void whatAListenerThrowsReachesTheCaller();
    void aListenerThatFeedsItselfIsCutOffAt64AndSaidOnce();
    void aListenerThatAnswersEachEventWithTwoComesToAnEnd();
    void afterACutOffEventsGoOutAgain();
    void aDestructorMayDeliver();
    void aCallFromAnotherThreadIsReportedOnceInDebugBuilds();
};

void tst_CEventDeliverer::everyListeningAncestorHearsTheEventNearestFirst()
{
    QStringList log;
    Host top(QStringLiteral("top"), log);
    auto* middle = new Host(QStringLiteral("middle"), log, &top);
    auto* deaf = new QWidget(middle);
    auto* sender = new EventWidget(deaf);
    sender->deliverEvent(129, 5, 0, QStringLiteral("x"), nullptr);
    QCOMPARE(log, QStringList({QStringLiteral("middle: 129 5 0 x"), QStringLiteral("top: 129 5 0 x")}));
}

void tst_CEventDeliverer::aParentWindowHearsTheEventToo()
{
    QStringList log;
    Host mainWindow(QStringLiteral("main"), log);
    auto* dialog = new Listener<QDialog>(QStringLiteral("dialog"), log, &mainWindow);
    QVERIFY(dialog->isWindow());
    auto* sender = new EventWidget(dialog);
    sender->deliverEvent(5, 0, 0, {}, nullptr);
    QCOMPARE(log, QStringList({QStringLiteral("dialog: 5 0 0 "), QStringLiteral("main: 5 0 0 ")}));
}

void tst_CEventDeliverer::theSenderItselfHearsNothing()
{
    QStringList log;
    Host sender(QStringLiteral("sender"), log);
    sender.deliverEvent(5, 0, 0, {}, nullptr);
    QCOMPARE(log, QStringList());
}

void tst_CEventDeliverer::theClimbEndsWhereTheEventIsHandled()
{
    QStringList log;
    Host top(QStringLiteral("top"), log);
    auto* middle = new Host(QStringLiteral("middle"), log, &top);
    middle->isHandling = true;
    auto* sender = new EventWidget(middle);
    sender->deliverEvent(73, 1, 2, {}, nullptr);
    QCOMPARE(log, QStringList({QStringLiteral("middle: 73 1 2 ")}));
}

void tst_CEventDeliverer::theArgumentsArriveAsTheyWereSent()
{
    QStringList log;
    Host host(QStringLiteral("host"), log);
    auto* sender = new EventWidget(&host);
    int number = 0;
    sender->deliverEvent(-1, INT_MIN, INT_MAX, QStringLiteral("报价方式"), &number);
    QCOMPARE(log, QStringList({QStringLiteral("host: -1 -2147483648 2147483647 报价方式")}));
    QCOMPARE(host.lastData, static_cast<void*>(&number));
}

void tst_CEventDeliverer::withoutListenersOrParentsNothingHappens()
{
    Loner().deliverEvent(5, 0, 0, {}, nullptr);
    EventWidget alone;
    alone.deliverEvent(5, 0, 0, {}, nullptr);
    QWidget deaf;
    auto* sender = new EventWidget(&deaf);
    sender->deliverEvent(5, 0, 0, {}, nullptr);
}

void tst_CEventDeliverer::theBaseAnswersFalse()
{
    QVERIFY(!EventWidget().handleEvent(5, 0, 0, {}, nullptr));
}

void tst_CEventDeliverer::aListenerMayDeleteTheSender()
{
    QStringList log;
    Host top(QStringLiteral("top"), log);
    auto* middle = new Host(QStringLiteral("middle"), log, &top);
    QPointer<EventWidget> sender = new EventWidget(middle);
    middle->action = [&] { delete sender; };
    sender->deliverEvent(129, 0, 0, {}, nullptr);
    QVERIFY(!sender);
    QCOMPARE(log, QStringList({QStringLiteral("middle: 129 0 0 "), QStringLiteral("top: 129 0 0 ")}));
}

void tst_CEventDeliverer::aListenerMayDeleteItself()
{
    QStringList log;
    Host top(QStringLiteral("top"), log);
    QPointer<Host> middle = new Host(QStringLiteral("middle"), log, &top);
    auto* sender = new EventWidget(middle);
    middle->action = [&middle] { delete middle; };
    sender->deliverEvent(129, 0, 0, {}, nullptr);
    QVERIFY(!middle);
    QCOMPARE(log, QStringList({QStringLiteral("middle: 129 0 0 ")}));
}

void tst_CEventDeliverer::aListenerMayDeleteAllAbove()
{
    QStringList log;
    QPointer<Host> top = new Host(QStringLiteral("top"), log);
    auto* middle = new Host(QStringLiteral("middle"), log, top);
    auto* sender = new EventWidget(middle);
    middle->action = [&top] { delete top; };
    sender->deliverEvent(129, 0, 0, {}, nullptr);
    QVERIFY(!top);
    QCOMPARE(log, QStringList({QStringLiteral("middle: 129 0 0 ")}));
}

void tst_CEventDeliverer::aListenerMayMoveItselfElsewhere()
{
    QStringList log;
    Host oldTop(QStringLiteral("old"), log);
    Host newTop(QStringLiteral("new"), log);
    auto* middle = new Host(QStringLiteral("middle"), log, &oldTop);
    auto* sender = new EventWidget(middle);
    middle->action = [&] { middle->setParent(&newTop); };
    sender->deliverEvent(129, 0, 0, {}, nullptr);
    QCOMPARE(log, QStringList({QStringLiteral("middle: 129 0 0 "), QStringLiteral("new: 129 0 0 ")}));
}

void tst_CEventDeliverer::whatAListenerThrowsReachesTheCaller()
{
    QStringList log;
    Host host(QStringLiteral("host"), log);
    auto* sender = new EventWidget(&host);
    host.action = [] { throw std::runtime_error("refused"); };
    // More often than deliveries may stand inside each other: each must be counted off again.
    for (int i = 0; i < 100; ++i)
        QVERIFY_EXCEPTION_THROWN(sender->deliverEvent(129, 0, 0, {}, nullptr), std::runtime_error);
    host.action = nullptr;
    log.clear();
    sender->deliverEvent(130, 0, 0, {}, nullptr);
    QCOMPARE(log, QStringList({QStringLiteral("host: 130 0 0 ")}));
}

void tst_CEventDeliverer::aListenerThatFeedsItselfIsCutOffAt64AndSaidOnce()
{
    QTest::ignoreMessage(QtWarningMsg, "CEventDeliverer: event 129 cut off, 64 deliveries stand inside each other");
    QStringList log;
    Host host(QStringLiteral("host"), log);
    auto* sender = new EventWidget(&host);
    host.action = [&] { sender->deliverEvent(129, 0, 0, {}, nullptr); };
    sender->deliverEvent(129, 0, 0, {}, nullptr);
    QCOMPARE(log.size(), 64);
    sender->deliverEvent(129, 0, 0, {}, nullptr);
    QCOMPARE(log.size(), 128);
}

void tst_CEventDeliverer::aListenerThatAnswersEachEventWithTwoComesToAnEnd()
{
    QStringList log;
    Host host(QStringLiteral("host"), log);
    auto* sender = new EventWidget(&host);
    host.action = [&] {
        sender->deliverEvent(129, 0, 0, {}, nullptr);
        sender->deliverEvent(1061, 0, 0, {}, nullptr);
    };
    sender->deliverEvent(129, 0, 0, {}, nullptr);
    QVERIFY(log.size() > 64);
    QVERIFY(log.size() < 10000);
}

void tst_CEventDeliverer::afterACutOffEventsGoOutAgain()
{
    QStringList log;
    Host host(QStringLiteral("host"), log);
    auto* sender = new EventWidget(&host);
    host.action = [&] { sender->deliverEvent(129, 0, 0, {}, nullptr); };
    sender->deliverEvent(129, 0, 0, {}, nullptr);
    host.action = nullptr;
    log.clear();
    sender->deliverEvent(129, 7, 0, {}, nullptr);
    QCOMPARE(log, QStringList({QStringLiteral("host: 129 7 0 ")}));
}

void tst_CEventDeliverer::aDestructorMayDeliver()
{
    struct Parting : EventWidget
    {
        using EventWidget::EventWidget;
        ~Parting() override
        {
            deliverEvent(97, 0, 0, {}, nullptr);
        }
    };
    QStringList log;
    Host top(QStringLiteral("top"), log);
    auto* middle = new Host(QStringLiteral("middle"), log, &top);
    new Parting(middle);
    delete middle; // is no listener any more when its child goes
    QCOMPARE(log, QStringList({QStringLiteral("top: 97 0 0 ")}));
}

void tst_CEventDeliverer::aCallFromAnotherThreadIsReportedOnceInDebugBuilds()
{
#ifndef QT_NO_DEBUG
    QTest::ignoreMessage(QtWarningMsg, "CEventDeliverer::deliverEvent: called outside the GUI thread");
#endif
    EventWidget sender;
    std::thread([&sender] {
        sender.deliverEvent(129, 0, 0, {}, nullptr);
        sender.deliverEvent(129, 0, 0, {}, nullptr);
    }).join();
}

QTEST_MAIN(tst_CEventDeliverer)
#include "tst_CEventDeliverer.moc"
