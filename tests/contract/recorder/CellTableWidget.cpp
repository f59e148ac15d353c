#include "contract/recorder/Cells.h"

#include <WQ/CMultiParamsTable.h>

// The cell table as any other table of Qt: what the toolkit overrides is left to the base.
namespace WQ {

QSize CMultiParamsTable::sizeHint() const
{
    return QTableView::sizeHint();
}

QSize CMultiParamsTable::minimumSizeHint() const
{
    return QTableView::minimumSizeHint();
}

bool CMultiParamsTable::event(QEvent* event)
{
    return QTableView::event(event);
}

bool CMultiParamsTable::viewportEvent(QEvent* event)
{
    return QTableView::viewportEvent(event);
}

void CMultiParamsTable::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
}

void CMultiParamsTable::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
}

void CMultiParamsTable::keyPressEvent(QKeyEvent* event)
{
    QTableView::keyPressEvent(event);
}

void CMultiParamsTable::mousePressEvent(QMouseEvent* event)
{
    QTableView::mousePressEvent(event);
}

void CMultiParamsTable::mouseReleaseEvent(QMouseEvent* event)
{
    QTableView::mouseReleaseEvent(event);
}

void CMultiParamsTable::mouseDoubleClickEvent(QMouseEvent* event)
{
    QTableView::mouseDoubleClickEvent(event);
}

void CMultiParamsTable::mouseMoveEvent(QMouseEvent* event)
{
    QTableView::mouseMoveEvent(event);
}

void CMultiParamsTable::wheelEvent(QWheelEvent* event)
{
    QTableView::wheelEvent(event);
}

void CMultiParamsTable::focusInEvent(QFocusEvent* event)
{
    QTableView::focusInEvent(event);
}

void CMultiParamsTable::focusOutEvent(QFocusEvent* event)
{
    QTableView::focusOutEvent(event);
}

void CMultiParamsTable::contextMenuEvent(QContextMenuEvent* event)
{
    QTableView::contextMenuEvent(event);
}

bool CMultiParamsTable::focusNextPrevChild(bool next)
{
    return QTableView::focusNextPrevChild(next);
}

void CMultiParamsTable::hideEvent(QHideEvent* event)
{
    QTableView::hideEvent(event);
}

void CMultiParamsTable::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
}

bool CMultiParamsTable::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    return QTableView::edit(index, trigger, event);
}

void CMultiParamsTable::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    QTableView::closeEditor(editor, hint);
}

void CMultiParamsTable::setSelectionModel(QItemSelectionModel* selectionModel)
{
    QTableView::setSelectionModel(selectionModel);
}

QModelIndex CMultiParamsTable::moveCursor(CursorAction cursorAction, Qt::KeyboardModifiers modifiers)
{
    return QTableView::moveCursor(cursorAction, modifiers);
}

void CMultiParamsTable::dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                                    const QVector<int>& roles)
{
    QTableView::dataChanged(topLeft, bottomRight, roles);
}

void CMultiParamsTable::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
}

void CMultiParamsTable::updateGeometries()
{
    QTableView::updateGeometries();
}

} // namespace WQ
