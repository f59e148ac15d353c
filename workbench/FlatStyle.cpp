#include "workbench/FlatStyle.h"

#include "workbench/TitleIcon.h"

#include "reference/toolkit/Resources.h"

#include <QApplication>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

namespace workbench {

namespace {

constexpr int kTabUnderline = 2;
constexpr int kScrollBarWidth = 8;
constexpr int kSmallestHandle = 24;
constexpr int kArrowWidth = 20;
constexpr int kFieldMargin = 3;
constexpr int kTitleIcon = 16;

int scaledBy(int size)
{
    return WQ::resources::scaled(size, WQ::resources::scale());
}

/// A handle without buttons at its ends.
QRect scrollBarRect(const QStyleOptionSlider& bar, QStyle::SubControl part)
{
    if (part == QStyle::SC_ScrollBarAddLine || part == QStyle::SC_ScrollBarSubLine)
        return {};
    if (part == QStyle::SC_ScrollBarGroove)
        return bar.rect;
    const bool isVertical = bar.orientation == Qt::Vertical;
    const int room = isVertical ? bar.rect.height() : bar.rect.width();
    const double all = double(bar.maximum) - bar.minimum + bar.pageStep;
    const int length = qBound(qMin(room, kSmallestHandle), int(room * (bar.pageStep / qMax(1.0, all))), room);
    const int start =
        QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition, room - length, bar.upsideDown);
    const bool isAfter = part == QStyle::SC_ScrollBarAddPage;
    const bool isBefore = part == QStyle::SC_ScrollBarSubPage;
    const int from = isAfter ? start + length : isBefore ? 0 : start;
    const int size = isAfter ? room - from : isBefore ? start : length;
    return isVertical ? QRect(bar.rect.left(), bar.rect.top() + from, bar.rect.width(), size)
                      : QRect(bar.rect.left() + from, bar.rect.top(), size, bar.rect.height());
}

QColor frameColor(const QStyleOption& option)
{
    const bool hasFocus = option.state & QStyle::State_HasFocus && option.state & QStyle::State_Enabled;
    return option.palette.color(hasFocus ? QPalette::Link : QPalette::Mid);
}

/// A filled rectangle with a frame one pixel wide inside it.
void drawBox(QPainter& painter, const QRect& rect, const QColor& ground, const QColor& frame)
{
    painter.fillRect(rect, frame);
    painter.fillRect(rect.adjusted(1, 1, -1, -1), ground);
}

void drawHairline(QPainter& painter, const QRect& rect, const QColor& color)
{
    painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), color);
}

/// An open angle that points down, or up, in the middle of @p rect.
void drawChevron(QPainter& painter, const QRect& rect, const QColor& color, bool down)
{
    const qreal reach = qMin(rect.width(), rect.height()) / 5.0;
    const qreal drop = down ? reach / 2.0 : -reach / 2.0;
    const QPointF centre = QRectF(rect).center();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, qMax(1.2, reach / 3.0), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF points[] = {centre + QPointF(-reach, -drop), centre + QPointF(0.0, drop),
                              centre + QPointF(reach, -drop)};
    painter.drawPolyline(points, 3);
    painter.restore();
}

void drawTick(QPainter& painter, const QRect& rect, const QColor& color)
{
    const QRectF box(rect);
    const auto at = [&box](qreal x, qreal y) { return box.topLeft() + QPointF(box.width() * x, box.height() * y); };
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, box.width() / 8.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF points[] = {at(0.25, 0.52), at(0.43, 0.7), at(0.76, 0.32)};
    painter.drawPolyline(points, 3);
    painter.restore();
}

void drawCheckBox(QPainter& painter, const QStyleOption& option)
{
    const bool enabled = option.state & QStyle::State_Enabled;
    const QPalette& palette = option.palette;
    if (!(option.state & QStyle::State_On)) {
        const QColor frame =
            palette.color(option.state & QStyle::State_MouseOver ? QPalette::Link : QPalette::PlaceholderText);
        return drawBox(painter, option.rect, palette.color(QPalette::Base), frame);
    }
    const QColor ground = palette.color(enabled ? QPalette::Link : QPalette::PlaceholderText);
    drawBox(painter, option.rect, ground, ground);
    drawTick(painter, option.rect, palette.color(enabled ? QPalette::BrightText : QPalette::Window));
}

