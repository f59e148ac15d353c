#pragma once

#include <string>

namespace ttservice {

/// What the client knows of an instrument; the tables accept it and keep nothing of it.
struct CInstrumentDetail
{
    std::string code; ///< instrument code
    std::string name; ///< instrument name
};

} // namespace ttservice
