#pragma once

#include <QStringList>

namespace replay {

/// Does what the program's arguments ask (the first is its name) and answers the exit status: 0 when every command was
/// ok or all was as expected, 1 when not, 2 when a script could not be read or the arguments were wrong.
int runCommandLine(const QStringList& arguments);

} // namespace replay
