#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <WQ/CMultiParamsTable.h>
#include <WQ/CUiResource.h>
#include <WQ/CUiResourceChangeHandler.h>

#include <QFontInfo>
#include <QFontMetricsF>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <limits>
#include <memory>

using namespace WQ;

namespace {

const double kNan = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

struct Handler : CUiResourceChangeHandler
{
    void themeChanged() override
    {
        ++themes;
        if (then)
            then();
    }

    void scaleChanged() override
    {
        ++scales;
        if (then)
            then();
    }

    int themes = 0;
    int scales = 0;
    std::function<void()> then;
};

struct CellTable : CMultiParamsTable
{
    CellTable()
        : CMultiParamsTable(nullptr, true)
    {
    }

    void themeChanged() override
    {
        ++themes;
    }

    void scaleChanged() override
    {
        ++scales;
    }

    int themes = 0;
    int scales = 0;
};

void write(const QString& fileName, const QByteArray& contents)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(contents);
}

QByteArray darkFile()
{
    QFile file(QStringLiteral(":/orderparam/themes/dark.json"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class ResourcesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void sizesScaleThroughOneFunction_data();
    void sizesScaleThroughOneFunction();
    void theScaleStaysInItsBounds_data();
    void theScaleStaysInItsBounds();
    void theServiceAnswersAtTheUiScale();
    void handlersHearOfANewScaleOnce();
    void cellTablesTakeAScaleFromTheirOwnerAlone();
    void handlersHearOfANewTheme();
    void handlersMayGoWhileTheyAreTold();
    void handlersMayComeWhileTheyAreTold();
    void aChangeInAHandlerReachesEverybody();
    void aHandlerThatNeverRestsIsCutOff();
    void coloursFollowTheThemeAtTheirAddress();
    void anUnknownThemeChangesNothing_data();
    void anUnknownThemeChangesNothing();
    void aHostAddsThemesOfItsOwn();
    void aWrongThemeFileIsReportedOnceAndChangesNothing_data();
    void aWrongThemeFileIsReportedOnceAndChangesNothing();
    void unknownKeysAnswerSomethingVisibleAndAreReportedOnce();
    void fontsAreSizedInPixels();
    void fontsOfOneLookAreCopiesOfOne();
    void digitsAreTabular();
    void imagesAreTintedAndSharp();
    void imagesOfNoSizeAreEmpty();
};

void ResourcesTest::init()
{
    resources::setTheme(QStringLiteral("dark"));
    resources::setScale(1.0);
}

void ResourcesTest::sizesScaleThroughOneFunction_data()
{
    QTest::addColumn<double>("size");
    QTest::addColumn<double>("scale");
    QTest::addColumn<int>("pixels");

    QTest::newRow("as it is") << 26.0 << 1.0 << 26;
    QTest::newRow("rounded down") << 26.0 << 1.1 << 29;
    QTest::newRow("a half is rounded up") << 26.0 << 1.25 << 33;
    QTest::newRow("twice") << 26.0 << 2.0 << 52;
    QTest::newRow("beyond the largest scale") << 10.0 << 7.0 << 30;
    QTest::newRow("below the smallest scale") << 10.0 << 0.2 << 10;
    QTest::newRow("no number as scale") << 10.0 << kNan << 10;
    QTest::newRow("endless scale") << 10.0 << kInf << 30;
    QTest::newRow("never less than a pixel") << 0.1 << 1.0 << 1;
    QTest::newRow("nothing") << 0.0 << 2.0 << 0;
    QTest::newRow("below nothing") << -4.0 << 2.0 << 0;
    QTest::newRow("no number") << kNan << 2.0 << 0;
    QTest::newRow("an endless size is bounded") << kInf << 1.0 << 1048576;
}

void ResourcesTest::sizesScaleThroughOneFunction()
{
    QFETCH(double, size);
    QFETCH(double, scale);
    QFETCH(int, pixels);
    QCOMPARE(resources::scaled(size, scale), pixels);
}

void ResourcesTest::theScaleStaysInItsBounds_data()
{
    QTest::addColumn<double>("asked");
    QTest::addColumn<double>("scale");

    QTest::newRow("in between") << 2.5 << 2.5;
    QTest::newRow("the largest") << 3.0 << 3.0;
    QTest::newRow("too large") << 3.01 << 3.0;
    QTest::newRow("endless") << kInf << 3.0;
    QTest::newRow("too small") << 0.5 << 1.0;
    QTest::newRow("below zero") << -2.0 << 1.0;
    QTest::newRow("no number") << kNan << 1.5;
}

void ResourcesTest::theScaleStaysInItsBounds()
{
    QFETCH(double, asked);
    QFETCH(double, scale);
    resources::setScale(1.5);
    resources::setScale(asked);
    QCOMPARE(resources::scale(), scale);
}

void ResourcesTest::theServiceAnswersAtTheUiScale()
{
    const CUiResource* service = CUiResource::instance();
    QCOMPARE(service, CUiResource::instance());
    resources::setScale(1.5);
    QCOMPARE(service->getUIScale(), 1.5);
    QCOMPARE(service->getSize(QStringLiteral("tc_siz_operation_panel_param_table_width")), 360);
    QCOMPARE(service->getSize(QStringLiteral("tc_siz_code_quotes_height")), 420);
    QCOMPARE(service->getSize(QStringLiteral("tc_siz_operation_panel_top_height")), 90);
    QCOMPARE(service->getColor(QStringLiteral("clr_order_operation_background"))->name(), QStringLiteral("#12151a"));
}

void ResourcesTest::handlersHearOfANewScaleOnce()
{
    Handler handler;
    resources::setScale(2.0);
    QCOMPARE(handler.scales, 1);
    QCOMPARE(handler.themes, 0);
    resources::setScale(2.0);
    resources::setScale(kNan);
    QCOMPARE(handler.scales, 1);
    resources::setScale(5.0);
    resources::setScale(4.0);
    QCOMPARE(handler.scales, 2);
}

void ResourcesTest::cellTablesTakeAScaleFromTheirOwnerAlone()
{
    CellTable table;
    resources::setScale(2.0);
    resources::setTheme(QStringLiteral("light"));
    QCOMPARE(table.scales, 0);
    QCOMPARE(table.themes, 1);
}

void ResourcesTest::handlersHearOfANewTheme()
{
    Handler handler;
    QVERIFY(resources::setTheme(QStringLiteral("light")));
    QCOMPARE(resources::theme(), QStringLiteral("light"));
    QCOMPARE(handler.themes, 1);
    QCOMPARE(handler.scales, 0);
    QVERIFY(resources::setTheme(QStringLiteral("light")));
    QCOMPARE(handler.themes, 1);
}

void ResourcesTest::handlersMayGoWhileTheyAreTold()
{
    auto first = std::make_unique<Handler>();
    auto second = std::make_unique<Handler>();
    Handler last;
    first->then = [&] {
        second.reset();
        first.reset();
    };
    resources::setScale(2.0);
    QVERIFY(!first && !second);
    QCOMPARE(last.scales, 1);
}

void ResourcesTest::handlersMayComeWhileTheyAreTold()
{
    Handler first;
    std::vector<std::unique_ptr<Handler>> made;
    first.then = [&made] { made.push_back(std::make_unique<Handler>()); };
    resources::setScale(2.0);
    QCOMPARE(made.size(), size_t(1));
    // It was made at the new scale and has nothing to hear.
    QCOMPARE(made.front()->scales, 0);
    resources::setScale(1.5);
    QCOMPARE(made.front()->scales, 1);
}

void ResourcesTest::aChangeInAHandlerReachesEverybody()
{
    Handler before;
    Handler changing;
    Handler after;
    double seenBefore = 0;
    double seenAfter = 0;
    before.then = [&] { seenBefore = resources::scale(); };
    after.then = [&] { seenAfter = resources::scale(); };
    changing.then = [] { resources::setScale(3.0); };
    resources::setScale(2.0);
    QCOMPARE(seenBefore, 3.0);
    QCOMPARE(seenAfter, 3.0);
}

void ResourcesTest::aHandlerThatNeverRestsIsCutOff()
{
    Handler restless;
    restless.then = [] { resources::setScale(resources::scale() > 1.5 ? 1.0 : 2.0); };
    QTest::ignoreMessage(QtWarningMsg,
                         "theme: a handler answers every change by another one; it is told no more of these");
    resources::setScale(2.0);
    QCOMPARE(restless.scales, 64);
    restless.then = nullptr;
    resources::setScale(1.25);
    QCOMPARE(restless.scales, 65);
}

void ResourcesTest::coloursFollowTheThemeAtTheirAddress()
{
    const QColor* row = CUiResource::instance()->getColor(QStringLiteral("clr_btn_algorithm_normal"));
    const QColor& same = resources::color(keys::kRow);
    QCOMPARE(row, &same);
    QCOMPARE(row->name(), QStringLiteral("#171b21"));
    resources::setTheme(QStringLiteral("light"));
    QCOMPARE(row->name(), QStringLiteral("#ffffff"));
    QCOMPARE(&resources::color(keys::kRow), row);
}

void ResourcesTest::anUnknownThemeChangesNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("unknown") << QStringLiteral("pink");
    QTest::newRow("empty") << QString();
    QTest::newRow("the file of the sizes") << QStringLiteral("metrics");
    QTest::newRow("a way around") << QStringLiteral("../themes/light");
    QTest::newRow("a megabyte") << QString(1 << 20, QLatin1Char('x'));
}

void ResourcesTest::anUnknownThemeChangesNothing()
{
    QFETCH(QString, name);
    Handler handler;
    QVERIFY(!resources::setTheme(name));
    QCOMPARE(resources::theme(), QStringLiteral("dark"));
    QCOMPARE(resources::color(keys::kWindow).name(), QStringLiteral("#12151a"));
    QCOMPARE(handler.themes, 0);
}

void ResourcesTest::aHostAddsThemesOfItsOwn()
{
    const QTemporaryDir folder;
    write(folder.filePath(QStringLiteral("night.json")), darkFile().replace("#12151a", "#000000"));
    write(folder.filePath(QStringLiteral("light.json")), darkFile());
    resources::addThemeFolder(folder.path());
    QCOMPARE(resources::themes(),
             (QStringList{QStringLiteral("dark"), QStringLiteral("high-contrast"), QStringLiteral("light"),
                          QStringLiteral("night")}));
    QVERIFY(resources::setTheme(QStringLiteral("night")));
    QCOMPARE(resources::color(keys::kWindow).name(), QStringLiteral("#000000"));
    // A compiled-in theme keeps precedence over a file of its name.
    QVERIFY(resources::setTheme(QStringLiteral("light")));
    QCOMPARE(resources::color(keys::kWindow).name(), QStringLiteral("#eef0f3"));
}

void ResourcesTest::aWrongThemeFileIsReportedOnceAndChangesNothing_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("said");
    QTest::newRow("half written") << darkFile().left(300) << QStringLiteral(":\\d+: ");
    QTest::newRow("a colour is wrong") << darkFile().replace("#171b21", "#17") << QStringLiteral(":4: \"clr_btn_");
    QTest::newRow("a colour is missing") << QByteArray("{\n\"colors\": {}}") << QStringLiteral(":2: lacks \"clr_");
    QTest::newRow("empty") << QByteArray() << QStringLiteral(":1: ");
}

