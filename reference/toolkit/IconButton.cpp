#include "reference/toolkit/IconButton.h"

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace WQ {

namespace {

// Arrow keys are for the widget around the button, which knows its neighbours.
bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

} // namespace

IconButton::IconButton(QString imageKey, QString sizeKey, QWidget* parent)
    : QAbstractButton(parent)
    , m_imageKey(std::move(imageKey))
    , m_sizeKey(std::move(sizeKey))
{
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
}

void IconButton::keepTexts(std::function<void(IconButton&)> setTexts)
{
    m_setTexts = std::move(setTexts);
    m_setTexts(*this);
}

void IconButton::setDot(bool dot)
{
    if (std::exchange(m_dot, dot) == dot)
        return;
    if (m_setTexts)
        m_setTexts(*this);
    update();
}

void IconButton::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && m_setTexts)
        m_setTexts(*this);
    QAbstractButton::changeEvent(event);
}

void IconButton::themeChanged()
{
    update();
}

void IconButton::scaleChanged()
{
    updateGeometry();
    update();
}

QSize IconButton::sizeHint() const
{
    const int edge = resources::size(m_sizeKey, painting::buttonScaleOf(this));
    return {edge, edge};
}

void IconButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const bool live = isEnabled() && (underMouse() || isDown());
    painter.fillRect(rect(), resources::color(live ? keys::kRowMouse : keys::kWindow));
    const int edge = sizeHint().width();
    painting::drawImage(painter, rect(), m_imageKey, resources::color(live ? keys::kValue : keys::kUnit), edge);
    if (m_dot)
        paintDot(painter, edge);
    if (hasFocus())
        painting::drawFrame(painter, rect(), resources::color(keys::kAccent));
}

void IconButton::paintDot(QPainter& painter, int edge) const
{
    const int dot = resources::size(keys::kCriticalDot, painting::buttonScaleOf(this));
    const int left = std::min((width() + edge) / 2 - dot * 2 / 3, width() - dot);
    const int top = std::max((height() - edge) / 2 - dot / 3, 0);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(resources::color(keys::kNotice));
    painter.drawEllipse(QRect(left, top, dot, dot));
}

void IconButton::keyPressEvent(QKeyEvent* event)
{
    if (isArrow(event->key()) || !isVisibleTo(window()))
        event->ignore();
    else
        QAbstractButton::keyPressEvent(event);
}

} // namespace WQ
