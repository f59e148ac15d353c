#include "workbench/TableBench.h"

#include "workbench/HostCalls.h"

#include <QHBoxLayout>

namespace workbench {

TableBench::TableBench(QWidget* parent)
    : PanelHost(parent)
{
    setObjectName(QStringLiteral("tableBench"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
}

void TableBench::rebuild(const TableSetup& setup, const TableDrive& drive)
{
    const bool hadFocus = m_table && m_table->isAncestorOf(focusWidget());
    remove(m_table.data());
    m_setup = setup;
    m_table = makeTable(setup, *this);
    layout()->addWidget(m_table);
    driveTable(*m_table, drive);
    if (!m_table)
        return;
    m_table->show();
    if (hadFocus)
        focusTable();
    Q_EMIT rebuilt(m_table);
}

TC::COrderParamBaseTable* TableBench::table() const
{
    return m_table;
}

const TableSetup& TableBench::setup() const
{
    return m_setup;
}

void TableBench::focusTable()
{
    if (m_table && m_table->getMultiParamsTable())
        m_table->getMultiParamsTable()->setFocus(Qt::ShortcutFocusReason);
}

void TableBench::scaleTable()
{
    if (m_table)
        hostCall(*m_table, calls::kScaleTable);
}

} // namespace workbench
