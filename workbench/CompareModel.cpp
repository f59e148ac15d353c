#include "workbench/CompareModel.h"

#include "workbench/Vocabulary.h"

#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QColor>
#include <QCoreApplication>
#include <QFont>

#include <algorithm>
#include <array>

namespace workbench {

namespace {

constexpr std::array<const char*, CompareModel::ColumnCount> kHeaders = {
    "≠",
    QT_TRANSLATE_NOOP("workbench", "Cell"),
    QT_TRANSLATE_NOOP("workbench", "Fact"),
    QT_TRANSLATE_NOOP("workbench", "Left"),
    QT_TRANSLATE_NOOP("workbench", "Right"),
};

} // namespace

CompareModel::CompareModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

void CompareModel::setRows(std::vector<CompareRow> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

int CompareModel::differences() const
{
    return static_cast<int>(
        std::count_if(m_rows.begin(), m_rows.end(), [](const CompareRow& row) { return row.isDifferent; }));
}

void CompareModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

int CompareModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int CompareModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString CompareModel::text(const CompareRow& row, int column) const
{
    switch (column) {
    case Mark:
        return row.isDifferent ? QStringLiteral("≠") : QString();
    case Cell:
        return row.cell == 0 ? translated(QT_TRANSLATE_NOOP("workbench", "Table"))
                             : QStringLiteral("0x%1 %2").arg(quint32(row.cell), 0, 16).arg(row.label);
    case What:
        return translated(row.what);
    case Left:
        return row.left;
    case Right:
        return row.right;
    }
    return {};
}

QVariant CompareModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const CompareRow& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return text(row, index.column());
    case Qt::ForegroundRole:
        return row.isDifferent ? QVariant(WQ::resources::color(WQ::keys::kAccent)) : QVariant();
    case Qt::FontRole:
        return row.isDifferent ? QVariant(WQ::resources::font(WQ::keys::kCheckedFont, WQ::resources::scale()))
                               : QVariant();
    case Qt::AccessibleDescriptionRole:
        return row.isDifferent ? translated(QT_TRANSLATE_NOOP("workbench", "differs")) : QString();
    case kDiffersRole:
        return row.isDifferent;
    }
    return {};
}

QVariant CompareModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isTitle =
        orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0 && section < ColumnCount;
    return isTitle ? translated(kHeaders[static_cast<std::size_t>(section)]) : QVariant();
}

} // namespace workbench
