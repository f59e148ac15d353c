#include "reference/toolkit/editors/FilterPopup.h"

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"
#include "reference/toolkit/cells/CellModel.h"
#include "reference/toolkit/cells/CellPainter.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>

namespace WQ {

namespace {

QString resetText()
{
    return FilterPopup::tr("重置");
}

QString applyText()
{
    return FilterPopup::tr("应用");
}

} // namespace

FilterPopup::FilterPopup(QWidget* owner)
    : PopupRows(owner)
{
}

void FilterPopup::setApplied(std::function<void(const QSet<int>&)> applied)
{
    m_applied = std::move(applied);
}

void FilterPopup::setReset(std::function<void()> reset)
{
    m_reset = std::move(reset);
}

void FilterPopup::load(const CellModel& model)
{
    m_rows.clear();
    for (const CellItem* cell : model.filterCells())
        m_rows.push_back(
            {cell->id(), cell->label(), model.visibleSet().isEmpty() || model.visibleSet().contains(cell->id())});
    m_stop = Stop::Rows;
    if (isVisible())
        refresh();
    else
        setCurrentRow(0);
    update();
}

QSet<int> FilterPopup::ticked() const
{
    QSet<int> ids;
    for (const Row& row : m_rows) {
        if (row.isTicked)
            ids.insert(row.id);
    }
    return ids;
}

bool FilterPopup::canApply() const
{
    return std::any_of(m_rows.begin(), m_rows.end(), [](const Row& row) { return row.isTicked; });
}

int FilterPopup::rowCount() const
{
    return static_cast<int>(m_rows.size());
}

int FilterPopup::contentWidth() const
{
    const QFont font = textFont();
    int widest = 0;
    for (const Row& row : m_rows)
        widest = std::max(widest, painting::textWidth(font, row.label));
    const int rows = widest + size(keys::kCheckBox) + size(keys::kUnitGap);
    const int buttons = painting::textWidth(font, resetText()) + painting::textWidth(font, applyText());
    return std::max(rows, buttons + 2 * size(keys::kPadding)) + 2 * size(keys::kPadding);
}

int FilterPopup::footerHeight() const
{
    return size(keys::kPopupRowHeight);
}

QRect FilterPopup::resetRect() const
{
    const int width = painting::textWidth(textFont(), resetText()) + 2 * size(keys::kPadding);
    return QRect(footerRect().topLeft(), QSize(width, footerRect().height()));
}

QRect FilterPopup::applyRect() const
{
    const int width = painting::textWidth(textFont(), applyText()) + 2 * size(keys::kPadding);
    return footerRect().adjusted(footerRect().width() - width, 0, 0, 0);
}

void FilterPopup::paintRow(QPainter& painter, int row, const QRect& rect, bool isCurrent)
{
    const Row& shown = m_rows[static_cast<size_t>(row)];
    if (isCurrent && m_stop == Stop::Rows)
        paintCurrent(painter, rect);
    const int edge = size(keys::kCheckBox);
    const int padding = size(keys::kPadding);
    paintCheckBox(painter, QRect(rect.left() + padding, rect.top() + (rect.height() - edge) / 2, edge, edge),
                  shown.isTicked, true);
    painting::drawText(painter, rect.adjusted(padding + edge + size(keys::kUnitGap), 0, -padding, 0), textFont(),
                       resources::color(keys::kValue), Qt::AlignLeft | Qt::AlignVCenter, shown.label);
}

void FilterPopup::paintButton(QPainter& painter, const QRect& rect, const QString& text, const QColor& color,
                              bool hasFocus)
{
    if (hasFocus)
        paintCurrent(painter, rect);
    painting::drawText(painter, rect, textFont(), color, Qt::AlignCenter, text);
}

void FilterPopup::paintFooter(QPainter& painter)
{
    paintButton(painter, resetRect(), resetText(), resources::color(keys::kLabel), m_stop == Stop::Reset);
    paintButton(painter, applyRect(), applyText(), resources::color(canApply() ? keys::kAccent : keys::kUnit),
                m_stop == Stop::Apply && canApply());
}

void FilterPopup::activate(int row)
{
    m_stop = Stop::Rows;
    Row& toggled = m_rows[static_cast<size_t>(row)];
    toggled.isTicked = !toggled.isTicked;
    update();
}

// Down from the last row goes on to the buttons, Up from them back.
void FilterPopup::keyPressEvent(QKeyEvent* event)
{
    const bool isDown = event->key() == Qt::Key_Down;
    const bool isUp = event->key() == Qt::Key_Up;
    const bool leavesRows = isDown && m_stop == Stop::Rows && currentRow() >= rowCount() - 1;
    const bool leavesButtons = isUp && m_stop != Stop::Rows;
    if (!event->modifiers().testFlag(Qt::AltModifier) && (leavesRows || leavesButtons)) {
        m_stop = leavesRows ? Stop::Reset : Stop::Rows;
        update();
        return;
    }
    if (m_stop != Stop::Rows && (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right)) {
        m_stop = event->key() == Qt::Key_Right && canApply() ? Stop::Apply : Stop::Reset;
        update();
        return;
    }
    PopupRows::keyPressEvent(event);
}

bool FilterPopup::keyTyped(QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Space:
        if (m_stop == Stop::Rows && currentRow() >= 0)
            activate(currentRow());
        else if (m_stop == Stop::Reset)
            reset();
        else
            apply();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_stop == Stop::Reset)
            reset();
        else
            apply();
        return true;
    default:
        return false;
    }
}

// Round from the rows to Reset, to Apply while it is offered, and back.
bool FilterPopup::focusNextPrevChild(bool next)
{
    constexpr Stop kRound[] = {Stop::Rows, Stop::Reset, Stop::Apply};
    const int count = canApply() ? 3 : 2;
    const int at = std::min(static_cast<int>(m_stop), count - 1);
    m_stop = kRound[(at + (next ? 1 : count - 1)) % count];
    update();
    return true;
}

bool FilterPopup::footerPressed(const QPoint& position)
{
    if (resetRect().contains(position))
        reset();
    else if (applyRect().contains(position))
        apply();
    return true;
}

// Closing gives the focus back, and whoever hears of that may take the list away.
void FilterPopup::apply()
{
    if (!canApply())
        return;
    const QPointer<FilterPopup> alive(this);
    const QSet<int> ids = ticked();
    const std::function<void(const QSet<int>&)> applied = m_applied;
    hide();
    if (alive && applied)
        applied(ids);
}

void FilterPopup::reset()
{
    const QPointer<FilterPopup> alive(this);
    const std::function<void()> done = m_reset;
    hide();
    if (alive && done)
        done();
}

} // namespace WQ
