#include "reference/toolkit/editors/ChoicePopup.h"

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>

namespace WQ {

namespace {

// Measuring more entries than a person scrolls through would only delay the list.
constexpr int kMostMeasured = 200;

} // namespace

ChoicePopup::ChoicePopup(QWidget* owner)
    : PopupRows(owner)
{
    setAttribute(Qt::WA_InputMethodEnabled);
}

void ChoicePopup::setPicked(std::function<void(int)> picked)
{
    m_picked = std::move(picked);
}

void ChoicePopup::setEntries(const QStringList& entries, int chosen)
{
    const bool isSame = entries == m_entries;
    m_entries = entries;
    m_chosen = chosen;
    m_typed.clear();
    if (isVisible())
        refresh();
    if (!isVisible() || !isSame)
        setCurrentRow(chosen);
    update();
}

int ChoicePopup::rowCount() const
{
    return m_entries.size();
}

int ChoicePopup::contentWidth() const
{
    const QFont font = textFont();
    int widest = 0;
    for (int i = 0; i < std::min(m_entries.size(), kMostMeasured); ++i)
        widest = std::max(widest, painting::textWidth(font, m_entries.at(i)));
    return widest + 2 * size(keys::kPadding);
}

void ChoicePopup::paintRow(QPainter& painter, int row, const QRect& rect, bool isCurrent)
{
    if (isCurrent)
        paintCurrent(painter, rect);
    const int padding = size(keys::kPadding);
    painting::drawText(painter, rect.adjusted(padding, 0, -padding, 0), textFont(),
                       resources::color(row == m_chosen ? keys::kAccent : keys::kValue),
                       Qt::AlignLeft | Qt::AlignVCenter, m_entries.at(row));
}

// Closing gives the focus back, and whoever hears of that may take the list away.
void ChoicePopup::activate(int row)
{
    if (row < 0 || row >= rowCount())
        return;
    const QPointer<ChoicePopup> alive(this);
    const std::function<void(int)> picked = m_picked;
    hide();
    if (alive && picked)
        picked(row);
}

bool ChoicePopup::keyTyped(QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        activate(currentRow());
        return true;
    case Qt::Key_Space:
        if (!m_typed.isEmpty() && m_sinceTyped.elapsed() < QApplication::keyboardInputInterval())
            break;
        activate(currentRow());
        return true;
    case Qt::Key_F2:
    case Qt::Key_F4:
        hide();
        return true;
    default:
        break;
    }
    typeAhead(event.text());
    return true;
}

void ChoicePopup::inputMethodEvent(QInputMethodEvent* event)
{
    typeAhead(event->commitString());
}

void ChoicePopup::typeAhead(const QString& text)
{
    if (text.isEmpty() || !text.at(0).isPrint())
        return;
    const bool isLate = !m_sinceTyped.isValid() || m_sinceTyped.elapsed() > QApplication::keyboardInputInterval();
    if (isLate)
        m_typed.clear();
    m_sinceTyped.start();
    const bool isRepeated = m_typed == text;
    if (!isRepeated)
        m_typed += text;
    // The same letter again goes on to the next entry of that letter.
    const int from = m_typed.size() == text.size() ? currentRow() + 1 : std::max(0, currentRow());
    const int found = findEntry(m_typed, from);
    if (found >= 0)
        setCurrentRow(found);
}

int ChoicePopup::findEntry(const QString& start, int from) const
{
    for (int i = 0; i < m_entries.size(); ++i) {
        const int row = (from + i) % m_entries.size();
        if (m_entries.at(row).startsWith(start, Qt::CaseInsensitive))
            return row;
    }
    return -1;
}

} // namespace WQ
