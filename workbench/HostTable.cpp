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
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->matches(QKeySequence::Copy))
        Q_EMIT copyRequested();
    else if (isEnter && currentIndex().isValid())
        Q_EMIT enterPressed(currentIndex());
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
