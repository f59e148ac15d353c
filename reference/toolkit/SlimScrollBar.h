#pragma once

#include <WQ/CUiResourceChangeHandler.h>
#include <WQ/WqExport.h>

#include <QScrollBar>

namespace WQ {

/// The toolkit's scroll bar: a handle on the ground of what it scrolls, nothing else.
class WQ_EXPORT SlimScrollBar : public QScrollBar, public CUiResourceChangeHandler
{
    Q_OBJECT
public:
    SlimScrollBar(Qt::Orientation orientation, QString groundKey, QWidget* parent);

    void setGroundKey(const QString& key);

    /// Its width, across the direction in which it scrolls.
    int thickness() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void themeChanged() override;
    void scaleChanged() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    int along(const QPoint& position) const;
    int length() const;
    int shortestHandle() const;
    int handleLength() const;
    int handleStart() const;
    QRect handleRect() const;
    void dragTo(int position);

    QString m_groundKey;
    int m_grip = -1; // where in the handle the mouse holds it, -1: it does not
};

} // namespace WQ
