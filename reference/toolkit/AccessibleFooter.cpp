#include "reference/toolkit/AccessibleFooter.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/CellInteraction.h"

namespace WQ {

AccessibleFooter::AccessibleFooter(CMultiParamsTable* table)
    : m_table(table)
{
}

bool AccessibleFooter::isValid() const
{
    return m_table && CMultiParamsTablePrivate::of(m_table)->isFooterVisible();
}

QObject* AccessibleFooter::object() const
{
    return nullptr;
}

QAccessibleInterface* AccessibleFooter::parent() const
{
    return m_table ? QAccessible::queryAccessibleInterface(m_table.data()) : nullptr;
}

QAccessibleInterface* AccessibleFooter::child(int) const
{
    return nullptr;
}

QAccessibleInterface* AccessibleFooter::childAt(int, int) const
{
    return nullptr;
}

int AccessibleFooter::childCount() const
{
    return 0;
}

int AccessibleFooter::indexOfChild(const QAccessibleInterface*) const
{
    return -1;
}

QString AccessibleFooter::text(QAccessible::Text kind) const
{
    if (!isValid())
        return QString();
    if (kind == QAccessible::Name)
        return CMultiParamsTable::tr("筛选");
    const bool filters = !CMultiParamsTablePrivate::of(m_table)->model().visibleSet().isEmpty();
    return kind == QAccessible::Description && filters ? CMultiParamsTable::tr("部分参数未显示") : QString();
}

void AccessibleFooter::setText(QAccessible::Text, const QString&)
{
}

QRect AccessibleFooter::rect() const
{
    if (!isValid())
        return QRect();
    const QRect place = CMultiParamsTablePrivate::of(m_table)->footerRect();
    return QRect(m_table->viewport()->mapToGlobal(place.topLeft()), place.size());
}

QAccessible::Role AccessibleFooter::role() const
{
    return QAccessible::ButtonMenu;
}

QAccessible::State AccessibleFooter::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const CMultiParamsTablePrivate& table = *CMultiParamsTablePrivate::of(m_table);
    const CellInteraction* interaction = table.interactionIfAny();
    state.disabled = !table.isFilterEnabled();
    state.invisible = !m_table->isVisible();
    state.hasPopup = true;
    state.focusable = !state.disabled;
    state.focused = m_table->hasFocus() && interaction && interaction->footerState().focus;
    return state;
}

} // namespace WQ
