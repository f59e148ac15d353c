#pragma once

#include "workbench/Recording.h"

#include <QString>

#include <map>

class QWidget;

namespace workbench {
class MainWindow;
class PanelHost;
} // namespace workbench

namespace person {

/// What was in front of a person: every event that the window's hosts hear from now on, heard past the recorder, and
/// how the objects are at the end.
class RunWitness
{
public:
    explicit RunWitness(workbench::MainWindow& window);

    /// Takes down how every object is that lives, by the names of @p recording. The window may go after this.
    void lookAround(const workbench::Recording& recording);

    /// The commands of a script that show the same of a replay: states, and the valid time that the panel answers.
    std::vector<replay::Json> questions() const;

    /// Where a replay's answers are otherwise: each step's as it was recorded, all events in one row as they were
    /// heard, and what the questions answer. @p answers holds those of the steps of @p recording, then those of the
    /// questions.
    std::vector<std::string> differences(const workbench::Recording& recording,
                                         const std::vector<replay::Json>& answers) const;

    int heard() const;

private:
    void listenTo(workbench::PanelHost& host);

    workbench::MainWindow* m_window;
    replay::Json m_events = replay::Json::array();
    std::map<std::string, replay::Json> m_states;
    replay::Json m_validTime;
};

} // namespace person
