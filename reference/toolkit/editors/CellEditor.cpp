#include "reference/toolkit/editors/CellEditor.h"

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"
#include "reference/toolkit/cells/RowLayout.h"
#include "reference/toolkit/cells/ValueCells.h"
#include "reference/toolkit/editors/CopiedTexts.h"

#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>

#include <algorithm>

namespace WQ {

namespace {

// QLineEdit keeps this much free at both ends of its text, and one pixel for the cursor.
constexpr int kInnerMargin = 2;
constexpr int kCursorRoom = 1;

} // namespace

CellEditor::CellEditor()
{
    hide();
}

void CellEditor::moveTo(QWidget& viewport, CellEditorClient& client)
{
    m_client = &client;
    setParent(&viewport);
}

void CellEditor::open(const CellItem& cell, const QRect& area, const RowMetrics& metrics)
{
    m_idle = false;
    m_cell = &cell;
    m_wheel.clear();
    m_start = draftOf(cell);
    takeLook(metrics.font);
    load(m_start);
    place(area, metrics);
    const bool isLine = cell.kind() == CellKind::Line;
    m_fields[0]->setPlaceholderText(isLine ? static_cast<const LineCell&>(cell).placeholder() : QString());
    for (QLineEdit* line : m_fields) {
        if (line)
            line->setAccessibleName(cell.label());
    }
    show();
    raise();
    // Before its row is: Qt paints what lets the ground show through once, with the ground, when it is marked first.
    update();
}

void CellEditor::close()
{
    m_cell = nullptr;
    m_arrows.release();
    const QPointer<CellEditor> alive(this);
    hide();
    if (alive && !m_cell)
        m_idle = true;
}

void CellEditor::load(const Draft& draft)
{
    const QScopedValueRollback<bool> loading(m_loading, true);
    m_period = draft.period;
    for (int i = 0; i < kMostFields; ++i) {
        QLineEdit*& line = m_fields[static_cast<size_t>(i)];
        const bool isUsed = i < draft.texts.size();
        if (isUsed && !line)
            line = makeField();
        if (!line)
            continue;
        // Qt would hand the focus of a field that is hidden on to the next widget of the window.
        if (!isUsed && line->hasFocus())
            m_fields[0]->setFocus(Qt::OtherFocusReason);
        line->setVisible(isUsed);
        if (!isUsed)
            continue;
        line->setMaxLength(std::max(kLongestTyped, draft.texts.at(i).size()));
        line->setText(draft.texts.at(i));
    }
}

void CellEditor::cellChanged()
{
    if (!m_cell)
        return;
    const bool isModified = this->isModified();
    m_start = draftOf(*m_cell);
    if (isModified || draft() == m_start)
        return;
    load(m_start);
    if (ownsFocus())
        field()->selectAll();
    layOut();
}

void CellEditor::switchPeriod()
{
    if (!m_cell || m_cell->kind() != CellKind::TimePeriod)
        return;
    load(switchedPeriod(*m_cell, draft()));
    m_fields[0]->selectAll();
    layOut();
    update();
    m_client->draftChanged();
}

int CellEditor::fieldCount() const
{
    return static_cast<int>(std::count_if(m_fields.begin(), m_fields.end(),
                                          [](const QLineEdit* line) { return line && !line->isHidden(); }));
}

Draft CellEditor::draft() const
{
    Draft draft;
    draft.period = m_period;
    for (int i = 0; i < fieldCount(); ++i)
        draft.texts << m_fields[static_cast<size_t>(i)]->text();
    return draft;
}

bool CellEditor::isModified() const
{
    return m_cell && !(draft() == m_start);
}

bool CellEditor::ownsFocus() const
{
    return focusedField() >= 0;
}

int CellEditor::focusedField() const
{
    for (int i = 0; i < fieldCount(); ++i) {
        if (m_fields[static_cast<size_t>(i)]->hasFocus())
            return i;
    }
    return -1;
}

QLineEdit* CellEditor::field() const
{
    return m_fields[static_cast<size_t>(std::max(0, focusedField()))];
}

void CellEditor::takeFocus(bool last)
{
    QLineEdit* line = m_fields[static_cast<size_t>(last ? fieldCount() - 1 : 0)];
    line->selectAll();
    line->setFocus(Qt::OtherFocusReason);
}

void CellEditor::takeFocusAt(const QPoint& position)
{
    const bool isSecond = fieldCount() > 1 && position.x() >= x() + m_separatorArea.center().x();
    takeFocus(isSecond);
}

bool CellEditor::moveFocus(bool next)
{
    const int target = focusedField() + (next ? 1 : -1);
    if (focusedField() < 0 || target < 0 || target >= fieldCount())
        return false;
    takeFocus(target > 0);
    return true;
}

void CellEditor::place(const QRect& area, const RowMetrics& metrics)
{
    takeLook(metrics.font);
    m_gap = metrics.gap;
    m_arrowWidth = metrics.chevron;
    setGeometry(area.adjusted(-kInnerMargin, 0, kInnerMargin + kCursorRoom, 0));
    layOut();
}

QString CellEditor::periodText() const
{
    if (!m_cell || m_cell->kind() != CellKind::TimePeriod)
        return QString();
    return m_period == TimeRangeClock ? tr("时段") : tr("时长");
}

QString CellEditor::separator() const
{
    if (!m_cell || fieldCount() < 2)
        return QString();
    return m_cell->kind() == CellKind::Range ? static_cast<const RangeCell&>(*m_cell).separator()
                                             : QStringLiteral(" – ");
}

// Times are all of one width; numbers share the room.
int CellEditor::fieldWidth(int room) const
{
    const int share = room / std::max(1, fieldCount());
    if (!m_cell || m_cell->kind() != CellKind::TimePeriod)
        return share;
    return std::min(share,
                    painting::textWidth(m_look.font, QStringLiteral("00:00:00")) + 2 * kInnerMargin + kCursorRoom);
}

void CellEditor::layOut()
{
    placeArrows();
    const int separatorWidth = painting::textWidth(m_look.font, separator());
    const int width = fieldWidth(this->width() - separatorWidth - m_arrows.up().x() - m_arrows.up().width());
    int right = this->width();
    for (int i = fieldCount() - 1; i >= 0; --i) {
        m_fields[static_cast<size_t>(i)]->setGeometry(right - width, 0, width, height());
        right -= width;
        if (i > 0)
            right -= separatorWidth;
    }
    m_separatorArea = QRect(right + width, 0, separatorWidth, height());
    const int periodWidth = painting::textWidth(m_look.font, periodText());
    const bool hasRoom = right >= periodWidth;
    m_periodArea = hasRoom ? QRect(std::max(0, right - m_gap - periodWidth), 0, periodWidth, height()) : QRect();
}

void CellEditor::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painting::drawText(painter, m_separatorArea, m_look.font, resources::color(keys::kUnit), Qt::AlignCenter,
                       separator().trimmed());
    painting::drawText(painter, m_periodArea, m_look.font, resources::color(keys::kUnit),
                       Qt::AlignLeft | Qt::AlignVCenter, periodText());
    m_arrows.paint(painter, resources::color(keys::kUnit));
}

// A press beside the fields has taken the focus from them.
void CellEditor::mousePressEvent(QMouseEvent* event)
{
    if (pressArrow(*event))
        return;
    if (event->button() == Qt::LeftButton && m_periodArea.contains(event->pos()))
        switchPeriod();
    takeFocusAt(mapToParent(event->pos()));
}

// Beside the fields a double click is the cell's as it is on them, and its second press counts as the first does.
void CellEditor::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && m_arrows.stepsAt(event->pos(), event->modifiers()) == 0)
        m_client->editorDoubleClicked();
    mousePressEvent(event);
}

} // namespace WQ
