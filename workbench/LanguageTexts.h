#pragma once

#include <QObject>

#include <functional>
#include <vector>

class QWidget;

namespace workbench {

/// The texts of a widget: each is set at once and again whenever the language of the program changes.
class LanguageTexts : public QObject
{
    Q_OBJECT
public:
    explicit LanguageTexts(QWidget* owner);

    void keep(std::function<void()> setText);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::vector<std::function<void()>> m_setters;
};

} // namespace workbench
