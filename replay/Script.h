#pragma once

#include "replay/Json.h"

#include <iosfwd>
#include <string>

namespace replay {

class Session;

/// Whether a line of a script is a command: blank lines and those that begin with "#" are none.
bool isCommandLine(const std::string& line);

/// Carries out the command on line @p number; the answer begins with that number.
Json answerLine(Session& session, int number, const std::string& line);

/// An answer or a command on one line, UTF-8, without the end of the line. The largest double, which stands for no
/// price, is written 1.7976931348623157e308.
std::string writtenLine(const Json& json);

/// Carries out a script, writes an answer a line and flushes each. @returns whether every command was ok
bool runScript(Session& session, std::istream& script, std::ostream& answers);

/// Carries out a script and writes, a line each, where its answers differ from @p expected, which has an object a
/// line, for the commands in order. @returns whether there is no difference; throws std::runtime_error when @p expected
/// is not that
bool compareScript(Session& session, std::istream& script, std::istream& expected, std::ostream& report);

} // namespace replay
