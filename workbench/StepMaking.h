#pragma once

#include "workbench/Recording.h"

#include <memory>
#include <string>

class QWidget;

namespace WQ {
struct PersonEvent;
}

namespace workbench {

struct RecordedObject;

/// A step that was ok and to which nothing was heard yet.
std::shared_ptr<RecordedStep> answeredStep(replay::Json command);

/// What a command does: its "do"; empty for none.
std::string nameOf(const replay::Json& command);

/// Whether a command only sets something, so that the same one later takes its place.
bool isSetting(const replay::Json& command);

/// Freezes a replay's clock at the present time.
replay::Json clockCommand();

/// The command that does once more what a person did. A double-click on a table's cell is handed to the table, which
/// answers it as if it came from there. Null for what scripts have no command for: a double-click in the table of a
/// dialog, which is no object of its own, and edits of a dialog's facts.
replay::Json commandOf(const QWidget& sender, const WQ::PersonEvent& event, const RecordedObject& object);

} // namespace workbench
