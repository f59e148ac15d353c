#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/cells/TextCache.h"
#include "reference/toolkit/cells/TextFace.h"
#include "reference/toolkit/editors/CellInteraction.h"

#include <QApplication>
#include <QBackingStore>
#include <QPaintEngine>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace WQ {

namespace {

constexpr int kLongestToolTip = 1000;

// A picture that somebody takes of the table leaves the screen as it was.
bool isOnScreen(const QWidget& table, const QPainter& painter)
{
    QBackingStore* const screen = table.backingStore();
    return screen && painter.paintEngine()->paintDevice() == screen->paintDevice();
}

} // namespace

RowState CMultiParamsTablePrivate::rowState(const CellItem& cell) const
{
    RowState state;
    state.enabled = m_model->isEnabled() && m_table->isEnabled();
    const QWidget* focus = QApplication::focusWidget();
    state.focus = focus && currentCell() == &cell && (focus == m_table || m_table->isAncestorOf(focus));
    if (m_interaction)
        m_interaction->addRowState(cell, state);
    return state;
}

QString CMultiParamsTablePrivate::elidedTexts(const CellItem& cell) const
{
    const RowLayout layout = layoutOf(cell);
    QStringList full;
    if (layout.labelText != cell.label())
        full << cell.label();
    if (layout.checkText != cell.checkText())
        full << cell.checkText();
    if (layout.valueText != cell.displayText() || layout.unitText != cell.unit())
        full << (cell.displayText() + QLatin1Char(' ') + cell.unit()).trimmed();
    return layout.elided ? full.join(QLatin1Char('\n')) : QString();
}

QString CMultiParamsTablePrivate::toolTipOf(const CellItem& cell) const
{
    QStringList lines{elidedTexts(cell), cell.rangeText(), cell.offGridText()};
    lines.removeAll(QString());
    const QString text = lines.join(QLatin1Char('\n'));
    return text.size() <= kLongestToolTip ? text : text.left(kLongestToolTip) + QChar(0x2026);
}

void CMultiParamsTablePrivate::paint(QPaintEvent* event)
{
    QPainter painter(m_table->viewport());
    const QRect dirty = event->rect();
    CellPainter cells(painter, m_metrics, dirty);
    paintRows(cells, dirty, isOnScreen(*m_table, painter));
    m_model->painted();
    if (event->region().rectCount() > 1)
        m_painted.assign(m_painted.size(), PaintedValue());
    const QRect footer = footerRect();
    if (footer.intersects(dirty)) {
        FooterState state = m_interaction ? m_interaction->footerState() : FooterState();
        state.enabled = isFilterEnabled();
        state.active = !m_model->visibleSet().isEmpty();
        cells.paintFooter(footer, state);
    }
    const int end = rowTop(m_model->rowCount()) + footer.height();
    const QRect ground = m_table->viewport()->rect().adjusted(0, end, 0, 0);
    if (ground.isValid() && ground.intersects(dirty))
        cells.paintGround(ground);
}

void CMultiParamsTablePrivate::paintRows(CellPainter& cells, const QRect& dirty, bool onScreen)
{
    const int column = labelColumn();
    const int first = std::max(0, (dirty.top() - rowTop(0)) / m_metrics.rowHeight);
    const int last = std::min(m_model->rowCount() - 1, (dirty.bottom() - rowTop(0)) / m_metrics.rowHeight);
    m_painted.resize(static_cast<std::size_t>(m_model->rowCount()));
    for (int row = first; row <= last; ++row) {
        const QRect rect = rowRect(row);
        const CellItem& cell = *m_model->cellAtRow(row);
        if (onScreen && paintValueAlone(cells, row, cell, dirty))
            continue;
        const RowLayout layout = layoutRow(cell, rect, m_metrics, column);
        if (onScreen)
            notePainted(row, paintedValue(layout), dirty);
        cells.paintRow(rect, cell, layout, rowState(cell));
    }
}

