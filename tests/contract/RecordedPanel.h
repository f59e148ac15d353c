#pragma once

#include "contract/recorder/CallLog.h"
#include "contract/recorder/State.h"
#include "support/BaseTableProbe.h"

namespace contract {

/// The lines of a text, without blanks around them and without empty ones.
QStringList lines(const char* utf8);

/// A base table of that identity, broker and trader type, otherwise as usual.
support::TableSetup setupOf(int id, int brokerType = 2, int traderType = 2);

/// A base table whose visibility has been settled once, its log empty. save() and reloadParam() are recorded.
class RecordedPanel
{
public:
    explicit RecordedPanel(const support::TableSetup& setup = {});

    support::BaseTableProbe table;
};

/// A mode button of the host's own, added to the group of the table.
void addModeButton(support::BaseTableProbe& table, int id, const QString& text = {});

} // namespace contract
