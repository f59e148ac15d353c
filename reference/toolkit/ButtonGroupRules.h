#pragma once

#include <WQ/WqExport.h>

#include <QString>
#include <QVector>

/// Which buttons of a group stand where: rules without widgets.
namespace WQ {

/// The positions, in order, of the items that stand in a strip of @p room pixels with @p gap between neighbours: those
/// of @p first as far as they fit, the foremost first, then the others in order until one does not fit.
WQ_EXPORT QVector<int> itemsThatFit(const QVector<int>& extents, const QVector<int>& first, int room, int gap);

/// What items of these extents take side by side.
WQ_EXPORT int stripLength(const QVector<int>& extents, int gap);

/// The numbers in a text of pieces joined by commas, each once; pieces that are no numbers are left out.
WQ_EXPORT QVector<int> numbersOf(const QString& text);

/// @p ids with those of @p listed in front, in the order in which they are listed.
WQ_EXPORT QVector<int> orderedAs(const QVector<int>& listed, const QVector<int>& ids);

} // namespace WQ
