#include "reference/toolkit/CMultiParamsTablePrivate.h"

#include "reference/toolkit/cells/TextCache.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>

// What the hidden headers hold: the heights of the rows and the widths of the two columns.
namespace WQ {

namespace {

struct HeaderSections : QHeaderView
{
    using QHeaderView::initializeSections;
};

// Gives the header @p count sections, all of its default size, without a model to ask. A layout that it still owes
// would take them away again, and asking for its length makes it pay.
void takeSections(QHeaderView& header, int count)
{
    const QSignalBlocker quiet(&header);
    header.length();
    if (header.count() == count)
        return;
    if (count > 0)
        (header.*static_cast<void (QHeaderView::*)(int, int)>(&HeaderSections::initializeSections))(0, count - 1);
    else
        header.reset();
}

} // namespace

void CMultiParamsTablePrivate::placeSections()
{
    takeSections(*m_table->horizontalHeader(), m_model->columnCount());
    placeRows();
    placeColumns();
}

void CMultiParamsTablePrivate::placeRows()
{
    takeSections(*m_table->verticalHeader(), m_model->rowCount());
}

int CMultiParamsTablePrivate::labelColumn() const
{
    if (m_hostColumn >= 0)
        return m_hostColumn;
    if (m_widestLabel < 0) {
        m_widestLabel = 0;
        for (int i = 0; i < m_model->cellCount(); ++i) {
            const QString label = texts::oneLine(m_model->itemAt(i)->cell()->label());
            m_widestLabel = std::max(m_widestLabel, texts::width(label, *m_metrics.face));
        }
    }
    // A label of any length leaves the values a third of the row.
    return std::min(m_metrics.padding + m_widestLabel, m_table->viewport()->width() * 2 / 3);
}

void CMultiParamsTablePrivate::takeRowHeight()
{
    QHeaderView* const rows = m_table->verticalHeader();
    const QSignalBlocker quiet(rows);
    rows->setDefaultSectionSize(m_metrics.rowHeight);
}

void CMultiParamsTablePrivate::placeColumns()
{
    QHeaderView* header = m_table->horizontalHeader();
    const QSignalBlocker quiet(header);
    const int label = labelColumn();
    if (header->sectionSize(CellModel::LabelColumn) != label)
        m_table->viewport()->update();
    header->resizeSection(CellModel::LabelColumn, label);
    header->resizeSection(CellModel::ValueColumn, std::max(0, m_table->viewport()->width() - label));
}

void CMultiParamsTablePrivate::labelsChanged()
{
    m_widestLabel = -1;
    placeColumns();
}

} // namespace WQ
