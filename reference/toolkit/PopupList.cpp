#include "reference/toolkit/PopupList.h"

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/SlimScrollBar.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QStringListModel>
#include <QStyledItemDelegate>

#include <algorithm>
#include <utility>

namespace WQ {

namespace {

constexpr int kMostRows = 16;
constexpr int kMostMeasured = 200;

/// Paints an entry; the marked one in the accent colour.
class EntryDelegate : public QStyledItemDelegate
{
public:
    EntryDelegate(int marked, double scale, QObject* parent)
        : QStyledItemDelegate(parent)
        , m_marked(marked)
        , m_scale(scale)
    {
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const auto* view = static_cast<const QAbstractItemView*>(option.widget);
        const bool current = view && view->currentIndex() == index;
        const int padding = resources::size(keys::kPadding, m_scale);
        painter->fillRect(option.rect, resources::color(current ? keys::kRowFocus : keys::kRow));
        painting::drawText(*painter, option.rect.adjusted(padding, 0, -padding, 0),
                           resources::font(keys::kTextFont, m_scale),
                           resources::color(index.row() == m_marked ? keys::kAccent : keys::kValue),
                           Qt::AlignLeft | Qt::AlignVCenter, index.data().toString());
    }

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override
    {
        const int height = resources::size(keys::kPopupRowHeight, m_scale);
        return {height, height};
    }

private:
    const int m_marked;
    const double m_scale;
};

} // namespace

PopupList::PopupList(QWidget* owner, const QStringList& entries, int current, Chosen chosen)
    : QListView(owner)
    , m_model(new QStringListModel(entries, this))
    , m_chosen(std::move(chosen))
{
    setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::NoFrame);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setMouseTracking(true);
    setModel(m_model);
    setItemDelegate(new EntryDelegate(current, painting::scaleOf(owner), this));
    setVerticalScrollBar(new SlimScrollBar(Qt::Vertical, keys::kRow, this));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setCurrentIndex(m_model->index(std::max(0, current)));
    owner->installEventFilter(this);
}

QSize PopupList::neededSize() const
{
    const double scale = painting::scaleOf(parentWidget());
    const QFont font = resources::font(keys::kTextFont, scale);
    const QStringList entries = m_model->stringList();
    int widest = 0;
    for (const QString& entry : entries.mid(0, kMostMeasured))
        widest = std::max(widest, painting::textWidth(font, entry));
    const int rows = std::clamp(entries.size(), 1, kMostRows);
    return {widest + 2 * resources::size(keys::kPadding, scale) + resources::size(keys::kScrollBar, scale),
            rows * resources::size(keys::kPopupRowHeight, scale)};
}

void PopupList::open(const QRect& anchor)
{
    // A key may reach a button that is hidden by now: a window hands its keys to what had the focus last.
    if (!parentWidget()->isVisible()) {
        deleteLater();
        return;
    }
    const QScreen* on = parentWidget()->screen();
    const QRect room = on ? on->availableGeometry() : QRect(QPoint(), neededSize());
    const QSize size = neededSize().boundedTo(room.size());
    const bool above = anchor.bottom() + size.height() > room.bottom() && anchor.top() - size.height() >= room.top();
    const int top = above ? anchor.top() - size.height() : anchor.bottom() + 1;
    const int wanted = anchor.width() > 1 ? anchor.right() + 1 - size.width() : anchor.left();
    const int left = std::clamp(wanted, room.left(), std::max(room.left(), room.right() + 1 - size.width()));
    setGeometry(QRect(QPoint(left, top), size));
    show();
    setFocus(Qt::PopupFocusReason);
}

// Whatever is chosen may take the owner away, and this list with it.
void PopupList::choose(const QModelIndex& index)
{
    if (!index.isValid())
        return;
    const QPointer<QWidget> owner(parentWidget());
    const Chosen chosen = std::exchange(m_chosen, nullptr);
    const int row = index.row();
    close();
    if (owner && chosen)
        chosen(row);
}

void PopupList::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        close();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        choose(currentIndex());
        return;
    default:
        QListView::keyPressEvent(event);
    }
}

void PopupList::mouseMoveEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->pos());
    if (index.isValid())
        setCurrentIndex(index);
}

void PopupList::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && viewport()->rect().contains(event->pos()))
        choose(indexAt(event->pos()));
}

void PopupList::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    QPainter painter(viewport());
    painting::drawFrame(painter, viewport()->rect(), resources::color(keys::kSeparator));
    if (currentIndex().isValid())
        painting::drawFrame(painter, visualRect(currentIndex()), resources::color(keys::kAccent));
}

bool PopupList::event(QEvent* event)
{
    const bool handled = QListView::event(event);
    if (event->type() == QEvent::Polish || event->type() == QEvent::StyleChange)
        painting::shieldFromStyleSheet(this);
    return handled;
}

// A window does not take the windows along that it owns.
bool PopupList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Hide)
        close();
    return QListView::eventFilter(watched, event);
}

} // namespace WQ
