#pragma once

#include <WQ/WqExport.h>

#include <QListView>
#include <QStringList>

#include <functional>

class QStringListModel;

namespace WQ {

/// A list that opens over the window, from which one entry is chosen by mouse or keyboard. It closes and is gone when
/// an entry is chosen, on Esc, and when the mouse is pressed elsewhere.
class WQ_EXPORT PopupList : public QListView
{
    Q_OBJECT
public:
    using Chosen = std::function<void(int)>;

    /// @p current is the marked entry, -1 for none. @p chosen is called with the entry's position when the list is
    /// closed already, unless @p owner is gone by then. The list closes when @p owner is hidden.
    PopupList(QWidget* owner, const QStringList& entries, int current, Chosen chosen);

    /// Opens below @p anchor, or above it where the screen ends; @p anchor is in global coordinates. Its right edge is
    /// the anchor's, its left one below a mere point.
    void open(const QRect& anchor);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QSize neededSize() const;
    void choose(const QModelIndex& index);

    QStringListModel* const m_model;
    Chosen m_chosen;
};

} // namespace WQ
