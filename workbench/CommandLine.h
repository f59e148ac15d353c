#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class QCoreApplication;

namespace workbench {

/// What the program was asked for.
struct CommandLine
{
    QString dataDirectory; ///< empty for the default
    QString tourDirectory; ///< empty when no tour is asked for
    QString language;      ///< empty for the one kept, or the system's
    std::optional<double> scale;
    QString theme;               ///< empty for the one kept, or for all in a tour
    std::optional<int> watchdog; ///< milliseconds that the event loop may be held before it is said
    bool measureStart = false;   ///< end when the window is usable, and say after how long
    QString error;               ///< what is wrong with it; empty when nothing is
};

/// Reads the arguments. Answers --help and --version itself, which end the program.
CommandLine readCommandLine(const QCoreApplication& application);

/// Whether the arguments ask for a tour, --help or --version, which need no display.
bool needsNoDisplay(const QStringList& arguments);

} // namespace workbench
