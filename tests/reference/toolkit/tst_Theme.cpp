#include "support/Contrast.h"

#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"
#include "reference/toolkit/ThemeReader.h"

#include <QFile>
#include <QtTest>

using namespace WQ;
using support::contrast;

namespace {

ThemeColors colorsOf(const QString& theme)
{
    QFile file(QStringLiteral(":/orderparam/themes/%1.json").arg(theme));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString error;
    return readThemeColors(file.readAll(), error).value_or(ThemeColors());
}

/// How well something has to stand out: a value most, then other texts, then frames, bars and boxes.
enum class Standing { Value, Text, Mark };

// Texts of the high-contrast theme are all read as well.
double leastContrast(Standing standing, const QString& theme)
{
    if (theme == QStringLiteral("high-contrast"))
        return standing == Standing::Mark ? 3.0 : 7.0;
    return standing == Standing::Value ? 4.5 : 3.0;
}

/// A colour that is read on a number of grounds.
struct Reading
{
    const char* name;
    QString key;
    Standing standing;
    QStringList grounds;
};

QStringList allGrounds()
{
    return {keys::kRow, keys::kRowFocus, keys::kRowMouse, keys::kWrongFill, keys::kWindow, keys::kInput};
}

QList<Reading> readings()
{
    return {
        {"value", keys::kValue, Standing::Value, allGrounds()},
        {"value of a disabled cell", keys::kLabel, Standing::Value, allGrounds()},
        {"label", keys::kLabel, Standing::Text, allGrounds()},
        {"unit, and label of a disabled cell", keys::kUnit, Standing::Text, allGrounds()},
        {"buy price", keys::kBuy, Standing::Value, allGrounds()},
        {"sell price", keys::kSell, Standing::Value, allGrounds()},
        {"accent mark", keys::kAccent, Standing::Mark, allGrounds()},
        {"notice mark", keys::kNotice, Standing::Mark, allGrounds()},
        {"wrong mark", keys::kWrongFrame, Standing::Mark, allGrounds()},
        {"chosen entry", keys::kAccent, Standing::Value, {keys::kRow, keys::kRowFocus}},
        {"selected text", keys::kValue, Standing::Value, {keys::kSelection}},
        {"host's text", keys::kGlobalText, Standing::Value, {keys::kRow, keys::kWindow}},
        {"host's disabled text", keys::kDisabledText, Standing::Value, {keys::kRow, keys::kWindow}},
        {"tick", keys::kCheckMark, Standing::Mark, {keys::kAccent}},
        {"scroll handle", keys::kScrollHandle, Standing::Mark, {keys::kRow, keys::kWindow}},
    };
}

} // namespace

class ThemeTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void rolesHaveTheirColours_data();
    void rolesHaveTheirColours();
    void whatIsReadStandsOut_data();
    void whatIsReadStandsOut();
    void linesStandOutWhereContrastIsHigh();
    void themesAnswerTheSameKeys();
    void sizesAreThoseOfThePanel_data();
    void sizesAreThoseOfThePanel();
    void everyImageIsDrawn_data();
    void everyImageIsDrawn();
};

void ThemeTest::rolesHaveTheirColours_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("dark");
    QTest::addColumn<QString>("light");
    const auto role = [](const QString& key, const char* dark, const char* light) {
        QTest::newRow(qPrintable(key)) << key << QString::fromLatin1(dark) << QString::fromLatin1(light);
    };
    role(QStringLiteral("clr_order_operation_background"), "#12151a", "#eef0f3");
    role(QStringLiteral("clr_btn_algorithm_normal"), "#171b21", "#ffffff");
    role(QStringLiteral("clr_param_table_order_mode_inactive"), "#8e98a8", "#636c7b");
    role(QStringLiteral("clr_param_table_order_mode_active"), "#e8ebf0", "#18212d");
    role(keys::kSeparator, "#232932", "#e5e8ed");
    role(keys::kUnit, "#7d8797", "#808a99");
    role(keys::kAccent, "#4b93ff", "#1666dc");
    role(keys::kRowFocus, "#1c2a40", "#e9f1fd");
    role(keys::kRowMouse, "#1e242d", "#f4f6f9");
    role(keys::kWrongFrame, "#ff6666", "#d63b3b");
    role(keys::kWrongFill, "#38201f", "#fdecec");
    role(keys::kNotice, "#e3ad45", "#b57a10");
    role(keys::kBuy, "#f2605c", "#cc2d2a");
    role(keys::kSell, "#22b573", "#0a7d4b");
    role(keys::kInput, "#0f1216", "#f7f8fa");
}

