#include "contract/recorder/CallLog.h"
#include "contract/recorder/Cells.h"
#include "contract/recorder/State.h"

#include <WQ/CMultiParamsTable.h>

// The cell table: which cells are shown, and how high they are.
namespace WQ {

using recorder::Ask;
using recorder::Do;
using recorder::Id;
using recorder::record;

void CMultiParamsTable::setItemEditable(int id, bool editable)
{
    record(Do, QStringLiteral("table.setItemEditable"), Id{id}, editable);
}

void CMultiParamsTable::setItemHidden(int id, bool hidden)
{
    record(Do, QStringLiteral("table.setItemHidden"), Id{id}, hidden);
}

void CMultiParamsTable::setItemFilterBlacklist(int id, bool excluded)
{
    record(Do, QStringLiteral("table.setItemFilterBlacklist"), Id{id}, excluded);
}

void CMultiParamsTable::clearFilterBlacklist()
{
    record(Do, QStringLiteral("table.clearFilterBlacklist"));
}

QSet<int> CMultiParamsTable::getVisibleItemIdSet()
{
    record(Ask, QStringLiteral("table.getVisibleItemIdSet"));
    return d->visible;
}

void CMultiParamsTable::setVisibleItemSet(QSet<int> ids)
{
    record(Do, QStringLiteral("table.setVisibleItemSet"), ids);
    d->visible = ids;
}

void CMultiParamsTable::addVisibleItemSet(int id)
{
    record(Do, QStringLiteral("table.addVisibleItemSet"), Id{id});
    d->visible.insert(id);
}

void CMultiParamsTable::removeVisbleItemSet(int id)
{
    record(Do, QStringLiteral("table.removeVisbleItemSet"), Id{id});
    d->visible.remove(id);
}

void CMultiParamsTable::setAllItemSet(QSet<int> ids)
{
    record(Do, QStringLiteral("table.setAllItemSet"), ids);
}

void CMultiParamsTable::addAllItemSet(int id)
{
    record(Do, QStringLiteral("table.addAllItemSet"), Id{id});
}

void CMultiParamsTable::clearVisibleItem()
{
    record(Do, QStringLiteral("table.clearVisibleItem"));
    d->visible.clear();
}

void CMultiParamsTable::showAllItems()
{
    record(Do, QStringLiteral("table.showAllItems"));
    d->visible.clear();
}

void CMultiParamsTable::setExpand(bool expand)
{
    record(Do, QStringLiteral("table.setExpand"), expand);
}

void CMultiParamsTable::setCustomWidgetVisible(bool visible)
{
    record(Do, QStringLiteral("table.setCustomWidgetVisible"), visible);
}

void CMultiParamsTable::setMultiFilterWidgetParam()
{
    record(Do, QStringLiteral("table.setMultiFilterWidgetParam"));
}

void CMultiParamsTable::setAllItemEnable(bool enable)
{
    record(Do, QStringLiteral("table.setAllItemEnable"), enable);
}

void CMultiParamsTable::setFontScale(bool fontScale)
{
    record(Do, QStringLiteral("table.setFontScale"), fontScale);
}

int CMultiParamsTable::realHeight() const
{
    record(Ask, QStringLiteral("table.realHeight"));
    return ++recorder::state().height;
}

void CMultiParamsTable::scaleChanged()
{
    record(Do, QStringLiteral("table.scaleChanged"));
}

void CMultiParamsTable::themeChanged()
{
    record(Do, QStringLiteral("table.themeChanged"));
}

} // namespace WQ
