#pragma once

#include <QAbstractTableModel>
#include <QStringList>

#include <vector>

namespace workbench {

/// What a host reads of a table: named values, of which the ones that the last reading changed are marked.
class TicketModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { Name, Value, ColumnCount };

    struct Entry
    {
        QString name;
        QString value;
        bool isRecord = false; ///< a field of the settings record
    };

    /// Which of the entries.
    enum class Part { Record, Changed };

    explicit TicketModel(QObject* parent = nullptr);

    /// Takes a new reading. Marks stay until a reading changes something; a reading with other names marks nothing.
    /// @returns whether it marked something
    bool setEntries(std::vector<Entry> entries);

    bool isMarked(int row) const;

    /// The first row that is marked; -1 for none.
    int firstMarked() const;

    /// Those entries, a line each, name and value between tabs.
    QString text(Part part) const;

    void retranslate();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    bool hasNamesOf(const std::vector<Entry>& entries) const;
    bool markChanges(const std::vector<Entry>& entries);

    std::vector<Entry> m_entries;
    std::vector<bool> m_marked;
};

} // namespace workbench
