#include "reference/toolkit/Resources.h"

#include "reference/toolkit/ChangeHandlers.h"
#include "reference/toolkit/GuiThread.h"
#include "reference/toolkit/ThemeStore.h"

#include <algorithm>
#include <cmath>

namespace WQ::resources {

namespace {

constexpr double kSmallestScale = 1.0;
constexpr double kLargestScale = 3.0;
constexpr double kLargestSize = 1 << 20;

double g_scale = kSmallestScale;

double boundedScale(double scale)
{
    return std::isnan(scale) ? kSmallestScale : std::clamp(scale, kSmallestScale, kLargestScale);
}

} // namespace

int scaled(double size, double scale)
{
    if (!(size > 0))
        return 0;
    return std::max(1, qRound(std::min(size, kLargestSize) * boundedScale(scale)));
}

int size(const QString& key, double scale)
{
    return scaled(ThemeStore::instance().size(key), scale);
}

const QColor& color(const QString& key)
{
    return ThemeStore::instance().color(key);
}

double scale()
{
    return g_scale;
}

void setScale(double scale)
{
    checkGuiThread("resources::setScale");
    if (std::isnan(scale) || qFuzzyCompare(boundedScale(scale), g_scale))
        return;
    g_scale = boundedScale(scale);
    handlers::announceScale();
}

QStringList themes()
{
    return ThemeStore::instance().themes();
}

QString theme()
{
    return ThemeStore::instance().theme();
}

bool setTheme(const QString& name)
{
    checkGuiThread("resources::setTheme");
    ThemeStore& store = ThemeStore::instance();
    if (name == store.theme())
        return !name.isEmpty();
    if (!store.setTheme(name))
        return false;
    handlers::announceTheme();
    return true;
}

void addThemeFolder(const QString& folder)
{
    ThemeStore::instance().addFolder(folder);
}

} // namespace WQ::resources
