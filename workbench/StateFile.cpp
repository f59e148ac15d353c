#include "workbench/StateFile.h"

#include "workbench/Vocabulary.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryFile>

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <limits>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace workbench {

namespace {

constexpr int kVersion = 1;
constexpr auto kVersionKey = "version";
constexpr auto kSumKey = "sum";

/// A state is some kilobytes; what is larger or deeper was not written by this program and would only cost memory.
constexpr int kLargestFile = 4 * 1024 * 1024;
constexpr int kLargestDepth = 32;

const Json* memberOf(const Json& object, const char* key)
{
    if (!object.is_object())
        return nullptr;
    const auto found = object.find(key);
    return found == object.end() ? nullptr : &*found;
}

QByteArray written(const Json& state, int indent)
{
    return QByteArray::fromStdString(state.dump(indent, ' ', false, Json::error_handler_t::replace));
}

/// Of what stands in the state besides it, however it is laid out.
QString sumOf(Json state)
{
    state.erase(kSumKey);
    return QString::fromLatin1(QCryptographicHash::hash(written(state, -1), QCryptographicHash::Sha1).toHex());
}

/// A link to the file stays one.
QString targetOf(const QString& path)
{
    const QString target = QFileInfo(path).canonicalFilePath();
    return target.isEmpty() ? path : target;
}

/// A disk that is full takes a part first, and says why only when it is asked to take the rest.
bool writeAll(int file, const QByteArray& bytes)
{
    ssize_t written = 0;
    for (qint64 done = 0; done < bytes.size(); done += written) {
        written = ::write(file, bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
        if (written < 0 && errno == EINTR)
            written = 0;
        else if (written <= 0)
            return false;
    }
    return true;
}

/// Puts @p bytes in the place of the file in one step; answers what went wrong.
QString replaceFile(const QString& path, const QByteArray& bytes)
{
    QTemporaryFile file(path + QStringLiteral(".XXXXXX"));
    if (!file.open())
        return file.errorString();
    if (!writeAll(file.handle(), bytes))
        return qt_error_string(errno);
    if (std::rename(QFile::encodeName(file.fileName()).constData(), QFile::encodeName(path).constData()) != 0)
        return qt_error_string(errno);
    file.setAutoRemove(false);
    return {};
}

} // namespace

std::optional<QByteArray> stateBytes(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.read(kLargestFile + 1);
}

StateReading readState(const QByteArray& bytes)
{
    if (bytes.size() > kLargestFile)
        return {Json::object(), StateFault::Damaged};
    bool isTooDeep = false;
    const auto watchDepth = [&isTooDeep](int depth, Json::parse_event_t, const Json&) {
        isTooDeep = isTooDeep || depth > kLargestDepth;
        return !isTooDeep;
    };
    Json state = Json::parse(bytes.constBegin(), bytes.constEnd(), watchDepth, false);
    if (isTooDeep || !state.is_object())
        return {Json::object(), StateFault::Damaged};
    const int version = intIn(state, kVersionKey, 0);
    if (version < 1 || (state.contains(kSumKey) && textIn(state, kSumKey) != sumOf(state)))
        return {Json::object(), StateFault::Damaged};
    state.erase(kSumKey);
    return {std::move(state), version > kVersion ? StateFault::Newer : StateFault::None};
}

QByteArray writtenState(Json state)
{
    state[kVersionKey] = kVersion;
    state[kSumKey] = sumOf(state).toStdString();
    return written(state, 1) + '\n';
}

StateFile::StateFile(QString path)
    : m_path(std::move(path))
{
    m_disk.setMaxThreadCount(1);
}

QString StateFile::usualPath()
{
    const QSettings settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("orderparam"),
                             QStringLiteral("workbench"));
    return QFileInfo(settings.fileName()).dir().filePath(QStringLiteral("workbench.json"));
}

Json StateFile::load()
{
    const QFileInfo place(m_path);
    if (!place.exists() && !place.isSymLink())
        return Json::object();
    const std::optional<QByteArray> bytes = stateBytes(m_path);
    if (!bytes) {
        setAside(QT_TRANSLATE_NOOP("workbench", "The state of the last run cannot be read and is set aside as %1."),
                 false);
        return Json::object();
    }
    StateReading reading = readState(*bytes);
    if (reading.fault == StateFault::Damaged)
        setAside(QT_TRANSLATE_NOOP("workbench", "The state of the last run was damaged and is set aside as %1."),
                 false);
    else if (reading.fault == StateFault::Newer)
        setAside(QT_TRANSLATE_NOOP("workbench", "The state was written by a later version; a copy of it is %1."), true);
    return std::move(reading.state);
}

void StateFile::setAside(const char* why, bool keepOriginal)
{
    const QString stem = m_path + QLatin1String(keepOriginal ? ".newer-" : ".damaged-")
        + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString place = stem;
    for (int number = 2; QFile::exists(place) && number < 1000; ++number)
        place = QStringLiteral("%1-%2").arg(stem).arg(number);
    const bool isDone = keepOriginal ? QFile::copy(m_path, place) : QFile::rename(m_path, place);
    if (isDone)
        say(translated(why).arg(place));
    else
        say(translated(QT_TRANSLATE_NOOP("workbench",
                                         "The state of the last run, %1, is not used and cannot be "
                                         "set aside."))
                .arg(m_path));
}

void StateFile::store(const Json& state)
{
    const QByteArray bytes = writtenState(state);
    if (bytes == m_written)
        return;
    QDir().mkpath(QFileInfo(m_path).path());
    const QString problem = replaceFile(targetOf(m_path), bytes);
    const bool isStored = problem.isEmpty();
    if (isStored)
        m_written = bytes;
    else if (!m_hasFailed)
        say(translated(QT_TRANSLATE_NOOP("workbench", "The state cannot be kept in %1: %2")).arg(m_path, problem));
    m_hasFailed = !isStored;
    if (isStored)
        bringToDisk();
}

/// Who kills the program finds what the system holds. What may take long, the way to the disk, is for those who pull
/// the plug, and nobody who types waits for it.
void StateFile::bringToDisk()
{
    m_disk.clear();
    m_disk.start([path = QFile::encodeName(m_path)] {
        const int file = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
        if (file < 0)
            return;
        ::fsync(file);
        ::close(file);
    });
}

void StateFile::say(const QString& message)
{
    m_messages << message;
}

QStringList StateFile::takeMessages()
{
    return std::exchange(m_messages, {});
}

int intIn(const Json& object, const char* key, int fallback)
{
    const double number = numberIn(object, key, fallback);
    const bool isInt = number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
    return isInt && std::trunc(number) == number ? static_cast<int>(number) : fallback;
}

double numberIn(const Json& object, const char* key, double fallback)
{
    const Json* member = memberOf(object, key);
    return member && member->is_number() ? member->get<double>() : fallback;
}

bool boolIn(const Json& object, const char* key, bool fallback)
{
    const Json* member = memberOf(object, key);
    return member && member->is_boolean() ? member->get<bool>() : fallback;
}

QString textIn(const Json& object, const char* key)
{
    const Json* member = memberOf(object, key);
    return member && member->is_string() ? QString::fromStdString(member->get<std::string>()) : QString();
}

QStringList textsIn(const Json& object, const char* key)
{
    const Json* member = memberOf(object, key);
    QStringList texts;
    if (!member || !member->is_array())
        return texts;
    for (const Json& entry : *member)
        if (entry.is_string())
            texts << QString::fromStdString(entry.get<std::string>());
    return texts;
}

Json objectIn(const Json& object, const char* key)
{
    const Json* member = memberOf(object, key);
    return member && member->is_object() ? *member : Json::object();
}

} // namespace workbench
