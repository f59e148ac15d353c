#include "reference/toolkit/Painting.h"

#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"
#include "reference/toolkit/cells/DeviceGrid.h"
#include "reference/toolkit/cells/TextCache.h"
#include "reference/toolkit/cells/TextFace.h"

#include <WQ/CBaseDialog.h>

#include <QFontMetrics>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace WQ::painting {

namespace {

constexpr int kMostCharacters = 300;

// What is painted on may be another device than the widget's: the widget is rendered into a picture, too.
qreal pixelRatio(const QPainter& painter)
{
    return std::abs(painter.deviceTransform().m11());
}

} // namespace

double scaleOf(const QWidget* widget)
{
    return widget && qobject_cast<const CBaseDialog*>(widget->window()) ? 1.0 : resources::scale();
}

double buttonScaleOf(const QWidget* widget)
{
    const double atOne = resources::font(keys::kTextFont, 1.0).pixelSize();
    return std::min(scaleOf(widget), resources::size(keys::kStripTextMax, 1.0) / atOne);
}

// In a region of many rectangles Qt cuts every line of pixels to it, which costs several times what the pixels do;
// under a clip of one rectangle it fills.
void fillRegion(QPainter& painter, const QRegion& region, const QColor& color)
{
    for (const QRect& part : region) {
        painter.setClipRect(part);
        painter.fillRect(part, color);
    }
}

void drawFrame(QPainter& painter, const QRect& rect, const QColor& color)
{
    DeviceGrid(painter).fillFrame(painter, rect, color);
}

void drawOuterFrame(QPainter& painter, const QRect& rect, const QColor& color)
{
    const QRect edges[] = {
        {rect.left(), rect.top(), rect.width(), 1},
        {rect.left(), rect.bottom(), rect.width(), 1},
        {rect.left(), rect.top(), 1, rect.height()},
        {rect.right(), rect.top(), 1, rect.height()},
    };
    for (const QRect& edge : edges) {
        painter.setClipRect(edge);
        drawFrame(painter, rect, color);
    }
}

void drawText(QPainter& painter, const QRect& rect, const QFont& font, const QColor& color, Qt::Alignment alignment,
              const QString& text)
{
    if (text.isEmpty() || rect.isEmpty())
        return;
    const QFontMetrics metrics(font);
    const QString shown = metrics.elidedText(shownText(text), Qt::ElideRight, rect.width());
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(rect, static_cast<int>(alignment) | Qt::TextSingleLine, shown);
}

void drawTextOn(QPainter& painter, const QColor& ground, const QRect& rect, const QFont& font, const QColor& color,
                Qt::AlignmentFlag side, const QString& text)
{
    if (text.isEmpty() || rect.isEmpty())
        return;
    const texts::Face& face = texts::faceOf(font);
    if ((rect.height() - face.height()) % 2 != 0) { // half a pixel, which pictures have not
        drawText(painter, rect, font, color, side | Qt::AlignVCenter, text);
        return;
    }
    const QString shown = texts::elided(texts::oneLine(text), face, rect.width());
    const int spare = side == Qt::AlignRight ? rect.width() - texts::width(shown, face) : 0;
    texts::Pen(painter, face, DeviceGrid(painter).pictureRatio())
        .draw(rect.adjusted(spare, 0, 0, 0), shown, color, ground);
}

void drawImage(QPainter& painter, const QRect& rect, const QString& key, const QColor& tint, int edge)
{
    if (key.isEmpty() || edge <= 0)
        return;
    const QPixmap image = resources::image(key, tint, QSize(edge, edge), pixelRatio(painter));
    painter.drawPixmap(rect.left() + (rect.width() - edge) / 2, rect.top() + (rect.height() - edge) / 2, image);
}

QString shownText(const QString& text)
{
    return text.size() <= kMostCharacters ? text : text.left(kMostCharacters) + QChar(0x2026);
}

int textWidth(const QFont& font, const QString& text)
{
    return texts::width(shownText(text), texts::faceOf(font));
}

void shieldFromStyleSheet(QWidget* widget)
{
    if (!widget->style()->inherits("QStyleSheetStyle") || !widget->styleSheet().isEmpty())
        return;
    const QString name = QString::fromLatin1(widget->metaObject()->className());
    widget->setStyleSheet(QStringLiteral("%1 { border: none; padding: 0; margin: 0; background: transparent; }")
                              .arg(QString(name).replace(QStringLiteral("::"), QStringLiteral("--"))));
}

void showToolTip(const QHelpEvent& asked, const QString& text, QWidget* widget)
{
    const QString markup =
        text.isEmpty() ? QString() : QStringLiteral("<span>%1</span>").arg(shownText(text).toHtmlEscaped());
    QToolTip::showText(asked.globalPos(), markup, widget);
}

} // namespace WQ::painting
