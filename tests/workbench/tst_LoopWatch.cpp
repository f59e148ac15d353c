#include "workbench/LoopWatch.h"

#include <QElapsedTimer>
#include <QtTest>

#include <cstdio>
#include <unistd.h>

namespace {

/// What is written to stderr while it lives.
class ErrorOutput
{
public:
    ErrorOutput()
        : m_kept(dup(STDERR_FILENO))
    {
        m_file.open();
        dup2(m_file.handle(), STDERR_FILENO);
    }

    ~ErrorOutput()
    {
        dup2(m_kept, STDERR_FILENO);
        close(m_kept);
    }

    QString text()
    {
        std::fflush(stderr);
        m_file.seek(0);
        return QString::fromUtf8(m_file.readAll());
    }

private:
    QTemporaryFile m_file;
    int m_kept;
};

void holdLoop(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) { }
}

} // namespace

class tst_LoopWatch : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aHeldLoopIsTold();
    void aLoopThatIsNotHeldIsCounted();
};

void tst_LoopWatch::aHeldLoopIsTold()
{
    ErrorOutput output;
    workbench::LoopWatch watch(100);
    watch.start();
    holdLoop(300);
    QTRY_VERIFY(output.text().contains(QStringLiteral("watchdog: the event loop was held for ")));
    watch.report();
    QVERIFY2(output.text().contains(QStringLiteral("watchdog: held 1 times for more than 100 ms")),
             qPrintable(output.text()));
}

void tst_LoopWatch::aLoopThatIsNotHeldIsCounted()
{
    ErrorOutput output;
    workbench::LoopWatch watch(60000);
    watch.start();
    QCoreApplication::processEvents();
    watch.report();
    QVERIFY2(output.text().startsWith(QStringLiteral("watchdog: held 0 times for more than 60000 ms")),
             qPrintable(output.text()));
}

QTEST_GUILESS_MAIN(tst_LoopWatch)
#include "tst_LoopWatch.moc"
