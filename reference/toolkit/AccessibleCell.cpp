#include "reference/toolkit/AccessibleCell.h"

#include <WQ/CParameterCell.h>

#include <QAccessibleWidget>

namespace WQ {

namespace {

class AccessibleCell : public QAccessibleWidget
{
public:
    explicit AccessibleCell(CParameterCell* cell)
        : QAccessibleWidget(cell, QAccessible::EditableText)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? static_cast<CParameterCell*>(widget())->text()
                                          : QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = !widget()->isEnabled();
        state.editable = widget()->isEnabled();
        return state;
    }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    auto* cell = qobject_cast<CParameterCell*>(object);
    return cell ? new AccessibleCell(cell) : nullptr;
}

} // namespace

void makeCellsAccessible()
{
    static const bool installed = (QAccessible::installFactory(makeInterface), true);
    Q_UNUSED(installed)
}

} // namespace WQ
