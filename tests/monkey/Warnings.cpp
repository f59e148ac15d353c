#include "monkey/Warnings.h"

namespace monkey {

namespace {

Warnings* theWarnings = nullptr;

/// The offscreen platform has no window manager that could be told of size limits, and says so.
bool isOfThePlatform(const QString& text)
{
    return text.startsWith(QLatin1String("This plugin does not support"));
}

} // namespace

Warnings::Warnings()
{
    theWarnings = this;
    m_before = qInstallMessageHandler(&heard);
}

Warnings::~Warnings()
{
    qInstallMessageHandler(m_before);
    theWarnings = nullptr;
}

int Warnings::count() const
{
    const std::lock_guard<std::mutex> lock(m_lock);
    return m_count;
}

QString Warnings::first() const
{
    const std::lock_guard<std::mutex> lock(m_lock);
    return m_first;
}

void Warnings::heard(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtWarningMsg || type == QtCriticalMsg)
        theWarnings->note(text);
    else if (type == QtFatalMsg)
        theWarnings->m_before(type, context, text);
}

void Warnings::note(const QString& text)
{
    if (isOfThePlatform(text))
        return;
    const std::lock_guard<std::mutex> lock(m_lock);
    if (m_count++ == 0)
        m_first = text;
}

} // namespace monkey
