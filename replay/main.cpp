#include "replay/CommandLine.h"

#include <QApplication>
#include <QTextStream>

#include <algorithm>

namespace {

/// What Qt says of its surroundings and nobody without a screen needs to know: that the offscreen platform cannot raise
/// or limit windows, that there is no folder for sockets.
constexpr const char* kUnneeded[] = {"This plugin does not support", "QStandardPaths: XDG_RUNTIME_DIR"};

void reportMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const bool isUnneeded = std::any_of(std::begin(kUnneeded), std::end(kUnneeded), [&message](const char* beginning) {
        return message.startsWith(QLatin1String(beginning));
    });
    if (!isUnneeded)
        QTextStream(stderr) << qFormatLogMessage(type, context, message) << '\n';
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(reportMessage);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("orderparam-replay"));
    QApplication::setApplicationVersion(QStringLiteral(ORDERPARAM_VERSION));
    return replay::runCommandLine(QApplication::arguments());
}
