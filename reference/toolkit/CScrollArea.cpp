#include <WQ/CScrollArea.h>

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/SlimScrollBar.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QCoreApplication>
#include <QPainter>
#include <QWheelEvent>

#include <utility>

namespace WQ {

namespace {

// What a wheel tells: eighths of a degree, 120 of them a notch.
constexpr double kNotch = 120;
constexpr int kRowsANotch = 2;

} // namespace

class CScrollAreaPrivate
{
public:
    explicit CScrollAreaPrivate(CScrollArea* area)
        : bar(new SlimScrollBar(Qt::Vertical, ground, area))
        , acrossBar(new SlimScrollBar(Qt::Horizontal, ground, area))
    {
    }

    int wheelPixels(const QWheelEvent& event);
    bool isLaidOut(const CScrollArea& area);

    QString ground = keys::kWindow;
    SlimScrollBar* const bar;
    SlimScrollBar* const acrossBar;
    double rest = 0;   ///< of a pixel, that a slow wheel has not scrolled yet
    int barWidth = -1; ///< of the bar as it stands
};

// What is laid out follows the sizes of the area and of its widget, and Qt acts on each of them as it changes; of a
// request only the bar's own width is new.
bool CScrollAreaPrivate::isLaidOut(const CScrollArea& area)
{
    const int width = bar->thickness();
    return std::exchange(barWidth, width) == width && !area.widgetResizable();
}

int CScrollAreaPrivate::wheelPixels(const QWheelEvent& event)
{
    const int row = resources::size(keys::kRowHeight, resources::scale());
    const double wanted =
        event.pixelDelta().isNull() ? event.angleDelta().y() / kNotch * kRowsANotch * row : event.pixelDelta().y();
    if (wanted * rest < 0)
        rest = 0;
    rest += wanted;
    const int pixels = static_cast<int>(rest);
    rest -= pixels;
    return pixels;
}

CScrollArea::CScrollArea(QWidget* parent)
    : CEventWidgetT<QScrollArea>(parent)
    , d(std::make_unique<CScrollAreaPrivate>(this))
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(false);
    setVerticalScrollBar(d->bar);
    // Never seen, but asked for its size at each layout; Qt's own asks the style then.
    setHorizontalScrollBar(d->acrossBar);
    // Content is as wide as the area or narrower by the bar; in between a second bar would only flicker.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
}

CScrollArea::~CScrollArea() = default;

void CScrollArea::setWidget(QWidget* widget)
{
    if (widget && widget != this && !widget->isAncestorOf(this))
        QScrollArea::setWidget(widget);
}

void CScrollArea::setBackgroundColorKey(QString key)
{
    d->ground = key;
    d->bar->setGroundKey(key);
    d->acrossBar->setGroundKey(key);
    viewport()->update();
}

int CScrollArea::getScrollBarWidth() const
{
    return d->bar->thickness();
}

void CScrollArea::themeChanged()
{
    viewport()->update();
}

void CScrollArea::scaleChanged()
{
    // The bar is told after its area, and what lays it out remembers its old size.
    d->bar->updateGeometry();
    QEvent layout(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(this, &layout);
    viewport()->update();
}

void CScrollArea::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    painter.fillRect(event->rect(), resources::color(d->ground));
}

// No animation, and no fixed lines: a fine wheel scrolls by the pixels that it says.
void CScrollArea::wheelEvent(QWheelEvent* event)
{
    const int before = d->bar->value();
    d->bar->setValue(before - d->wheelPixels(*event));
    event->setAccepted(d->bar->value() != before || d->rest != 0);
}

bool CScrollArea::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest && d->isLaidOut(*this))
        return true;
    const bool handled = CEventWidgetT<QScrollArea>::event(event);
    if (event->type() == QEvent::Polish || event->type() == QEvent::StyleChange)
        painting::shieldFromStyleSheet(this);
    return handled;
}

} // namespace WQ
