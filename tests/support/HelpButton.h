#pragma once

namespace WQ {
class CDropDownButtonGroup;
}

namespace support {

/// Whether the group offers its help button, and whether that is marked.
bool isHelpButtonOffered(WQ::CDropDownButtonGroup& group);
bool isHelpButtonCritical(WQ::CDropDownButtonGroup& group);

/// Adds a mode button of a host to the group.
void addModeButton(WQ::CDropDownButtonGroup& group, int id, const char* text);

} // namespace support
