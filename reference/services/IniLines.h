#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

namespace reference {

/// A look at the lines of an INI file before QSettings reads it: QSettings passes over much that it cannot read, knows
/// no lines, and takes neither "#" comments nor a byte order mark.
class IniLines
{
public:
    explicit IniLines(const QByteArray& bytes);

    /// What is wrong with the first bad line, empty when all are good, and that line, from 1.
    QString problem() const
    {
        return m_problem;
    }

    int problemLine() const
    {
        return m_problemLine;
    }

    /// The lines that say something.
    QByteArray content() const
    {
        return m_content;
    }

    /// The keys as "section/key", in their order.
    QStringList keys() const
    {
        return m_keys;
    }

    /// The line of "section/key"; 0 when there is none.
    int lineOf(const QString& key) const
    {
        return m_lines.value(key);
    }

private:
    void takeLine(const QByteArray& text, int line);
    QString takeSection(const QByteArray& text);
    QString takeEntry(const QByteArray& text, int line);
    QString takeValue(const QByteArray& text, int begin);

    QByteArray m_content;
    QStringList m_keys;
    QHash<QString, int> m_lines;
    QString m_section;
    QString m_problem;
    int m_problemLine = 0;
    bool m_isContinued = false;
    bool m_isQuoteOpen = false;
};

} // namespace reference
