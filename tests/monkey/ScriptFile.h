#pragma once

#include "replay/Json.h"

#include <QFile>

namespace monkey {

/// A replay script that is written as a run goes. Every line stands in the file before what it says is done, so that
/// the file tells of a run that broke off.
class ScriptFile
{
public:
    /// Starts a script over; throws std::runtime_error when the file cannot be written.
    void start(const QString& path);

    QString path() const
    {
        return m_file.fileName();
    }

    void comment(const QString& text);
    void add(const replay::Json& command);

    /// Puts a command before the last one that was added: an edit that stood open, and which that one has ended.
    void addBeforeLast(const replay::Json& command);

    void remove();

private:
    void write(const QByteArray& line);

    QFile m_file;
    qint64 m_last = 0; // where the last command begins
};

} // namespace monkey
