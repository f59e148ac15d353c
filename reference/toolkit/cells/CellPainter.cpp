#include "reference/toolkit/cells/CellPainter.h"

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"
#include "reference/toolkit/cells/CellItem.h"
#include "reference/toolkit/cells/DeviceGrid.h"
#include "reference/toolkit/cells/TextCache.h"

#include <QPainter>

namespace WQ {

namespace {

// The colours keep their addresses for the life of the process and follow the theme.
struct Palette
{
    const QColor& window = resources::color(keys::kWindow);
    const QColor& row = resources::color(keys::kRow);
    const QColor& rowFocus = resources::color(keys::kRowFocus);
    const QColor& rowMouse = resources::color(keys::kRowMouse);
    const QColor& wrongFill = resources::color(keys::kWrongFill);
    const QColor& wrongFrame = resources::color(keys::kWrongFrame);
    const QColor& separator = resources::color(keys::kSeparator);
    const QColor& accent = resources::color(keys::kAccent);
    const QColor& notice = resources::color(keys::kNotice);
    const QColor& label = resources::color(keys::kLabel);
    const QColor& value = resources::color(keys::kValue);
    const QColor& unit = resources::color(keys::kUnit);
    const QColor& checkMark = resources::color(keys::kCheckMark);
};

const Palette& palette()
{
    static const Palette colors;
    return colors;
}

// One step darker for what cannot be used: the value as a label, the label as a unit.
const QColor& valueColor(bool enabled)
{
    return enabled ? palette().value : palette().label;
}

const QColor& labelColor(bool enabled)
{
    return enabled ? palette().label : palette().unit;
}

const QColor& unitColor(const RowState& state)
{
    return state.enabled && state.unitMouse ? palette().value : palette().unit;
}

const QColor& groundOf(const RowState& state)
{
    if (state.wrong)
        return palette().wrongFill;
    if (state.focus)
        return palette().rowFocus;
    return state.mouse && state.enabled ? palette().rowMouse : palette().row;
}

QRect centred(const QRect& area, int size)
{
    return QRect(area.left(), area.top() + (area.height() - size) / 2, size, size);
}

void drawImage(QPainter& painter, const QString& key, const QColor& tint, const QRect& rect)
{
    painting::drawImage(painter, rect, key, tint, rect.width());
}

class TextPen
{
public:
    TextPen(QPainter& painter, const RowMetrics& metrics)
        : m_painter(painter)
        , m_metrics(metrics)
    {
        m_painter.setFont(metrics.font);
    }

    void draw(const QRect& area, const QString& text, const QColor& color, bool right = false)
    {
        if (text.isEmpty())
            return;
        const int left = right ? area.right() + 1 - texts::width(text, m_metrics.font) : area.left();
        m_painter.setPen(color);
        texts::draw(m_painter, QPoint(left, area.top() + (area.height() - m_metrics.textHeight) / 2), text,
                    m_metrics.font);
    }

private:
    QPainter& m_painter;
    const RowMetrics& m_metrics;
};

void paintMarks(QPainter& painter, const DeviceGrid& grid, const QRect& row, const CellItem& cell,
                const RowMetrics& metrics, const RowState& state)
{
    if (!cell.offGridText().isEmpty())
        painter.fillRect(grid.aligned(QRectF(row.left(), row.top(), metrics.bar, row.height() - 1)), palette().notice);
    if (state.wrong)
        grid.fillFrame(painter, row, palette().wrongFrame);
    else if (state.focus)
        grid.fillFrame(painter, row, palette().accent);
}

void paintCheck(QPainter& painter, TextPen& pen, const CellItem& cell, const RowLayout& layout,
                const RowMetrics& metrics, bool enabled)
{
    if (layout.check.isEmpty())
        return;
    const QRect box = centred(layout.check, metrics.checkBox);
    paintCheckBox(painter, box, cell.isChecked(), enabled);
    pen.draw(layout.check.adjusted(metrics.checkBox + metrics.gap / 2, 0, 0, 0), layout.checkText, labelColor(enabled));
}

} // namespace

void paintRow(QPainter& painter, const QRect& row, const CellItem& cell, const RowLayout& layout,
              const RowMetrics& metrics, const RowState& state)
{
    const DeviceGrid grid(painter);
    painter.fillRect(grid.aligned(row), groundOf(state));
    grid.fillBottomLine(painter, row, palette().separator);
    TextPen pen(painter, metrics);
    pen.draw(layout.label, layout.labelText, labelColor(state.enabled));
    if (!state.editing)
        pen.draw(layout.value, layout.valueText, valueColor(state.enabled), true);
    pen.draw(layout.unit, layout.unitText, unitColor(state));
    if (!layout.chevron.isEmpty())
        drawImage(painter, keys::kChevronImage, unitColor(state), centred(layout.chevron, metrics.chevron));
    paintCheck(painter, pen, cell, layout, metrics, state.enabled);
    paintMarks(painter, grid, row, cell, metrics, state);
}

void paintCheckBox(QPainter& painter, const QRect& box, bool checked, bool enabled)
{
    const DeviceGrid grid(painter);
    const QColor& color = !checked ? palette().unit : enabled ? palette().accent : palette().label;
    const qreal radius = box.width() / 6.0;
    const qreal line = grid.pixel().width();
    const QRectF edge = grid.aligned(box).adjusted(line / 2, line / 2, -line / 2, -line / 2);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, line));
    painter.setBrush(checked ? QBrush(color) : Qt::NoBrush);
    painter.drawRoundedRect(edge, radius, radius);
    painter.restore();
    if (checked)
        drawImage(painter, keys::kCheckImage, palette().checkMark, box);
}

void paintFooter(QPainter& painter, const QRect& footer, const RowMetrics& metrics, const FooterState& state)
{
    const DeviceGrid grid(painter);
    painter.fillRect(grid.aligned(footer), state.mouse && state.enabled ? palette().rowMouse : palette().row);
    const QColor& color = !state.enabled ? palette().unit
        : state.active                   ? palette().accent
        : state.mouse                    ? palette().value
                                         : palette().label;
    const QRect icon(footer.right() + 1 - metrics.padding - metrics.chevron, footer.top(), metrics.chevron,
                     footer.height());
    drawImage(painter, keys::kFilterImage, color, centred(icon, metrics.chevron));
    TextPen pen(painter, metrics);
    pen.draw(QRect(footer.topLeft(), QPoint(icon.left() - metrics.gap, footer.bottom())), QStringLiteral("筛选"), color,
             true);
    if (state.focus)
        grid.fillFrame(painter, footer, palette().accent);
}

void paintGround(QPainter& painter, const QRect& rect)
{
    painter.fillRect(DeviceGrid(painter).aligned(rect), palette().window);
}

} // namespace WQ
