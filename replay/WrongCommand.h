#pragma once

#include <stdexcept>

namespace replay {

/// A command that cannot be carried out as it stands; the message says what is wrong and what would be accepted. Thrown
/// before anything is changed, caught where the command is answered.
class WrongCommand : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace replay
