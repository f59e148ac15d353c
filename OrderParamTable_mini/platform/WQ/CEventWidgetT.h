#pragma once

#include <WQ/CEventDeliverer.h>

namespace WQ {

/// Any Qt widget class that also sends and receives toolkit events: it is the widget, it has no second one.
template <class Widget>
class CEventWidgetT : public Widget, public CEventDeliverer
{
public:
    /// As the widget class.
    using Widget::Widget;
};

} // namespace WQ
