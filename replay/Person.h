#pragma once

#include "replay/Objects.h"

/// What a person does at an object, by the editors' own rules. Returns when the events it caused have gone out; throws
/// WrongCommand, and changes nothing, when a person could not do it.
namespace replay::person {

/// What a command says of an edit: "cell", and what is done in its editor.
/// @returns false when the editor marks the input as wrong and keeps the old value
bool edit(const Object& object, const Json& command);

void click(const Object& object, int button);
void filter(const Object& object, const QSet<int>& cells);
void resetFilter(const Object& object);

} // namespace replay::person
