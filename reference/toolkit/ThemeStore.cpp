#include "reference/toolkit/ThemeStore.h"

#include "reference/services/FileReport.h"

#include <QDir>
#include <QFileInfo>

namespace WQ {

namespace {

constexpr double kUnknownSize = 24;
constexpr int kReportsKept = 500;
constexpr qint64 kLargestFile = 1 << 20;

const QColor kUnknownColor(0xff, 0x00, 0xff);
const QLatin1String kCompiledFolder(":/orderparam/themes");
const QLatin1String kMetricsName("metrics");
const QLatin1String kDefaultTheme("dark");

} // namespace

ThemeStore& ThemeStore::instance()
{
    static ThemeStore* const store = new ThemeStore;
    return *store;
}

ThemeStore::ThemeStore()
    : m_folders{kCompiledFolder}
{
    reference::LoadReport report;
    const QString fileName = fileOf(kMetricsName);
    const QByteArray file = reference::readWhole(fileName, report, kLargestFile);
    QString error;
    if (const auto metrics = readThemeMetrics(file, error))
        m_metrics = *metrics;
    else
        report.error = fileName + QLatin1Char(':') + error;
    reference::sayReport(fileName, report);
    setTheme(kDefaultTheme);
}

// Bounded, so that a host which makes keys up does not fill the memory with them.
void ThemeStore::reportUnknown(const char* kind, const QString& key)
{
    const QString what = QStringLiteral("unknown %1 key %2").arg(QLatin1String(kind), reference::quoted(key));
    if (m_reported.size() >= kReportsKept || m_reported.contains(what))
        return;
    m_reported.insert(what);
    qWarning("theme: %s", qUtf8Printable(what));
}

const QColor& ThemeStore::color(const QString& key)
{
    const auto found = m_colors.find(key);
    if (found != m_colors.end())
        return found->second;
    reportUnknown("colour", key);
    return kUnknownColor;
}

double ThemeStore::size(const QString& key)
{
    const auto found = m_metrics.sizes.constFind(key);
    if (found != m_metrics.sizes.constEnd())
        return *found;
    reportUnknown("size", key);
    return kUnknownSize;
}

FontRole ThemeStore::font(const QString& key, bool& known)
{
    const auto found = m_metrics.fonts.constFind(key);
    known = found != m_metrics.fonts.constEnd();
    if (known)
        return *found;
    reportUnknown("font", key);
    return {12, QFont::Normal};
}

QString ThemeStore::imageFile(const QString& key)
{
    const auto found = m_metrics.images.constFind(key);
    if (found != m_metrics.images.constEnd())
        return QStringLiteral(":/orderparam/images/%1.svg").arg(*found);
    reportUnknown("image", key);
    return {};
}

QStringList ThemeStore::themes() const
{
    QStringList names;
    for (const QString& folder : m_folders) {
        const QStringList files = QDir(folder).entryList({QStringLiteral("*.json")}, QDir::Files | QDir::CaseSensitive);
        for (const QString& file : files)
            names.append(file.chopped(5));
    }
    names.removeDuplicates();
    names.removeAll(kMetricsName);
    names.sort();
    return names;
}

void ThemeStore::addFolder(const QString& folder)
{
    if (!folder.isEmpty() && !m_folders.contains(folder))
        m_folders.append(folder);
}

QString ThemeStore::fileOf(const QString& theme) const
{
    for (const QString& folder : m_folders) {
        const QString fileName = QStringLiteral("%1/%2.json").arg(folder, theme);
        if (QFileInfo(fileName).isFile())
            return fileName;
    }
    return {};
}

// A theme that left a colour out would show that of the theme before it; one that added a colour would leave it to the
// themes after it.
void ThemeStore::checkKeys(const QByteArray& file, const QString& fileName, ThemeColors& colors,
                           reference::LoadReport& report) const
{
    const QString section = QStringLiteral("colors");
    QStringList keys = colors.keys();
    keys.sort();
    for (const QString& key : qAsConst(keys)) {
        if (m_colors.count(key) != 0 || m_colors.empty())
            continue;
        colors.remove(key);
        const bool isWorthPlace = report.notes.size() < reference::kMostNotesPlaced;
        report.notes.append(reference::placed(fileName, isWorthPlace ? lineOfKey(file, key, section) : 0,
                                              QStringLiteral("unknown key %1 is ignored").arg(reference::quoted(key))));
    }
    for (const auto& entry : m_colors) {
        if (!colors.contains(entry.first))
            report.error = reference::placed(fileName, lineOfKey(file, section),
                                             QStringLiteral("lacks %1").arg(reference::quoted(entry.first)));
    }
}

std::optional<ThemeColors> ThemeStore::readTheme(const QString& fileName) const
{
    reference::LoadReport report;
    const QByteArray file = reference::readWhole(fileName, report, kLargestFile);
    std::optional<ThemeColors> colors;
    QString error;
    if (report.isGood())
        colors = readThemeColors(file, error);
    if (colors)
        checkKeys(file, fileName, *colors, report);
    else if (report.isGood())
        report.error = fileName + QLatin1Char(':') + error;
    reference::sayReport(fileName, report);
    return report.isGood() ? colors : std::nullopt;
}

bool ThemeStore::setTheme(const QString& name)
{
    const bool isName = themes().contains(name);
    const QString fileName = isName ? fileOf(name) : QString();
    const auto colors = fileName.isEmpty() ? std::nullopt : readTheme(fileName);
    if (!colors)
        return false;
    for (auto entry = colors->constBegin(); entry != colors->constEnd(); ++entry)
        m_colors[entry.key()] = entry.value();
    m_theme = name;
    return true;
}

} // namespace WQ
