#pragma once

#include <QString>
#include <QVariant>

namespace WQ {

/// Where a widget stands in a strip or button group.
enum EWidgetAnchor : int {
    AnchorStart = 0, ///< at the start of the strip, at its own size
    AnchorFill = 3,  ///< takes the room that the others leave
};

/// How a button shows that it is down.
enum EPushButtonDownStyle : int {
    DownStylePlain = 0,     ///< no mark
    DownStyleUnderline = 1, ///< a line under the checked button
};

/// Where an icon stands in its button.
enum EIconAlign : int {
    IconAlignCenter = 0, ///< in the middle of the button
    IconAlignLeft = 1,   ///< before the text
    IconAlignRight = 2,  ///< after the text
};

/// What a time-period cell holds.
enum EWqTimeRangeType : int {
    TimeRangeDuration = 0, ///< a length of time from now on
    TimeRangeClock = 1,    ///< from one time of day to another
};

/// One selectable unit of a unit cell, with the limits that hold while it is chosen.
struct CParamCellUnitInfo
{
    QString text;  ///< the unit as shown; it also names the unit in calls
    int type = 0;  ///< value type as a Qt meta-type number: 2 int, 6 double
    QVariant min;  ///< smallest value, in this unit
    QVariant max;  ///< largest value, in this unit
    QVariant step; ///< step of the value; invalid when none was given
};

/// The four colour keys of a push button.
struct CButtonColor
{
    QString normal;   ///< background at rest
    QString hover;    ///< background under the mouse
    QString checked;  ///< background while checked
    QString disabled; ///< background while disabled
};

} // namespace WQ
