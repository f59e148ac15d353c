#pragma once

#include <QByteArray>

namespace reference {

/// Where an object of a JSON list, or a field of that object, begins: the byte offset, or -1 when there is none. The
/// text must be valid JSON. Parsed values do not know their places, and most files never need them, so this walks the
/// text again.
int recordOffset(const QByteArray& json, int record, const QByteArray& field);

} // namespace reference
