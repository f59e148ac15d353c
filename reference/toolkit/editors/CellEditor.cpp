#include "reference/toolkit/editors/CellEditor.h"

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"
#include "reference/toolkit/cells/RowLayout.h"
#include "reference/toolkit/cells/ValueCells.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>
#include <QWheelEvent>

#include <algorithm>

namespace WQ {

namespace {

constexpr int kManySteps = 10;

// QLineEdit keeps this much free at both ends of its text, and one pixel for the cursor.
constexpr int kInnerMargin = 2;
constexpr int kCursorRoom = 1;

// More than a person types, less than what makes the line slow.
constexpr int kLongestText = 32767;

// Of the field itself, so that no style sheet of the application reaches it.
QString sheet(const QFont& font)
{
    return QStringLiteral("QLineEdit { border: none; padding: 0; margin: 0; min-height: 0; min-width: 0;"
                          " background: transparent; color: %1; selection-background-color: %2; selection-color: %1;"
                          " font-size: %3px; font-family: \"%4\"; }")
        .arg(resources::color(keys::kValue).name(), resources::color(keys::kSelection).name())
        .arg(font.pixelSize())
        .arg(font.family());
}

bool isOwnKey(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
    case Qt::Key_Up:
    case Qt::Key_Down:
        return true;
    default:
        return false;
    }
}

} // namespace

CellEditor::CellEditor(QWidget* viewport, CellEditorClient& client)
    : QWidget(viewport)
    , m_client(client)
    , m_period(TimeRangeClock)
{
    hide();
}

QLineEdit* CellEditor::makeField()
{
    auto* line = new QLineEdit(this);
    line->setFrame(false);
    line->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    line->setAttribute(Qt::WA_MacShowFocusRect, false);
    line->installEventFilter(this);
    connect(line, &QLineEdit::textChanged, this, [this] {
        if (!m_loading)
            m_client.draftChanged();
    });
    if (m_scale > 0)
        line->setStyleSheet(sheet(m_font));
    return line;
}

void CellEditor::restyle()
{
    for (QLineEdit* line : m_fields) {
        if (line)
            line->setStyleSheet(sheet(m_font));
    }
    update();
}

void CellEditor::open(const CellItem& cell, const QRect& area, const RowMetrics& metrics)
{
    m_cell = &cell;
    m_wheelRest = 0;
    m_start = draftOf(cell);
    load(m_start);
    place(area, metrics);
    const bool isLine = cell.kind() == CellKind::Line;
    m_fields[0]->setPlaceholderText(isLine ? static_cast<const LineCell&>(cell).placeholder() : QString());
    m_fields[0]->setAccessibleName(cell.label());
    show();
    raise();
}

void CellEditor::close()
{
    m_cell = nullptr;
    hide();
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
        line->setVisible(isUsed);
        if (!isUsed)
            continue;
        line->setMaxLength(std::max(kLongestText, draft.texts.at(i).size()));
        line->setText(draft.texts.at(i));
        line->selectAll();
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
    layOut();
}

void CellEditor::switchPeriod()
{
    if (!m_cell || m_cell->kind() != CellKind::TimePeriod)
        return;
    const bool ownedFocus = ownsFocus();
    // Before a field is hidden: Qt would hand its focus on to the next widget of the window.
    if (ownedFocus)
        m_fields[0]->setFocus(Qt::OtherFocusReason);
    load(switchedPeriod(*m_cell, draft()));
    layOut();
    update();
    m_client.draftChanged();
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
    if (m_scale != metrics.scale) {
        m_scale = metrics.scale;
        m_gap = metrics.gap;
        m_font = metrics.font;
        restyle();
    }
    setGeometry(area.adjusted(-kInnerMargin, 0, kInnerMargin + kCursorRoom, 0));
    layOut();
}

