#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

namespace WQ {
class CMultiParamsTable;
}

namespace support {

/// A whole cell as one line, so that a failure prints two rows. Limits and steps come with each unit, "*" marks what is
/// chosen, a step of 0 is no step:
///
///     0x10 combo 单笔基准量: *卖①量=4 买①量=5
///     0x4 number 超价启用笔数: 1 in *笔 (int 1..1000000)
///     0x8 check 波动区间: [ ] 单向 3 in *% (double 0..100 step 0.01) 元 (double 0..1000000)
///     0x800000 range 单笔量区间: 1 - 1000000 in *股 (int 1..1000000 step 1)
///     0x800 period 有效时间: 09:30:00-15:00:00
///     0x4000000 line 投资备注: ""
///
/// A hidden cell ends in " hidden".
QString cellRow(WQ::CMultiParamsTable& table, int id);

/// The rows of all cells, in the order in which they stand.
QStringList cellRows(WQ::CMultiParamsTable& table);

/// A combo's entries alone, "text=value" in order, "*" before the chosen one; "none" for a missing cell.
QString comboEntries(WQ::CMultiParamsTable& table, int id);

/// The IDs of the cells that have a row on the screen, and of those that are not marked hidden.
QSet<int> shownCells(WQ::CMultiParamsTable& table);
bool isHidden(WQ::CMultiParamsTable& table, int id);

/// What the user's filter may offer, and what is kept out of it.
QSet<int> allItems(WQ::CMultiParamsTable& table);
QSet<int> filterBlacklist(WQ::CMultiParamsTable& table);

/// "0x1 0x2 0x800", ascending.
QString idText(const QSet<int>& ids);

} // namespace support
