#pragma once

#include <WQ/Formatting.h>
#include <WQ/ToolkitTypes.h>

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTime>
#include <QVariant>
#include <QVector>

#include <string>

class QWidget;

/// What the library asks of its platform, one readable line a call, in the order of the calls:
///
///     table.addParamCell(0x4, "超价启用笔数", 2, 1.0, 1000000.0, 0.0, "笔", 1.0, 4)
///     modules.isOn("mdl_order", "mdl_order_algorithm3")
///     deliver(129, 5, 0, "", null)
///
/// A double always has a point, an int never; a QVariant is written as what it holds, an invalid one as none.
namespace recorder {

enum Kind : int {
    Ask = 1,        ///< reads something of the toolkit
    Do = 2,         ///< changes something of the toolkit
    Show = 4,       ///< changes something that every Qt widget has
    Place = 8,      ///< moves or resizes a widget
    Send = 16,      ///< delivers an event
    Hook = 32,      ///< calls a virtual operation of a derived table; noted by the tests' tables
    Service = 64,   ///< asks a client service
    Resource = 128, ///< asks for a size, a colour or the scale
    Format = 256,   ///< formats or converts
};

/// What changes something, and what changes nothing.
constexpr int kActs = Do | Show | Send | Hook;
constexpr int kEverything = kActs | Ask | Place | Service | Resource | Format;

/// A cell's ID: hexadecimal in the base table, decimal for the rows of the credit table.
struct Id
{
    int value;
};

QString written(bool value);
QString written(int value);
QString written(double value);
QString written(const char* value);
QString written(const QString& value);
QString written(const std::string& value);
QString written(const QStringList& values);
QString written(const QVariant& value);
QString written(const QVector<QVariant>& values);
QString written(const QTime& value);
QString written(Qt::Alignment value);
QString written(const WQ::CButtonColor& value);
QString written(const QList<WQ::CParamCellUnitInfo>& units);
QString written(const QSet<int>& ids);
QString written(Id id);

/// A widget by the name under which it is watched, else by its class.
QString written(const QWidget* widget);

void recordLine(Kind kind, const QString& line);

template <class... Arguments>
void record(Kind kind, const QString& name, const Arguments&... arguments)
{
    const QStringList texts{written(arguments)...};
    recordLine(kind, name + QLatin1Char('(') + texts.join(QLatin1String(", ")) + QLatin1Char(')'));
}

/// The lines of those kinds since the last clear().
QStringList calls(int kinds = kActs);

/// The lines of those kinds that start with one of @p names; a name stands before the parenthesis.
QStringList callsOf(const QStringList& names, int kinds = kEverything);

/// Forgets the lines.
void clear();

} // namespace recorder
