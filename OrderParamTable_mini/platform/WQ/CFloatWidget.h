#pragma once

#include <WQ/CCustomDialog.h>

#include <memory>

namespace WQ {

class CFloatWidgetPrivate;

/// A floating dialog: a title bar over its top 36 pixels, by which it is moved, with a close button. Esc, that button
/// and the window manager close it. It sets no layout; its content leaves the top 36 pixels free.
class WQ_EXPORT CFloatWidget : public CCustomDialog
{
    Q_OBJECT
public:
    /// A dialog without a title.
    /// @param closable whether the title bar has a close button
    /// @param parent the owner; may be null
    CFloatWidget(bool closable, QWidget* parent);
    ~CFloatWidget() override;

    /// The title, in the title bar and for the window manager.
    /// @param title may be empty
    void setTitle(QString title);

    void themeChanged() override;

protected:
    /// @cond handlers
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    /// @endcond

    /// Offers to copy the single cell under the mouse, or all of the dialog.
    /// @param event Qt's
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    std::unique_ptr<CFloatWidgetPrivate> const d;
};

} // namespace WQ
