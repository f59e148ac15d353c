#pragma once

#include "model/RandomCommands.h"
#include "model/SessionModel.h"

#include "replay/Session.h"

#include <functional>
#include <optional>
#include <string>

class QWidget;

namespace model {

/// Where a script's run on the widgets is another than on the model.
struct Difference
{
    std::size_t command = 0;
    std::string what;
};

/// Carries scripts out on real widgets and on the model, side by side.
class ModelRun
{
public:
    /// A wrong fact to give the model, after each command; for proving that a difference is noticed.
    using WrongFact = std::function<void(SessionModel&)>;

    explicit ModelRun(WrongFact wrongFact = {});

    /// The first difference; results, events and counts are compared after each command, cell texts and order state
    /// too, the whole state now and then and at the end.
    std::optional<Difference> firstDifference(const Script& script);

    long long commandsRun() const
    {
        return m_commands;
    }

private:
    std::string compareStep(const Command& command, SessionModel& model);
    std::string compareObjects(SessionModel& model, bool wholeState);
    std::string compareGetters(QWidget& object, ObjectModel& expected);
    std::string compareState(QWidget& object, ObjectModel& expected);

    replay::Session m_session;
    WrongFact m_wrongFact;
    long long m_commands = 0;
};

/// Where @p actual differs from what @p expected says, as "path: expected X, got Y"; empty when nowhere. A key that an
/// expected object leaves out is not compared; numbers are compared by value.
std::string firstMismatch(const Json& expected, const Json& actual);

} // namespace model
