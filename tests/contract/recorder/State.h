#pragma once

#include <QMap>
#include <QPair>
#include <QSet>
#include <QString>

namespace recorder {

/// What the services and the toolkit answer; tests set what they are about.
struct State
{
    QSet<QString> modulesOn; ///< "group/module"
    int clientMode = 0;
    qint64 now = 0; ///< seconds since the epoch
    double scale = 1.0;
    QMap<QString, int> sizes; ///< by key; other keys have the size 50
    int scrollBarWidth = 8;
    int buttonMinWidth = 40;
    int height = 5000; ///< a cell table's last real height; each answer is one more than the last
    int timeRangeType = 1;
    QPair<int, int> timeRange; ///< seconds since the epoch
    int timeElapse = 0;        ///< seconds
    QString groupParam;
};

State& state();

/// Everything as it was, and no lines recorded. No widget of the library may be alive.
void reset();

/// The user configuration says that the algorithm of that order type should be hinted at.
void emitHint(int orderType, bool hint);

/// How many slots are connected to that signal.
int hintReceivers();

} // namespace recorder
