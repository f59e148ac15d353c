#include "reference/toolkit/AccessibleTablePart.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/CellInteraction.h"

namespace WQ {

AccessibleTablePart::AccessibleTablePart(CMultiParamsTable* table)
    : m_table(table)
{
}

QObject* AccessibleTablePart::object() const
{
    return nullptr;
}

QAccessibleInterface* AccessibleTablePart::parent() const
{
    return m_table ? QAccessible::queryAccessibleInterface(m_table.data()) : nullptr;
}

QAccessibleInterface* AccessibleTablePart::child(int) const
{
    return nullptr;
}

QAccessibleInterface* AccessibleTablePart::childAt(int, int) const
{
    return nullptr;
}

int AccessibleTablePart::childCount() const
{
    return 0;
}

int AccessibleTablePart::indexOfChild(const QAccessibleInterface*) const
{
    return -1;
}

void AccessibleTablePart::setText(QAccessible::Text, const QString&)
{
}

QRect AccessibleTablePart::onScreen(const QRect& place) const
{
    return QRect(m_table->viewport()->mapToGlobal(place.topLeft()), place.size());
}

bool hasFooterFocus(const CMultiParamsTable& table)
{
    const CellInteraction* interaction = CMultiParamsTablePrivate::of(&table)->interactionIfAny();
    return interaction && interaction->footerState().focus;
}

} // namespace WQ
