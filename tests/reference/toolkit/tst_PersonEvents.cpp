#include "reference/toolkit/PersonEvents.h"

#include <WQ/CEventWidgetT.h>

#include <QPointer>
#include <QPushButton>
#include <QtTest>

#include <functional>
#include <memory>
#include <stdexcept>

using EventWidget = WQ::CEventWidgetT<QWidget>;

namespace {

/// Writes down what arrives; event data is a QVariant or null.
class Host : public EventWidget
{
public:
    using EventWidget::EventWidget;

    bool handleEvent(int event, int a, int b, QString text, void* payload) override
    {
        const QString shown = payload ? static_cast<QVariant*>(payload)->toString() : QStringLiteral("null");
        log.append(QStringLiteral("%1 %2 %3 \"%4\" %5")
                       .arg(QString::number(event), QString::number(a), QString::number(b), text, shown));
        if (action)
            action();
        return false;
    }

    QStringList log;
    std::function<void()> action;
};

void post(EventWidget* sender, int event)
{
    WQ::postPersonEvent(sender, *sender, event, 0, 0, {});
}

} // namespace

class tst_PersonEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEventGoesOutFromTheEventLoopNotAtOnce();
    void qtsHandlerHasUnwoundBeforeTheEventGoesOut();
    void eventsOfAllSendersKeepTheOrderOfTheirPosts();
    void anEventIsDroppedWithItsSender();
    void anEventWhoseListenerDeletesTheNextSenderDropsTheNext();
    void theDataIsTheEventsOwnCopy();
    void withoutDataThePointerIsNull();
    void dataMayBeAnInvalidVariant();
    void whatIsPostedDuringADeliveryWaitsForTheNext();
    void aDeliveryInsideADeliveryKeepsTheOrder();
    void exceptionsAreCaughtAndSaidOnce();
    void aNullSenderPostsNothing();
    void aWatcherIsToldOfAnEventBeforeAnyListener();
    void aWatcherIsToldNothingOfAnEventThatIsDropped();
    void theWatcherBeforeComesBack();
};

void tst_PersonEvents::anEventGoesOutFromTheEventLoopNotAtOnce()
{
    Host host;
    auto* sender = new EventWidget(&host);
    WQ::postPersonEvent(sender, *sender, 87, 2, 0, QStringLiteral("1.5"));
    QCOMPARE(host.log, QStringList());
    QCoreApplication::processEvents();
    QCOMPARE(host.log, QStringList({QStringLiteral("87 2 0 \"1.5\" null")}));
}

void tst_PersonEvents::qtsHandlerHasUnwoundBeforeTheEventGoesOut()
{
    Host host;
    QPointer<QPushButton> button = new QPushButton(&host);
    auto* sender = new EventWidget(&host);
    connect(button, &QPushButton::clicked, sender, [&] { post(sender, 5); });
    host.action = [&] { delete button; };
    button->click();
    QVERIFY(button); // deleted inside its own click it would take the handler with it
    QCOMPARE(host.log.size(), 0);
    WQ::deliverPostedPersonEvents();
    QVERIFY(!button);
    QCOMPARE(host.log.size(), 1);
}

void tst_PersonEvents::eventsOfAllSendersKeepTheOrderOfTheirPosts()
{
    Host host;
    auto* first = new EventWidget(&host);
    auto* second = new EventWidget(&host);
    WQ::postPersonEvent(first, *first, 73, 1, 0, {});
    WQ::postPersonEvent(second, *second, 5, 600, 0, {});
    WQ::postPersonEvent(first, *first, 87, 2, 0, {});
    WQ::deliverPostedPersonEvents();
    QCOMPARE(host.log,
             QStringList({QStringLiteral("73 1 0 \"\" null"), QStringLiteral("5 600 0 \"\" null"),
                          QStringLiteral("87 2 0 \"\" null")}));
}

void tst_PersonEvents::anEventIsDroppedWithItsSender()
{
    Host host;
    auto gone = std::make_unique<EventWidget>(&host);
    auto* alive = new EventWidget(&host);
    post(gone.get(), 73);
    post(alive, 87);
    gone.reset();
    WQ::deliverPostedPersonEvents();
    QCOMPARE(host.log, QStringList({QStringLiteral("87 0 0 \"\" null")}));
}

void tst_PersonEvents::anEventWhoseListenerDeletesTheNextSenderDropsTheNext()
{
    Host host;
    QPointer<EventWidget> sender = new EventWidget(&host);
    host.action = [&] { delete sender; };
    post(sender, 73);
    post(sender, 87);
    WQ::deliverPostedPersonEvents();
    QVERIFY(!sender);
    QCOMPARE(host.log, QStringList({QStringLiteral("73 0 0 \"\" null")}));
}

void tst_PersonEvents::theDataIsTheEventsOwnCopy()
{
    Host host;
    auto* sender = new EventWidget(&host);
    QVariant data(11);
    QString text = QStringLiteral("指定价");
    WQ::postPersonEvent(sender, *sender, 73, 1, 3, text, data, true);
    data = 12;
    text = QStringLiteral("最新价");
    WQ::postPersonEvent(sender, *sender, 73, 1, 4, text, data, true);
    WQ::deliverPostedPersonEvents();
    QCOMPARE(host.log, QStringList({QStringLiteral("73 1 3 \"指定价\" 11"), QStringLiteral("73 1 4 \"最新价\" 12")}));
}

