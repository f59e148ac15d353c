#pragma once

#include "benchmarks/NativeFields.h"

#include <QLabel>
#include <QScrollArea>

#include <vector>

namespace bench {

/// The order panel as one would write it with Qt's own widgets: a form of labels and fields in a scroll area.
class NativeForm : public QScrollArea
{
    Q_OBJECT
public:
    explicit NativeForm(QWidget* parent);

    void switchTo(const Mode& mode);
    void changeNumber(double value);
    QSet<int> shownRows() const;

private:
    void show(const QSet<int>& shown);

    std::vector<QLabel*> m_labels;
    std::vector<NativeField> m_fields;
};

} // namespace bench