void ResourcesTest::aWrongThemeFileIsReportedOnceAndChangesNothing()
{
    QFETCH(QByteArray, contents);
    QFETCH(QString, said);
    const QTemporaryDir folder;
    const QString name = QStringLiteral("broken%1").arg(QString::fromLatin1(QTest::currentDataTag()).simplified());
    write(folder.filePath(name + QStringLiteral(".json")), contents);
    resources::addThemeFolder(folder.path());
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QRegularExpression::escape(name) + QStringLiteral("\\.json") + said));
    QVERIFY(!resources::setTheme(name));
    QVERIFY(!resources::setTheme(name));
    QCOMPARE(resources::theme(), QStringLiteral("dark"));
    QCOMPARE(resources::color(keys::kRow).name(), QStringLiteral("#171b21"));
}

void ResourcesTest::unknownKeysAnswerSomethingVisibleAndAreReportedOnce()
{
    const QString key = QStringLiteral("no_such_key");
    for (const char* kind : {"colour", "size", "font", "image"})
        QTest::ignoreMessage(
            QtWarningMsg, qPrintable(QStringLiteral("theme: unknown %1 key \"no_such_key\"").arg(QLatin1String(kind))));
    for (int time = 0; time < 2; ++time) {
        QCOMPARE(resources::color(key), QColor(0xff, 0x00, 0xff));
        QCOMPARE(*CUiResource::instance()->getColor(key), QColor(0xff, 0x00, 0xff));
        QVERIFY(resources::size(key, 1.0) > 0);
        QVERIFY(resources::font(key, 1.0).underline());
        const QImage image = resources::image(key, Qt::red, QSize(4, 4), 1.0).toImage();
        QCOMPARE(image.pixelColor(2, 2), QColor(0xff, 0x00, 0xff));
    }
}

