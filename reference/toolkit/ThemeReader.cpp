#include "reference/toolkit/ThemeReader.h"

#include "reference/services/FileReport.h"
#include "reference/services/JsonLines.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace WQ {

namespace {

constexpr double kLargestSize = 4096;

QString said(int line, const QString& what)
{
    return QStringLiteral("%1: %2").arg(line).arg(what);
}

QString saidOfKey(const QByteArray& file, const QString& key, const QString& section, const QString& what)
{
    return said(lineOfKey(file, key, section), reference::quoted(key) + QLatin1Char(' ') + what);
}

std::optional<QJsonObject> rootOf(const QByteArray& file, QString& error)
{
    QJsonParseError parsed;
    const QJsonDocument document = QJsonDocument::fromJson(file, &parsed);
    if (parsed.error != QJsonParseError::NoError) {
        error = said(reference::lineAt(file, parsed.offset), parsed.errorString());
        return std::nullopt;
    }
    if (!document.isObject()) {
        error = said(1, QStringLiteral("is not a JSON object"));
        return std::nullopt;
    }
    if (const int second = reference::secondNameOffset(file); second >= 0) {
        error = said(reference::lineAt(file, second), reference::secondNameProblem(file, second));
        return std::nullopt;
    }
    return document.object();
}

std::optional<QJsonObject> sectionOf(const QByteArray& file, const QJsonObject& root, const QString& name,
                                     QString& error)
{
    const QJsonValue section = root.value(name);
    if (section.isObject())
        return section.toObject();
    error = saidOfKey(file, name, QString(), QStringLiteral("is not there as an object"));
    return std::nullopt;
}

std::optional<QColor> toColor(const QJsonValue& value)
{
    static const QRegularExpression form(QStringLiteral("\\A#[0-9a-fA-F]{6}\\z"));
    const QString text = value.toString();
    return form.match(text).hasMatch() ? std::make_optional(QColor(text)) : std::nullopt;
}

std::optional<double> toSize(const QJsonValue& value)
{
    const double size = value.toDouble(-1);
    return size >= 0 && size <= kLargestSize ? std::make_optional(size) : std::nullopt;
}

std::optional<FontRole> toFontRole(const QJsonValue& value)
{
    const QJsonObject role = value.toObject();
    const auto size = toSize(role.value(QLatin1String("size")));
    const QString weight = role.value(QLatin1String("weight")).toString();
    const bool halfBold = weight == QLatin1String("half-bold");
    if (!size || *size < 1 || !(halfBold || weight == QLatin1String("normal")))
        return std::nullopt;
    return FontRole{*size, halfBold ? QFont::DemiBold : QFont::Normal};
}

std::optional<QString> toImageName(const QJsonValue& value)
{
    static const QRegularExpression form(QStringLiteral("\\A[a-z0-9_-]+\\z"));
    const QString name = value.toString();
    return form.match(name).hasMatch() ? std::make_optional(name) : std::nullopt;
}

template <class Value, class Convert>
bool readSection(const QByteArray& file, const QJsonObject& root, const QString& name, Convert convert,
                 QHash<QString, Value>& into, QString& error)
{
    const auto section = sectionOf(file, root, name, error);
    if (!section)
        return false;
    for (auto entry = section->constBegin(); entry != section->constEnd(); ++entry) {
        const auto value = convert(entry.value());
        if (!value) {
            error = saidOfKey(file, entry.key(), name, QStringLiteral("is wrong in \"%1\"").arg(name));
            return false;
        }
        into.insert(entry.key(), *value);
    }
    return true;
}

} // namespace

int lineOfKey(const QByteArray& file, const QString& key, const QString& section)
{
    return reference::lineAt(file, reference::nameOffset(file, key.toUtf8(), section.toUtf8()));
}

std::optional<ThemeColors> readThemeColors(const QByteArray& file, QString& error)
{
    const auto root = rootOf(file, error);
    ThemeColors colors;
    if (!root || !readSection(file, *root, QStringLiteral("colors"), toColor, colors, error))
        return std::nullopt;
    return colors;
}

std::optional<ThemeMetrics> readThemeMetrics(const QByteArray& file, QString& error)
{
    const auto root = rootOf(file, error);
    ThemeMetrics metrics;
    if (!root || !readSection(file, *root, QStringLiteral("sizes"), toSize, metrics.sizes, error)
        || !readSection(file, *root, QStringLiteral("fonts"), toFontRole, metrics.fonts, error)
        || !readSection(file, *root, QStringLiteral("images"), toImageName, metrics.images, error))
        return std::nullopt;
    const QJsonArray families = root->value(QLatin1String("families")).toArray();
    for (const QJsonValue& family : families)
        metrics.families.append(family.toString());
    return metrics;
}

} // namespace WQ
