#pragma once

#include "monkey/Random.h"

#include <WQ/CMultiParamsTable.h>

#include <QStringList>

#include <vector>

/// A person at one table, and its program: one small deed after another, as the seed has it.
class HandlingDeeds
{
public:
    HandlingDeeds(WQ::CMultiParamsTable& table, quint64 seed);

    /// Does one thing.
    void act();

    /// The latest deeds, the last one last.
    const QStringList& said() const
    {
        return m_said;
    }

private:
    struct Deed
    {
        int weight;
        const char* name;
        void (HandlingDeeds::*act)();
    };

    static const std::vector<Deed>& deeds();

    void press();
    void rightPress();
    void doublePress();
    void key();
    void character();
    void wheel();
    void paste();
    void menuEntry();
    void unitFromMenu();
    void restore();
    void footer();
    void comeBack();
    void hideOrShow();
    void lockOrFree();
    void setValue();
    void setLimits();
    void setUnit();
    void setEntries();
    void chooseRows();
    void enableAll();

    void say(const QString& what);
    int anyCell();
    QPoint anyPlace();
    QWidget* target() const;
    void openMenu();

    WQ::CMultiParamsTable& m_table;
    monkey::Random m_random;
    QVector<int> m_cells;
    QStringList m_said;
};