QString CellEditor::periodText() const
{
    if (!m_cell || m_cell->kind() != CellKind::TimePeriod)
        return QString();
    return m_period == TimeRangeClock ? QStringLiteral("时段") : QStringLiteral("时长");
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
    return std::min(share, painting::textWidth(m_font, QStringLiteral("00:00:00")) + 2 * kInnerMargin + kCursorRoom);
}

void CellEditor::layOut()
{
    const int separatorWidth = painting::textWidth(m_font, separator());
    const int width = fieldWidth(this->width() - separatorWidth);
    int right = this->width();
    for (int i = fieldCount() - 1; i >= 0; --i) {
        m_fields[static_cast<size_t>(i)]->setGeometry(right - width, 0, width, height());
        right -= width;
        if (i > 0)
            right -= separatorWidth;
    }
    m_separatorArea = QRect(right + width, 0, separatorWidth, height());
    const int periodWidth = painting::textWidth(m_font, periodText());
    const bool hasRoom = right >= periodWidth;
    m_periodArea = hasRoom ? QRect(std::max(0, right - m_gap - periodWidth), 0, periodWidth, height()) : QRect();
}

void CellEditor::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painting::drawText(painter, m_separatorArea, m_font, resources::color(keys::kUnit), Qt::AlignCenter, separator());
    painting::drawText(painter, m_periodArea, m_font, resources::color(keys::kUnit), Qt::AlignLeft | Qt::AlignVCenter,
                       periodText());
}

// A press beside the fields has taken the focus from them.
void CellEditor::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && m_periodArea.contains(event->pos()))
        switchPeriod();
    takeFocusAt(mapToParent(event->pos()));
}

// Whatever the client does may take the table away, and the field with it.
bool CellEditor::eventFilter(QObject* watched, QEvent* event)
{
    const QPointer<QObject> alive(watched);
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // A host's shortcut on one of these keys would take it from the edit.
        if (!isOwnKey(static_cast<QKeyEvent&>(*event)))
            return false;
        event->accept();
        return true;
    case QEvent::KeyPress:
        return keyPress(static_cast<QKeyEvent&>(*event)) || !alive;
    case QEvent::Wheel:
        return wheel(static_cast<QWheelEvent&>(*event));
    case QEvent::FocusOut:
        m_client.focusGone(static_cast<QFocusEvent*>(event)->reason());
        return !alive;
    case QEvent::MouseButtonDblClick:
        m_client.editorDoubleClicked();
        return !alive;
    default:
        return false;
    }
}

bool CellEditor::keyPress(QKeyEvent& event)
{
    const bool isUp = event.key() == Qt::Key_Up;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event.accept();
        m_client.submitted();
        return true;
    case Qt::Key_Escape:
        event.accept();
        m_client.reverted();
        return true;
    case Qt::Key_Space:
        return m_client.checkToggled();
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (event.modifiers().testFlag(Qt::AltModifier))
            m_client.alternativesAsked();
        else
            step((isUp ? 1 : -1) * (event.modifiers().testFlag(Qt::ShiftModifier) ? kManySteps : 1));
        return true;
    default:
        return false;
    }
}

bool CellEditor::wheel(const QWheelEvent& event)
{
    if (!ownsFocus() || !m_cell || !stepField(*m_cell, draft(), focusedField(), 0, 0))
        return false;
    m_wheelRest += event.angleDelta().y();
    const int notches = m_wheelRest / QWheelEvent::DefaultDeltasPerStep;
    m_wheelRest -= notches * QWheelEvent::DefaultDeltasPerStep;
    if (notches != 0)
        step(notches * (event.modifiers().testFlag(Qt::ShiftModifier) ? kManySteps : 1));
    return true;
}

bool CellEditor::step(int steps)
{
    QLineEdit* line = field();
    const auto stepped =
        m_cell ? stepField(*m_cell, draft(), std::max(0, focusedField()), line->cursorPosition(), steps) : std::nullopt;
    if (!stepped)
        return false;
    line->setText(stepped->text);
    line->setSelection(stepped->selectionStart, stepped->selectionLength);
    return true;
}

} // namespace WQ
