#include <WQ/CMultiParamsTable.h>

#include "reference/toolkit/AccessibleTable.h"
#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/Painting.h"
#include "reference/toolkit/editors/CellInteraction.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace WQ {

namespace {

void showToolTip(CMultiParamsTablePrivate& table, const QHelpEvent& event)
{
    const CellItem* cell = table.cellAt(event.pos());
    QString text;
    if (cell && table.interactionIfAny())
        text = table.interactionIfAny()->wrongText(*cell);
    if (cell && text.isEmpty())
        text = table.toolTipOf(*cell);
    painting::showToolTip(event, text, table.table());
}

// Qt repaints a view whole when the focus comes or goes, and only one row of ours shows it. Not for code that may run
// a host's: what that asks to be painted would be lost.
class UpdateHold
{
public:
    explicit UpdateHold(QAbstractScrollArea& area)
        : m_widgets{&area, area.viewport()}
    {
        for (size_t i = 0; i < m_widgets.size(); ++i) {
            m_were[i] = m_widgets[i]->testAttribute(Qt::WA_UpdatesDisabled);
            m_widgets[i]->setAttribute(Qt::WA_UpdatesDisabled);
        }
    }

    ~UpdateHold()
    {
        for (size_t i = 0; i < m_widgets.size(); ++i)
            m_widgets[i]->setAttribute(Qt::WA_UpdatesDisabled, m_were[i]);
    }

    UpdateHold(const UpdateHold&) = delete;
    UpdateHold& operator=(const UpdateHold&) = delete;

private:
    std::array<QWidget*, 2> m_widgets;
    std::array<bool, 2> m_were;
};

bool hasNoBars(const QAbstractScrollArea& area)
{
    return area.verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOff
        && area.horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff;
}

} // namespace

CMultiParamsTable::CMultiParamsTable(QWidget* parent, bool fontScale)
    : CEventWidgetT<QTableView>(parent)
    , d(std::make_unique<CMultiParamsTablePrivate>(this, fontScale))
{
    makeTablesAccessible();
    d->setUpView();
}

CMultiParamsTable::~CMultiParamsTable()
{
    // Each of its parts would ask for a repaint of its place; the place of the whole is asked for after them.
    setUpdatesEnabled(false);
}

bool CMultiParamsTable::event(QEvent* event)
{
    if (event->type() == QEvent::Polish || event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange)
        d->leastSize() = QSize();
    // All that Qt would lay out is the viewport, but it asks the style for bars first that are never seen.
    if (event->type() == QEvent::Resize && hasNoBars(*this)) {
        viewport()->setGeometry(rect());
        return true;
    }
    if (event->type() == QEvent::ShortcutOverride && d->interactionIfAny()
        && d->interactionIfAny()->usesShortcut(static_cast<QKeyEvent&>(*event))) {
        event->accept();
        return true;
    }
    const bool handled = CEventWidgetT<QTableView>::event(event);
    // An application's style sheet may put a frame and padding around any scroll area. Qt lays the area out in here.
    if (viewport()->geometry() != rect())
        viewport()->setGeometry(rect());
    return handled;
}

bool CMultiParamsTable::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        showToolTip(*d, *static_cast<QHelpEvent*>(event));
        return true;
    }
    // Qt hands no event of a mouse to a disabled widget, and what is read there may be copied.
    if (event->type() == QEvent::ContextMenu && !isEnabled())
        return d->interaction().contextMenu(static_cast<QContextMenuEvent*>(event));
    if (event->type() == QEvent::Leave && d->interactionIfAny())
        d->interactionIfAny()->leave();
    return CEventWidgetT<QTableView>::viewportEvent(event);
}

void CMultiParamsTable::paintEvent(QPaintEvent* event)
{
    d->paint(event);
}

void CMultiParamsTable::changeEvent(QEvent* event)
{
    CEventWidgetT<QTableView>::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        viewport()->update();
        if (CellInteraction* interaction = d->interactionIfAny())
            interaction->enabledChanged();
    }
    if (event->type() == QEvent::LanguageChange && d->interactionIfAny())
        d->interactionIfAny()->languageChanged();
}

void CMultiParamsTable::keyPressEvent(QKeyEvent* event)
{
    if (!d->interaction().keyPress(event))
        CEventWidgetT<QTableView>::keyPressEvent(event);
}

void CMultiParamsTable::mousePressEvent(QMouseEvent* event)
{
    if (!d->interaction().mousePress(event))
        CEventWidgetT<QTableView>::mousePressEvent(event);
}

void CMultiParamsTable::mouseReleaseEvent(QMouseEvent* event)
{
    if (!d->interaction().mouseRelease(event))
        CEventWidgetT<QTableView>::mouseReleaseEvent(event);
}

