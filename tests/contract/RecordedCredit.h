#pragma once

#include "contract/recorder/CallLog.h"
#include "contract/recorder/State.h"
#include "support/CreditProbe.h"

#include <WQ/CMultiParamsTable.h>

namespace contract {

/// The calls that empty the rows of a code, and the event that tells of it.
QStringList emptiedRows();
QStringList noCodeEvent();

/// A credit table, its log empty.
class RecordedCredit
{
public:
    explicit RecordedCredit(int operation = -1)
    {
        table.m_operationType = operation;
        recorder::clear();
    }

    /// Makes that account the one entry of the account row and chooses it.
    void offerAccount(const QString& account)
    {
        table.m_table->resetComboData(726, {account}, {QVariant(account)}, 0);
        recorder::clear();
    }

    support::CreditProbe table;
};

} // namespace contract
