#pragma once

#include "replay/Json.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QThreadPool>

#include <optional>

namespace workbench {

using Json = replay::Json;

enum class StateFault {
    None,
    Damaged, ///< nothing of it can be read
    Newer,   ///< written by a later version: what is known of it can be read
};

/// What a state file holds: an object, empty when it is damaged.
struct StateReading
{
    Json state = Json::object();
    StateFault fault = StateFault::None;
};

/// The bytes of a state file, of one that is too large the first of them; nothing where no file is that can be read.
/// What never ends or waits for a writer, as a device or a pipe, is no file.
std::optional<QByteArray> stateBytes(const QString& path);

/// Reads the bytes of a state file. Any bytes may be handed in. A state whose sum is another one is damaged, be it that
/// it can be read: a number of it may be wrong, and Qt goes down with a layout that is. Who writes a state by hand
/// leaves the sum out.
StateReading readState(const QByteArray& bytes);

/// The bytes of a state file of this version. Keys that this version does not know stand in it as they were read.
QByteArray writtenState(Json state);

/// The state of the program on disk: one file, replaced as a whole, so that whoever kills the program finds the last
/// state or the one before and never half of one.
class StateFile
{
public:
    explicit StateFile(QString path);

    /// The kept state, empty without a file. What is damaged or cannot be read is moved aside, a file
    /// of a later version is copied.
    Json load();

    /// Replaces the file when the state is another one than last time.
    void store(const Json& state);

    /// What a person should know of: each thing once.
    QStringList takeMessages();

    /// The folder of the settings of this user.
    static QString usualPath();

private:
    void setAside(const char* why, bool keepOriginal);
    void say(const QString& message);
    void bringToDisk();

    QString m_path;
    QByteArray m_written;
    QStringList m_messages;
    bool m_hasFailed = false;
    QThreadPool m_disk; ///< of one thread
};

/// @name Reading what anybody may have written
/// A value of another type, or out of range, is the fallback.
/// @{
int intIn(const Json& object, const char* key, int fallback);
double numberIn(const Json& object, const char* key, double fallback);
bool boolIn(const Json& object, const char* key, bool fallback);
QString textIn(const Json& object, const char* key);
QStringList textsIn(const Json& object, const char* key);

/// The member of that name; an empty object when there is none or it is something else.
Json objectIn(const Json& object, const char* key);
/// @}

} // namespace workbench
