#pragma once

#include <QString>
#include <QStringList>

namespace reference {

/// What reading a file came to.
struct LoadReport
{
    QString error;     ///< "file:line: what is wrong"; empty when the file was taken
    QStringList notes; ///< what was ignored, in the same form

    bool isGood() const
    {
        return error.isEmpty();
    }
};

} // namespace reference
