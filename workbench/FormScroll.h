#pragma once

#include <QScrollArea>

namespace workbench {

/// Scrolls its form up and down only: it is never narrower than the form needs, at any scale or language.
class FormScroll : public QScrollArea
{
public:
    explicit FormScroll(QWidget* form);

    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace workbench
