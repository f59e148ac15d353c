#pragma once

#include "monkey/Stage.h"

#include <functional>

namespace monkey {

struct RunSetup
{
    quint64 seed = 1;
    long long actions = 500;
    int actionsAnEpisode = 500; ///< then every object goes and others come; so long is the script of a failure at most
    QString scriptFolder;
    std::function<QString(Stage& stage, long long action)> alsoCheck; ///< beside what always must hold
};

struct RunReport
{
    long long actions = 0;
    std::map<int, long long> deeds; ///< what of it a person has committed: how often each event was sent
    int warnings = 0;
    QString failure;       ///< empty when all went well
    QString script;        ///< what has led to the failure
    Json states;           ///< of the objects at the failure
    long long grown = 0;   ///< bytes more in use after the last episode than after the first tenth of them
    int replayed = 0;      ///< scripts of episodes that were carried out once more
    int replayedApart = 0; ///< of these, with other states at the end
};

/// Random input and calls, one after another, until the actions are done or something is wrong: a warning of Qt, an
/// invariant, or what @p setup checks.
RunReport run(const RunSetup& setup);

} // namespace monkey
