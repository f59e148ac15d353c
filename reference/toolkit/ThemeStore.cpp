#include "reference/toolkit/ThemeStore.h"

#include <QDir>
#include <QFile>

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
    const QString fileName = fileOf(kMetricsName);
    QString error;
    if (const auto metrics = readThemeMetrics(contents(fileName), error))
        m_metrics = *metrics;
    else
        reportOnce(fileName + QLatin1Char(':') + error);
    setTheme(kDefaultTheme);
}

// Bounded, so that a host which makes keys up does not fill the memory with them.
void ThemeStore::reportOnce(const QString& what)
{
    if (m_reported.size() >= kReportsKept || m_reported.contains(what))
        return;
    m_reported.insert(what);
    qWarning("theme: %s", qUtf8Printable(what));
}

void ThemeStore::reportUnknown(const char* kind, const QString& key)
{
    reportOnce(QStringLiteral("unknown %1 key \"%2\"").arg(QLatin1String(kind), key.left(80)));
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
        const QStringList files = QDir(folder).entryList({QStringLiteral("*.json")}, QDir::Files);
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
        if (QFile::exists(fileName))
            return fileName;
    }
    return {};
}

QByteArray ThemeStore::contents(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.read(kLargestFile);
}

// A theme that left a colour out would show that of the theme before it.
bool ThemeStore::isComplete(const ThemeColors& colors, const QString& fileName)
{
    for (const auto& entry : m_colors) {
        if (colors.contains(entry.first))
            continue;
        reportOnce(QStringLiteral("%1:%2: lacks \"%3\"")
                       .arg(fileName)
                       .arg(lineOfKey(contents(fileName), QStringLiteral("colors")))
                       .arg(entry.first));
        return false;
    }
    return true;
}

bool ThemeStore::setTheme(const QString& name)
{
    const bool isName = themes().contains(name);
    const QString fileName = isName ? fileOf(name) : QString();
    if (fileName.isEmpty())
        return false;
    QString error;
    const auto colors = readThemeColors(contents(fileName), error);
    if (!colors)
        reportOnce(fileName + QLatin1Char(':') + error);
    if (!colors || !isComplete(*colors, fileName))
        return false;
    for (auto entry = colors->constBegin(); entry != colors->constEnd(); ++entry)
        m_colors[entry.key()] = entry.value();
    m_theme = name;
    return true;
}

} // namespace WQ
