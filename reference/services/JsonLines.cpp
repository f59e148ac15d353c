#include "reference/services/JsonLines.h"

#include "reference/services/FileReport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <vector>

namespace reference {

namespace {

/// The offset behind the string that begins at @p quote.
int behindString(const QByteArray& json, int quote)
{
    int at = quote + 1;
    while (at < json.size() && json.at(at) != '"')
        at += json.at(at) == '\\' ? 2 : 1;
    return at + 1;
}

bool isKey(const QByteArray& json, int behind)
{
    while (behind < json.size()
           && (json.at(behind) == ' ' || json.at(behind) == '\t' || json.at(behind) == '\r' || json.at(behind) == '\n'))
        ++behind;
    return behind < json.size() && json.at(behind) == ':';
}

/// The name between the quotes, whatever escapes it is written with.
QByteArray nameAt(const QByteArray& json, int quote, int behind)
{
    const QByteArray text = json.mid(quote, behind - quote);
    if (!text.contains('\\'))
        return text.mid(1, text.size() - 2);
    return QJsonDocument::fromJson('[' + text + ']').array().at(0).toString().toUtf8();
}

/// Walks the text and answers the first name for which @p isWanted(depth, name, offset) is true, else -1; an object's
/// end is told as an empty name at an offset of -1.
template <class Wanted>
int findName(const QByteArray& json, Wanted isWanted)
{
    int depth = 0;
    for (int at = 0; at < json.size();) {
        const char character = json.at(at);
        const int behind = character == '"' ? behindString(json, at) : at + 1;
        if (character == '[' || character == '{')
            ++depth;
        else if (character == ']' || character == '}')
            isWanted(depth--, QByteArray(), -1);
        else if (character == '"' && isKey(json, behind) && isWanted(depth, nameAt(json, at, behind), at))
            return at;
        at = behind;
    }
    return -1;
}

/// Walks the text and keeps count of the elements of the outermost list.
class Walk
{
public:
    Walk(const QByteArray& json, int record, const QByteArray& field)
        : m_json(json)
        , m_record(record)
        , m_quotedField('"' + field + '"')
    {
    }

    int find()
    {
        for (int at = 0; at < m_json.size() && m_element <= m_record;) {
            const char character = m_json.at(at);
            if (character == '"') {
                const int behind = behindString(m_json, at);
                if (isWantedField(at, behind))
                    return at;
                at = behind;
                continue;
            }
            count(character, at);
            ++at;
        }
        return m_found;
    }

private:
    bool isWantedField(int quote, int behind) const
    {
        return m_element == m_record && m_depth == 2 && behind - quote == m_quotedField.size()
            && m_json.mid(quote, behind - quote) == m_quotedField && isKey(m_json, behind);
    }

    void count(char character, int at)
    {
        if (character == '[' || character == '{') {
            if (m_depth == 1 && m_element == m_record)
                m_found = at;
            ++m_depth;
        } else if (character == ']' || character == '}') {
            --m_depth;
        } else if (character == ',' && m_depth == 1) {
            ++m_element;
        } else if (m_depth == 1 && m_element == m_record && m_found < 0 && character > ' ') {
            m_found = at;
        }
    }

    const QByteArray& m_json;
    const int m_record;
    const QByteArray m_quotedField;
    int m_depth = 0;
    int m_element = 0;
    int m_found = -1;
};

} // namespace

int recordOffset(const QByteArray& json, int record, const QByteArray& field)
{
    return Walk(json, record, field).find();
}

int nameOffset(const QByteArray& json, const QByteArray& name, const QByteArray& section)
{
    QByteArray current;
    return findName(json, [&](int depth, const QByteArray& found, int offset) {
        if (depth == 1)
            current = found;
        return offset >= 0 && found == name && (section.isEmpty() || (depth == 2 && current == section));
    });
}

int secondNameOffset(const QByteArray& json)
{
    std::vector<QSet<QByteArray>> names;
    return findName(json, [&](int depth, const QByteArray& name, int offset) {
        if (names.size() <= std::size_t(depth))
            names.resize(std::size_t(depth) + 1);
        QSet<QByteArray>& ofObject = names[std::size_t(depth)];
        const bool isSecond = offset >= 0 && ofObject.contains(name);
        if (offset < 0)
            ofObject.clear();
        else
            ofObject.insert(name);
        return isSecond;
    });
}

QString secondNameProblem(const QByteArray& json, int offset)
{
    const QString name = QString::fromUtf8(nameAt(json, offset, behindString(json, offset)));
    return QStringLiteral("a second %1 in one record").arg(quoted(name));
}

} // namespace reference
