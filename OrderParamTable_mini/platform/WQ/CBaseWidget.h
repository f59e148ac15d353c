#pragma once

#include <WQ/CEventWidgetT.h>
#include <WQ/CUiResourceChangeHandler.h>

#include <QRect>
#include <QWidget>

#include <memory>

class QPainter;

namespace WQ {

class CBaseWidgetPrivate;

/// The toolkit's plain widget: listens to events, follows theme and scale.
class WQ_EXPORT CBaseWidget : public CEventWidgetT<QWidget>, public CUiResourceChangeHandler
{
    Q_OBJECT
public:
    /// @param objectName the widget's name
    /// @param active whether it starts as the active one of its window
    /// @param parent the owner; may be null
    CBaseWidget(QString objectName, bool active, QWidget* parent);
    ~CBaseWidget() override;

    /// Answers false: nothing is handled here.
    /// @param event the event's number
    /// @param a its first number
    /// @param b its second number
    /// @param text its text
    /// @param data its data, valid during the call only
    /// @return whether it was handled for good
    bool handleEvent(int event, int a, int b, QString text, void* data) override;

    /// Repaints.
    void themeChanged() override;

    /// Takes the fixed font at the new scale, when setFixFont() has asked for it, and repaints.
    void scaleChanged() override;

    /// Uses the toolkit's fixed font ("fnt_default_normal_fix") and follows its scale from then on.
    virtual void setFixFont();

    /// The part of the widget that a mask may cover, in its own coordinates: all of it.
    /// @return pixels
    virtual QRect getMaskRect() const;

    /// Makes the widget the active one or not; becoming active calls onActive().
    /// @param active whether it is the active one from now on
    /// @param takeFocus whether an activated widget takes the keyboard focus
    virtual void setActive(bool active, bool takeFocus);

    /// Called after the widget became active. This one does nothing.
    virtual void onActive();

protected:
    /// Fills the widget with the window colour; called by the paint event.
    /// @param painter open on the widget
    virtual void paintBackgroud(QPainter& painter);

    /// @cond handlers
    void paintEvent(QPaintEvent* event) override;
    /// @endcond

private:
    std::unique_ptr<CBaseWidgetPrivate> const d;
};

} // namespace WQ
