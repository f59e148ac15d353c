#pragma once

#include <WQ/CEventWidgetT.h>
#include <WQ/CUiResourceChangeHandler.h>

#include <QDialog>

namespace WQ {

/// The toolkit's plain dialog: listens to events, follows the theme.
class WQ_EXPORT CBaseDialog : public CEventWidgetT<QDialog>, public CUiResourceChangeHandler
{
    Q_OBJECT
public:
    /// A dialog that can be closed by its window.
    /// @param parent the owner; may be null
    explicit CBaseDialog(QWidget* parent);
    ~CBaseDialog() override;

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

    /// Does nothing: a dialog keeps its size at every UI scale.
    void scaleChanged() override;

protected:
    /// Whether the dialog may be accepted; asked by onOK(). This one answers true.
    /// @return true lets onOK() accept
    virtual bool checkOK();

    /// Accepts the dialog when checkOK() allows it.
    virtual void onOK();

    /// @cond handlers
    void paintEvent(QPaintEvent* event) override;
    /// @endcond
};

} // namespace WQ
