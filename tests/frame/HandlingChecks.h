#pragma once

#include "reference/toolkit/PersonEvents.h"

#include <WQ/CMultiParamsTable.h>

#include <QHash>
#include <QString>

/// What a cell holds, as far as a person's event may tell of it.
struct HeldCell
{
    QString value;
    QString unitAndCheck;
};

/// Watches one table while a person handles it: what it holds, what is told of it, and how it stands there.
class HandlingChecks
{
public:
    explicit HandlingChecks(WQ::CMultiParamsTable& table);
    ~HandlingChecks();
    HandlingChecks(const HandlingChecks&) = delete;
    HandlingChecks& operator=(const HandlingChecks&) = delete;

    /// To be called before each deed.
    void begin();

    /// What does not hold after the deed; empty when all does.
    QString complaint() const;

    /// How many events of a kind have been seen.
    const QHash<int, int>& events() const
    {
        return m_events;
    }

private:
    void told(const WQ::PersonEvent& event);
    HeldCell heldNow(int cell) const;

    WQ::CMultiParamsTable& m_table;
    WQ::PersonEventWatcher m_before;
    QHash<int, HeldCell> m_held; // before the deed, by cell
    QHash<int, int> m_events;
    QString m_toldForNothing;
    bool m_isTold = false; // something, in this deed
};
