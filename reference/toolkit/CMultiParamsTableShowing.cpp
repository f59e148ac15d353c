#include <WQ/CMultiParamsTable.h>

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"
#include "reference/toolkit/editors/CellInteraction.h"

#include <utility>

namespace WQ {

void CMultiParamsTable::setItemFilterBlacklist(int id, bool excluded)
{
    d->model().setBlacklisted(id, excluded);
}

void CMultiParamsTable::clearFilterBlacklist()
{
    d->model().clearBlacklist();
}

QSet<int> CMultiParamsTable::getVisibleItemIdSet()
{
    return d->model().visibleSet();
}

void CMultiParamsTable::setVisibleItemSet(QSet<int> ids)
{
    d->model().setVisibleSet(std::move(ids));
}

void CMultiParamsTable::addVisibleItemSet(int id)
{
    d->model().setVisibleSet(QSet<int>(d->model().visibleSet()) << id);
}

void CMultiParamsTable::removeVisbleItemSet(int id)
{
    QSet<int> ids = d->model().visibleSet();
    ids.remove(id);
    d->model().setVisibleSet(std::move(ids));
}

void CMultiParamsTable::setAllItemSet(QSet<int> ids)
{
    d->model().setAllSet(std::move(ids));
}

void CMultiParamsTable::addAllItemSet(int id)
{
    d->model().addToAllSet(id);
}

void CMultiParamsTable::clearVisibleItem()
{
    d->model().setVisibleSet(QSet<int>());
}

void CMultiParamsTable::showAllItems()
{
    d->model().setVisibleSet(QSet<int>());
}

void CMultiParamsTable::setExpand(bool expand)
{
    d->model().setExpanded(expand);
}

void CMultiParamsTable::setCustomWidgetVisible(bool visible)
{
    d->setFooterVisible(visible);
}

void CMultiParamsTable::setMultiFilterWidgetParam()
{
    d->filterChanged();
}

void CMultiParamsTable::setAllItemEnable(bool enable)
{
    d->model().setEnabled(enable);
}

void CMultiParamsTable::setFontScale(bool fontScale)
{
    d->setFontScale(fontScale);
}

int CMultiParamsTable::realHeight() const
{
    return d->contentHeight();
}

void CMultiParamsTable::scaleChanged()
{
    d->takeScale();
}

void CMultiParamsTable::themeChanged()
{
    viewport()->update();
    if (CellInteraction* interaction = d->interactionIfAny())
        interaction->themeChanged();
}

QSize CMultiParamsTable::sizeHint() const
{
    return QSize(resources::size(keys::kPanelWidth, d->scale()), realHeight());
}

// Qt's own, which it takes from the style anew each time that the area around the table looks at it.
QSize CMultiParamsTable::minimumSizeHint() const
{
    QSize& least = d->leastSize();
    if (!least.isValid())
        least = CEventWidgetT<QTableView>::minimumSizeHint();
    return least;
}

} // namespace WQ
