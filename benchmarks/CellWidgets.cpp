#include "benchmarks/NativeFields.h"
#include "benchmarks/Peer.h"

#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QTableWidget>

namespace bench {

namespace {

/// A QTableWidget with one widget a cell, rows hidden and shown.
class CellWidgetsPeer : public Peer
{
public:
    explicit CellWidgetsPeer(QWidget* stage)
        : m_table(new QTableWidget(int(kRowCount), 2, stage))
    {
        m_table->horizontalHeader()->hide();
        m_table->verticalHeader()->hide();
        m_table->horizontalHeader()->setStretchLastSection(true);
        for (std::size_t i = 0; i < kRowCount; ++i) {
            m_fields.push_back(makeNativeField(rows()[i]));
            m_table->setItem(int(i), 0, new QTableWidgetItem(rows()[i].name()));
            m_table->setCellWidget(int(i), 1, m_fields.back().field);
        }
        show(modes()[0].shown);
    }

    ~CellWidgetsPeer() override
    {
        delete m_table;
    }

    QWidget& widget() override
    {
        return *m_table;
    }

    void switchTo(const Mode& mode) override
    {
        switchFields(m_fields, mode);
        show(mode.shown);
    }

    void changeNumber(double value) override
    {
        m_fields[positionOf(kChangedCell)].number->setValue(value);
    }

    // Asking for a cell's place runs the layout that the view has put off.
    void settle() override
    {
        m_table->visualRect(m_table->model()->index(1, 0));
    }

    QSet<int> shownRows() override
    {
        QSet<int> shown;
        for (std::size_t i = 0; i < kRowCount; ++i) {
            if (!m_table->isRowHidden(int(i)))
                shown.insert(rows()[i].id);
        }
        return shown;
    }

private:
    void show(const QSet<int>& shown)
    {
        for (std::size_t i = 0; i < kRowCount; ++i)
            m_table->setRowHidden(int(i), !shown.contains(rows()[i].id));
    }

    QTableWidget* const m_table;
    std::vector<NativeField> m_fields;
};

} // namespace

std::unique_ptr<Peer> makeCellWidgets(QWidget* stage)
{
    return std::make_unique<CellWidgetsPeer>(stage);
}

} // namespace bench
