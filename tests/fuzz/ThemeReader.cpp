// Theme files: both readers on the bytes, and the theme in use, which a wrong file must leave as it is.
#include "reference/toolkit/ThemeReader.h"
#include "fuzz/FuzzTarget.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString kName = QStringLiteral("fuzzed");
const QString kBuiltIn = QStringLiteral("dark");

/// "LINE: what", the line being one of the file's.
void checkError(const QByteArray& file, const QString& error)
{
    bool isNumber = false;
    const int line = error.left(error.indexOf(QLatin1Char(':'))).toInt(&isNumber);
    fuzz::require(isNumber && line >= 1 && line <= 1 + file.count('\n'), "an error names a line of the file");
    fuzz::require(error.size() < 400, "an error is short");
}

QJsonObject sectionOf(const QByteArray& file, const char* name)
{
    return QJsonDocument::fromJson(file).object().value(QLatin1String(name)).toObject();
}

void checkColors(const QByteArray& file)
{
    QString error;
    const auto colors = WQ::readThemeColors(file, error);
    fuzz::require(colors.has_value() == error.isEmpty(), "colours or an error");
    if (!colors)
        return checkError(file, error);
    // Walked and not asked by key: Qt answers a key that is a byte order mark as an empty one.
    const QJsonObject section = sectionOf(file, "colors");
    QHash<QString, QString> expected;
    for (auto entry = section.constBegin(); entry != section.constEnd(); ++entry)
        expected.insert(entry.key(), entry.value().toString().toLower());
    fuzz::require(colors->size() == expected.size(), "every colour is taken");
    for (auto color = colors->cbegin(); color != colors->cend(); ++color) {
        fuzz::require(color->isValid() && color->alpha() == 255, "a colour is opaque");
        fuzz::require(color->name() == expected.value(color.key()), "a colour is the file's");
    }
}

void checkMetrics(const QByteArray& file)
{
    QString error;
    const auto metrics = WQ::readThemeMetrics(file, error);
    fuzz::require(metrics.has_value() == error.isEmpty(), "metrics or an error");
    if (!metrics)
        return checkError(file, error);
    for (const double size : metrics->sizes)
        fuzz::require(size >= 0 && size <= 4096, "a size can be shown");
    for (const WQ::FontRole& role : metrics->fonts)
        fuzz::require(role.size >= 1 && role.size <= 4096, "a font can be shown");
    for (const QString& image : metrics->images)
        fuzz::require(!image.isEmpty(), "an image has a name");
    fuzz::require(metrics->sizes.isEmpty() == sectionOf(file, "sizes").isEmpty(), "sizes are taken");
}

void checkThemeInUse(const QByteArray& file)
{
    const QColor before = WQ::resources::color(WQ::keys::kWindow);
    const QString path = fuzz::writtenFile(kName + QStringLiteral(".json"), file);
    WQ::resources::addThemeFolder(QFileInfo(path).path());
    QString error;
    if (!WQ::resources::setTheme(kName)) {
        fuzz::require(WQ::resources::theme() == kBuiltIn, "a wrong theme leaves the one in use");
        fuzz::require(WQ::resources::color(WQ::keys::kWindow) == before, "its colours stay");
        return;
    }
    fuzz::require(WQ::readThemeColors(file, error).has_value(), "a theme in use is a right one");
    fuzz::require(WQ::resources::setTheme(kBuiltIn), "the built-in theme is there again");
    fuzz::require(WQ::resources::color(WQ::keys::kWindow) == before, "its colours as well");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::startApplication();
    const QByteArray file = fuzz::bytesOf(data, size);
    QString error;
    if (size <= fuzz::kLongestChecked) {
        checkColors(file);
        checkMetrics(file);
    } else {
        WQ::readThemeColors(file, error);
        WQ::readThemeMetrics(file, error);
    }
    checkThemeInUse(file);
    return 0;
}
