#include "reference/services/JsonLines.h"

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

} // namespace reference
