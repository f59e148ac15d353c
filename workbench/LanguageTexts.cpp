#include "workbench/LanguageTexts.h"

#include <QEvent>
#include <QWidget>

namespace workbench {

LanguageTexts::LanguageTexts(QWidget* owner)
    : QObject(owner)
{
    owner->installEventFilter(this);
}

void LanguageTexts::keep(std::function<void()> setText)
{
    setText();
    m_setters.push_back(std::move(setText));
}

bool LanguageTexts::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        for (const auto& setText : m_setters)
            setText();
    return QObject::eventFilter(watched, event);
}

} // namespace workbench
