#include "reference/toolkit/PersonEvents.h"

#include "reference/toolkit/GuiThread.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <exception>
#include <utility>

namespace WQ {

namespace {

QEvent::Type personEventType()
{
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

PersonEventWatcher& theWatcher()
{
    static PersonEventWatcher watcher;
    return watcher;
}

struct PostedEvent : QEvent
{
    PostedEvent(QWidget* who, CEventDeliverer& from)
        : QEvent(personEventType())
        , sender(who)
        , deliverer(from)
    {
    }

    QPointer<QWidget> sender;
    CEventDeliverer& deliverer;
    PersonEvent person;
    QVariant data;
    bool withData = false;
};

void reportException(const char* what)
{
    static bool said = false;
    if (said)
        return;
    said = true;
    qWarning("A listener threw from a person's event, which is dropped: %s", what);
}

/// Receives the queued events of all senders, so that they keep one order. Nothing may be thrown through Qt's loop.
class Dispatcher : public QObject
{
public:
    using QObject::QObject;

protected:
    void customEvent(QEvent* received) override
    {
        if (received->type() != personEventType())
            return;
        auto& posted = static_cast<PostedEvent&>(*received);
        if (!posted.sender)
            return;
        const PersonEvent& person = posted.person;
        if (theWatcher())
            theWatcher()(*posted.sender, person);
        try {
            posted.deliverer.deliverEvent(person.event, person.a, person.b, person.text,
                                          posted.withData ? &posted.data : nullptr);
        } catch (const std::exception& exception) {
            reportException(exception.what());
        } catch (...) {
            reportException("not a standard exception");
        }
    }
};

/// Lives as long as the application object; null without one.
Dispatcher* dispatcher()
{
    static QPointer<Dispatcher> theDispatcher;
    if (!theDispatcher && QCoreApplication::instance())
        theDispatcher = new Dispatcher(QCoreApplication::instance());
    return theDispatcher;
}

} // namespace

void postPersonEvent(QWidget* sender, CEventDeliverer& deliverer, int event, int a, int b, QString text, QVariant data,
                     bool withData)
{
    checkGuiThread("postPersonEvent");
    Dispatcher* receiver = dispatcher();
    if (!sender || !receiver)
        return;
    auto* posted = new PostedEvent(sender, deliverer);
    posted->person = {event, a, b, std::move(text)};
    posted->data = std::move(data);
    posted->withData = withData;
    QCoreApplication::postEvent(receiver, posted);
}

PersonEventWatcher watchPersonEvents(PersonEventWatcher watcher)
{
    checkGuiThread("watchPersonEvents");
    return std::exchange(theWatcher(), std::move(watcher));
}

void deliverPostedPersonEvents()
{
    if (Dispatcher* receiver = dispatcher())
        QCoreApplication::sendPostedEvents(receiver, personEventType());
}

} // namespace WQ
