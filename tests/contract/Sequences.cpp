#include "contract/Sequences.h"

#include "contract/recorder/CallLog.h"

namespace contract {

namespace {

QString hidden(int cell, bool isHidden)
{
    return QStringLiteral("table.setItemHidden(0x%1, %2)").arg(cell, 0, 16).arg(recorder::written(isHidden));
}

QString line(const char* text)
{
    return QString::fromLatin1(text);
}

QString cellSet(const char* call, quint32 word)
{
    QStringList cells;
    for (quint32 cell = 1; cell <= 0x8000000; cell *= 2) {
        if (word & cell)
            cells << QStringLiteral("0x%1").arg(cell, 0, 16);
    }
    return line(call) + QLatin1String("({") + cells.join(QLatin1String(", ")) + QLatin1String("})");
}

QStringList algorithmCells(const ShownCells& cells)
{
    QStringList calls;
    for (const int cell : {0x8, 0x200, 0x400, 0x800, 0x1000, 0x2000}) {
        const bool isListed = (cells.word & quint32(cell)) != 0;
        if (cells.expanded || (cell != 0x8 && !isListed))
            calls << hidden(cell, !cells.expanded);
    }
    return calls;
}

} // namespace

QStringList superPriceShow(const ShownCells& cells)
{
    QStringList calls{line("table.addAllItemSet(0x2)")};
    if (cells.orderType != 0)
        calls << line("table.addAllItemSet(0x4)");
    return calls << hidden(0x2, false) << hidden(0x4, !cells.expanded || cells.orderType == 0);
}

QStringList tableByPriceType(const ShownCells& cells)
{
    if (cells.orderType != 0 && cells.orderType != 1)
        return {};
    return QStringList{
               line("table.setItemHidden(0x100000, true)"),
               line("table.setItemFilterBlacklist(0x100000, true)"),
               line("table.setItemFilterBlacklist(0x2000000, false)"),
               line("table.addVisibleItemSet(0x2000000)"),
               line("table.setItemHidden(0x2000000, false)"),
               line("table.removeVisbleItemSet(0x2000000)"),
           }
    + superPriceShow(cells);
}

QStringList expansion(const ShownCells& cells)
{
    QStringList calls;
    calls << line(cells.expanded ? "table.setExpand(true)" : "table.setExpand(false)");
    if (cells.expanded)
        calls << line("table.showAllItems()");
    else if (cells.word != 0)
        calls << cellSet("table.setVisibleItemSet", cells.word);
    else
        calls << line("table.clearVisibleItem()");
    if (cells.orderType == 1)
        calls << algorithmCells(cells);
    return calls << superPriceShow(cells) << line("table.setFixedHeight(realHeight)");
}

QStringList cellVisibilities(const ShownCells& cells)
{
    QStringList calls{line("table.clearVisibleItem()")};
    calls << QStringLiteral("group.setCheckedByID(%1)").arg(600 + cells.orderType);
    for (int cell = 0x1; cell <= 0x8000000; cell *= 2) {
        if (cell != 0x2000000)
            calls << hidden(cell, (cells.visible & quint32(cell)) == 0);
    }
    calls << cellSet("table.setAllItemSet", cells.visible) << line("table.clearFilterBlacklist()");
    return calls << tableByPriceType(cells) << line("table.setFixedHeight(realHeight)") << expansion(cells);
}

} // namespace contract
