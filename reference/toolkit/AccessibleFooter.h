#pragma once

#include <WQ/CMultiParamsTable.h>

#include <QAccessible>
#include <QPointer>

namespace WQ {

/// The filter's footer in the accessible tree of its table: a button that opens a list.
class AccessibleFooter : public QAccessibleInterface
{
public:
    explicit AccessibleFooter(CMultiParamsTable* table);

    bool isValid() const override;
    QObject* object() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString& text) override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

private:
    QPointer<CMultiParamsTable> m_table;
};

} // namespace WQ
