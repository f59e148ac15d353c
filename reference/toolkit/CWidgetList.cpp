#include <WQ/CWidgetList.h>

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QBoxLayout>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace WQ {

namespace {

int length(int pixels)
{
    return std::clamp(pixels, 0, QWIDGETSIZE_MAX);
}

} // namespace

class CWidgetListPrivate
{
public:
    CWidgetListPrivate(Qt::Orientation direction, CWidgetList* owner);
    int add(QWidget* widget, int stretch);
    bool canTake(const QWidget* widget) const;

    CWidgetList* const list;
    QBoxLayout* const layout;
};

// The last item takes the room that no other wants, so that widgets of a fixed place keep their own size.
CWidgetListPrivate::CWidgetListPrivate(Qt::Orientation direction, CWidgetList* owner)
    : list(owner)
    , layout(new QBoxLayout(direction == Qt::Vertical ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, owner))
{
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addStretch(0);
}

bool CWidgetListPrivate::canTake(const QWidget* widget) const
{
    return widget && widget != list && !widget->isAncestorOf(list);
}

int CWidgetListPrivate::add(QWidget* widget, int stretch)
{
    if (!canTake(widget))
        return -1;
    if (layout->indexOf(widget) >= 0)
        layout->removeWidget(widget);
    const int position = layout->count() - 1;
    layout->insertWidget(position, widget, stretch);
    return position;
}

CWidgetList::CWidgetList(Qt::Orientation orientation, QWidget* parent)
    : CEventWidgetT<QWidget>(parent)
    , d(std::make_unique<CWidgetListPrivate>(orientation, this))
{
}

CWidgetList::~CWidgetList() = default;

void CWidgetList::setMargin(int left, int top, int right, int bottom)
{
    d->layout->setContentsMargins(length(left), length(top), length(right), length(bottom));
}

void CWidgetList::setSpacing(int spacing)
{
    d->layout->setSpacing(length(spacing));
}

int CWidgetList::addStretchWidget(QWidget* widget, int stretch, EWidgetAnchor anchor, bool)
{
    return d->add(widget, std::max(length(stretch), anchor == AnchorFill ? 1 : 0));
}

int CWidgetList::addFixedWidget(QWidget* widget, EWidgetAnchor anchor, bool)
{
    return d->add(widget, anchor == AnchorFill ? 1 : 0);
}

int CWidgetList::addFixedSpace(int size)
{
    const int position = d->layout->count() - 1;
    d->layout->insertSpacing(position, length(size));
    return position;
}

void CWidgetList::themeChanged()
{
    update();
}

void CWidgetList::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painting::fillRegion(painter, event->region(), resources::color(keys::kWindow));
}

} // namespace WQ
