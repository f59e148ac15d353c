#include "frame/HandlingChecks.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/CellEditor.h"
#include "reference/toolkit/editors/CellInteraction.h"
#include "reference/toolkit/editors/Notice.h"

#include <QApplication>
#include <QRegularExpression>

#include <cmath>
#include <utility>

namespace {

using Inner = WQ::CMultiParamsTablePrivate;
using WQ::CellItem;
using WQ::CellKind;

constexpr int kValueEvents[] = {73, 87, 101, 102};
constexpr int kUnitOrCheck = 118;

const Inner& innerOf(const WQ::CMultiParamsTable& table)
{
    return *Inner::of(&table);
}

QVector<const CellItem*> cellsOf(const WQ::CMultiParamsTable& table)
{
    const WQ::CellModel& model = innerOf(table).model();
    QVector<const CellItem*> cells;
    for (int i = 0; i < model.cellCount(); ++i)
        cells << model.itemAt(i)->cell();
    return cells;
}

bool isNumberText(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("\\A-?[0-9]+(\\.[0-9]+)?\\z"));
    return pattern.match(text).hasMatch();
}

// By what is promised of each kind, with the answers that every host gets.

/// Where no whole number of 32 bits fits between the limits, they bound nothing.
bool hasRoom(const QPair<double, double>& limits, const WQ::NumberUnit& unit)
{
    constexpr double kLowest = -2147483648.0;
    constexpr double kHighest = 2147483647.0;
    return !unit.isWhole()
        || (std::ceil(limits.first) <= std::floor(limits.second) && limits.first <= kHighest
            && limits.second >= kLowest);
}

bool isRightNumber(WQ::CMultiParamsTable& table, const CellItem& cell)
{
    const double value = table.itemDouble(cell.id());
    const QPair<double, double> limits = table.cellRange(cell.id());
    const QString text = table.itemText(cell.id());
    const WQ::NumberUnit& unit = static_cast<const WQ::NumberCell&>(cell).currentUnit();
    const bool isWithin = value >= limits.first && value <= limits.second;
    // Six decimals are shown.
    return isNumberText(text) && std::abs(text.toDouble() - value) < 1e-6 * std::max(1.0, std::abs(value))
        && (!hasRoom(limits, unit) || isWithin) && (!unit.isWhole() || std::trunc(value) == value);
}

bool isRightRange(WQ::CMultiParamsTable& table, const CellItem& cell)
{
    const auto& range = static_cast<const WQ::RangeCell&>(cell);
    const QPair<double, double> limits = table.cellRange(cell.id());
    const QStringList ends = table.itemText(cell.id()).split(range.separator());
    return ends.size() == 2 && isNumberText(ends.at(0)) && isNumberText(ends.at(1)) && range.low() <= range.high()
        && (!hasRoom(limits, range.limits()) || (range.low() >= limits.first && range.high() <= limits.second));
}

bool isRightPeriod(WQ::CMultiParamsTable& table, const CellItem& cell)
{
    static const QRegularExpression pattern(
        QStringLiteral("\\A([01][0-9]|2[0-3])(:[0-5][0-9]){2}-([01][0-9]|2[0-3])(:[0-5][0-9]){2}\\z"));
    const int length = table.timeElapse(cell.id());
    return pattern.match(table.itemText(cell.id())).hasMatch() && length >= 0 && length <= 24 * 60 * 60;
}

bool isRightChoice(WQ::CMultiParamsTable& table, const CellItem& cell)
{
    const auto& combo = static_cast<const WQ::ComboCell&>(cell);
    const int index = combo.currentIndex();
    const QString text = table.itemText(cell.id());
    return index < 0 ? text.isEmpty() : index < combo.count() && text == combo.entryText(index);
}

bool isRight(WQ::CMultiParamsTable& table, const CellItem& cell)
{
    switch (cell.kind()) {
    case CellKind::Number:
    case CellKind::CheckNumber:
        return isRightNumber(table, cell);
    case CellKind::Range:
        return isRightRange(table, cell);
    case CellKind::TimePeriod:
        return isRightPeriod(table, cell);
    case CellKind::Combo:
        return isRightChoice(table, cell);
    case CellKind::Line:
    case CellKind::Text:
        return true;
    }
    return false;
}

QString valueComplaint(WQ::CMultiParamsTable& table)
{
    for (const CellItem* cell : cellsOf(table)) {
        if (!isRight(table, *cell))
            return QStringLiteral("cell %1 holds %2").arg(cell->id()).arg(table.itemText(cell->id()));
    }
    return {};
}

