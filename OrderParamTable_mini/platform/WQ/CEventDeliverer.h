#pragma once

#include <WQ/WqExport.h>

#include <QString>

namespace WQ {

/// The base of every toolkit widget that sends or receives the toolkit's numbered events.
///
/// A host listens by placing a CEventDeliverer of its own among the ancestors of the widget. GUI thread only.
class WQ_EXPORT CEventDeliverer
{
public:
    /// Sends from the widget that it is a base of; without one nobody hears.
    CEventDeliverer();
    CEventDeliverer(const CEventDeliverer&) = delete;
    CEventDeliverer& operator=(const CEventDeliverer&) = delete;
    virtual ~CEventDeliverer();

    /// Sends an event up the parent widgets, windows included: each ancestor that is a CEventDeliverer gets
    /// handleEvent(), until one answers true or is gone. Synchronous. The sender may be deleted on the way; callers
    /// touch nothing of it afterwards unless they know it to be alive. What a listener throws passes through. More than
    /// 64 deliveries inside each other are cut off and reported once.
    /// @param event the event's number
    /// @param a its first number
    /// @param b its second number
    /// @param text its text
    /// @param data the sender's, valid during the call only; of the type that the event's number says, or null
    void deliverEvent(int event, int a, int b, QString text, void* data);

    /// Receives an event; a host overrides it. This one answers false.
    /// @param event the event's number
    /// @param a its first number
    /// @param b its second number
    /// @param text its text
    /// @param data its data, valid during the call only
    /// @return whether it was handled for good
    virtual bool handleEvent(int event, int a, int b, QString text, void* data);
};

} // namespace WQ
