#pragma once

#include <QStringList>
#include <QtGlobal>

/// The warnings and notes that are written to the log while it lives; they do not reach the test's own log.
class LogLines
{
public:
    LogLines()
    {
        warnings().clear();
        notes().clear();
        m_before = qInstallMessageHandler(take);
    }

    LogLines(const LogLines&) = delete;
    LogLines& operator=(const LogLines&) = delete;

    ~LogLines()
    {
        qInstallMessageHandler(m_before);
    }

    static QStringList& warnings()
    {
        static QStringList lines;
        return lines;
    }

    static QStringList& notes()
    {
        static QStringList lines;
        return lines;
    }

private:
    static void take(QtMsgType type, const QMessageLogContext&, const QString& text)
    {
        (type == QtInfoMsg ? notes() : warnings()).append(text);
    }

    QtMessageHandler m_before = nullptr;
};