/// The cell whose editor stands open; none is no complaint.
QString editorComplaint(const WQ::CMultiParamsTable& table)
{
    const Inner& inner = innerOf(table);
    QVector<const CellItem*> edited;
    for (const CellItem* cell : cellsOf(table)) {
        if (inner.interactionIfAny() && inner.rowState(*cell).editing)
            edited << cell;
    }
    int open = 0;
    for (const auto* editor : table.findChildren<WQ::CellEditor*>())
        open += editor->isVisibleTo(&table) ? 1 : 0;
    if (edited.size() > 1 || open != edited.size())
        return QStringLiteral("%1 editors for %2 cells").arg(open).arg(edited.size());
    if (edited.isEmpty())
        return {};
    const CellItem& cell = *edited.first();
    if (!inner.model().isShown(cell) || !inner.model().isEditable(cell) || !table.isEnabled())
        return QStringLiteral("an editor stands over cell %1, which cannot be edited").arg(cell.id());
    return {};
}

/// Whoever works by the keyboard sees where the next key goes.
QString focusComplaint(const WQ::CMultiParamsTable& table)
{
    const Inner& inner = innerOf(table);
    const QWidget* focus = QApplication::focusWidget();
    if (!focus || !table.isVisible() || QApplication::activePopupWidget())
        return {};
    if (focus != &table && !table.isAncestorOf(focus))
        return {};
    if (inner.interactionIfAny() && inner.interactionIfAny()->footerState().focus)
        return inner.isFooterVisible() ? QString() : QStringLiteral("the focus is on a footer that is away");
    const CellItem* current = inner.currentCell();
    if (!current)
        return focus == &table ? QString() : QStringLiteral("a key goes to no row");
    return inner.rowState(*current).focus ? QString() : QStringLiteral("row %1 hides the focus").arg(current->id());
}

QString noticeComplaint(const WQ::CMultiParamsTable& table)
{
    const Inner& inner = innerOf(table);
    bool isWrong = false;
    for (const CellItem* cell : cellsOf(table)) {
        if (inner.interactionIfAny() && !inner.interactionIfAny()->wrongText(*cell).isEmpty())
            isWrong = isWrong || inner.model().isShown(*cell);
    }
    for (const auto* notice : table.findChildren<WQ::Notice*>()) {
        if (notice->isVisible() && notice->kind() == WQ::Notice::Kind::Wrong && !isWrong)
            return QStringLiteral("a notice says \"%1\" of nothing").arg(notice->text());
    }
    return {};
}

} // namespace

HandlingChecks::HandlingChecks(WQ::CMultiParamsTable& table)
    : m_table(table)
    , m_before(WQ::watchPersonEvents([this](const QWidget& sender, const WQ::PersonEvent& event) {
        if (&sender == &m_table)
            told(event);
    }))
{
}

HandlingChecks::~HandlingChecks()
{
    WQ::watchPersonEvents(m_before);
}

HeldCell HandlingChecks::heldNow(int cell) const
{
    const QString value = QStringLiteral("%1|%2|%3|%4")
                              .arg(m_table.itemText(cell), QString::number(m_table.itemDouble(cell), 'g', 17))
                              .arg(m_table.itemTimeRangeType(cell))
                              .arg(m_table.timeElapse(cell));
    const CellItem* item = innerOf(m_table).model().cell(cell);
    return {value, m_table.itemUnit(cell) + (item && item->isChecked() ? QStringLiteral("|x") : QString())};
}

void HandlingChecks::begin()
{
    m_held.clear();
    m_isTold = false;
    m_toldForNothing.clear();
    for (const CellItem* cell : cellsOf(m_table))
        m_held.insert(cell->id(), heldNow(cell->id()));
}

// The first of several events may have made a listener change other cells: only that one is judged.
void HandlingChecks::told(const WQ::PersonEvent& event)
{
    ++m_events[event.event];
    const bool isValue =
        std::find(std::begin(kValueEvents), std::end(kValueEvents), event.event) != std::end(kValueEvents);
    if ((!isValue && event.event != kUnitOrCheck) || std::exchange(m_isTold, true))
        return;
    const HeldCell before = m_held.value(event.a);
    const HeldCell now = heldNow(event.a);
    if (isValue ? before.value == now.value : before.unitAndCheck == now.unitAndCheck)
        m_toldForNothing =
            QStringLiteral("event %1 of cell %2, which still holds %3 %4")
                .arg(QString::number(event.event), QString::number(event.a), now.value, now.unitAndCheck);
}

QString HandlingChecks::complaint() const
{
    if (!m_toldForNothing.isEmpty())
        return m_toldForNothing;
    for (const QString& text :
         {valueComplaint(m_table), editorComplaint(m_table), focusComplaint(m_table), noticeComplaint(m_table)}) {
        if (!text.isEmpty())
            return text;
    }
    return {};
}
