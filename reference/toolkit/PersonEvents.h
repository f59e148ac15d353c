#pragma once

#include <WQ/CEventDeliverer.h>

#include <QVariant>

#include <functional>

class QWidget;

namespace WQ {

/// Queues an event that a person caused: it is delivered from @p deliverer when Qt's own handler has unwound, in the
/// order of the posts of all senders, and dropped when @p sender is gone by then. @p deliverer is a base of @p sender
/// or dies with it. With @p withData listeners get a pointer to the event's own copy of @p data, else null. What a
/// listener throws is caught, reported once a process, and dropped.
WQ_EXPORT void postPersonEvent(QWidget* sender, CEventDeliverer& deliverer, int event, int a, int b, QString text,
                               QVariant data = QVariant(), bool withData = false);

/// An event that a person caused, on its way out.
struct PersonEvent
{
    int event = 0;
    int a = 0;
    int b = 0;
    QString text;
};

using PersonEventWatcher = std::function<void(const QWidget& sender, const PersonEvent& event)>;

/// Has every person's event told to @p watcher right before it is delivered, so also those that a table answers itself
/// and its host never hears: what was committed still stands as it was. The watcher changes nothing and throws nothing.
/// One watcher a process; an empty one ends it. @returns the one before
WQ_EXPORT PersonEventWatcher watchPersonEvents(PersonEventWatcher watcher);

/// Delivers the events that are queued now; those that their listeners cause stay queued.
WQ_EXPORT void deliverPostedPersonEvents();

} // namespace WQ
