#pragma once

#include "reference/toolkit/editors/EditRules.h"
#include "reference/toolkit/editors/StepArrows.h"
#include "reference/toolkit/editors/StepKeys.h"

#include <QColor>
#include <QFont>
#include <QWidget>

#include <array>

class QKeyEvent;
class QLineEdit;

namespace WQ {

struct RowMetrics;

/// Who is told what a person does in the editor.
class CellEditorClient
{
public:
    virtual ~CellEditorClient() = default;
    virtual void draftChanged() = 0;
    virtual void submitted() = 0;         ///< Enter
    virtual void reverted() = 0;          ///< Esc
    virtual void alternativesAsked() = 0; ///< Alt+Down: the other units, the other kind of period
    virtual bool checkToggled() = 0;      ///< Space; false when the cell has no check box
    virtual void focusGone(Qt::FocusReason reason) = 0;
    virtual void editorDoubleClicked() = 0;
};

/// The fields in which the value of one cell is edited, over the value's part of its row, whose ground shows through.
/// One is made when first needed and used for every cell after that, of whichever table: making one costs several times
/// what opening it does, and it is seldom that two are open at a time.
class WQ_EXPORT CellEditor : public QWidget
{
    Q_OBJECT
public:
    /// It belongs to nobody before it is moved to a table.
    CellEditor();

    void moveTo(QWidget& viewport, CellEditorClient& client);

    /// Whether nobody is using it: it is closed, and no event of that is still on its way.
    bool isIdle() const
    {
        return m_idle;
    }

    /// Shows the value of @p cell, all of it selected. The cell is not touched and must outlive the edit.
    void open(const CellItem& cell, const QRect& area, const RowMetrics& metrics);
    void close();

    void place(const QRect& area, const RowMetrics& metrics);

    /// To be called when the cell holds something else: what a person has typed stays, what is untouched follows.
    void cellChanged();

    /// Makes a period the other kind of period.
    void switchPeriod();

    Draft draft() const;
    bool isModified() const;

    bool ownsFocus() const;
    void takeFocus(bool last = false);
    void takeFocusAt(const QPoint& position); ///< in the viewport's coordinates

    /// To the next or previous field; false at the ends.
    bool moveFocus(bool next);

    /// The field that has the focus, else the first.
    QLineEdit* field() const;

    /// The arrows that step a number; empty without them.
    const StepArrows& arrows() const
    {
        return m_arrows;
    }

    /// Takes the colours of the theme.
    void themeChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    static constexpr int kMostFields = 2;

    /// What the fields are painted with.
    struct Look
    {
        QFont font; // not the widget's own, which a style sheet of the application may change
        QColor value;
        QColor selection;
        QColor unit;
    };

    int fieldCount() const;
    int focusedField() const;
    QLineEdit* makeField();
    void takeLook(const QFont& font);
    void restyle(QLineEdit& line) const;
    void load(const Draft& draft);
    void layOut();
    bool keyPress(QKeyEvent& event);
    bool wheel(const QWheelEvent& event);
    bool step(int steps);
    void placeArrows();
    bool pressArrow(const QMouseEvent& event);
    QString periodText() const;
    QString separator() const;
    int fieldWidth(int room) const;

    CellEditorClient* m_client = nullptr;
    const CellItem* m_cell = nullptr;
    std::array<QLineEdit*, kMostFields> m_fields{};
    Look m_look;
    QRect m_separatorArea;
    QRect m_periodArea;
    Draft m_start;
    EWqTimeRangeType m_period = TimeRangeClock;
    StepArrows m_arrows;
    int m_gap = 0;
    int m_arrowWidth = 0;
    WheelNotches m_wheel;
    bool m_loading = false;
    bool m_idle = true;
};

} // namespace WQ
