#include "reference/services/IniLines.h"

#include <QTextCodec>

namespace reference {

namespace {

bool isUtf8(const QByteArray& text)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(text.constData(), text.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

bool hasOpenQuote(const QByteArray& text)
{
    bool isOpen = false;
    for (int at = 0; at < text.size(); ++at) {
        if (text.at(at) == '\\')
            ++at;
        else if (text.at(at) == '"')
            isOpen = !isOpen;
    }
    return isOpen;
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
}

void IniLines::takeLine(const QByteArray& text, int line)
{
    const bool isContinuation = m_isContinued;
    const bool isComment = text.isEmpty() || text.startsWith(';') || text.startsWith('#');
    if (isUtf8(text) && isComment && !isContinuation)
        return;
    m_isContinued = text.endsWith('\\');
    m_content += text + '\n';
    m_problemLine = line;
    if (!isUtf8(text))
        m_problem = QStringLiteral("not UTF-8");
    else if (!isContinuation)
        m_problem = text.startsWith('[') ? takeSection(text) : takeEntry(text, line);
}

QString IniLines::takeSection(const QByteArray& text)
{
    const int end = text.indexOf(']');
    if (end < 0)
        return QStringLiteral("a section without \"]\"");
    m_section = QString::fromUtf8(text.mid(1, end - 1)) + QLatin1Char('/');
    return {};
}

QString IniLines::takeEntry(const QByteArray& text, int line)
{
    const int equals = text.indexOf('=');
    if (equals <= 0)
        return QStringLiteral("neither a [section] nor key=value");
    if (hasOpenQuote(text))
        return QStringLiteral("a quote that is not closed");
    // "@" begins what QSettings stores of types that are no texts; it would build any of them from the file's bytes.
    const QByteArray value = text.mid(equals + 1).trimmed();
    if (value.startsWith('@') || value.startsWith("\"@"))
        return QStringLiteral("a value that is neither a number nor a text");
    m_lines.insert(m_section + QString::fromUtf8(text.left(equals).trimmed()), line);
    return {};
}

} // namespace reference
