#include "reference/toolkit/cells/CellPainter.h"

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"
#include "reference/toolkit/Wording.h"
#include "reference/toolkit/cells/CellItem.h"
#include "reference/toolkit/cells/TextFace.h"

#include <QPainter>
#include <QPixmapCache>

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
    return state.enabled && (state.unitMouse || state.flash) ? palette().value : palette().unit;
}

const QColor& footerColor(const FooterState& state)
{
    if (!state.enabled)
        return palette().unit;
    if (state.active)
        return palette().accent;
    return state.mouse ? palette().value : palette().label;
}

// A tint, on which the texts of the row can still be read, a unit in the colour of the value.
const QColor& flashGround()
{
    constexpr qreal kShare = 0.2;
    static QColor ground;
    const QColor& row = palette().row;
    const QColor& notice = palette().notice;
    const auto mixed = [](qreal from, qreal to) { return from + (to - from) * kShare; };
    ground.setRgbF(mixed(row.redF(), notice.redF()), mixed(row.greenF(), notice.greenF()),
                   mixed(row.blueF(), notice.blueF()));
    return ground;
}

const QColor& groundOf(const RowState& state)
{
    if (state.wrong)
        return palette().wrongFill;
    if (state.flash)
        return flashGround();
    if (state.focus)
        return palette().rowFocus;
    return state.mouse && state.enabled ? palette().rowMouse : palette().row;
}

QRect centred(const QRect& area, int size)
{
    return QRect(area.left(), area.top() + (area.height() - size) / 2, size, size);
}

void drawCheckBox(QPainter& painter, const QRect& box, const QColor& color, bool checked)
{
    const DeviceGrid grid(painter);
    const qreal radius = box.width() / 6.0;
    const qreal line = grid.pixel().width();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, line));
    painter.setBrush(checked ? QBrush(color) : Qt::NoBrush);
    painter.drawRoundedRect(grid.aligned(box).adjusted(line / 2, line / 2, -line / 2, -line / 2), radius, radius);
    painter.restore();
}

QPixmap checkBoxPicture(const QSize& size, const QColor& color, bool checked, int ratio)
{
    const QString key = QStringLiteral("wq_check_box %1 %2 %3 %4")
                            .arg(QString::number(size.width()), QString::number(color.rgba()), QString::number(ratio),
                                 QString::number(int(checked)));
    QPixmap picture;
    if (QPixmapCache::find(key, &picture))
        return picture;
    picture = QPixmap(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawCheckBox(painter, QRect(QPoint(), size), color, checked);
    QPixmapCache::insert(key, picture);
    return picture;
}

} // namespace

void paintCheckBox(QPainter& painter, const QRect& box, bool checked, bool enabled)
{
    const QColor& color = !checked ? palette().unit : enabled ? palette().accent : palette().label;
    if (const int ratio = DeviceGrid(painter).pictureRatio())
        painter.drawPixmap(box.topLeft(), checkBoxPicture(box.size(), color, checked, ratio));
    else
        drawCheckBox(painter, box, color, checked);
    if (checked)
        painting::drawImage(painter, box, keys::kCheckImage, palette().checkMark, box.width());
}

CellPainter::CellPainter(QPainter& painter, const RowMetrics& metrics, const QRect& dirty)
    : m_painter(painter)
    , m_metrics(metrics)
    , m_dirty(dirty)
    , m_grid(painter)
    , m_pen(painter, *metrics.face, m_grid.pictureRatio(), dirty)
{
}

void CellPainter::paintRow(const QRect& row, const CellItem& cell, const RowLayout& layout, const RowState& state)
{
    const QColor& ground = groundOf(state);
    m_painter.fillRect(m_grid.aligned(row), ground);
    if (row.bottom() <= m_dirty.bottom())
        m_grid.fillBottomLine(m_painter, row, palette().separator);
    paintTexts(layout, state, ground);
    paintCheck(cell, layout, state.enabled, ground);
    paintMarks(row, layout.offGrid, state);
}

void CellPainter::paintTexts(const RowLayout& layout, const RowState& state, const QColor& ground)
{
    drawText(layout.label, layout.labelText, labelColor(state.enabled), ground);
    if (!state.editing)
        drawText(layout.value, layout.valueText, valueColor(state.enabled), ground, true);
    drawText(layout.unit, layout.unitText, unitColor(state), ground);
    if (!layout.chevron.isEmpty())
        drawImage(keys::kChevronImage, unitColor(state), centred(layout.chevron, m_metrics.chevron));
}

void CellPainter::paintCheck(const CellItem& cell, const RowLayout& layout, bool enabled, const QColor& ground)
{
    if (layout.check.isEmpty() || !layout.check.intersects(m_dirty))
        return;
    const QRect box = centred(layout.check, m_metrics.checkBox);
    paintCheckBox(m_painter, box, cell.isChecked(), enabled);
    const QRect text = layout.check.adjusted(m_metrics.checkBox + m_metrics.gap / 2, 0, 0, 0);
    drawText(text, layout.checkText, labelColor(enabled), ground);
}

void CellPainter::paintMarks(const QRect& row, bool offGrid, const RowState& state)
{
    if (offGrid) {
        const QRectF bar(row.left(), row.top(), m_metrics.bar, row.height() - 1);
        m_painter.fillRect(m_grid.aligned(bar), palette().notice);
    }
    if (state.wrong)
        m_grid.fillFrame(m_painter, row, palette().wrongFrame);
    else if (state.focus)
        m_grid.fillFrame(m_painter, row, palette().accent);
}

void CellPainter::drawText(const QRect& area, const QString& text, const QColor& color, const QColor& ground,
                           bool right)
{
    if (text.isEmpty() || !area.intersects(m_dirty))
        return;
    const int left = right ? area.right() + 1 - texts::width(text, *m_metrics.face) : area.left();
    m_pen.draw(QRect(QPoint(left, area.top()), area.bottomRight()), text, color, ground);
}

void CellPainter::drawImage(const QString& key, const QColor& tint, const QRect& rect)
{
    if (rect.intersects(m_dirty))
        painting::drawImage(m_painter, rect, key, tint, rect.width());
}

void CellPainter::paintFooter(const QRect& footer, const FooterState& state)
{
    const QColor& ground = state.mouse && state.enabled ? palette().rowMouse : palette().row;
    m_painter.fillRect(m_grid.aligned(footer), ground);
    const QColor& color = footerColor(state);
    const QRect icon(footer.right() + 1 - m_metrics.padding - m_metrics.chevron, footer.top(), m_metrics.chevron,
                     footer.height());
    drawImage(keys::kFilterImage, color, centred(icon, m_metrics.chevron));
    drawText(QRect(footer.topLeft(), QPoint(icon.left() - m_metrics.gap, footer.bottom())), wording("筛选"), color,
             ground, true);
    if (state.focus)
        m_grid.fillFrame(m_painter, footer, palette().accent);
}

void CellPainter::paintGround(const QRect& rect)
{
    m_painter.fillRect(m_grid.aligned(rect), palette().window);
}

} // namespace WQ
