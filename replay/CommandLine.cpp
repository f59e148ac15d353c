#include "replay/CommandLine.h"

#include "replay/Catalogue.h"
#include "replay/Script.h"
#include "replay/Session.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <fstream>
#include <iostream>
#include <stdexcept>

namespace replay {

namespace {

enum ExitStatus {
    AllOk = 0,
    NotOk = 1,
    Unreadable = 2,
};

/// What cannot be read or is asked for wrongly.
class Refusal : public std::runtime_error
{
public:
    explicit Refusal(const QString& message)
        : std::runtime_error(message.toStdString())
    {
    }
};

struct Options
{
    QCommandLineParser parser;
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("This text.")};
    QCommandLineOption version{{QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("The version.")};
    QCommandLineOption expect{QStringLiteral("expect"),
                              QStringLiteral("Compares the answers with FILE and prints the differences."),
                              QStringLiteral("FILE")};
    QCommandLineOption catalogue{
        QStringLiteral("catalogue"),
        QStringLiteral("Prints what tables offer straight after construction: md, csv or json."),
        QStringLiteral("FORM")};
    QCommandLineOption id{QStringLiteral("id"), QStringLiteral("Catalogue: this identity only."), QStringLiteral("N")};
    QCommandLineOption broker{QStringLiteral("broker"), QStringLiteral("Catalogue: this broker type only."),
                              QStringLiteral("N")};
    QCommandLineOption trader{QStringLiteral("trader"), QStringLiteral("Catalogue: this trader type only."),
                              QStringLiteral("N")};
    QCommandLineOption modules{QStringLiteral("modules"),
                               QStringLiteral("Catalogue: the feature modules that are on, group/module,..."),
                               QStringLiteral("LIST")};

    Options()
    {
        parser.setApplicationDescription(
            QStringLiteral("Drives order-parameter tables from scripts of JSON lines and prints an answer a command.\n"
                           "Exit status: 0 all ok, 1 not, 2 a script could not be read or the arguments are wrong."));
        parser.addPositionalArgument(QStringLiteral("SCRIPT"),
                                     QStringLiteral("Scripts to run; standard input without."),
                                     QStringLiteral("[SCRIPT...]"));
        parser.addOptions({help, version, expect, catalogue, id, broker, trader, modules});
    }
};

std::ifstream openScript(const QString& path)
{
    std::ifstream stream(QFile::encodeName(path).toStdString(), std::ios::binary);
    if (!stream || QFileInfo(path).isDir())
        throw Refusal(QStringLiteral("cannot read %1").arg(path));
    return stream;
}

std::optional<int> number(const QCommandLineParser& parser, const QCommandLineOption& option)
{
    if (!parser.isSet(option))
        return {};
    bool isNumber = false;
    const int value = parser.value(option).toInt(&isNumber);
    if (!isNumber)
        throw Refusal(QStringLiteral("--%1 takes a number").arg(option.names().constFirst()));
    return value;
}

CatalogueForm formOf(const QString& name)
{
    if (name == QLatin1String("md"))
        return CatalogueForm::Markdown;
    if (name == QLatin1String("csv"))
        return CatalogueForm::Csv;
    if (name == QLatin1String("json"))
        return CatalogueForm::Json;
    throw Refusal(QStringLiteral("--catalogue takes md, csv or json"));
}

int printCatalogue(const Options& options)
{
    CatalogueRequest request;
    request.form = formOf(options.parser.value(options.catalogue));
    request.id = number(options.parser, options.id);
    request.broker = number(options.parser, options.broker);
    request.trader = number(options.parser, options.trader);
    request.modules = options.parser.value(options.modules).split(QLatin1Char(','), Qt::SkipEmptyParts);
    Session session; // nothing of a configuration on this machine counts
    std::cout << catalogue(request).toStdString() << std::flush;
    return AllOk;
}

int compare(const Options& options)
{
    const QStringList scripts = options.parser.positionalArguments();
    if (scripts.size() != 1)
        throw Refusal(QStringLiteral("--expect takes one script"));
    std::ifstream expected = openScript(options.parser.value(options.expect));
    std::ifstream script = openScript(scripts.constFirst());
    Session session;
    return compareScript(session, script, expected, std::cout) ? AllOk : NotOk;
}

/// The scripts are parts of one run: what one has made is there for the next.
int run(const QStringList& paths)
{
    Session session;
    if (paths.isEmpty())
        return runScript(session, std::cin, std::cout) ? AllOk : NotOk;
    std::vector<std::ifstream> scripts;
    for (const QString& path : paths)
        scripts.push_back(openScript(path));
    bool isOk = true;
    for (std::ifstream& script : scripts)
        isOk = runScript(session, script, std::cout) && isOk;
    return isOk ? AllOk : NotOk;
}

int carryOut(const QStringList& arguments)
{
    Options options;
    if (!options.parser.parse(arguments))
        throw Refusal(options.parser.errorText());
    if (options.parser.isSet(options.help)) {
        std::cout << options.parser.helpText().toStdString();
        return AllOk;
    }
    if (options.parser.isSet(options.version)) {
        std::cout << "orderparam-replay " << QCoreApplication::applicationVersion().toStdString() << '\n';
        return AllOk;
    }
    if (options.parser.isSet(options.catalogue))
        return printCatalogue(options);
    return options.parser.isSet(options.expect) ? compare(options) : run(options.parser.positionalArguments());
}

} // namespace

int runCommandLine(const QStringList& arguments)
{
    try {
        return carryOut(arguments);
    } catch (const std::exception& refusal) {
        std::cerr << "orderparam-replay: " << refusal.what() << '\n';
        return Unreadable;
    }
}

} // namespace replay
