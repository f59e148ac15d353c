#pragma once

#include "replay/Objects.h"

namespace replay {

class Session;

/// Carries out one command on the objects of a session and answers its result. Throws WrongCommand, before anything is
/// changed, for a command that is wrong.
Json runCommand(Session& session, Objects& objects, const Json& command);

} // namespace replay
