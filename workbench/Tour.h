#pragma once

#include "workbench/HostData.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace workbench {

struct TourRequest
{
    QString directory;
    std::vector<double> scales;
    QStringList themes;
    QString language = QStringLiteral("en"); ///< of all pictures but those of the window, which name their own
    HostData data;                           ///< what the pictures of the window show
};

struct TourResult
{
    QStringList files; ///< paths of the pictures, in order
    QString error;     ///< empty when all were written
};

/// Writes a picture of each panel, dialog and state, of the window too, in each theme at each UI scale:
/// "NAME-THEME-SCALE.png". The same request writes the same pictures: the clock stands still and the feature modules
/// are the tour's own. Services, theme, scale and language are left as the last picture needed them.
TourResult writeTour(const TourRequest& request);

} // namespace workbench
