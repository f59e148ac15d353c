#pragma once

#include <WQ/CMultiParamsTable.h>

#include <QAccessibleInterface>
#include <QPointer>

namespace WQ {

/// What a table paints itself, in its accessible tree: no object stands behind it, and nothing is in it.
class AccessibleTablePart : public QAccessibleInterface
{
public:
    explicit AccessibleTablePart(CMultiParamsTable* table);

    QObject* object() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    void setText(QAccessible::Text kind, const QString& text) override;

protected:
    /// @p place in the viewport, as a place on the screen.
    QRect onScreen(const QRect& place) const;

    QPointer<CMultiParamsTable> m_table;
};

/// Whether the keys of @p table go to the filter's footer.
bool hasFooterFocus(const CMultiParamsTable& table);

} // namespace WQ