void CMultiParamsTable::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (!d->interaction().mouseDoubleClick(event))
        CEventWidgetT<QTableView>::mouseDoubleClickEvent(event);
}

void CMultiParamsTable::mouseMoveEvent(QMouseEvent* event)
{
    if (!d->interaction().mouseMove(event))
        CEventWidgetT<QTableView>::mouseMoveEvent(event);
}

void CMultiParamsTable::wheelEvent(QWheelEvent* event)
{
    if (!d->interaction().wheel(event))
        CEventWidgetT<QTableView>::wheelEvent(event);
}

void CMultiParamsTable::contextMenuEvent(QContextMenuEvent* event)
{
    if (!d->interaction().contextMenu(event))
        CEventWidgetT<QTableView>::contextMenuEvent(event);
}

void CMultiParamsTable::focusInEvent(QFocusEvent* event)
{
    // Without a current row Qt makes one current, and hosts hear of that.
    std::optional<UpdateHold> hold;
    if (currentIndex().isValid())
        hold.emplace(*this);
    CEventWidgetT<QTableView>::focusInEvent(event);
    hold.reset();
    viewport()->update(d->rowRect(currentIndex().row()));
    d->interaction().focusIn(event);
}

void CMultiParamsTable::focusOutEvent(QFocusEvent* event)
{
    std::optional<UpdateHold> hold(std::in_place, *this);
    CEventWidgetT<QTableView>::focusOutEvent(event);
    hold.reset();
    viewport()->update(d->rowRect(currentIndex().row()));
    if (CellInteraction* interaction = d->interactionIfAny())
        interaction->focusOut(event);
}

bool CMultiParamsTable::focusNextPrevChild(bool next)
{
    return d->interaction().focusNextPrevious(next) || CEventWidgetT<QTableView>::focusNextPrevChild(next);
}

void CMultiParamsTable::hideEvent(QHideEvent* event)
{
    if (CellInteraction* interaction = d->interactionIfAny())
        interaction->hidden();
    CEventWidgetT<QTableView>::hideEvent(event);
}

void CMultiParamsTable::setSelectionModel(QItemSelectionModel* selectionModel)
{
    // Not QTableView's: the headers have no model that a selection could be of.
    QAbstractItemView::setSelectionModel(selectionModel);
}

void CMultiParamsTable::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    // Not QTableView's: it would announce the focus by the numbers of Qt's own accessible table.
    QAbstractItemView::currentChanged(current, previous);
    if (current.isValid())
        announceAccessibleFocus(*this);
    viewport()->update(d->rowRect(previous.row()));
    viewport()->update(d->rowRect(current.row()));
    if (CellInteraction* interaction = d->interactionIfAny())
        interaction->currentChanged(current, previous);
}

bool CMultiParamsTable::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    return d->interaction().edit(index, trigger, event);
}

void CMultiParamsTable::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    d->interaction().closeEditor(editor, hint);
}

QModelIndex CMultiParamsTable::moveCursor(CursorAction cursorAction, Qt::KeyboardModifiers)
{
    const int rows = d->model().rowCount();
    const int page = std::max(1, viewport()->height() / d->metrics().rowHeight);
    const int current = currentIndex().isValid() ? currentIndex().row() : -1;
    int row = 0;
    switch (cursorAction) {
    case MoveUp:
    case MoveLeft:
    case MovePrevious:
        row = current - 1;
        break;
    case MoveDown:
    case MoveRight:
    case MoveNext:
        row = current + 1;
        break;
    case MoveHome:
        row = 0;
        break;
    case MoveEnd:
        row = rows - 1;
        break;
    case MovePageUp:
        row = current - page;
        break;
    case MovePageDown:
        row = current + page;
        break;
    }
    return d->model().index(std::max(0, std::min(row, rows - 1)), CellModel::ValueColumn);
}

void CMultiParamsTable::dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight, const QVector<int>&)
{
    // Not Qt's own: it would put the new values into an open editor, over what the person is typing.
    d->rowsChanged(topLeft.row(), bottomRight.row());
    if (QAccessible::isActive()) {
        QAccessibleTableModelChangeEvent change(this, QAccessibleTableModelChangeEvent::DataChanged);
        change.setFirstRow(topLeft.row());
        change.setLastRow(bottomRight.row());
        change.setFirstColumn(topLeft.column());
        change.setLastColumn(bottomRight.column());
        QAccessible::updateAccessibility(&change);
    }
    announceAccessibleValues(*this, topLeft.row(), bottomRight.row());
}

void CMultiParamsTable::scrollContentsBy(int dx, int dy)
{
    CEventWidgetT<QTableView>::scrollContentsBy(dx, dy);
    if (CellInteraction* interaction = d->interactionIfAny())
        interaction->relayout();
}

void CMultiParamsTable::updateGeometries()
{
    d->layout();
}

} // namespace WQ
