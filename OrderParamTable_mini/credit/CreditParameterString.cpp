#include <OrderParamTable_mini/credit/CreditParameterString.h>

#include <QStringView>

#include <array>
#include <charconv>
#include <iterator>

namespace TC {

namespace {

constexpr char16_t kGroupSeparator = u'+';
constexpr char16_t kFieldSeparator = u'-';
constexpr char16_t kValueSeparator = u'=';
constexpr std::size_t kFewestFields = 5;
constexpr int kUsualLength = 1024;

/// As QString::toInt() reads a text; plain short numbers, which are nearly all, without its detours.
int numberOf(QStringView text)
{
    constexpr int kSafeDigits = 9;
    unsigned value = 0;
    bool isPlain = !text.isEmpty() && text.size() <= kSafeDigits;
    for (const QChar* at = text.begin(); isPlain && at != text.end(); ++at) {
        const unsigned digit = at->unicode() - unsigned(u'0');
        isPlain = digit <= 9;
        value = value * 10 + digit;
    }
    return isPlain ? int(value) : QString::fromRawData(text.data(), int(text.size())).toInt();
}

/// A field of a group: a number, or a number and a value.
struct Field
{
    QStringView name;
    QStringView value;
    bool hasValue = false;
};

/// Takes the groups of a text into the remembered values. A group counts from its fifth field on; until then its fields
/// wait.
class GroupReader
{
public:
    explicit GroupReader(CreditValues& values)
        : m_values(values)
    {
    }

    void add(const Field& field)
    {
        if (m_count < kFewestFields) {
            m_waiting[m_count++] = field;
            if (m_count == kFewestFields)
                takeWaiting();
            return;
        }
        take(field);
    }

    void endGroup()
    {
        m_count = 0;
        m_rows = nullptr;
    }

private:
    void takeWaiting()
    {
        // A key with a value behind it reads as no number.
        m_operation = m_waiting[0].hasValue ? 0 : numberOf(m_waiting[0].name);
        for (std::size_t i = 1; i < kFewestFields; ++i)
            take(m_waiting[i]);
    }

    void take(const Field& field)
    {
        if (!field.hasValue)
            return;
        if (!m_rows)
            m_rows = &m_values[m_operation];
        store(numberOf(field.name), field.value);
    }

    // Rows come in ascending order as a rule, and each text goes straight into its place: copies of QVariants cost more
    // than the text itself.
    void store(int row, QStringView value)
    {
        const bool isNew = m_rows->isEmpty() || m_rows->lastKey() < row;
        const auto stored = isNew ? m_rows->end() : m_rows->find(row);
        if (stored == m_rows->end())
            textOf(*m_rows->insert(m_rows->cend(), row, m_noText)) = value.toString();
        else if (stored->userType() == QMetaType::QString)
            textOf(*stored).setUnicode(value.data(), int(value.size()));
        else
            *stored = QVariant(value.toString());
    }

    static QString& textOf(QVariant& text)
    {
        return *static_cast<QString*>(text.data());
    }

    const QVariant m_noText = QString();
    CreditValues& m_values;
    QMap<int, QVariant>* m_rows = nullptr;
    int m_operation = 0;
    std::array<Field, kFewestFields> m_waiting;
    std::size_t m_count = 0;
};

/// Reads one field from @p begin on and answers where it ends: at a separator of fields or groups, or at @p end.
const QChar* readField(const QChar* begin, const QChar* end, Field& field)
{
    const QChar* firstEquals = nullptr;
    const QChar* secondEquals = nullptr;
    const QChar* at = begin;
    for (; at != end && *at != kFieldSeparator && *at != kGroupSeparator; ++at) {
        if (*at != kValueSeparator)
            continue;
        if (!firstEquals)
            firstEquals = at;
        else if (!secondEquals)
            secondEquals = at;
    }
    field.hasValue = firstEquals != nullptr;
    field.name = QStringView(begin, firstEquals ? firstEquals : at);
    field.value = firstEquals ? QStringView(firstEquals + 1, secondEquals ? secondEquals : at) : QStringView();
    return at;
}

void appendNumber(QString& text, int number)
{
    char digits[16];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    text.append(QLatin1String(digits, int(end - digits)));
}

void appendValue(QString& text, const QVariant& value)
{
    if (value.userType() == QMetaType::QString)
        text.append(*static_cast<const QString*>(value.constData()));
    else
        text.append(value.toString());
}

} // namespace

QString writeCreditParameters(int operationType, const CreditValues& values)
{
    QString text;
    text.reserve(kUsualLength);
    appendNumber(text, operationType);
    for (auto group = values.cbegin(); group != values.cend(); ++group) {
        text.append(QChar(kGroupSeparator));
        appendNumber(text, group.key());
        for (auto row = group->cbegin(); row != group->cend(); ++row) {
            text.append(QChar(kFieldSeparator));
            appendNumber(text, row.key());
            text.append(QChar(kValueSeparator));
            appendValue(text, *row);
        }
    }
    return text;
}

bool readCreditParameters(const QString& text, int& operationType, CreditValues& values)
{
    const int first = text.indexOf(QChar(kGroupSeparator));
    if (first < 0)
        return false;
    operationType = numberOf(QStringView(text).left(first));
    GroupReader groups(values);
    const QChar* const end = text.constData() + text.size();
    const QChar* at = text.constData() + first;
    while (at != end) {
        if (*at == kGroupSeparator)
            groups.endGroup();
        Field field;
        at = readField(at + 1, end, field);
        groups.add(field);
    }
    return true;
}

} // namespace TC
