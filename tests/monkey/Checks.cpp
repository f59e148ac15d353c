#include "monkey/Checks.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"
#include "reference/toolkit/editors/CellEditor.h"

#include <OrderParamTable_mini/frame/COrderParamBaseTable.h>
#include <WQ/CEventWidgetT.h>
#include <WQ/CMultiParamsTable.h>

#include <QApplication>
#include <QThread>

#include <cmath>

namespace monkey {

namespace {

using WQ::CellItem;
using WQ::CellKind;
using Cells = WQ::CMultiParamsTablePrivate;

constexpr int kMostTopLevels = 40;
constexpr int kDeepestDelivery = 64;

QString of(const CellItem& cell, const char* what)
{
    return QStringLiteral("cell %1 (%2): %3").arg(cell.id()).arg(cell.text(), QLatin1String(what));
}

QString number(const CellItem& cell)
{
    const auto& held = static_cast<const WQ::NumberCell&>(cell);
    if (held.minimum() > held.maximum())
        return of(cell, "the minimum is above the maximum");
    if (std::isnan(held.number()))
        return of(cell, "not a number");
    const bool isWhole = held.currentUnit().isWhole();
    if (isWhole && std::trunc(held.number()) != held.number())
        return of(cell, "not whole");
    // What 32 bits cannot hold, or no whole number fits into, bounds nothing.
    const bool hasRoom = !isWhole
        || (std::ceil(held.minimum()) <= std::floor(held.maximum()) && held.minimum() <= 2147483647.0
            && held.maximum() >= -2147483648.0);
    if (hasRoom && (held.number() < held.minimum() || held.number() > held.maximum()))
        return of(cell, "out of its range");
    return {};
}

QString range(const CellItem& cell)
{
    const auto& held = static_cast<const WQ::RangeCell&>(cell);
    if (!(held.low() <= held.high()))
        return of(cell, "the lower is above the higher");
    return held.low() < held.minimum() || held.high() > held.maximum() ? of(cell, "out of its range") : QString();
}

QString combo(const CellItem& cell)
{
    const auto& held = static_cast<const WQ::ComboCell&>(cell);
    return held.currentIndex() < -1 || held.currentIndex() >= held.count() ? of(cell, "no such entry") : QString();
}

QString period(const CellItem& cell)
{
    const auto& held = static_cast<const WQ::PeriodCell&>(cell);
    const bool isRight =
        held.start().isValid() && held.end().isValid() && held.elapse() >= 0 && held.elapse() <= 24 * 60 * 60;
    return isRight ? QString() : of(cell, "no period");
}

struct KindCheck
{
    CellKind kind;
    QString (*complaint)(const CellItem& cell);
};

// clang-format off
constexpr KindCheck kKindChecks[] = {
    {CellKind::Number,      number},
    {CellKind::CheckNumber, number},
    {CellKind::Range,       range},
    {CellKind::Combo,       combo},
    {CellKind::TimePeriod,  period},
};
// clang-format on

QString valueComplaint(const CellItem& cell)
{
    for (const KindCheck& row : kKindChecks) {
        if (row.kind == cell.kind())
            return row.complaint(cell);
    }
    return {};
}

/// By the rule as it is promised, beside the model's own.
bool isShown(const WQ::CellModel& model, const CellItem& cell)
{
    return !cell.isHidden()
        && (model.isExpanded() || model.visibleSet().isEmpty() || model.visibleSet().contains(cell.id()));
}

QString heightComplaint(const WQ::CMultiParamsTable& table, int shown)
{
    const Cells& inner = *Cells::of(&table);
    int height = shown * WQ::resources::size(WQ::keys::kRowHeight, inner.scale());
    if (inner.isFooterVisible())
        height += WQ::resources::size(WQ::keys::kFilterFooter, inner.scale());
    if (table.realHeight() != height)
        return QStringLiteral("realHeight is %1, %2 shown rows need %3").arg(table.realHeight()).arg(shown).arg(height);
    const int rows = inner.model().rowCount();
    return rows == shown ? QString() : QStringLiteral("%1 rows for %2 shown cells").arg(rows).arg(shown);
}

QString editorComplaint(const WQ::CMultiParamsTable& table)
{
    int open = 0;
    for (const auto* editor : table.findChildren<WQ::CellEditor*>())
        open += editor->isVisible() ? 1 : 0;
    if (open > 1)
        return QStringLiteral("%1 editors stand open").arg(open);
    const QModelIndex current = table.currentIndex();
    return current.isValid() && current.row() >= Cells::of(&table)->model().rowCount()
        ? QStringLiteral("the current row is past the last one")
        : QString();
}

QString tableComplaint(const WQ::CMultiParamsTable& table)
{
    const WQ::CellModel& model = Cells::of(&table)->model();
    int shown = 0;
    for (int position = 0; position < model.cellCount(); ++position) {
        const CellItem& cell = *model.itemAt(position)->cell();
        shown += isShown(model, cell) ? 1 : 0;
        const QString complaint = valueComplaint(cell);
        if (!complaint.isEmpty())
            return complaint;
    }
    const QString complaint = heightComplaint(table, shown);
    return complaint.isEmpty() ? editorComplaint(table) : complaint;
}

/// What the getters answer fits together.
QString getterComplaint(QWidget* object)
{
    auto* table = qobject_cast<TC::COrderParamBaseTable*>(object);
    if (!table)
        return {};
    const int order = table->orderType();
    const bool isPlain = order >= -1 && order <= 3;
    if (table->isTrdParamTable() == isPlain)
        return QStringLiteral("order type %1 is taken for another kind").arg(order);
    const int button = table->getSelectedButton();
    if (button >= 0 && table->getBtnIDByName(table->getBtnNameByID(button)) < 0)
        return QStringLiteral("button %1 is checked, and there is none").arg(button);
    return table->priceType() < -1 ? QStringLiteral("price type %1").arg(table->priceType()) : QString();
}

/// Causes itself until as many deliveries stand inside each other as are allowed; when one more stands around them,
/// the last does not arrive.
class Echo : public WQ::CEventWidgetT<QWidget>
{
public:
    using WQ::CEventWidgetT<QWidget>::CEventWidgetT;

