#pragma once

#include "monkey/Stage.h"

#include <QString>

namespace monkey {

/// What must hold after every action; the first thing that does not, in words, empty when all is right.
QString firstComplaint(Stage& stage);

/// Whether widgets or lists are left that belong to nobody, once every object is gone.
QString leftOvers(int topLevelsBefore);

} // namespace monkey
