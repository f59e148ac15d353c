#pragma once

#include <WQ/CEventWidgetT.h>
#include <WQ/CUiResourceChangeHandler.h>
#include <WQ/ToolkitTypes.h>

#include <QPushButton>

#include <memory>

namespace WQ {

class CPushButtonPrivate;

/// A flat button of the theme. A click sends event 5 with its ID, b 0 and its text.
class WQ_EXPORT CPushButton : public CEventWidgetT<QPushButton>, public CUiResourceChangeHandler
{
    Q_OBJECT
public:
    /// A button with the four background colours of @p color, of which an empty key paints none. It can be checked.
    CPushButton(const CButtonColor& color, int id, QWidget* parent);

    /// A button that shows the image of @p imageKey; the numbers after the ID mean nothing here.
    CPushButton(const QString& imageKey, int id, int, int, int, int, QWidget* parent);

    ~CPushButton() override;

    /// The ID that its click event carries.
    int id() const;

    /// The colour keys of the text at rest, under the mouse, checked, disabled; null keeps the key it has.
    void setTextColorKey(const char* normal, const char* hover, const char* checked, const char* disabled);

    void setButtonDownStyle(EPushButtonDownStyle style);

    /// Shows the image of @p imageKey; the number after the place means nothing here. An empty key shows none.
    void setIcon(const QString& imageKey, EIconAlign align, int);

    /// The key of the image it shows; empty when none.
    QString iconKey() const;

    /// The width that text and image need, in pixels.
    int getMinWidth() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void themeChanged() override;
    void scaleChanged() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    std::unique_ptr<CPushButtonPrivate> const d;
};

} // namespace WQ
