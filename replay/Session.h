#pragma once

#include "replay/Json.h"

#include <QtCore/QString>

#include <memory>
#include <string>

class QWidget;

namespace replay {

/// The answer to what cannot be carried out, with nothing changed and nothing heard.
Json wrongAnswer(const std::string& error);

/// The objects of one run and what happens to them: carries out one command after another, as the protocol says. There
/// is one session at a time, because the services it switches belong to the whole program.
class Session
{
public:
    /// Starts as after "reset": no objects, no accounts, all modules off, the system's clock, scale 1.
    Session();
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Deletes every object and starts again.
    void reset();

    /// Carries out one command: {"ok", "result", "events", "saves", "reloads"}, or {"ok": false, "error", ...} for a
    /// command that is wrong, which changes nothing. Throws nothing.
    Json run(const Json& command);

    /// The object of that name, null without one.
    QWidget* object(const QString& name) const;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace replay
