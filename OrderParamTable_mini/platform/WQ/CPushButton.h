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
    /// A button that can be checked.
    /// @param color its four background colours; an empty key paints none
    /// @param id its click event carries it
    /// @param parent the owner; may be null
    CPushButton(const CButtonColor& color, int id, QWidget* parent);

    /// A button that shows an image; the numbers after the ID mean nothing here.
    /// @param imageKey the image
    /// @param id its click event carries it
    /// @param parent the owner; may be null
    CPushButton(const QString& imageKey, int id, int, int, int, int, QWidget* parent);

    ~CPushButton() override;

    /// The ID that its click event carries.
    /// @return the constructor's
    int id() const;

    /// The colour keys of the text; null keeps the key it has.
    /// @param normal at rest
    /// @param hover under the mouse
    /// @param checked while checked
    /// @param disabled while disabled
    void setTextColorKey(const char* normal, const char* hover, const char* checked, const char* disabled);

    /// Chooses how the button shows that it is down.
    /// @param style another value than the enumerated ones shows no mark
    void setButtonDownStyle(EPushButtonDownStyle style);

    /// Shows an image; the number after the place means nothing here.
    /// @param imageKey the image; empty for none
    /// @param align its place
    void setIcon(const QString& imageKey, EIconAlign align, int);

    /// The image it shows.
    /// @return its key; empty when none
    QString iconKey() const;

    /// The width that text and image need.
    /// @return pixels at the current UI scale
    int getMinWidth() const;

    /// @cond handlers
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// @endcond
    void themeChanged() override;
    void scaleChanged() override;

protected:
    /// @cond handlers
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    /// @endcond

private:
    std::unique_ptr<CPushButtonPrivate> const d;
};

} // namespace WQ
