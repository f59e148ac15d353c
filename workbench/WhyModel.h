#pragma once

#include "workbench/WhySteps.h"

#include <QAbstractTableModel>

namespace workbench {

/// The rules that one cell is shown or hidden by, a row a rule; the one that decided is marked.
class WhyModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { Rule, Value, Effect, ColumnCount };

    explicit WhyModel(QObject* parent = nullptr);

    void explain(const WhyTable& table, const WhyCell& cell);
    void clear();
    void retranslate();

    /// Empty before the first explanation.
    const std::vector<WhyStep>& steps() const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const WhyStep& step, int column) const;
    QString toolTip(const WhyStep& step, int column) const;

    WhyTable m_table;
    WhyCell m_cell;
    std::vector<WhyStep> m_steps;
};

} // namespace workbench
