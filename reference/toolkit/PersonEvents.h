#pragma once

#include <WQ/CEventDeliverer.h>

#include <QVariant>

class QWidget;

namespace WQ {

/// Queues an event that a person caused: it is delivered from @p deliverer when Qt's own handler has unwound, in the
/// order of the posts of all senders, and dropped when @p sender is gone by then. @p deliverer is a base of @p sender
/// or dies with it. With @p withData listeners get a pointer to the event's own copy of @p data, else null. What a
/// listener throws is caught, reported once a process, and dropped.
WQ_EXPORT void postPersonEvent(QWidget* sender, CEventDeliverer& deliverer, int event, int a, int b, QString text,
                               QVariant data = QVariant(), bool withData = false);

/// Delivers the events that are queued now; those that their listeners cause stay queued.
WQ_EXPORT void deliverPostedPersonEvents();

} // namespace WQ
