#pragma once

#include <WQ/WqExport.h>

#include <string>

namespace ttservice {

/// A data object of the client with a key of its own.
class WQ_EXPORT IData
{
public:
    virtual ~IData();

    /// The key under which the client knows the object.
    /// @return UTF-8
    virtual std::string getKey() const = 0;
};

} // namespace ttservice
