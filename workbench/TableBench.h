#pragma once

#include "workbench/PanelHost.h"
#include "workbench/TableSetup.h"

#include <QPointer>

class QMenu;

namespace TC {
class COrderParamBaseTable;
}

namespace workbench {

/// The place of the order panel: it owns one table and makes another one on demand.
class TableBench : public PanelHost
{
    Q_OBJECT
public:
    explicit TableBench(QWidget* parent = nullptr);

    /// Replaces the table at once, also from inside one of its events: the library allows its deletion there.
    void rebuild(const TableSetup& setup, const TableDrive& drive);

    /// The table; null before the first rebuild.
    TC::COrderParamBaseTable* table() const;

    const TableSetup& setup() const;

    /// Gives the keyboard to the cells.
    void focusTable();

    /// Hands a new UI scale to the table: only its owner does that.
    void scaleTable();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void rebuilt(TC::COrderParamBaseTable* table);

    /// A person asked, in the menu of the current cell, why it is shown.
    void whyAsked();

private:
    void addWhy(QMenu& menu);

    QPointer<TC::COrderParamBaseTable> m_table;
    TableSetup m_setup;
};

} // namespace workbench
