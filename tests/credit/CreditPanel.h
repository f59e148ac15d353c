#pragma once

#include "support/CreditProbe.h"
#include "support/EventLog.h"

#include <WQ/CMultiParamsTable.h>

#include <QStringList>

/// A host with a credit table below it, and what a person sees of the table's rows.
struct CreditPanel
{
    CreditPanel();

    /// Fills the account list, as the host does: entry i shows "name of A" and carries "A".
    void offerAccounts(const QStringList& accounts, int current = 0);

    WQ::CMultiParamsTable& cells() const
    {
        return *table->m_table;
    }

    /// A row as "title: "text" unit, hidden, fixed"; fixed is a row that a person may not edit.
    QString row(int id) const;

    /// The rows 727 to 731, as row() writes them.
    QStringList codeAndFigures() const;

    /// The texts of the rows 727 to 731.
    QStringList texts() const;

    /// The remembered values: "22: 726=A1, 727=X1; 24: …", ascending.
    QString remembered() const;

    support::EventLog host;
    support::CreditProbe* table; ///< the host's child
};

/// The values an operation remembers, as a test wants them, without going through the parameter string.
void remember(support::CreditProbe& table, int operation, const QMap<int, QString>& values);

/// Sets the operation through the parameter string, which remembers nothing and leaves the rows laid out; the events of
/// that are taken from the host's log.
void chooseOperation(CreditPanel& panel, int operation);
