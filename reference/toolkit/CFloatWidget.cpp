#include <WQ/CFloatWidget.h>

#include "reference/toolkit/CellCopyMenu.h"
#include "reference/toolkit/IconButton.h"
#include "reference/toolkit/Painting.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

#include <optional>

namespace WQ {

namespace {

// A dialog keeps its size at every UI scale.
constexpr double kScale = 1.0;

} // namespace

class CFloatWidgetPrivate
{
public:
    CFloatWidgetPrivate(CFloatWidget* owner, bool isClosable);
    QRect titleBar() const;
    QRect titleRect() const;
    void placeClose();

    CFloatWidget* const dialog;
    IconButton* const close; ///< null when the dialog has none
    QString title;
    std::optional<QPoint> grip; ///< where in the dialog the mouse holds it
};

CFloatWidgetPrivate::CFloatWidgetPrivate(CFloatWidget* owner, bool isClosable)
    : dialog(owner)
    , close(isClosable ? new IconButton(keys::kCloseImage, keys::kCloseIcon, owner) : nullptr)
{
    if (!close)
        return;
    close->keepTexts([](IconButton& button) { button.setAccessibleName(CFloatWidget::tr("关闭")); });
    // Tab goes through what the dialog shows; Esc closes it from the keyboard.
    close->setFocusPolicy(Qt::NoFocus);
    QObject::connect(close, &QAbstractButton::clicked, dialog, &QWidget::close);
    placeClose();
}

QRect CFloatWidgetPrivate::titleBar() const
{
    return {0, 0, dialog->width(), resources::size(keys::kTitleBar, kScale)};
}

QRect CFloatWidgetPrivate::titleRect() const
{
    const int padding = resources::size(keys::kPadding, kScale);
    const int right = close ? titleBar().height() : padding;
    return titleBar().adjusted(padding, 0, -right, 0);
}

// The button stands in the middle of the square at the right end of the title bar, over whatever a layout puts there.
void CFloatWidgetPrivate::placeClose()
{
    if (!close)
        return;
    const int edge = resources::size(keys::kCloseButton, kScale);
    const int inset = (titleBar().height() - edge) / 2;
    close->setGeometry(dialog->width() - inset - edge, inset, edge, edge);
    close->raise();
}

CFloatWidget::CFloatWidget(bool closable, QWidget* parent)
    : CCustomDialog(parent)
    , d(std::make_unique<CFloatWidgetPrivate>(this, closable))
{
}

CFloatWidget::~CFloatWidget() = default;

void CFloatWidget::setTitle(QString title)
{
    d->title = title;
    setWindowTitle(painting::shownText(title));
    update(d->titleBar());
}

void CFloatWidget::themeChanged()
{
    CCustomDialog::themeChanged();
}

void CFloatWidget::paintEvent(QPaintEvent* event)
{
    CCustomDialog::paintEvent(event);
    QPainter painter(this);
    painting::drawText(painter, d->titleRect(), resources::font(keys::kTitleFont, kScale),
                       resources::color(keys::kValue), Qt::AlignLeft | Qt::AlignVCenter, d->title);
}

void CFloatWidget::resizeEvent(QResizeEvent* event)
{
    CCustomDialog::resizeEvent(event);
    d->placeClose();
}

// The window system moves the window where it can; elsewhere the dialog follows the mouse itself.
void CFloatWidget::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    if (event->button() != Qt::LeftButton || !d->titleBar().contains(event->pos()))
        return;
    QWindow* const window = windowHandle();
    if (!window || !window->startSystemMove())
        d->grip = event->pos();
}

void CFloatWidget::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
    if (d->grip && event->buttons().testFlag(Qt::LeftButton))
        move(event->globalPos() - *d->grip);
}

void CFloatWidget::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
    if (event->button() == Qt::LeftButton)
        d->grip.reset();
}

// Nothing is touched after close(): the dialog may be gone by then.
void CFloatWidget::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel)) {
        event->accept();
        close();
        return;
    }
    CCustomDialog::keyPressEvent(event);
}

void CFloatWidget::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
    openCellCopyMenu(this, event->pos());
}

} // namespace WQ
