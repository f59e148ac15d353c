#pragma once

#include <QScrollArea>
#include <QSet>
#include <QStringList>

namespace bench {

/// The order panel as one would write it with Qt's own widgets: a form of labels and fields in a scroll area, a combo,
/// spin box, time edit or line edit for each cell of the stock table, with the same labels, entries, ranges and values.
class NativeForm : public QScrollArea
{
    Q_OBJECT
public:
    /// Builds all rows and hides those whose cell IDs are not in @p shown.
    explicit NativeForm(const QSet<int>& shown, QWidget* parent = nullptr);

    /// The rows as "0x2 单笔超价", in order.
    static QStringList rowNames();
};

} // namespace bench
