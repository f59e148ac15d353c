#pragma once

#include "benchmarks/PanelContent.h"

#include <QAbstractTableModel>

namespace bench {

/// The content as a model of two columns in which only shown rows exist: a switch removes and inserts rows.
class LeanModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    explicit LeanModel(QObject* parent);

    void switchTo(const Mode& mode);
    void changeNumber(double value);

    const ContentState& content() const
    {
        return m_content;
    }

    /// The row that a position of the content has, -1 when it is not shown.
    int rowOf(int position) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    void removeMissing(const std::vector<int>& wanted);
    void insertNew(const std::vector<int>& wanted);

    ContentState m_content;
    std::vector<int> m_rows;
};

} // namespace bench
