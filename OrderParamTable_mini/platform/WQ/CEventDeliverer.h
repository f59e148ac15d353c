#pragma once

#include <WQ/WqExport.h>

#include <QString>

namespace WQ {

/// The base of every toolkit widget that sends or receives the toolkit's numbered events.
///
/// A host listens by placing a CEventDeliverer of its own among the ancestors of the widget.
class WQ_EXPORT CEventDeliverer
{
public:
    CEventDeliverer();
    CEventDeliverer(const CEventDeliverer&) = delete;
    CEventDeliverer& operator=(const CEventDeliverer&) = delete;
    virtual ~CEventDeliverer();

    /// Sends an event up the parent widgets, windows included: each ancestor that is a CEventDeliverer gets
    /// handleEvent(), until one answers true or is gone. Synchronous. The sender may be deleted on the way; callers
    /// touch nothing of it afterwards unless they know it to be alive. @p data is the sender's and is valid during the
    /// call only. More than 64 deliveries inside each other are cut off and reported once.
    void deliverEvent(int event, int a, int b, QString text, void* data);

    /// Receives an event; answers whether it was handled for good. This one answers false.
    virtual bool handleEvent(int event, int a, int b, QString text, void* data);
};

} // namespace WQ
