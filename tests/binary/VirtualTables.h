#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

/// The virtual tables of a class: one list of slots for its first base and one for each further base.
using VirtualTables = QVector<QStringList>;

/// One slot as text: the operation, with the class that implements it where that is one of the library's own
/// ("TC::..."); destructors read "~". Toolkits may implement their operations where they like.
QString slotText(const QString& implementer, const QString& operation);

/// What stands in a slot that has no implementation.
QString pureSlot();

/// Reads virtual tables and bases out of a shared library, as a host's machine code sees them.
class VirtualTableReader
{
public:
    explicit VirtualTableReader(const QString& libraryPath);

    /// Why the library could not be opened; empty when it was.
    QString error() const;

    /// The tables of an exported class; none when the library exports no class of that name.
    VirtualTables tablesOf(const QString& className) const;

    /// The direct bases of an exported class, in order.
    QStringList basesOf(const QString& className) const;

private:
    const void* symbol(const char* prefix, const QString& className) const;

    void* m_library = nullptr;
    QString m_error;
    QHash<quintptr, QByteArray> m_words; ///< by address: the symbol that stands there
};