    bool handleEvent(int, int, int, QString, void*) override
    {
        if (++heard < kDeepestDelivery)
            child->deliverEvent(0, 0, 0, QString(), nullptr);
        return true;
    }

    WQ::CEventWidgetT<QWidget>* child = nullptr;
    int heard = 0;
};

QString nestingComplaint()
{
    if (QThread::currentThread()->loopLevel() != 0)
        return QStringLiteral("an event loop is left");
    Echo echo;
    WQ::CEventWidgetT<QWidget> child(&echo);
    echo.child = &child;
    child.deliverEvent(0, 0, 0, QString(), nullptr);
    return echo.heard == kDeepestDelivery ? QString() : QStringLiteral("a delivery has not come to its end");
}

QString windowComplaint()
{
    const QWidgetList topLevels = QApplication::topLevelWidgets();
    if (topLevels.size() > kMostTopLevels)
        return QStringLiteral("%1 top-level widgets").arg(topLevels.size());
    for (const QWidget* widget : topLevels) {
        const bool isPopup = widget->windowType() == Qt::Popup;
        if (isPopup && widget->isVisible() && (!widget->parentWidget() || !widget->parentWidget()->isVisible()))
            return QStringLiteral("a %1 stands open without its owner")
                .arg(QLatin1String(widget->metaObject()->className()));
    }
    return QApplication::mouseButtons() == Qt::NoButton ? QString() : QStringLiteral("a mouse button is held");
}

} // namespace

QString firstComplaint(Stage& stage)
{
    for (const WQ::CMultiParamsTable* table : stage.cellTables()) {
        const QString complaint = tableComplaint(*table);
        if (!complaint.isEmpty())
            return complaint;
    }
    for (const Stage::Slot& slot : Stage::slotRows()) {
        const QString complaint = getterComplaint(stage.object(slot));
        if (!complaint.isEmpty())
            return complaint;
    }
    const QString complaint = nestingComplaint();
    return complaint.isEmpty() ? windowComplaint() : complaint;
}

QString leftOvers(int topLevelsBefore)
{
    if (QApplication::activePopupWidget())
        return QStringLiteral("a list stands open after its owner is gone");
    const int left = QApplication::topLevelWidgets().size();
    return left <= topLevelsBefore
        ? QString()
        : QStringLiteral("%1 top-level widgets are left, %2 were there").arg(left).arg(topLevelsBefore);
}

} // namespace monkey
