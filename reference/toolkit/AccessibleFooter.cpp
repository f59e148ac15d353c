#include "reference/toolkit/AccessibleFooter.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"

namespace WQ {

bool AccessibleFooter::isValid() const
{
    return m_table && CMultiParamsTablePrivate::of(m_table)->isFooterVisible();
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

QRect AccessibleFooter::rect() const
{
    return isValid() ? onScreen(CMultiParamsTablePrivate::of(m_table)->footerRect()) : QRect();
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
    state.disabled = !table.isFilterEnabled();
    state.invisible = !m_table->isVisible();
    state.hasPopup = true;
    state.focusable = !state.disabled;
    state.focused = m_table->hasFocus() && hasFooterFocus(*m_table);
    return state;
}

} // namespace WQ
