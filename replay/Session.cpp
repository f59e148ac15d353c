#include "replay/Session.h"

#include "replay/Commands.h"
#include "replay/Objects.h"

#include "reference/services/ServiceControl.h"
#include "reference/toolkit/Resources.h"

#include <QCoreApplication>

#include <exception>
#include <utility>

namespace replay {

namespace {

constexpr double kFirstScale = 1.0;

QString firstTheme()
{
    return QStringLiteral("dark");
}

/// What went wrong, or null; the answer's result otherwise.
struct Outcome
{
    Json result;
    Json error;
};

Outcome carryOut(Session& session, Objects& objects, const Json& command)
{
    try {
        return {runCommand(session, objects, command), nullptr};
    } catch (const WrongCommand& wrong) {
        return {nullptr, wrong.what()};
    } catch (const std::exception& unexpected) {
        return {nullptr, std::string("the command was broken off: ") + unexpected.what()};
    }
}

Json answerOf(const Outcome& outcome, Json events, const Objects::HookCounts& hooks)
{
    Json answer = Json::object();
    answer["ok"] = outcome.error.is_null();
    answer["result"] = outcome.result;
    if (!outcome.error.is_null())
        answer["error"] = outcome.error;
    answer["events"] = std::move(events);
    answer["saves"] = hooks.saves;
    answer["reloads"] = hooks.reloads;
    return answer;
}

} // namespace

Json wrongAnswer(const std::string& error)
{
    return answerOf({nullptr, error}, Json::array(), {});
}

class Session::Private
{
public:
    Objects objects;
};

Session::Session()
    : d(std::make_unique<Private>())
{
    reset();
}

Session::~Session() = default;

void Session::reset()
{
    d->objects.clear();
    reference::resetServices();
    WQ::resources::setScale(kFirstScale);
    WQ::resources::setTheme(firstTheme());
}

Json Session::run(const Json& command)
{
    d->objects.takeHookCounts();
    const Outcome outcome = carryOut(*this, d->objects, command);
    if (d->objects.isAnyVisible())
        QCoreApplication::sendPostedEvents(); // what is shown is laid out and painted between two commands
    const Objects::HookCounts hooks = d->objects.takeHookCounts();
    return answerOf(outcome, d->objects.takeEvents(), hooks);
}

QWidget* Session::object(const QString& name) const
{
    return d->objects.find(name.toStdString());
}

} // namespace replay
