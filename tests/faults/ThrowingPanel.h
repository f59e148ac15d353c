#pragma once

#include "faults/Thrown.h"
#include "support/Panel.h"

#include <functional>
#include <vector>

namespace faults {

/// Something that makes a table send events or call hooks.
struct Cause
{
    const char* name;
    std::function<void(support::BaseTableProbe&)> act;
};

std::vector<Cause> causes();

/// All that a host or a person can see of a table, so that two of them can be compared.
QString seen(support::BaseTableProbe& table);

/// A panel whose host throws at one of the events or hooks that a cause makes it hear; -1 for never.
struct ThrowingPanel
{
    explicit ThrowingPanel(int at);

    void step(const QString& what);
    void listenQuietly();

    support::Panel panel;
    const int point;
    QStringList steps; ///< the events and hooks that were heard, the throwing one included
};

} // namespace faults