void ResourcesTest::fontsOfOneLookAreCopiesOfOne()
{
    const QFont font = resources::font(keys::kTextFont, 1.0);
    QVERIFY(resources::font(keys::kTextFont, 1.0).isCopyOf(font));
    QVERIFY(!resources::font(keys::kTextFont, 2.0).isCopyOf(font));
    QVERIFY(!resources::font(keys::kTitleFont, 1.0).isCopyOf(font));
    QFont own = font;
    own.setItalic(true);
    QVERIFY(!resources::font(keys::kTextFont, 1.0).italic());
    QVERIFY(resources::font(keys::kTextFont, 1.0).isCopyOf(font));
}

void ResourcesTest::fontsAreSizedInPixels()
{
    QCOMPARE(resources::font(keys::kTextFont, 1.0).pixelSize(), 12);
    QCOMPARE(resources::font(keys::kNoticeFont, 1.0).pixelSize(), 11);
    QCOMPARE(resources::font(keys::kTitleFont, 1.0).pixelSize(), 13);
    QCOMPARE(resources::font(keys::kTitleFont, 1.0).weight(), static_cast<int>(QFont::DemiBold));
    QCOMPARE(resources::font(QStringLiteral("fnt_default_normal_fix"), 1.25).pixelSize(), 15);
    QCOMPARE(resources::font(keys::kTextFont, 99).pixelSize(), 36);
    QVERIFY(!resources::font(keys::kTextFont, 1.0).underline());
}

