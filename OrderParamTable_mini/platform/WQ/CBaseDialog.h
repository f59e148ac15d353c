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
    explicit CBaseDialog(QWidget* parent);
    ~CBaseDialog() override;

    /// Answers false: nothing is handled here.
    bool handleEvent(int event, int a, int b, QString text, void* data) override;

    /// Repaints.
    void themeChanged() override;

    /// Does nothing: a dialog keeps its size at every UI scale.
    void scaleChanged() override;

protected:
    /// Whether the dialog may be accepted; asked by onOK(). This one answers true.
    virtual bool checkOK();

    /// Accepts the dialog when checkOK() allows it.
    virtual void onOK();

    void paintEvent(QPaintEvent* event) override;
};

} // namespace WQ
