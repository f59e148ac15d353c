#pragma once

#include "reference/toolkit/editors/PopupRows.h"

#include <QElapsedTimer>
#include <QStringList>

namespace WQ {

/// The list of a combo's entries or of a cell's units, the chosen one in the accent colour.
class WQ_EXPORT ChoicePopup : public PopupRows
{
    Q_OBJECT
public:
    explicit ChoicePopup(QWidget* owner);

    /// Called with the row that a person has picked, after the list has closed.
    void setPicked(std::function<void(int)> picked);

    /// @p chosen is the row that holds now, -1 for none.
    void setEntries(const QStringList& entries, int chosen);

    /// Moves to the next entry that begins with what has been typed in one go, @p text its newest part.
    void typeAhead(const QString& text);

    const QStringList& entries() const
    {
        return m_entries;
    }

    int chosenRow() const
    {
        return m_chosen;
    }

protected:
    int rowCount() const override;
    int contentWidth() const override;
    void paintRow(QPainter& painter, int row, const QRect& rect, bool isCurrent) override;
    void activate(int row) override;
    bool keyTyped(QKeyEvent& event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    int findEntry(const QString& start, int from) const;

    std::function<void(int)> m_picked;
    QStringList m_entries;
    QString m_typed;
    QElapsedTimer m_sinceTyped;
    int m_chosen = -1;
};

} // namespace WQ
