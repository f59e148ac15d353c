#include "workbench/PanelStates.h"

#include "workbench/Snapshot.h"

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>
#include <WQ/CMultiParamsTable.h>

#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>

#include <initializer_list>

namespace workbench {

namespace {

void pressKey(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {})
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QCoreApplication::sendEvent(widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QCoreApplication::sendEvent(widget, &release);
    settle();
}

void click(QWidget* widget, QPoint position)
{
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, position, widget->mapToGlobal(position), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &event);
    }
    settle();
}

/// The value cell of the row with that label; invalid when it is not shown.
QModelIndex valueOf(const WQ::CMultiParamsTable& cells, const QString& label)
{
    const QAbstractItemModel* model = cells.model();
    for (int row = 0; row < model->rowCount(); ++row)
        if (model->index(row, 0).data().toString() == label && !cells.isRowHidden(row))
            return model->index(row, 1);
    return {};
}

void focusCell(WQ::CMultiParamsTable& cells, const QString& label)
{
    cells.setFocus(Qt::TabFocusReason);
    cells.setCurrentIndex(valueOf(cells, label));
    settle();
}

QWidget* focused(WQ::CMultiParamsTable& cells)
{
    QWidget* focus = QApplication::focusWidget();
    return focus && cells.isAncestorOf(focus) ? focus : &cells;
}

void typeInto(WQ::CMultiParamsTable& cells, const QString& text)
{
    for (const QChar character : text)
        pressKey(focused(cells), 0, Qt::NoModifier, character);
}

/// The unit's drop-down stands at the right end of the row.
void openUnits(WQ::CMultiParamsTable& cells, const QString& label)
{
    focusCell(cells, label);
    pressKey(&cells, Qt::Key_Down, Qt::AltModifier);
}

/// The filter's footer is the last line of the cell table.
void openFilter(const WQ::CMultiParamsTable& cells)
{
    QWidget* viewport = cells.viewport();
    click(viewport, viewport->rect().bottomRight() - QPoint(viewport->width() / 10, viewport->height() / 40));
}

/// What a key reaches: the list or menu that is open, else the cells.
QWidget* keyTarget(WQ::CMultiParamsTable& cells)
{
    QWidget* popup = QApplication::activePopupWidget();
    return popup ? popup : focused(cells);
}

void pressKeys(WQ::CMultiParamsTable& cells, std::initializer_list<int> keys)
{
    for (const int key : keys)
        pressKey(keyTarget(cells), key);
}

/// Down the menu to the entry that opens another one.
void openUnitMenu(WQ::CMultiParamsTable& cells)
{
    pressKeys(cells, {Qt::Key_Menu});
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    for (int left = menu ? menu->actions().size() : 0; left > 0; --left) {
        pressKeys(cells, {Qt::Key_Down});
        if (menu->activeAction() && menu->activeAction()->menu())
            return pressKeys(cells, {Qt::Key_Right});
    }
}

/// What stood in the clipboard is there again afterwards.
void paste(WQ::CMultiParamsTable& cells, const QString& text)
{
    QClipboard& clipboard = *QGuiApplication::clipboard();
    const QString before = clipboard.text();
    clipboard.setText(text);
    pressKey(&cells, Qt::Key_V, Qt::ControlModifier);
    clipboard.setText(before);
}

void askToolTip(WQ::CMultiParamsTable& cells, const QString& label)
{
    QWidget* viewport = cells.viewport();
    const QPoint at = cells.visualRect(valueOf(cells, label)).center();
    QHelpEvent asked(QEvent::ToolTip, at, viewport->mapToGlobal(at));
    QCoreApplication::sendEvent(viewport, &asked);
    settle();
}

void scrollDown(TC::COrderParamBaseTable& table)
{
    if (auto* area = table.findChild<QScrollArea*>())
        area->verticalScrollBar()->setValue(area->verticalScrollBar()->maximum());
}

} // namespace

void bringInto(TC::COrderParamBaseTable& table, PanelState state)
{
    WQ::CMultiParamsTable& cells = *table.getMultiParamsTable();
    switch (state) {
    case PanelState::AtRest:
    case PanelState::Disabled:
        return;
    case PanelState::RowFocused:
        return focusCell(cells, QStringLiteral("单笔超价"));
    case PanelState::EditorOpen:
        focusCell(cells, QStringLiteral("单笔超价"));
        return pressKey(&cells, Qt::Key_F2);
    case PanelState::WrongInput:
        focusCell(cells, QStringLiteral("单笔最大量"));
        pressKey(&cells, Qt::Key_F2);
        typeInto(cells, QStringLiteral("500000000"));
        return pressKey(focused(cells), Qt::Key_Return);
    case PanelState::OffGrid:
        focusCell(cells, QStringLiteral("单笔最大量"));
        pressKey(&cells, Qt::Key_F2);
        return typeInto(cells, QStringLiteral("1250"));
    case PanelState::UnitListOpen:
        return openUnits(cells, QStringLiteral("单笔超价"));
    case PanelState::EntryListOpen:
        focusCell(cells, QStringLiteral("报价方式"));
        return pressKey(&cells, Qt::Key_F2);
    case PanelState::PeriodEditorOpen:
        focusCell(cells, QStringLiteral("有效时间"));
        return pressKey(&cells, Qt::Key_F2);
    case PanelState::FilterOpen:
        return openFilter(cells);
    case PanelState::FilterButtonFocused:
        openFilter(cells);
        return pressKeys(cells, {Qt::Key_Tab});
    case PanelState::MenuOpen:
        focusCell(cells, QStringLiteral("单笔超价"));
        return pressKeys(cells, {Qt::Key_Menu, Qt::Key_Down});
    case PanelState::UnitMenuOpen:
        focusCell(cells, QStringLiteral("单笔超价"));
        return openUnitMenu(cells);
    case PanelState::PasteRefused:
        focusCell(cells, QStringLiteral("单笔超价"));
        return paste(cells, QStringLiteral("abc"));
    case PanelState::RangeToolTip:
        return askToolTip(cells, QStringLiteral("单笔最大量"));
    case PanelState::Scrolled:
        return scrollDown(table);
    }
}

} // namespace workbench
