#pragma once

#include <QString>

#include <mutex>

namespace monkey {

/// Hears every message of Qt and keeps the first warning, as long as it lives. One at a time.
class Warnings
{
public:
    Warnings();
    ~Warnings();
    Warnings(const Warnings&) = delete;
    Warnings& operator=(const Warnings&) = delete;

    int count() const;
    QString first() const;

private:
    static void heard(QtMsgType type, const QMessageLogContext& context, const QString& text);
    void note(const QString& text);

    mutable std::mutex m_lock; // Qt may warn from any thread
    QtMessageHandler m_before;
    QString m_first;
    int m_count = 0;
};

} // namespace monkey
