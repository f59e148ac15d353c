#include "reference/toolkit/Resources.h"

#include "reference/toolkit/ThemeStore.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QHash>
#include <QPair>

#include <algorithm>

namespace WQ::resources {

namespace {

bool isSans(const QString& family)
{
    const auto says = [&family](const char* word) { return family.contains(QLatin1String(word), Qt::CaseInsensitive); };
    return !says("serif") && !says("mono") && !says("ming") && !says("song") && !says("kai");
}

QString installedFamily()
{
    const QFontDatabase database;
    const QStringList installed = database.families();
    for (const QString& family : ThemeStore::instance().families())
        if (installed.contains(family))
            return family;
    const QStringList chinese = database.families(QFontDatabase::SimplifiedChinese);
    const auto sans = std::find_if(chinese.cbegin(), chinese.cend(), isSans);
    if (sans != chinese.cend())
        return *sans;
    return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
}

// Fonts can be looked up once there is an application.
QString textFamily()
{
    if (!qGuiApp)
        return ThemeStore::instance().families().value(0);
    static const QString family = installedFamily();
    return family;
}

QFont made(const FontRole& role, int pixels)
{
    QFont font(textFamily());
    font.setPixelSize(pixels);
    font.setWeight(role.weight);
    return font;
}

using Fonts = QHash<QPair<int, int>, QFont>;

Fonts& fonts()
{
    static auto* const all = new Fonts;
    return *all;
}

// Copies of one font share what Qt looked up for it; another font that is equal looks it up again. Fonts hold their
// engines, which must be gone before the application is.
QFont shared(const FontRole& role, int pixels)
{
    if (!qGuiApp)
        return made(role, pixels);
    if (fonts().isEmpty())
        qAddPostRoutine([] { fonts().clear(); });
    QFont& font = fonts()[{role.weight, pixels}];
    if (font.pixelSize() != pixels)
        font = made(role, pixels);
    return font;
}

} // namespace

QFont font(const QString& key, double scale)
{
    bool known = false;
    const FontRole role = ThemeStore::instance().font(key, known);
    QFont font = shared(role, std::max(1, scaled(role.size, scale)));
    if (!known)
        font.setUnderline(true);
    return font;
}

} // namespace WQ::resources
