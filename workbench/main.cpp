#include "workbench/Appearance.h"
#include "workbench/CommandLine.h"
#include "workbench/HostData.h"
#include "workbench/Language.h"
#include "workbench/LoopWatch.h"
#include "workbench/MainWindow.h"
#include "workbench/RuntimeDirectory.h"
#include "workbench/Snapshot.h"
#include "workbench/Tour.h"

#include "reference/toolkit/Resources.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTextStream>
#include <QTimer>

#include <csignal>
#include <cstdio>
#include <ctime>
#include <optional>

namespace {

/// Chooses Qt's platform before the application is made; false when there is no display and one is needed.
bool choosePlatform(const QStringList& arguments)
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return true;
    const bool hasDisplay = !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (!workbench::needsNoDisplay(arguments))
        return hasDisplay;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return true;
}

/// The offscreen platform says so for each window that it cannot raise or limit, which nobody who renders pictures
/// needs to know.
void dropOffscreenNotes(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        QTextStream(stderr) << qFormatLogMessage(type, context, message) << '\n';
}

int fail(const QString& message)
{
    QTextStream(stderr) << "orderparam-workbench: " << message << '\n';
    return EXIT_FAILURE;
}

int tour(const workbench::CommandLine& line)
{
    qputenv("TZ", "Asia/Shanghai");
    tzset();
    workbench::TourRequest request;
    request.directory = line.tourDirectory;
    request.scales = line.scale ? std::vector<double>{*line.scale} : std::vector<double>{1.0, 2.0};
    request.themes =
        line.theme.isEmpty() ? QStringList{QStringLiteral("dark"), QStringLiteral("light")} : QStringList{line.theme};
    if (!line.language.isEmpty())
        request.language = line.language;
    request.data = workbench::loadHostData(line.dataDirectory);
    const workbench::TourResult result = workbench::writeTour(request);
    QTextStream out(stdout);
    for (const QString& file : result.files)
        out << file << '\n';
    return result.error.isEmpty() ? EXIT_SUCCESS : fail(result.error);
}

/// Usable: painted, and everything that was posted until then carried out.
void sayStartAndEnd(const QElapsedTimer& sinceStart)
{
    QTimer::singleShot(0, qApp, [sinceStart] {
        QTextStream(stdout) << "usable after " << sinceStart.elapsed() << " ms\n";
        QApplication::quit();
    });
}

int work(const workbench::CommandLine& line, const QElapsedTimer& sinceStart)
{
    const workbench::SavedLook saved = workbench::savedLook();
    if (line.language.isEmpty() && !saved.language.isEmpty())
        workbench::setLanguage(saved.language);
    const QString theme = line.theme.isEmpty() ? saved.theme : line.theme;
    if (WQ::resources::themes().contains(theme))
        workbench::setTheme(theme);
    workbench::setScale(line.scale.value_or(saved.scale));
    workbench::MainWindow window(workbench::loadHostData(line.dataDirectory));
    window.loadState(line.dataDirectory.isEmpty() ? workbench::MainWindow::Services::Kept
                                                  : workbench::MainWindow::Services::AsTold);
    window.show();
    workbench::settle();
    if (line.measureStart)
        sayStartAndEnd(sinceStart);
    std::optional<workbench::LoopWatch> watch;
    if (line.watchdog) {
        watch.emplace(*line.watchdog);
        watch->start();
    }
    const int code = QApplication::exec();
    if (watch)
        watch->report();
    return code;
}

} // namespace

int main(int argc, char** argv)
{
    QElapsedTimer sinceStart;
    sinceStart.start();
    // Beyond a limit on the size of files a write is answered as on a full disk, and does not end the program.
    std::signal(SIGXFSZ, SIG_IGN);
    workbench::ensureRuntimeDirectory();
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    if (!choosePlatform(arguments))
        return fail(QStringLiteral("no display; --tour DIR writes pictures instead"));
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        qInstallMessageHandler(dropOffscreenNotes);
    QApplication::setApplicationName(QStringLiteral("orderparam-workbench"));
    QApplication::setApplicationVersion(QStringLiteral(ORDERPARAM_VERSION));

    workbench::setLanguage(workbench::systemLanguage());
    const workbench::CommandLine line = workbench::readCommandLine(application);
    if (!line.error.isEmpty())
        return fail(line.error);
    if (!line.language.isEmpty())
        workbench::setLanguage(line.language);
    workbench::dressApplication();
    return line.tourDirectory.isEmpty() ? work(line, sinceStart) : tour(line);
}
