#include "workbench/WideListCombo.h"

#include <QAbstractItemView>
#include <QFontMetrics>

namespace workbench {

void WideListCombo::showPopup()
{
    const QFontMetrics metrics = fontMetrics();
    int widest = 0;
    for (int i = 0; i < count(); ++i)
        widest = qMax(widest, metrics.horizontalAdvance(itemText(i)));
    // Room for the margins, and for a scroll bar where the list has more entries than it shows.
    view()->setMinimumWidth(widest + 2 * metrics.height());
    QComboBox::showPopup();
}

} // namespace workbench
