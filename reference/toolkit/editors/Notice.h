#pragma once

#include <WQ/WqExport.h>

#include <QFont>
#include <QWidget>

#include <functional>

class QAbstractScrollArea;

namespace WQ {

/// The framed line beside a row that says what is wrong in its editor, or worth knowing. It takes neither focus nor
/// mouse, goes along where its row is scrolled or moved, and is seen only while the row is and its window is active.
class WQ_EXPORT Notice : public QWidget
{
    Q_OBJECT
public:
    enum class Kind { Wrong, Remark };

    explicit Notice(QAbstractScrollArea* owner);

    /// Shows @p text at the right of the row, or below or above it where the screen ends. @p row answers where the row
    /// stands, in coordinates of the owner's viewport, empty while it is not shown; it is asked until withdraw().
    void tell(const QString& text, Kind kind, std::function<QRect()> row, double scale);

    void withdraw();

    /// To be called when the row may stand elsewhere.
    void follow();

    const QString& text() const
    {
        return m_text;
    }

    Kind kind() const
    {
        return m_kind;
    }

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watch(bool on);
    QRect seenRow() const;
    QRect place(const QRect& row) const;

    std::function<QRect()> m_row;
    QString m_text;
    QFont m_font;
    double m_scale = 1;
    Kind m_kind = Kind::Wrong;
};

/// Where a notice of @p size stands beside @p row: at its right, else below, else above, never outside of @p room.
WQ_EXPORT QRect noticePlace(const QSize& size, const QRect& row, const QRect& room, int gap);

} // namespace WQ
