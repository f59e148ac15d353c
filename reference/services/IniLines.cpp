#include "reference/services/IniLines.h"

#include "reference/services/FileReport.h"

#include <QTextCodec>

#include <algorithm>

namespace reference {

namespace {

bool isUtf8(const QByteArray& text)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(text.constData(), text.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

bool hasControlCharacter(const QByteArray& text)
{
    return std::any_of(text.begin(), text.end(), [](char character) {
        const auto byte = static_cast<unsigned char>(character);
        return (byte < ' ' && byte != '\t') || byte == 0x7f;
    });
}

/// QSettings reads "%" and "\" in names as escapes, so that one key could be written in many ways.
bool isPlainName(const QByteArray& name)
{
    return !name.contains('%') && !name.contains('\\');
}

bool isComment(const QByteArray& text)
{
    return text.isEmpty() || text.startsWith(';') || text.startsWith('#');
}

QString nameProblem()
{
    return QStringLiteral("a name with \"%\" or \"\\\"");
}

} // namespace

IniLines::IniLines(const QByteArray& bytes)
{
    const QByteArray mark = QByteArrayLiteral("\xEF\xBB\xBF");
    int line = 0;
    for (int begin = bytes.startsWith(mark) ? mark.size() : 0; begin < bytes.size() && m_problem.isEmpty();) {
        int end = bytes.indexOf('\n', begin);
        if (end < 0)
            end = bytes.size();
        takeLine(bytes.mid(begin, end - begin).trimmed(), ++line);
        begin = end + 1;
    }
    if (m_problem.isEmpty() && m_isContinued)
        m_problem = QStringLiteral("the line goes on, and nothing follows");
}

void IniLines::takeLine(const QByteArray& text, int line)
{
    const bool isContinuation = m_isContinued;
    m_isContinued = false;
    m_problemLine = line;
    if (!isUtf8(text))
        m_problem = QStringLiteral("not UTF-8");
    else if (hasControlCharacter(text))
        m_problem = QStringLiteral("a control character, which no text has");
    if (!m_problem.isEmpty() || (isComment(text) && !isContinuation))
        return;
    m_content += text + '\n';
    if (isContinuation)
        m_problem = takeValue(text, 0);
    else
        m_problem = text.startsWith('[') ? takeSection(text) : takeEntry(text, line);
}

QString IniLines::takeSection(const QByteArray& text)
{
    const int end = text.indexOf(']');
    if (end < 0)
        return QStringLiteral("a section without \"]\"");
    if (!isComment(text.mid(end + 1).trimmed()))
        return QStringLiteral("more than a [section]");
    const QByteArray name = text.mid(1, end - 1).trimmed();
    if (!isPlainName(name))
        return nameProblem();
    // The section of keys without a section.
    const bool isGeneral = name.compare("general", Qt::CaseInsensitive) == 0;
    m_section = isGeneral ? QString() : QString::fromUtf8(name) + QLatin1Char('/');
    return {};
}

QString IniLines::takeEntry(const QByteArray& text, int line)
{
    const int equals = text.indexOf('=');
    if (equals <= 0)
        return QStringLiteral("neither a [section] nor key=value");
    const QByteArray name = text.left(equals).trimmed();
    if (!isPlainName(name))
        return nameProblem();
    const QString key = m_section + QString::fromUtf8(name);
    if (m_lines.contains(key))
        return QStringLiteral("a second %1, the first is in line %2").arg(quoted(key)).arg(m_lines.value(key));
    m_keys.append(key);
    m_lines.insert(key, line);
    return takeValue(text, equals + 1);
}

// "@" begins what QSettings stores of types that are no texts; it would build any of them from the file's bytes.
QString IniLines::takeValue(const QByteArray& text, int begin)
{
    bool isElementStart = true;
    for (int at = begin; at < text.size() && (m_isQuoteOpen || text.at(at) != ';'); ++at) {
        const char character = text.at(at);
        const bool isEscape = character == '\\' && ++at < text.size();
        if (character == '"')
            m_isQuoteOpen = !m_isQuoteOpen;
        else if (character == ',')
            isElementStart = true;
        else if (character == '\\' && !isEscape)
            m_isContinued = true;
        else if ((character == '@' && isElementStart)
                 || (isEscape && QByteArrayLiteral("x01234567").contains(text.at(at))))
            return QStringLiteral("a value that is neither a number nor a text");
        else if (!isEscape && character != ' ' && character != '\t')
            isElementStart = false;
    }
    return m_isQuoteOpen && !m_isContinued ? QStringLiteral("a quote that is not closed") : QString();
}

} // namespace reference
