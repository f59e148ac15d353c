#include "reference/toolkit/CellCopyMenu.h"

#include "reference/toolkit/PopupList.h"
#include "reference/toolkit/editors/CopiedTexts.h"

#include <WQ/CParameterCell.h>

#include <QClipboard>
#include <QGuiApplication>

namespace WQ {

namespace {

// Disabled cells get no mouse events of their own, so the window looks for them.
CParameterCell* cellAt(const QWidget* window, const QPoint& position)
{
    for (QWidget* at = window->childAt(position); at && at != window; at = at->parentWidget())
        if (auto* cell = qobject_cast<CParameterCell*>(at))
            return cell;
    return nullptr;
}

QString allCells(const QList<CParameterCell*>& cells)
{
    QStringList lines;
    for (const CParameterCell* cell : cells)
        lines.append(columnText(cell->label()) + QLatin1Char('\t') + columnText(cell->text()));
    return lines.join(QLatin1Char('\n'));
}

} // namespace

void openCellCopyMenu(QWidget* window, const QPoint& position)
{
    const QList<CParameterCell*> cells = window->findChildren<CParameterCell*>();
    if (cells.isEmpty())
        return;
    QStringList entries{CParameterCell::tr("全部复制")};
    QStringList texts{allCells(cells)};
    if (const CParameterCell* cell = cellAt(window, position)) {
        entries.prepend(CParameterCell::tr("复制"));
        texts.prepend(cell->text());
    }
    auto* list = new PopupList(window, entries, -1,
                               [texts](int row) { QGuiApplication::clipboard()->setText(texts.value(row)); });
    list->open(QRect(window->mapToGlobal(position), QSize(1, 1)));
}

} // namespace WQ
