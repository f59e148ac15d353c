#pragma once

#include "monkey/Calls.h"
#include "monkey/ScriptFile.h"

#include "replay/Session.h"

#include "reference/toolkit/PersonEvents.h"

#include <QWidget>

#include <map>
#include <memory>
#include <vector>

namespace WQ {
class CMultiParamsTable;
class CScrollArea;
} // namespace WQ

namespace monkey {

/// One of every panel there is, live, in a session of the replay driver. What the program does goes through the session
/// and what a person does is heard, so that the script says all that has happened.
class Stage
{
public:
    struct Slot
    {
        int weight; ///< how often a person uses it
        const char* name;
        Family family;
        Json (*make)(Random& random, const char* name); ///< its "new"
        bool isScrolled;                                ///< stands in a scroll area of the host
    };

    explicit Stage(Random& random);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    static const std::vector<Slot>& slotRows();

    /// Starts over: a new script, other objects.
    void open(const QString& scriptPath);

    /// Deletes every object. The script stays, and nothing more is written into it.
    void close();

    /// Carries out a command; what is wrong with it is no failure: a host may ask for anything.
    void run(const Json& command);

    /// To be called after a person's input: lets everything posted go out, deletes what waits for it, and makes the
    /// dialogs anew that the input has closed.
    void settle();

    void reopen(const Slot& slot);
    void show(const Slot& slot);

    /// Null while the slot is empty.
    QWidget* object(const Slot& slot) const;

    /// The window that the object stands in, its own for a dialog.
    QWidget* windowOf(const Slot& slot) const;

    /// The cell tables of the objects.
    std::vector<const WQ::CMultiParamsTable*> cellTables() const;

    /// The states of all objects, a key a slot.
    Json states();

    ScriptFile& script()
    {
        return m_script;
    }

    replay::Session& session()
    {
        return m_session;
    }

    /// How many events of a person have been written down as commands, by their numbers.
    const std::map<int, long long>& deeds() const
    {
        return m_deeds;
    }

private:
    void make(const Slot& slot);
    void heard(const QWidget& sender, const WQ::PersonEvent& event);
    void deliverAll();

    Random& m_random;
    replay::Session m_session;
    std::unique_ptr<WQ::CScrollArea> m_scrollArea;
    ScriptFile m_script;
    WQ::PersonEventWatcher m_watcherBefore;
    std::map<int, long long> m_deeds;
    bool m_isOpen = false;
    bool m_inCommand = false;
};

} // namespace monkey
