#pragma once

#include "reference/services/LoadReport.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QSet>

#include <string>

namespace reference {

/// A JSON file that is a list of objects, and where in it each of them stands.
class JsonRecords
{
public:
    /// Reads the file; on failure the error of report() says why and there are no records.
    explicit JsonRecords(const QString& path);

    const QJsonArray& records() const
    {
        return m_records;
    }

    LoadReport& report()
    {
        return m_report;
    }

    /// Makes "file:line: what" the error, unless there is one; an empty or unknown field stands for the whole record.
    void fail(int record, const QString& field, const QString& what);
    /// Notes it with its first place, whatever the number of records that it is said of.
    void note(int record, const QString& field, const QString& what);

private:
    int line(int record, const QString& field) const;

    QString m_path;
    QByteArray m_bytes;
    QJsonArray m_records;
    LoadReport m_report;
    QSet<QString> m_noted;
};

/// Takes the fields of one record; a missing field leaves its target, one of another type fails.
class JsonFields
{
public:
    JsonFields(JsonRecords& file, int record);

    /// The text of a field, UTF-8.
    void take(const QString& field, std::string& target);
    void take(const QString& field, double& target);
    void take(const QString& field, int& target);

    /// A vocabulary value: any integer.
    template <class Enumeration>
    void takeValue(const QString& field, Enumeration& target)
    {
        int number = target;
        take(field, number);
        target = static_cast<Enumeration>(number);
    }

    /// The field as it stands, for one that has more than one form; undefined when it is missing.
    QJsonValue takeAny(const QString& field);

    void fail(const QString& field, const QString& what);
    void note(const QString& field, const QString& what);

    /// Notes the fields that nobody took.
    void noteUnknown();

private:
    JsonRecords& m_file;
    int m_record;
    QJsonObject m_left;
};

/// Whether a JSON number is an int, exactly.
bool isInt(const QJsonValue& value);

} // namespace reference
