#include "workbench/TitleIcon.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>

namespace workbench {

TitleIcon::TitleIcon(Sign sign)
    : m_sign(sign)
{
}

void TitleIcon::paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State)
{
    const qreal edge = rect.width() / 4.0;
    const QRectF sign = QRectF(rect).adjusted(edge, edge, -edge, -edge);
    const QColor color = QApplication::palette().color(QPalette::PlaceholderText);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color, qMax(1.2, rect.width() / 12.0)));
    if (m_sign == Sign::Frame)
        painter->drawRect(sign);
    else
        painter->drawLines({QLineF(sign.topLeft(), sign.bottomRight()), QLineF(sign.bottomLeft(), sign.topRight())});
    painter->restore();
}

QPixmap TitleIcon::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, picture.rect(), mode, state);
    return picture;
}

QIconEngine* TitleIcon::clone() const
{
    return new TitleIcon(*this);
}

} // namespace workbench
