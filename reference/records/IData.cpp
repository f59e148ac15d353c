#include <ttservice/IData.h>

namespace ttservice {

// The key function: its vtable and type information live here, and casts work across the libraries.
IData::~IData() = default;

} // namespace ttservice
