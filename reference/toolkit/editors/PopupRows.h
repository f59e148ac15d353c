#pragma once

#include "reference/toolkit/editors/StepKeys.h"

#include <WQ/WqExport.h>

#include <QWidget>

#include <functional>

class QPainter;

namespace WQ {

/// A list that opens over the window: rows between one hairline frame, painted by itself, moved through by mouse and
/// keyboard, scrolled where the screen has no room for all. It stays with its owner and is used again.
class WQ_EXPORT PopupRows : public QWidget
{
    Q_OBJECT
public:
    explicit PopupRows(QWidget* owner);

    /// Called when the list has closed, however that came about.
    void setClosed(std::function<void()> closed);

    /// Called when the mouse is pressed outside, before the list closes; answers whether the press ends there.
    void setPressedOutside(std::function<bool(const QPoint& global, bool isDoubleClick)> pressedOutside);

    /// Opens below @p anchor, or above it where the screen ends, its right edge at the anchor's. Global coordinates.
    void popUp(const QRect& anchor, double scale);

    /// To be called when rows have changed while it is open.
    void refresh();

    int currentRow() const
    {
        return m_current;
    }

    /// -1 for none; a row outside the list is bounded.
    void setCurrentRow(int row);

    /// Where a row stands in the list; empty while it is scrolled out of sight.
    QRect rowRect(int row) const;

protected:
    virtual int rowCount() const = 0;
    virtual int contentWidth() const = 0;
    virtual int footerHeight() const;
    virtual void paintRow(QPainter& painter, int row, const QRect& rect, bool isCurrent) = 0;
    virtual void paintFooter(QPainter& painter);
    virtual void activate(int row) = 0; ///< by mouse
    virtual bool keyTyped(QKeyEvent& event);
    virtual bool footerPressed(const QPoint& position);

    double scale() const
    {
        return m_scale;
    }

    /// Not the widget's own font, which a style sheet of the application may change.
    QFont textFont() const;
    int size(const QString& key) const;
    QRect footerRect() const;
    void moveCurrent(int by);

    /// The ground and the frame of what a key would act on.
    static void paintCurrent(QPainter& painter, const QRect& rect);

    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    int rowAt(const QPoint& position) const;
    int visibleRows() const;
    void scrollTo(int row);
    void setTop(int top);
    void resizeToContent();
    void paintScrollHandle(QPainter& painter) const;
    bool pressOutside(const QMouseEvent& event, bool isDoubleClick);

    std::function<void()> m_closed;
    std::function<bool(const QPoint&, bool)> m_pressedOutside;
    QRect m_anchor;
    double m_scale = 1;
    int m_current = -1;
    int m_top = 0;
    WheelNotches m_wheel;
    bool m_pressed = false;
};

} // namespace WQ
