#pragma once

#include <WQ/CEventWidgetT.h>

#include <QStringList>
#include <QWidget>

#include <functional>

/// A host that writes down the toolkit events that reach it, one line each: event, a, b, text.
class Listener : public WQ::CEventWidgetT<QWidget>
{
public:
    using WQ::CEventWidgetT<QWidget>::CEventWidgetT;

    bool handleEvent(int event, int a, int b, QString text, void*) override
    {
        heard.append(QStringLiteral("%1 %2 %3 ").arg(event).arg(a).arg(b) + text);
        if (then)
            then();
        return true;
    }

    QStringList heard;
    std::function<void()> then;
};