void drawButton(QPainter& painter, const QStyleOption& option)
{
    const bool pressed = option.state & (QStyle::State_Sunken | QStyle::State_On);
    const bool hover = option.state & QStyle::State_MouseOver && option.state & QStyle::State_Enabled;
    const QPalette::ColorRole ground = pressed ? QPalette::Highlight : hover ? QPalette::Light : QPalette::Button;
    drawBox(painter, option.rect, option.palette.color(ground), frameColor(option));
}

void drawTab(QPainter& painter, const QStyleOptionTab& tab)
{
    const bool chosen = tab.state & QStyle::State_Selected;
    painter.fillRect(tab.rect, tab.palette.color(chosen ? QPalette::Button : QPalette::Window));
    if (!chosen)
        return drawHairline(painter, tab.rect, tab.palette.color(QPalette::Mid));
    // Dock tabs stand under their contents: the line is at the side that joins them.
    const bool below = tab.shape == QTabBar::RoundedSouth || tab.shape == QTabBar::TriangularSouth;
    const int top = below ? tab.rect.top() : tab.rect.bottom() + 1 - kTabUnderline;
    painter.fillRect(QRect(tab.rect.left(), top, tab.rect.width(), kTabUnderline), tab.palette.color(QPalette::Link));
}

} // namespace

FlatStyle::FlatStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{
}

void FlatStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    switch (element) {
    case PE_PanelLineEdit: {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        if (frame && frame->lineWidth > 0)
            drawBox(*painter, option->rect, option->palette.color(QPalette::Base), frameColor(*option));
        return;
    }
    case PE_FrameLineEdit:
    case PE_FrameTabBarBase:
    case PE_FrameTabWidget:
        return;
    case PE_Frame:
        painter->setPen(option->palette.color(QPalette::Mid));
        return painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    case PE_FrameFocusRect:
        painter->setPen(option->palette.color(QPalette::Link));
        return painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    case PE_PanelButtonCommand:
        return drawButton(*painter, *option);
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        return drawCheckBox(*painter, *option);
    default:
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void FlatStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    switch (element) {
    case CE_HeaderSection:
    case CE_HeaderEmptyArea:
        painter->fillRect(option->rect, option->palette.color(QPalette::Window));
        return drawHairline(*painter, option->rect, option->palette.color(QPalette::Mid));
    case CE_DockWidgetTitle:
        // Else Qt paints it in the font that the program started with.
        painter->setFont(QApplication::font());
        return QProxyStyle::drawControl(element, option, painter, widget);
    case CE_TabBarTabShape:
        if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option))
            drawTab(*painter, *tab);
        return;
    case CE_MenuBarItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
            drawMenuBarItem(*item, *painter);
        return;
    case CE_MenuBarEmptyArea:
        return painter->fillRect(option->rect, option->palette.color(QPalette::Window));
    default:
        return QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void FlatStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                   const QWidget* widget) const
{
    if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option))
        drawComboBox(*combo, *painter, widget);
    else if (const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option))
        drawSpinBox(*spin, *painter, widget);
    else if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option); bar && control == CC_ScrollBar)
        drawScrollBar(*bar, *painter, widget);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void FlatStyle::drawMenuBarItem(const QStyleOptionMenuItem& item, QPainter& painter) const
{
    const bool chosen = item.state & (State_Selected | State_Sunken) && item.state & State_Enabled;
    painter.fillRect(item.rect, item.palette.color(chosen ? QPalette::Highlight : QPalette::Window));
    drawItemText(&painter, item.rect, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextDontClip | Qt::TextSingleLine,
                 item.palette, item.state & State_Enabled, item.text, QPalette::WindowText);
}

