#include "monkey/ScriptFile.h"

#include "replay/Script.h"

#include <stdexcept>

namespace monkey {

namespace {

QByteArray lineOf(const replay::Json& command)
{
    return QByteArray::fromStdString(replay::writtenLine(command)) + '\n';
}

} // namespace

void ScriptFile::start(const QString& path)
{
    m_file.close();
    m_file.setFileName(path);
    if (!m_file.open(QIODevice::ReadWrite | QIODevice::Truncate | QIODevice::Unbuffered))
        throw std::runtime_error("cannot write " + path.toStdString());
    m_last = 0;
}

void ScriptFile::comment(const QString& text)
{
    write("# " + text.toUtf8() + '\n');
}

void ScriptFile::add(const replay::Json& command)
{
    m_last = m_file.size();
    write(lineOf(command));
}

void ScriptFile::addBeforeLast(const replay::Json& command)
{
    m_file.seek(m_last);
    const QByteArray rest = m_file.readAll();
    m_file.seek(m_last);
    const QByteArray line = lineOf(command);
    write(line + rest);
    m_last += line.size();
}

void ScriptFile::remove()
{
    m_file.remove();
}

void ScriptFile::write(const QByteArray& line)
{
    if (m_file.write(line) != line.size())
        throw std::runtime_error("cannot write " + m_file.fileName().toStdString());
}

} // namespace monkey
