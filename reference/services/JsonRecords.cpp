#include "reference/services/JsonRecords.h"

#include "reference/services/FileReport.h"
#include "reference/services/JsonLines.h"

#include <QJsonDocument>

#include <limits>

namespace reference {

JsonRecords::JsonRecords(const QString& path)
    : m_path(path)
{
    m_bytes = readWhole(path, m_report);
    if (!m_report.isGood())
        return;
    QJsonParseError problem{};
    const QJsonDocument document = QJsonDocument::fromJson(m_bytes, &problem);
    if (problem.error != QJsonParseError::NoError)
        m_report.error = placed(path, lineAt(m_bytes, problem.offset), problem.errorString());
    else if (!document.isArray())
        m_report.error = placed(path, 1, QStringLiteral("not a list of records"));
    else if (const int second = secondNameOffset(m_bytes); second >= 0)
        m_report.error = placed(path, lineAt(m_bytes, second), secondNameProblem(m_bytes, second));
    else
        m_records = document.array();
}

void JsonRecords::fail(int record, const QString& field, const QString& what)
{
    if (m_report.isGood())
        m_report.error = placed(m_path, line(record, field), what);
}

void JsonRecords::note(int record, const QString& field, const QString& what)
{
    // What is noted of one record holds for the next 100,000 as well.
    if (m_noted.contains(what))
        return;
    m_noted.insert(what);
    const bool isWorthPlace = m_report.notes.size() < kMostNotesPlaced;
    m_report.notes.append(placed(m_path, isWorthPlace ? line(record, field) : 0, what));
}

int JsonRecords::line(int record, const QString& field) const
{
    const int offset = recordOffset(m_bytes, record, field.toUtf8());
    return offset < 0 ? 0 : lineAt(m_bytes, offset);
}

JsonFields::JsonFields(JsonRecords& file, int record)
    : m_file(file)
    , m_record(record)
    , m_left(file.records().at(record).toObject())
{
    if (!file.records().at(record).isObject())
        fail({}, QStringLiteral("not a record"));
}

QJsonValue JsonFields::takeAny(const QString& field)
{
    return m_left.take(field);
}

void JsonFields::take(const QString& field, std::string& target)
{
    const QJsonValue value = takeAny(field);
    if (value.isString())
        target = value.toString().toStdString();
    else if (!value.isUndefined())
        fail(field, QStringLiteral("\"%1\" is not a text").arg(field));
}

void JsonFields::take(const QString& field, double& target)
{
    const QJsonValue value = takeAny(field);
    if (value.isDouble())
        target = value.toDouble();
    else if (!value.isUndefined())
        fail(field, QStringLiteral("\"%1\" is not a number").arg(field));
}

void JsonFields::take(const QString& field, int& target)
{
    const QJsonValue value = takeAny(field);
    if (isInt(value))
        target = static_cast<int>(value.toDouble());
    else if (!value.isUndefined())
        fail(field, QStringLiteral("\"%1\" is not a whole number of 32 bits").arg(field));
}

void JsonFields::fail(const QString& field, const QString& what)
{
    m_file.fail(m_record, field, what);
}

void JsonFields::note(const QString& field, const QString& what)
{
    m_file.note(m_record, field, what);
}

void JsonFields::noteUnknown()
{
    const QStringList fields = m_left.keys();
    for (const QString& field : fields)
        note(field, QStringLiteral("unknown field %1 is ignored").arg(quoted(field)));
}

bool isInt(const QJsonValue& value)
{
    const double number = value.toDouble(0.5);
    return number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max()
        && number == static_cast<int>(number);
}

} // namespace reference