void FlatStyle::drawComboBox(const QStyleOptionComboBox& option, QPainter& painter, const QWidget* widget) const
{
    drawBox(painter, option.rect, option.palette.color(QPalette::Base), frameColor(option));
    const QRect arrow = subControlRect(CC_ComboBox, &option, SC_ComboBoxArrow, widget);
    drawChevron(painter, arrow, option.palette.color(QPalette::PlaceholderText), true);
}

void FlatStyle::drawSpinBox(const QStyleOptionSpinBox& option, QPainter& painter, const QWidget* widget) const
{
    drawBox(painter, option.rect, option.palette.color(QPalette::Base), frameColor(option));
    const QColor color = option.palette.color(QPalette::PlaceholderText);
    drawChevron(painter, subControlRect(CC_SpinBox, &option, SC_SpinBoxUp, widget), color, false);
    drawChevron(painter, subControlRect(CC_SpinBox, &option, SC_SpinBoxDown, widget), color, true);
}

void FlatStyle::drawScrollBar(const QStyleOptionSlider& option, QPainter& painter, const QWidget* widget) const
{
    painter.fillRect(option.rect, option.palette.color(QPalette::Window));
    const QRect handle = subControlRect(CC_ScrollBar, &option, SC_ScrollBarSlider, widget);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.color(QPalette::Mid));
    const qreal radius = qMin(handle.width(), handle.height()) / 2.0;
    painter.drawRoundedRect(QRectF(handle), radius, radius);
    painter.restore();
}

QRect FlatStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                const QWidget* widget) const
{
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option); bar && control == CC_ScrollBar)
        return scrollBarRect(*bar, part);
    const int arrow = scaledBy(kArrowWidth);
    if (control == CC_ComboBox && part == SC_ComboBoxArrow)
        return option->rect.adjusted(option->rect.width() - arrow, 0, 0, 0);
    if (control == CC_ComboBox && part == SC_ComboBoxEditField)
        return option->rect.adjusted(kFieldMargin, 1, -arrow, -1);
    if (control == CC_SpinBox && part == SC_SpinBoxEditField)
        return option->rect.adjusted(kFieldMargin, 1, -arrow, -1);
    if (control == CC_SpinBox && (part == SC_SpinBoxUp || part == SC_SpinBoxDown)) {
        const QRect both = option->rect.adjusted(option->rect.width() - arrow, 1, 0, -1);
        const int half = both.height() / 2;
        return part == SC_SpinBoxUp ? both.adjusted(0, 0, 0, half - both.height()) : both.adjusted(0, half, 0, 0);
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

/// Qt makes room for arrows as wide as at scale 1.
QSize FlatStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                  const QWidget* widget) const
{
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type != CT_SpinBox && type != CT_ComboBox)
        return size;
    return size.expandedTo({contents.width() + 2 * kFieldMargin + scaledBy(kArrowWidth), 0});
}

QIcon FlatStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    switch (icon) {
    case SP_TitleBarCloseButton:
        return QIcon(new TitleIcon(TitleIcon::Sign::Cross));
    case SP_TitleBarNormalButton:
        return QIcon(new TitleIcon(TitleIcon::Sign::Frame));
    default:
        return QProxyStyle::standardIcon(icon, option, widget);
    }
}

/// What Qt draws beside texts grows with them.
int FlatStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_DockWidgetSeparatorExtent:
        return 5;
    case PM_TitleBarButtonIconSize:
        return scaledBy(kTitleIcon);
    case PM_ScrollBarExtent:
        return scaledBy(kScrollBarWidth);
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_CheckBoxLabelSpacing:
    case PM_SmallIconSize:
    case PM_TabBarTabHSpace:
    case PM_TabBarTabVSpace:
        return scaledBy(QProxyStyle::pixelMetric(metric, option, widget));
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int FlatStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* answer) const
{
    // The entries of a combo open below it, as in the panel.
    return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, answer);
}

} // namespace workbench
