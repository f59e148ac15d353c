#include <OrderParamTable_mini/credit/CreditParameterString.h>

#include <QStringRef>
#include <QStringView>

namespace TC {

namespace {

constexpr QChar kGroupSeparator = QLatin1Char('+');
constexpr QChar kFieldSeparator = QLatin1Char('-');
constexpr QChar kValueSeparator = QLatin1Char('=');
constexpr int kFewestFields = 5;
constexpr int kUsualLength = 256;

/// A part of a text, from @c begin up to, not including, @c end.
struct Piece
{
    int begin;
    int end;
};

class Reader
{
public:
    explicit Reader(const QString& text)
        : m_text(text)
    {
    }

    int find(QChar separator, int from, int end) const
    {
        const QChar* const data = m_text.constData();
        while (from < end && data[from] != separator)
            ++from;
        return from;
    }

    bool hasEnoughFields(Piece group) const
    {
        int fields = 1;
        const QChar* const data = m_text.constData();
        for (int i = group.begin; i < group.end && fields < kFewestFields; ++i)
            fields += data[i] == kFieldSeparator ? 1 : 0;
        return fields >= kFewestFields;
    }

    /// As QString::toInt() reads the piece; plain short numbers, which are nearly all, without its detours.
    int number(Piece piece) const
    {
        constexpr int kSafeDigits = 9;
        const int length = piece.end - piece.begin;
        if (length > 0 && length <= kSafeDigits) {
            int value = 0;
            int i = piece.begin;
            for (; i < piece.end; ++i) {
                const int digit = m_text.at(i).unicode() - '0';
                if (digit < 0 || digit > 9)
                    break;
                value = value * 10 + digit;
            }
            if (i == piece.end)
                return value;
        }
        return m_text.midRef(piece.begin, length).toInt();
    }

    QString text(Piece piece) const
    {
        return m_text.mid(piece.begin, piece.end - piece.begin);
    }

private:
    const QString& m_text;
};

void readEntry(const Reader& reader, Piece entry, QMap<int, QVariant>*& rows, CreditValues& values, int operation)
{
    const int separator = reader.find(kValueSeparator, entry.begin, entry.end);
    if (separator == entry.end)
        return;
    const int valueEnd = reader.find(kValueSeparator, separator + 1, entry.end);
    if (!rows)
        rows = &values[operation];
    rows->insert(reader.number({entry.begin, separator}), QVariant(reader.text({separator + 1, valueEnd})));
}

void readGroup(const Reader& reader, Piece group, CreditValues& values)
{
    if (!reader.hasEnoughFields(group))
        return;
    int fieldEnd = reader.find(kFieldSeparator, group.begin, group.end);
    const int operation = reader.number({group.begin, fieldEnd});
    QMap<int, QVariant>* rows = nullptr;
    while (fieldEnd < group.end) {
        const int begin = fieldEnd + 1;
        fieldEnd = reader.find(kFieldSeparator, begin, group.end);
        readEntry(reader, {begin, fieldEnd}, rows, values, operation);
    }
}

} // namespace

QString writeCreditParameters(int operationType, const CreditValues& values)
{
    QString text;
    text.reserve(kUsualLength);
    text += QString::number(operationType);
    for (auto group = values.cbegin(); group != values.cend(); ++group) {
        text += kGroupSeparator;
        text += QString::number(group.key());
        for (auto row = group->cbegin(); row != group->cend(); ++row) {
            text += kFieldSeparator;
            text += QString::number(row.key());
            text += kValueSeparator;
            text += row->toString();
        }
    }
    return text;
}

bool readCreditParameters(const QString& text, int& operationType, CreditValues& values)
{
    const Reader reader(text);
    const int length = text.size();
    int partEnd = reader.find(kGroupSeparator, 0, length);
    if (partEnd == length)
        return false;
    operationType = reader.number({0, partEnd});
    while (partEnd < length) {
        const int begin = partEnd + 1;
        partEnd = reader.find(kGroupSeparator, begin, length);
        readGroup(reader, {begin, partEnd}, values);
    }
    return true;
}

} // namespace TC
