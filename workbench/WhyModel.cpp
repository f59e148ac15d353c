#include "workbench/WhyModel.h"

#include "workbench/Vocabulary.h"
#include "workbench/WhyTexts.h"

#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QColor>
#include <QCoreApplication>
#include <QFont>

#include <array>

namespace workbench {

namespace {

constexpr std::array<const char*, WhyModel::ColumnCount> kHeaders = {
    QT_TRANSLATE_NOOP("workbench", "Rule"),
    QT_TRANSLATE_NOOP("workbench", "Value"),
    QT_TRANSLATE_NOOP("workbench", "Effect"),
};

} // namespace

WhyModel::WhyModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

void WhyModel::explain(const WhyTable& table, const WhyCell& cell)
{
    const bool isFirst = m_steps.empty();
    if (isFirst)
        beginInsertRows({}, 0, kWhyRules - 1);
    m_table = table;
    m_cell = cell;
    m_steps = whySteps(table, cell);
    if (isFirst)
        endInsertRows();
    else
        Q_EMIT dataChanged(index(0, 0), index(kWhyRules - 1, ColumnCount - 1));
}

void WhyModel::clear()
{
    beginResetModel();
    m_steps.clear();
    endResetModel();
}

void WhyModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_steps.empty())
        Q_EMIT dataChanged(index(0, 0), index(kWhyRules - 1, ColumnCount - 1));
}

const std::vector<WhyStep>& WhyModel::steps() const
{
    return m_steps;
}

int WhyModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_steps.size());
}

int WhyModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString WhyModel::text(const WhyStep& step, int column) const
{
    switch (column) {
    case Rule:
        return (step.isDecisive ? QStringLiteral("▶ ") : QString()) + whyRuleName(step.rule);
    case Value:
        return whyValue(step, m_table, m_cell);
    case Effect:
        return whyEffectName(step.effect);
    }
    return {};
}

QString WhyModel::toolTip(const WhyStep& step, int column) const
{
    const QString detail = column == Value ? whyDetail(step.rule, m_table) : QString();
    return detail.isEmpty() ? text(step, column) : text(step, column) + QLatin1Char('\n') + detail;
}

QVariant WhyModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const WhyStep& step = m_steps[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return text(step, index.column());
    case Qt::ToolTipRole:
        return toolTip(step, index.column());
    case Qt::ForegroundRole:
        return step.isDecisive ? QVariant(WQ::resources::color(WQ::keys::kAccent)) : QVariant();
    case Qt::FontRole:
        return step.isDecisive ? QVariant(WQ::resources::font(WQ::keys::kCheckedFont, WQ::resources::scale()))
                               : QVariant();
    case Qt::AccessibleDescriptionRole:
        return step.isDecisive ? QCoreApplication::translate("workbench", "decides") : QString();
    }
    return {};
}

QVariant WhyModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isTitle =
        orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0 && section < ColumnCount;
    return isTitle ? translated(kHeaders[static_cast<std::size_t>(section)]) : QVariant();
}

} // namespace workbench
