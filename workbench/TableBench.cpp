#include "workbench/TableBench.h"

#include "workbench/HostCalls.h"
#include "workbench/Vocabulary.h"

#include <QChildEvent>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QMenu>

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
    if (WQ::CMultiParamsTable* const cells = m_table->getMultiParamsTable())
        cells->installEventFilter(this);
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

/// A menu of a cell is a child of the cell table, and is polished, with its own entries in it, right before it opens.
bool TableBench::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ChildPolished)
        if (auto* const menu = qobject_cast<QMenu*>(static_cast<QChildEvent*>(event)->child()))
            addWhy(*menu);
    return PanelHost::eventFilter(watched, event);
}

void TableBench::addWhy(QMenu& menu)
{
    menu.addSeparator();
    QAction* const why = menu.addAction(translated(QT_TRANSLATE_NOOP("workbench", "Why?")));
    why->setShortcut(QKeySequence(int(Qt::SHIFT) + Qt::Key_F1));
    why->setShortcutVisibleInContextMenu(true);
    connect(why, &QAction::triggered, this, &TableBench::whyAsked, Qt::QueuedConnection);
}

void TableBench::scaleTable()
{
    if (m_table)
        hostCall(*m_table, calls::kScaleTable);
}

} // namespace workbench
