#include "workbench/WhyTexts.h"

#include "workbench/Vocabulary.h"

#include <OrderParamTable_mini/semantics/CellMasks.h>
#include <OrderParamTable_mini/semantics/CellOffers.h>

#include <QCoreApplication>
#include <QStringList>

#include <array>

namespace workbench {

namespace {

// clang-format off
constexpr std::array<const char*, kWhyRules> kRuleNames = {
    QT_TRANSLATE_NOOP("workbench", "Catalogue"),
    QT_TRANSLATE_NOOP("workbench", "Host's flags"),
    QT_TRANSLATE_NOOP("workbench", "Mask of the order type"),
    QT_TRANSLATE_NOOP("workbench", "Rule of its own"),
    QT_TRANSLATE_NOOP("workbench", "Feature module"),
    QT_TRANSLATE_NOOP("workbench", "Price type"),
    QT_TRANSLATE_NOOP("workbench", "Expansion"),
    QT_TRANSLATE_NOOP("workbench", "Set since"),
    QT_TRANSLATE_NOOP("workbench", "User's filter"),
    QT_TRANSLATE_NOOP("workbench", "Cell area"),
};

constexpr std::array<NamedValue, 8> kOffers = {{
    {int(TC::CellOffer::Never),        QT_TRANSLATE_NOOP("workbench", "not in the catalogue; a host adds it")},
    {int(TC::CellOffer::Always),       QT_TRANSLATE_NOOP("workbench", "in every table")},
    {int(TC::CellOffer::PriceTypes),   QT_TRANSLATE_NOOP("workbench", "where the broker type has price types")},
    {int(TC::CellOffer::SuperPrice),   QT_TRANSLATE_NOOP("workbench", "not for Hong Kong accounts")},
    {int(TC::CellOffer::BaseVolume),   QT_TRANSLATE_NOOP("workbench", "for broker types with a volume type")},
    {int(TC::CellOffer::RandomVolume), QT_TRANSLATE_NOOP("workbench", "where volumes may be random: module, stock, desk 1, some identities")},
    {int(TC::CellOffer::LimitPrice),   QT_TRANSLATE_NOOP("workbench", "in tables with a limit price; created hidden")},
    {int(TC::CellOffer::Remark),       QT_TRANSLATE_NOOP("workbench", "with the module of remarks")},
}};

constexpr std::array<NamedValue, 6> kOverrides = {{
    {int(TC::CellOverride::None),            QT_TRANSLATE_NOOP("workbench", "none")},
    {int(TC::CellOverride::Always),          QT_TRANSLATE_NOOP("workbench", "always shown, whatever flags and mask say")},
    {int(TC::CellOverride::StartCount),      QT_TRANSLATE_NOOP("workbench", "shown while expanded, but not for plain orders")},
    {int(TC::CellOverride::RemainingVolume), QT_TRANSLATE_NOOP("workbench", "for the remaining target volume alone")},
    {int(TC::CellOverride::Remark),          QT_TRANSLATE_NOOP("workbench", "not in close settings and tables without remark")},
    {int(TC::CellOverride::Module),          QT_TRANSLATE_NOOP("workbench", "with its module alone")},
}};

/// The cells that hosts add have no label in the panel.
constexpr std::array<NamedValue, 5> kHostCells = {{
    {TC::OCF_LimitingCell, QT_TRANSLATE_NOOP("workbench", "limiting cell")},
    {TC::OCF_LimitedCell,  QT_TRANSLATE_NOOP("workbench", "limited cell")},
    {TC::OCF_TriggerPrice, QT_TRANSLATE_NOOP("workbench", "trigger price")},
    {TC::OCF_StopProfit,   QT_TRANSLATE_NOOP("workbench", "stop profit")},
    {TC::OCF_StopLoss,     QT_TRANSLATE_NOOP("workbench", "stop loss")},
}};
// clang-format on

template <std::size_t N>
QString nameIn(const std::array<NamedValue, N>& rows, int value)
{
    for (const NamedValue& row : rows)
        if (row.value == value)
            return translated(row.name);
    return {};
}

QString hex(quint32 word)
{
    return QStringLiteral("0x%1").arg(word, 0, 16);
}

QString hasOrLacks(quint32 word, int cell)
{
    return TC::hasCell(word, cell) ? QCoreApplication::translate("workbench", "%1 has it").arg(hex(word))
                                   : QCoreApplication::translate("workbench", "%1 lacks it").arg(hex(word));
}

QString beforeRules()
{
    return QCoreApplication::translate("workbench", "the rules have not run yet");
}

QString orderTypeText(const WhyTable& table, const WhyCell& cell)
{
    const QString mask = hasOrLacks(TC::orderTypeMask(table.state.order), cell.id);
    return QCoreApplication::translate("workbench", "order type %1: %2")
        .arg(valueWithName(orderTypes(), table.state.order), mask);
}

QString moduleText(const WhyTable& table, const WhyCell& cell)
{
    const auto module = TC::overrideModule(cell.id);
    if (!module)
        return QCoreApplication::translate("workbench", "none needed");
    const QString name = QLatin1String(TC::modulePath(*module).name);
    return table.isModuleOn(*module) ? QCoreApplication::translate("workbench", "%1 is on").arg(name)
                                     : QCoreApplication::translate("workbench", "%1 is off").arg(name);
}

QString priceTypeText(const WhyTable& table, const WhyCell& cell)
{
    switch (TC::priceTypeMark(cell.id, table.state.order)) {
    case TC::HiddenMark::Kept:
        break;
    case TC::HiddenMark::Shown:
        return QCoreApplication::translate("workbench", "shown in order types 0 and 1");
    case TC::HiddenMark::Hidden:
        return QCoreApplication::translate("workbench", "hidden in order types 0 and 1");
    }
    return QCoreApplication::translate("workbench", "leaves this cell alone");
}

QString expansionText(const WhyTable& table, const WhyCell& cell)
{
    const QString state = table.isExpanded ? QCoreApplication::translate("workbench", "expanded")
                                           : QCoreApplication::translate("workbench", "collapsed");
    const auto mark = TC::expansionMark(cell.id, table.state.order, table.isExpanded, table.algorithmWord);
    if (mark == TC::HiddenMark::Kept)
        return state;
    return mark == TC::HiddenMark::Shown
        ? QCoreApplication::translate("workbench", "expanded: the algorithm shows all of its cells")
        : QCoreApplication::translate("workbench", "collapsed: the user's cells %1 lack it")
              .arg(hex(table.algorithmWord));
}

/// What is known to set marks past the rules.
const char* sinceReason(const WhyTable& table, const WhyCell& cell)
{
    if (cell.id == TC::OCF_LimitPrice)
        return QT_TRANSLATE_NOOP("workbench", "keeps what an earlier order type or price type set");
    if (!cell.isHidden && table.chosen.contains(cell.id))
        return QT_TRANSLATE_NOOP("workbench", "shown when the user's filter was applied");
    if (TC::cellOverride(cell.id) == TC::CellOverride::RemainingVolume && cell.isHidden != table.isRemainingVolume)
        return QT_TRANSLATE_NOOP("workbench", "set when the volume type was chosen");
    if (!cell.isHidden && !table.isExpanded
        && TC::expansionMark(cell.id, table.state.order, true, 0) == TC::HiddenMark::Shown)
        return QT_TRANSLATE_NOOP("workbench", "shown when the table was last expanded");
    return cell.isHidden ? QT_TRANSLATE_NOOP("workbench", "hidden by the host, or under earlier values")
                         : QT_TRANSLATE_NOOP("workbench", "shown by the host, or under earlier values");
}

QString sinceText(const WhyStep& step, const WhyTable& table, const WhyCell& cell)
{
    return step.effect == WhyEffect::None ? translated(QT_TRANSLATE_NOOP("workbench", "nothing"))
                                          : translated(sinceReason(table, cell));
}

QString filterText(const WhyTable& table, const WhyCell& cell)
{
    if (table.chosen.isEmpty())
        return QCoreApplication::translate("workbench", "no choice: every cell");
    return table.chosen.contains(cell.id) ? QCoreApplication::translate("workbench", "the user's choice has it")
                                          : QCoreApplication::translate("workbench", "the user's choice lacks it");
}

QString cellNames(quint32 word)
{
    QStringList names;
    for (int bit = 0; bit < TC::kCellBits; ++bit)
        if (TC::hasCell(word, 1 << bit))
            names << whyCellName(1 << bit);
    return names.join(QLatin1Char('\n'));
}

quint32 wordOf(const QSet<int>& cells)
{
    quint32 word = 0;
    for (const int cell : cells)
        word |= quint32(cell);
    return word;
}

} // namespace

QString whyRuleName(WhyRule rule)
{
    return translated(kRuleNames[std::size_t(rule)]);
}

QString whyValue(const WhyStep& step, const WhyTable& table, const WhyCell& cell)
{
    const bool isRuled = table.isRuled || !TC::isHiddenByRules(cell.id);
    switch (step.rule) {
    case WhyRule::Catalogue:
        return nameIn(kOffers, int(TC::cellOffer(cell.id)));
    case WhyRule::Flag:
        return isRuled ? hasOrLacks(quint32(int(table.flags)), cell.id) : beforeRules();
    case WhyRule::OrderType:
        return orderTypeText(table, cell);
    case WhyRule::Override:
        return nameIn(kOverrides, int(TC::cellOverride(cell.id)));
    case WhyRule::Module:
        return moduleText(table, cell);
    case WhyRule::PriceType:
        return priceTypeText(table, cell);
    case WhyRule::Expansion:
        return expansionText(table, cell);
    case WhyRule::Since:
        return sinceText(step, table, cell);
    case WhyRule::Filter:
        return filterText(table, cell);
    case WhyRule::Area:
        return table.isAreaHidden ? QCoreApplication::translate("workbench", "hidden: a parameter set is in use")
                                  : QCoreApplication::translate("workbench", "shown");
    }
    return {};
}

QString whyDetail(WhyRule rule, const WhyTable& table)
{
    switch (rule) {
    case WhyRule::Flag:
        return cellNames(quint32(int(table.flags)));
    case WhyRule::OrderType:
        return cellNames(TC::orderTypeMask(table.state.order));
    case WhyRule::Expansion:
        return cellNames(table.algorithmWord);
    case WhyRule::Filter:
        return cellNames(wordOf(table.chosen));
    case WhyRule::Catalogue:
    case WhyRule::Override:
    case WhyRule::Module:
    case WhyRule::PriceType:
    case WhyRule::Since:
    case WhyRule::Area:
        break;
    }
    return {};
}

QString whyEffectName(WhyEffect effect)
{
    switch (effect) {
    case WhyEffect::None:
        return QStringLiteral("—");
    case WhyEffect::Shows:
        return QCoreApplication::translate("workbench", "shows");
    case WhyEffect::Hides:
        return QCoreApplication::translate("workbench", "hides");
    }
    return {};
}

QString whyCellName(int cell)
{
    const QString label = labelOf(cells(), cell);
    const QString name = label.isEmpty() ? nameIn(kHostCells, cell) : label;
    return QStringLiteral("0x%1  %2").arg(quint32(cell), 0, 16).arg(name).trimmed();
}

QString whyCellState(const WhyCell& cell)
{
    if (!cell.exists)
        return QCoreApplication::translate("workbench", "not in this table");
    return cell.isShown ? QCoreApplication::translate("workbench", "shown")
                        : QCoreApplication::translate("workbench", "hidden");
}

} // namespace workbench
