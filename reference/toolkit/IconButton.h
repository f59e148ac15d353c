#pragma once

#include <WQ/CUiResourceChangeHandler.h>
#include <WQ/WqExport.h>

#include <QAbstractButton>

#include <functional>

namespace WQ {

/// A small button of the toolkit's own that shows an image: closes a dialog, opens a list, asks for help. It sends no
/// toolkit event.
class WQ_EXPORT IconButton : public QAbstractButton, public CUiResourceChangeHandler
{
    Q_OBJECT
public:
    /// @p sizeKey is the size of the image. Both keys are of the theme files.
    IconButton(QString imageKey, QString sizeKey, QWidget* parent);

    /// @p setTexts gives the button what it says to assistive programs: at once, again when the dot comes or goes, and
    /// whenever the application speaks another language.
    void keepTexts(std::function<void(IconButton&)> setTexts);

    /// A dot at the upper right of the image, in the notice colour.
    void setDot(bool dot);

    bool hasDot() const
    {
        return m_dot;
    }

    void themeChanged() override;
    void scaleChanged() override;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void paintDot(QPainter& painter, int edge) const;

    const QString m_imageKey;
    const QString m_sizeKey;
    std::function<void(IconButton&)> m_setTexts;
    bool m_dot = false;
};

} // namespace WQ