void ResourcesTest::digitsAreTabular()
{
    const QFontMetricsF metrics(resources::font(keys::kTextFont, 1.0));
    for (char digit = '1'; digit <= '9'; ++digit)
        QCOMPARE(metrics.horizontalAdvance(QLatin1Char(digit)), metrics.horizontalAdvance(QLatin1Char('0')));
}

void ResourcesTest::imagesAreTintedAndSharp()
{
    const QPixmap image = resources::image(keys::kCheckImage, QColor(10, 200, 30), QSize(16, 16), 2.0);
    QCOMPARE(image.size(), QSize(32, 32));
    QCOMPARE(image.devicePixelRatio(), 2.0);
    const QImage pixels = image.toImage();
    int solid = 0;
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x)
            if (pixels.pixelColor(x, y).alpha() == 255) {
                QCOMPARE(pixels.pixelColor(x, y), QColor(10, 200, 30));
                ++solid;
            }
    QVERIFY(solid > 0);
    QCOMPARE(resources::image(keys::kCheckImage, QColor(10, 200, 30), QSize(16, 16), 2.0).cacheKey(), image.cacheKey());
    QVERIFY(resources::image(keys::kCheckImage, QColor(10, 200, 31), QSize(16, 16), 2.0).cacheKey()
            != image.cacheKey());
}

void ResourcesTest::imagesOfNoSizeAreEmpty()
{
    QVERIFY(resources::image(keys::kCheckImage, Qt::red, QSize(0, 5), 1.0).isNull());
    QVERIFY(resources::image(keys::kCheckImage, Qt::red, QSize(-5, -5), 1.0).isNull());
    QCOMPARE(resources::image(keys::kCheckImage, Qt::red, QSize(4, 4), kNan).size(), QSize(4, 4));
    QVERIFY(resources::image(keys::kCheckImage, Qt::red, QSize(1 << 30, 1 << 30), 1.0).width() <= 1024);
}

QTEST_MAIN(ResourcesTest)
#include "tst_Resources.moc"
