#include <WQ/CBaseWidget.h>

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QPainter>
#include <QPointer>

#include <utility>

namespace WQ {

class CBaseWidgetPrivate
{
public:
    bool active = false;
    bool fixFont = false;
};

CBaseWidget::CBaseWidget(QString objectName, bool active, QWidget* parent)
    : CEventWidgetT<QWidget>(parent)
    , d(std::make_unique<CBaseWidgetPrivate>())
{
    setObjectName(objectName);
    d->active = active;
}

CBaseWidget::~CBaseWidget()
{
    // Each of its parts would ask for a repaint of its place; the place of the whole is asked for after them.
    setUpdatesEnabled(false);
}

bool CBaseWidget::handleEvent(int, int, int, QString, void*)
{
    return false;
}

void CBaseWidget::themeChanged()
{
    update();
}

void CBaseWidget::scaleChanged()
{
    if (d->fixFont)
        setFont(resources::font(keys::kTextFont, painting::scaleOf(this)));
    update();
}

void CBaseWidget::setFixFont()
{
    d->fixFont = true;
    setFont(resources::font(keys::kTextFont, painting::scaleOf(this)));
}

QRect CBaseWidget::getMaskRect() const
{
    return rect();
}

void CBaseWidget::setActive(bool active, bool takeFocus)
{
    const bool changed = std::exchange(d->active, active) != active;
    if (!active)
        return;
    const QPointer<CBaseWidget> self(this);
    if (takeFocus)
        setFocus(Qt::OtherFocusReason);
    if (changed && self)
        onActive();
}

void CBaseWidget::onActive()
{
}

void CBaseWidget::paintBackgroud(QPainter& painter)
{
    painter.fillRect(rect(), resources::color(keys::kWindow));
}

void CBaseWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintBackgroud(painter);
}

} // namespace WQ
