#include "workbench/HostTable.h"

#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>

namespace workbench {

HostTable::HostTable(QWidget* parent)
    : QTableView(parent)
{
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setStretchLastSection(true);
}

void HostTable::setFitColumns(std::function<void()> fitColumns)
{
    m_fitColumns = std::move(fitColumns);
}

void HostTable::fit()
{
    const int text = fontMetrics().height();
    verticalHeader()->setDefaultSectionSize(text + text / 3);
    if (m_fitColumns)
        m_fitColumns();
}

void HostTable::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        Q_EMIT copyRequested();
    else
        QTableView::keyPressEvent(event);
}

void HostTable::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fit();
}

void HostTable::showEvent(QShowEvent* event)
{
    QTableView::showEvent(event);
    fit();
}

} // namespace workbench
