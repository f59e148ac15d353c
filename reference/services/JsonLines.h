#pragma once

#include <QByteArray>
#include <QString>

namespace reference {

// Parsed values do not know their places, and most files never need them, so these walk the text again. The text must
// be valid JSON.

/// Where an object of a JSON list, or a field of that object, begins: the byte offset, or -1 when there is none.
int recordOffset(const QByteArray& json, int record, const QByteArray& field);

/// Where a name of an object first stands, as a name and not as a text; with a section only in the object that the
/// outermost object holds under that name. -1 when it stands nowhere.
int nameOffset(const QByteArray& json, const QByteArray& name, const QByteArray& section = QByteArray());

/// Where a name first stands for the second time in one object, which a parser passes over; -1 when none does.
int secondNameOffset(const QByteArray& json);

/// What is wrong there.
QString secondNameProblem(const QByteArray& json, int offset);

} // namespace reference