void tst_PersonEvents::withoutDataThePointerIsNull()
{
    Host host;
    auto* sender = new EventWidget(&host);
    WQ::postPersonEvent(sender, *sender, 87, 0, 0, {}, QVariant(5), false);
    WQ::deliverPostedPersonEvents();
    QCOMPARE(host.log, QStringList({QStringLiteral("87 0 0 \"\" null")}));
}

void tst_PersonEvents::dataMayBeAnInvalidVariant()
{
    Host host;
    auto* sender = new EventWidget(&host);
    WQ::postPersonEvent(sender, *sender, 73, 0, -1, {}, QVariant(), true);
    WQ::deliverPostedPersonEvents();
    QCOMPARE(host.log, QStringList({QStringLiteral("73 0 -1 \"\" ")}));
}

void tst_PersonEvents::whatIsPostedDuringADeliveryWaitsForTheNext()
{
    Host host;
    auto* sender = new EventWidget(&host);
    host.action = [&] {
        host.action = nullptr;
        post(sender, 87);
        QCOMPARE(host.log.size(), 1);
    };
    post(sender, 73);
    WQ::deliverPostedPersonEvents();
    QCOMPARE(host.log.size(), 1);
    WQ::deliverPostedPersonEvents();
    QCOMPARE(host.log, QStringList({QStringLiteral("73 0 0 \"\" null"), QStringLiteral("87 0 0 \"\" null")}));
}

void tst_PersonEvents::aDeliveryInsideADeliveryKeepsTheOrder()
{
    Host host;
    auto* sender = new EventWidget(&host);
    host.action = [&] {
        host.action = nullptr;
        QCoreApplication::processEvents(); // as a modal dialog of the host does
    };
    for (const int event : {73, 87, 118})
        post(sender, event);
    WQ::deliverPostedPersonEvents();
    QCOMPARE(host.log,
             QStringList({QStringLiteral("73 0 0 \"\" null"), QStringLiteral("87 0 0 \"\" null"),
                          QStringLiteral("118 0 0 \"\" null")}));
}

void tst_PersonEvents::exceptionsAreCaughtAndSaidOnce()
{
    QTest::ignoreMessage(QtWarningMsg, "A listener threw from a person's event, which is dropped: refused");
    Host host;
    auto* sender = new EventWidget(&host);
    host.action = [&] {
        if (host.log.size() == 1)
            throw std::runtime_error("refused");
        if (host.log.size() == 2)
            throw 5;
    };
    for (const int event : {73, 87, 118})
        post(sender, event);
    WQ::deliverPostedPersonEvents();
    QCOMPARE(host.log.size(), 3);
}

void tst_PersonEvents::aNullSenderPostsNothing()
{
    Host host;
    auto* sender = new EventWidget(&host);
    WQ::postPersonEvent(nullptr, *sender, 73, 0, 0, {});
    WQ::deliverPostedPersonEvents();
    QCOMPARE(host.log, QStringList());
}

void tst_PersonEvents::aWatcherIsToldOfAnEventBeforeAnyListener()
{
    Host host;
    auto* sender = new EventWidget(&host);
    QStringList watched;
    WQ::watchPersonEvents([&](const QWidget& from, const WQ::PersonEvent& event) {
        QCOMPARE(&from, sender);
        QCOMPARE(host.log.size(), watched.size());
        watched << QStringLiteral("%1 %2 %3 \"%4\"")
                       .arg(QString::number(event.event), QString::number(event.a), QString::number(event.b),
                            event.text);
    });
    WQ::postPersonEvent(sender, *sender, 73, 1, 3, QStringLiteral("指定价"));
    WQ::postPersonEvent(sender, *sender, 248, 0, 0, {});
    QCOMPARE(watched, QStringList());
    WQ::deliverPostedPersonEvents();
    WQ::watchPersonEvents({});
    QCOMPARE(watched, QStringList({QStringLiteral("73 1 3 \"指定价\""), QStringLiteral("248 0 0 \"\"")}));
    QCOMPARE(host.log.size(), 2);
}

void tst_PersonEvents::aWatcherIsToldNothingOfAnEventThatIsDropped()
{
    int told = 0;
    WQ::watchPersonEvents([&](const QWidget&, const WQ::PersonEvent&) { ++told; });
    auto gone = std::make_unique<EventWidget>();
    post(gone.get(), 73);
    gone.reset();
    WQ::deliverPostedPersonEvents();
    WQ::watchPersonEvents({});
    QCOMPARE(told, 0);
}

void tst_PersonEvents::theWatcherBeforeComesBack()
{
    int first = 0;
    QVERIFY(!WQ::watchPersonEvents([&](const QWidget&, const WQ::PersonEvent&) { ++first; }));
    const WQ::PersonEventWatcher before = WQ::watchPersonEvents([](const QWidget&, const WQ::PersonEvent&) {});
    QVERIFY(before);
    before(QWidget(), {});
    QCOMPARE(first, 1);
    WQ::watchPersonEvents({});
}

QTEST_MAIN(tst_PersonEvents)
#include "tst_PersonEvents.moc"
