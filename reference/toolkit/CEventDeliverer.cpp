#include <WQ/CEventDeliverer.h>

#include "reference/toolkit/GuiThread.h"

#include <QPointer>
#include <QWidget>

namespace WQ {

namespace {

constexpr int kDeepestDelivery = 64;

// A listener that answers each event by causing several would still run for ages under a limit of depth alone. Once
// the depth was reached, this many deliveries are left until the outermost one has unwound.
constexpr int kDeliveriesAfterCutOff = 4096;

/// One delivery under way.
class DeliveryScope
{
public:
    DeliveryScope()
    {
        ++s_depth;
        if (s_depth > kDeepestDelivery && !s_cutOff) {
            s_cutOff = true;
            s_left = kDeliveriesAfterCutOff;
        }
    }

    DeliveryScope(const DeliveryScope&) = delete;
    DeliveryScope& operator=(const DeliveryScope&) = delete;

    ~DeliveryScope()
    {
        if (--s_depth == 0)
            s_cutOff = false;
    }

    /// Takes one delivery of what is left; false when it must not be made.
    bool take()
    {
        return s_depth <= kDeepestDelivery && (!s_cutOff || s_left-- > 0);
    }

private:
    static thread_local int s_depth;
    static thread_local bool s_cutOff;
    static thread_local int s_left;
};

thread_local int DeliveryScope::s_depth = 0;
thread_local bool DeliveryScope::s_cutOff = false;
thread_local int DeliveryScope::s_left = 0;

void reportCutOff(int event)
{
    static bool said = false;
    if (said)
        return;
    said = true;
    qWarning("CEventDeliverer: event %d cut off, %d deliveries stand inside each other", event, kDeepestDelivery);
}

} // namespace

CEventDeliverer::CEventDeliverer() = default;

CEventDeliverer::~CEventDeliverer() = default;

void CEventDeliverer::deliverEvent(int event, int a, int b, QString text, void* data)
{
    checkGuiThread("CEventDeliverer::deliverEvent");
    DeliveryScope delivery;
    if (!delivery.take()) {
        reportCutOff(event);
        return;
    }
    // A listener may delete anything, this object first of all: from here on only the guarded step is looked at.
    const QWidget* sender = dynamic_cast<QWidget*>(this);
    QPointer<QWidget> step = sender ? sender->parentWidget() : nullptr;
    while (step) {
        auto* listener = dynamic_cast<CEventDeliverer*>(step.data());
        if (listener && listener->handleEvent(event, a, b, text, data))
            return;
        step = step ? step->parentWidget() : nullptr;
    }
}

bool CEventDeliverer::handleEvent(int, int, int, QString, void*)
{
    return false;
}

} // namespace WQ