CMultiParamsTablePrivate::PaintedValue CMultiParamsTablePrivate::paintedValue(const RowLayout& layout)
{
    const bool isPlain = !layout.elided && layout.check.isEmpty() && !layout.offGrid;
    const QRect room(layout.value.left(), 0, layout.value.width(), layout.value.height());
    return isPlain ? PaintedValue{true, room, layout.valueText, layout.valueText, QRect()} : PaintedValue();
}

// Most paints are of one value that has changed: what stands around it needs no new layout.
bool CMultiParamsTablePrivate::paintValueAlone(CellPainter& cells, int row, const CellItem& cell, const QRect& dirty)
{
    PaintedValue& known = m_painted[static_cast<std::size_t>(row)];
    const QRect whole = rowRect(row);
    RowLayout layout;
    layout.value = known.room.translated(0, whole.top());
    // Of the gaps at its sides, half may be reached by a glyph of the value and none by one of its neighbours.
    const int reach = m_metrics.gap / 2;
    if (!known.isSet || !layout.value.adjusted(-reach, 0, reach, 0).contains(dirty))
        return false;
    layout.valueText = known.next;
    cells.paintRow(whole, cell, layout, rowState(cell));
    if (dirty.contains(known.changed.translated(0, whole.top())))
        known.text = known.next;
    else if (!known.changed.isEmpty())
        known = PaintedValue();
    known.changed = QRect();
    return true;
}

// A paint of less than what has changed leaves the row without a painted value to start from.
void CMultiParamsTablePrivate::notePainted(int row, const PaintedValue& value, const QRect& dirty)
{
    PaintedValue& known = m_painted[static_cast<std::size_t>(row)];
    const QRect whole = rowRect(row);
    const bool isSamePlace = known.isSet && value.isSet && known.room == value.room;
    const bool isNext = isSamePlace && known.next == value.text;
    if (dirty.contains(whole) || (isNext && dirty.contains(known.changed.translated(0, whole.top()))))
        known = value;
    else if (!isSamePlace || known.text != value.text)
        known = PaintedValue();
}

// What has to be painted of a row whose cell has changed. What is known of the painted value holds until then.
QRect CMultiParamsTablePrivate::changedRect(int row)
{
    const QRect whole = rowRect(row);
    const CellItem* cell = m_model->cellAtRow(row);
    if (!cell || static_cast<std::size_t>(row) >= m_painted.size())
        return whole;
    PaintedValue& painted = m_painted[static_cast<std::size_t>(row)];
    const bool isValueAlone =
        painted.isSet && cell->announcedChange() == CellChange::Value && cell->offGridText().isEmpty();
    if (!isValueAlone || !takeNext(painted, texts::oneLine(cell->displayText()))) {
        painted = PaintedValue();
        return whole;
    }
    return painted.changed.translated(0, whole.top());
}

// False for a text that would move what stands beside it.
bool CMultiParamsTablePrivate::takeNext(PaintedValue& painted, const QString& text) const
{
    const QRect& room = painted.room;
    const int width = texts::width(text, *m_metrics.face);
    if (width > room.width())
        return false;
    const auto difference = m_metrics.face->difference(painted.text, text);
    painted.next = text;
    painted.changed = !difference
        ? room
        : QRect(room.right() + 1 - width + difference->left, room.top(), difference->width, room.height());
    return true;
}

void CMultiParamsTablePrivate::rowsChanged(int first, int last)
{
    // Rows that have not been painted since they came are to be painted whole, and the view knows it.
    if (!m_painted.empty()) {
        QRect changed;
        for (int row = first; row <= last; ++row)
            changed |= changedRect(row);
        m_table->viewport()->update(changed);
    }
    for (int row = first; m_interaction && row <= last; ++row) {
        if (const CellItem* cell = m_model->cellAtRow(row))
            m_interaction->cellChanged(*cell);
    }
}

} // namespace WQ
