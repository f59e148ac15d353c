#include "workbench/CommandLine.h"

#include "workbench/Language.h"
#include "workbench/Vocabulary.h"

#include "reference/toolkit/Resources.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>

namespace workbench {

namespace {

constexpr double kSmallestScale = 1.0;
constexpr double kLargestScale = 3.0;

struct Options
{
    QCommandLineOption tour{
        QStringLiteral("tour"),
        translated(QT_TRANSLATE_NOOP("workbench", "Write a picture of each panel and dialog into <dir> and end.")),
        QStringLiteral("dir")};
    QCommandLineOption scale{QStringLiteral("scale"),
                             translated(QT_TRANSLATE_NOOP("workbench", "UI scale, 1.0 to 3.0.")),
                             QStringLiteral("factor")};
    QCommandLineOption theme{QStringLiteral("theme"), translated(QT_TRANSLATE_NOOP("workbench", "Theme by name.")),
                             QStringLiteral("name")};
    QCommandLineOption language{QStringLiteral("language"), translated(QT_TRANSLATE_NOOP("workbench", "en or zh_CN.")),
                                QStringLiteral("locale")};
    QCommandLineOption data{QStringLiteral("data"),
                            translated(QT_TRANSLATE_NOOP("workbench", "Folder of accounts, tasks and configuration.")),
                            QStringLiteral("dir")};
    QCommandLineOption watchdog{
        QStringLiteral("watchdog"),
        translated(QT_TRANSLATE_NOOP("workbench", "Say when the event loop is held for more than <ms>.")),
        QStringLiteral("ms")};
    QCommandLineOption measureStart{
        QStringLiteral("measure-start"),
        translated(QT_TRANSLATE_NOOP("workbench", "Say after how many milliseconds the window is usable, and end."))};
};

void checkWatchdog(const QString& text, CommandLine& line)
{
    bool isNumber = false;
    const int limit = text.toInt(&isNumber);
    if (isNumber && limit >= 1)
        line.watchdog = limit;
    else
        line.error = translated(QT_TRANSLATE_NOOP("workbench", "--watchdog takes milliseconds, not \"%1\".")).arg(text);
}

void checkScale(const QString& text, CommandLine& line)
{
    bool isNumber = false;
    const double scale = text.toDouble(&isNumber);
    if (isNumber && scale >= kSmallestScale && scale <= kLargestScale)
        line.scale = scale;
    else
        line.error =
            translated(QT_TRANSLATE_NOOP("workbench", "--scale takes a number from 1.0 to 3.0, not \"%1\".")).arg(text);
}

void checkName(const QString& option, const QString& name, const QStringList& names, CommandLine& line)
{
    if (!names.contains(name))
        line.error = translated(QT_TRANSLATE_NOOP("workbench", "%1 takes one of %2, not \"%3\"."))
                         .arg(option, names.join(QStringLiteral(", ")), name);
}

} // namespace

CommandLine readCommandLine(const QCoreApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(translated(
        QT_TRANSLATE_NOOP("workbench", "Shows every order-parameter table and dialog, and the events they send.")));
    parser.addHelpOption();
    parser.addVersionOption();
    const Options options;
    parser.addOptions({options.tour, options.scale, options.theme, options.language, options.data, options.watchdog,
                       options.measureStart});
    parser.process(application);

    CommandLine line;
    line.dataDirectory = parser.value(options.data);
    line.tourDirectory = parser.value(options.tour);
    line.theme = parser.value(options.theme);
    line.language = parser.value(options.language);
    line.measureStart = parser.isSet(options.measureStart);
    if (parser.isSet(options.watchdog))
        checkWatchdog(parser.value(options.watchdog), line);
    if (parser.isSet(options.scale))
        checkScale(parser.value(options.scale), line);
    if (parser.isSet(options.theme))
        checkName(QStringLiteral("--theme"), line.theme, WQ::resources::themes(), line);
    if (parser.isSet(options.language))
        checkName(QStringLiteral("--language"), line.language, languages(), line);
    if (!parser.positionalArguments().isEmpty())
        line.error = translated(QT_TRANSLATE_NOOP("workbench", "Unexpected argument \"%1\"."))
                         .arg(parser.positionalArguments().first());
    if (parser.isSet(options.tour) && line.tourDirectory.isEmpty())
        line.error = translated(QT_TRANSLATE_NOOP("workbench", "--tour takes a folder."));
    return line;
}

bool needsNoDisplay(const QStringList& arguments)
{
    static const QStringList kQuiet{QStringLiteral("--tour"),     QStringLiteral("--help"),    QStringLiteral("-h"),
                                    QStringLiteral("--help-all"), QStringLiteral("--version"), QStringLiteral("-v")};
    return std::any_of(arguments.begin(), arguments.end(), [](const QString& argument) {
        return kQuiet.contains(argument.section(QLatin1Char('='), 0, 0));
    });
}

} // namespace workbench
