#include "reference/services/ConfigurationFile.h"

#include "reference/services/FileReport.h"
#include "reference/services/IniLines.h"

#include <QDir>
#include <QSettings>
#include <QTemporaryFile>

namespace reference {

namespace {

const QString kModeKey = QStringLiteral("client/mode");
const QString kModulesKey = QStringLiteral("modules/on");

QString takeMode(const QSettings& settings, int& mode)
{
    if (!settings.contains(kModeKey))
        return {};
    bool isNumber = false;
    mode = settings.value(kModeKey).toString().trimmed().toInt(&isNumber);
    return isNumber ? QString() : QStringLiteral("the client mode is not a whole number of 32 bits");
}

QString takeModules(const QSettings& settings, std::set<std::string>& modules)
{
    const QStringList names = settings.value(kModulesKey).toStringList();
    for (const QString& entry : names) {
        const QString name = entry.trimmed();
        const int slash = name.indexOf(QLatin1Char('/'));
        if (name.isEmpty())
            continue;
        if (slash <= 0 || slash == name.size() - 1 || name.indexOf(QLatin1Char('/'), slash + 1) >= 0)
            return QStringLiteral("%1 is not a module of the form group/module").arg(quoted(name));
        modules.insert(name.toStdString());
    }
    return {};
}

LoadReport take(const QString& path, const QSettings& settings, const IniLines& lines, Configuration& configuration)
{
    LoadReport report;
    Configuration read;
    const QString modeProblem = takeMode(settings, read.clientMode);
    const QString modulesProblem = takeModules(settings, read.modules);
    const QStringList keys = lines.keys();
    if (!modeProblem.isEmpty())
        report.error = placed(path, lines.lineOf(kModeKey), modeProblem);
    else if (!modulesProblem.isEmpty())
        report.error = placed(path, lines.lineOf(kModulesKey), modulesProblem);
    else if (settings.status() != QSettings::NoError)
        report.error = placed(path, 0, QStringLiteral("not an INI file"));
    for (const QString& key : keys) {
        if (key != kModeKey && key != kModulesKey)
            report.notes.append(
                placed(path, lines.lineOf(key), QStringLiteral("unknown key %1 is ignored").arg(quoted(key))));
    }
    if (report.isGood())
        configuration = read;
    return report;
}

} // namespace

LoadReport readConfiguration(const QString& path, const QByteArray& bytes, Configuration& configuration)
{
    LoadReport report;
    const IniLines lines(bytes);
    if (!lines.problem().isEmpty()) {
        report.error = placed(path, lines.problemLine(), lines.problem());
        return report;
    }
    // QSettings keeps files it has read and tells changed ones by size and time alone; two quick changes of equal
    // length would be one to it. It gets a copy of what was checked, under a name of its own.
    QTemporaryFile copy(QDir::temp().filePath(QStringLiteral("orderparam-XXXXXX.ini")));
    const QByteArray content = lines.content();
    if (!copy.open() || copy.write(content) != content.size() || !copy.flush()) {
        report.error =
            placed(path, 0, QStringLiteral("cannot be copied to %1: %2").arg(QDir::tempPath(), copy.errorString()));
        return report;
    }
    QSettings settings(copy.fileName(), QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    return take(path, settings, lines, configuration);
}

} // namespace reference