void ThemeTest::rolesHaveTheirColours()
{
    QFETCH(QString, key);
    QFETCH(QString, dark);
    QFETCH(QString, light);
    QCOMPARE(colorsOf(QStringLiteral("dark")).value(key).name(), dark);
    QCOMPARE(colorsOf(QStringLiteral("light")).value(key).name(), light);
}

void ThemeTest::whatIsReadStandsOut_data()
{
    QTest::addColumn<QString>("theme");
    for (const QString& theme : resources::themes())
        QTest::newRow(qPrintable(theme)) << theme;
}

void ThemeTest::whatIsReadStandsOut()
{
    QFETCH(QString, theme);
    const ThemeColors colors = colorsOf(theme);
    for (const Reading& reading : readings()) {
        for (const QString& ground : reading.grounds) {
            QVERIFY(colors.contains(reading.key) && colors.contains(ground));
            const double reached = contrast(colors.value(reading.key), colors.value(ground));
            const double least = leastContrast(reading.standing, theme);
            QVERIFY2(reached >= least,
                     qPrintable(QStringLiteral("%1 on %2: %3 of %4")
                                    .arg(QLatin1String(reading.name), ground)
                                    .arg(reached)
                                    .arg(least)));
        }
    }
}

// Elsewhere a separator only parts what colours part already.
void ThemeTest::linesStandOutWhereContrastIsHigh()
{
    const ThemeColors colors = colorsOf(QStringLiteral("high-contrast"));
    for (const QString& ground : allGrounds()) {
        const double reached = contrast(colors.value(keys::kSeparator), colors.value(ground));
        QVERIFY2(reached >= 3.0, qPrintable(QStringLiteral("separator on %1: %2").arg(ground).arg(reached)));
    }
    QVERIFY2(contrast(colors.value(keys::kCheckMark), colors.value(keys::kLabel)) >= 3.0, "tick of a disabled box");
}

void ThemeTest::themesAnswerTheSameKeys()
{
    const QStringList themes{QStringLiteral("dark"), QStringLiteral("high-contrast"), QStringLiteral("light")};
    QCOMPARE(resources::themes(), themes);
    QStringList keys = colorsOf(QStringLiteral("dark")).keys();
    keys.sort();
    QVERIFY(!keys.isEmpty());
    for (const QString& theme : themes) {
        QStringList others = colorsOf(theme).keys();
        others.sort();
        QCOMPARE(others, keys);
    }
}

void ThemeTest::sizesAreThoseOfThePanel_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("pixels");
    const auto size = [](const QString& key, int pixels) { QTest::newRow(qPrintable(key)) << key << pixels; };
    size(QStringLiteral("tc_siz_operation_panel_param_table_width"), 240);
    size(QStringLiteral("tc_siz_code_quotes_height"), 280);
    size(QStringLiteral("tc_siz_operation_panel_top_height"), 60);
    size(keys::kRowHeight, 26);
    size(keys::kPadding, 10);
    size(keys::kUnitGap, 8);
    size(keys::kStripHeight, 28);
    size(keys::kStripTextMax, 18);
    size(keys::kUnderline, 2);
    size(keys::kNoticeBar, 2);
    size(keys::kPopupRowHeight, 24);
    size(keys::kFilterFooter, 20);
    size(keys::kScrollBar, 6);
    size(keys::kTitleBar, 36);
}

void ThemeTest::sizesAreThoseOfThePanel()
{
    QFETCH(QString, key);
    QFETCH(int, pixels);
    QCOMPARE(resources::size(key, 1.0), pixels);
}

void ThemeTest::everyImageIsDrawn_data()
{
    QTest::addColumn<QString>("key");
    for (const QString& key :
         {QStringLiteral("tc_img_operation_showhide_btn"), QStringLiteral("tc_img_operation_expand_btn"),
          QStringLiteral("tc_img_operation_contract_btn"), keys::kChevronImage, keys::kCheckImage, keys::kCloseImage,
          keys::kHelpImage, keys::kFilterImage})
        QTest::newRow(qPrintable(key)) << key;
}

void ThemeTest::everyImageIsDrawn()
{
    QFETCH(QString, key);
    const QImage image = resources::image(key, Qt::red, QSize(20, 20), 1.0).toImage();
    int inked = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            inked += image.pixelColor(x, y).alpha() > 127 ? 1 : 0;
    QVERIFY2(inked > 10 && inked < 200, qPrintable(QString::number(inked)));
}

QTEST_MAIN(ThemeTest)
#include "tst_Theme.moc"
