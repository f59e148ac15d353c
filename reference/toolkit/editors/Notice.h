#pragma once

#include <WQ/WqExport.h>

#include <QFont>
#include <QWidget>

namespace WQ {

/// The framed line beside a row that says what is wrong in its editor. It takes neither focus nor mouse.
class WQ_EXPORT Notice : public QWidget
{
    Q_OBJECT
public:
    explicit Notice(QWidget* owner);

    /// Shows @p text at the right of @p row, or below it where the screen ends. Global coordinates.
    void tell(const QString& text, const QRect& row, double scale);

    const QString& text() const
    {
        return m_text;
    }

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString m_text;
    QFont m_font;
};

} // namespace WQ
