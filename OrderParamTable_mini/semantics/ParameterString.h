#pragma once

#include <ttservice/COrderSetting.h>

#include <QString>

namespace TC {

/// The platform's text of a real field.
using RealFieldFormatter = QString (*)(double value);

/// A record as its parameter string: 41 items joined by "+".
QString parameterString(const ttservice::COrderSetting& setting, RealFieldFormatter formatReal);

} // namespace TC
