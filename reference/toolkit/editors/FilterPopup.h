#pragma once

#include "reference/toolkit/editors/PopupRows.h"

#include <QSet>

#include <vector>

namespace WQ {

class CellModel;

/// The checklist of the cells that a person may choose to see, with Reset and Apply below. Apply is not offered while
/// nothing is ticked.
class WQ_EXPORT FilterPopup : public PopupRows
{
    Q_OBJECT
public:
    explicit FilterPopup(QWidget* owner);

    /// Called after the list has closed.
    void setApplied(std::function<void(const QSet<int>&)> applied);
    void setReset(std::function<void()> reset);

    /// Takes what the model offers, ticked as its visible set says.
    void load(const CellModel& model);

    QSet<int> ticked() const;
    bool canApply() const;

    /// Where the two buttons stand.
    QRect resetRect() const;
    QRect applyRect() const;

protected:
    int rowCount() const override;
    int contentWidth() const override;
    int footerHeight() const override;
    void paintRow(QPainter& painter, int row, const QRect& rect, bool isCurrent) override;
    void paintFooter(QPainter& painter) override;
    void activate(int row) override;
    bool keyTyped(QKeyEvent& event) override;
    bool footerPressed(const QPoint& position) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    enum class Stop { Rows, Reset, Apply };

    struct Row
    {
        int id;
        QString label;
        bool isTicked;
    };

    void paintButton(QPainter& painter, const QRect& rect, const QString& text, const QColor& color, bool hasFocus);
    void apply();
    void reset();

    std::function<void(const QSet<int>&)> m_applied;
    std::function<void()> m_reset;
    std::vector<Row> m_rows;
    Stop m_stop = Stop::Rows;
};

} // namespace WQ
