#pragma once

#include "replay/Json.h"

class QWidget;

namespace replay {

/// What a person and a host can see of a table or a dialog: its order, strip, filter and cells; a dialog's facts and
/// the table in it. Changes nothing and runs no operation that has side effects. Null for a widget of another kind.
Json stateOf(const QWidget* object);

} // namespace replay
