#include "reference/toolkit/ButtonGroupRules.h"

#include <QSet>

#include <algorithm>

namespace WQ {

QVector<int> itemsThatFit(const QVector<int>& extents, const QVector<int>& first, int room, int gap)
{
    QVector<int> taken;
    qint64 used = 0;
    const auto take = [&](int item) {
        const qint64 needed = used + extents.at(item) + (taken.isEmpty() ? 0 : gap);
        if (taken.contains(item) || needed > room)
            return taken.contains(item);
        taken.append(item);
        used = needed;
        return true;
    };
    for (int item : first)
        if (item >= 0 && item < extents.size())
            take(item);
    for (int item = 0; item < extents.size() && take(item); ++item) { }
    std::sort(taken.begin(), taken.end());
    return taken;
}

int stripLength(const QVector<int>& extents, int gap)
{
    int length = 0;
    for (int extent : extents)
        length += extent;
    return length + gap * std::max(0, extents.size() - 1);
}

QVector<int> numbersOf(const QString& text)
{
    QVector<int> numbers;
    QSet<int> known;
    for (int start = 0; start <= text.size();) {
        const int comma = text.indexOf(QLatin1Char(','), start);
        const int end = comma < 0 ? text.size() : comma;
        bool isNumber = false;
        const int number = text.midRef(start, end - start).toInt(&isNumber);
        if (isNumber && !known.contains(number)) {
            known.insert(number);
            numbers.append(number);
        }
        start = end + 1;
    }
    return numbers;
}

QVector<int> orderedAs(const QVector<int>& listed, const QVector<int>& ids)
{
    QVector<int> ordered;
    const QSet<int> owned(ids.cbegin(), ids.cend());
    for (int id : listed)
        if (owned.contains(id))
            ordered.append(id);
    const QSet<int> placed(ordered.cbegin(), ordered.cend());
    for (int id : ids)
        if (!placed.contains(id))
            ordered.append(id);
    return ordered;
}

} // namespace WQ
