#include "faults/LogLines.h"
#include "reference/services/TextFile.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"
#include "reference/toolkit/ThemeReader.h"
#include "support/FaultCount.h"

#include <WQ/CPushButton.h>
#include <WQ/CUiResourceChangeHandler.h>

#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <stdexcept>
#include <sys/stat.h>

using namespace WQ;

namespace {

constexpr int kMegabyte = 1 << 20;

QByteArray lightFile()
{
    QFile file(QStringLiteral(":/orderparam/themes/light.json"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The good file with one piece replaced; nothing when the piece is not in it.
QByteArray with(const char* piece, const QByteArray& other)
{
    QByteArray file = lightFile();
    const int at = file.indexOf(piece);
    return at < 0 ? QByteArray() : file.replace(at, int(qstrlen(piece)), other);
}

struct Handler : CUiResourceChangeHandler
{
    void themeChanged() override
    {
        ++themes;
        if (throws)
            throw std::runtime_error("refused");
    }

    int themes = 0;
    bool throws = false;
};

struct FileRow
{
    const char* name;
    QByteArray contents;
    QString said; ///< after the path; "*" is anything
};

const char kFirstColour[] = "\"clr_order_operation_background\": \"#eef0f3\"";
const char kSecondColour[] = "\"clr_btn_algorithm_normal\": \"#ffffff\"";

/// The second colour in the form of @p value; it stands in line 4.
QByteArray secondColour(const QByteArray& value)
{
    return with(kSecondColour, "\"clr_btn_algorithm_normal\": " + value);
}

// clang-format off
std::vector<FileRow> files()
{
    const QString wrong = QStringLiteral(":4: \"clr_btn_algorithm_normal\" is wrong in \"colors\"");
    const QString noSection = QStringLiteral(":1: \"colors\" is not there as an object");
    return {
        {"empty", "", QStringLiteral(":1: *")},
        {"cut off in a value", lightFile().left(lightFile().indexOf("#ffffff") + 3), QStringLiteral(":4: *")},
        {"cut off behind a colour", lightFile().left(lightFile().indexOf("#ffffff") + 9), QStringLiteral(":*: *")},
        {"a comma is missing", with("\"#eef0f3\",", "\"#eef0f3\""), QStringLiteral(":4: *")},
        {"more behind the end", lightFile() + "}", QStringLiteral(":*: *")},
        {"a comment", "// light\n" + lightFile(), QStringLiteral(":1: *")},
        {"UTF-16 with its mark", QByteArray("\xFF\xFE{\0}\0", 6), QStringLiteral(":1: *")},
        {"no UTF-8", secondColour("\"\xBC\xD7\""), QStringLiteral(":4: *")},
        {"zeros", QByteArray(4096, '\0'), QStringLiteral(":1: *")},
        {"nested too deeply", "{\n\"x\":" + QByteArray(5000, '[') + QByteArray(5000, ']') + '}', QStringLiteral(":2: *")},
        {"a megabyte of brackets", QByteArray(kMegabyte, '['), QStringLiteral(":1: *")},
        {"more than a megabyte", lightFile() + QByteArray(kMegabyte, ' '), QStringLiteral(": is too large")},
        {"a list", "[]", QStringLiteral(":1: is not a JSON object")},
        {"a text", "\"#ffffff\"", QStringLiteral(":1: *")},
        {"no section", "{}", noSection},
        {"the section under another name", with("\"colors\"", "\"colours\""), noSection},
        {"the section as a list", "{\n\n\"colors\": []}", QStringLiteral(":3: \"colors\" is not there as an object")},
        {"the section as null", "{\n\"x\": \"colors\",\n\"colors\": null}", QStringLiteral(":3: \"colors\" is not there as an object")},
        {"the section twice", "{\"colors\": {},\n\"colors\": {}}", QStringLiteral(":2: a second \"colors\" in one record")},
        {"a colour twice", with(kSecondColour, QByteArray(kFirstColour)), QStringLiteral(":4: a second \"clr_order_operation_background\" in one record")},
        {"a colour is missing", with("\"clr_btn_algorithm_normal\": \"#ffffff\",", ""), QStringLiteral(":2: lacks \"clr_btn_algorithm_normal\"")},
        {"a colour by name", secondColour("\"white\""), wrong},
        {"a colour of three digits", secondColour("\"#fff\""), wrong},
        {"a colour with transparency", secondColour("\"#80ffffff\""), wrong},
        {"a colour with a line end", secondColour("\"#ffffff\\n\""), wrong},
        {"a colour that is no digits", secondColour("\"#fffffg\""), wrong},
        {"an empty colour", secondColour("\"\""), wrong},
        {"a colour as a number", secondColour("16777215"), wrong},
        {"a colour as null", secondColour("null"), wrong},
        {"a colour as a record", secondColour("{\"clr_unit\": \"#ffffff\"}"), wrong},
        {"a colour of a megabyte", secondColour("\"#" + QByteArray(kMegabyte - 4096, 'f') + '"'), wrong},
        {"a wrong colour that is named before", "{\"name\": \"clr_btn_algorithm_normal\",\n\"clr_btn_algorithm_normal\": 1," + secondColour("1").mid(1), QStringLiteral(":5: \"clr_btn_algorithm_normal\" is wrong in \"colors\"")},
    };
}
// clang-format on

bool isSaid(const QString& said, const QString& expected)
{
    const QString pattern = QRegularExpression::escape(expected).replace(QStringLiteral("\\*"), QStringLiteral(".+"));
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(said).hasMatch();
}

} // namespace

/// A theme file that is wrong leaves the theme in use as it is; the log names file and line, once until it was good.
class tst_ThemeFaults : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();
    void everyBrokenFile_data();
    void everyBrokenFile();
    void everyBeginningOfAFileIsRefused();
    void aPlaceThatIsNoFileIsNoTheme_data();
    void aPlaceThatIsNoFileIsNoTheme();
    void aThemeThatVanishesKeepsTheOneInUse();
    void aPipeInAnotherFolderHidesNoTheme();
    void unknownKeysAreIgnoredAndLeaveNothingBehind();
    void errorsAreSaidHoweverManyKeysWereUnknown();
    void wrongImagesAreRefused_data();
    void wrongImagesAreRefused();
    void aMissingImageIsShownAndSaidOnce();
    void aHandlerThatThrowsLeavesNobodyOut();

private:
    /// A theme of its own for each test: folders stay in the list of folders.
    QString theme() const;
    QString path() const;
    void verifyLightInForce(int told);

    QTemporaryDir m_folder;
    std::unique_ptr<Handler> m_handler;
    int m_number = 0;
    FaultCount m_count{"theme file"};
};

void tst_ThemeFaults::initTestCase()
{
    resources::addThemeFolder(m_folder.path());
    QVERIFY(!with(kFirstColour, "x").isEmpty() && !with(kSecondColour, "x").isEmpty());
}

void tst_ThemeFaults::init()
{
    ++m_number;
    QVERIFY(resources::setTheme(QStringLiteral("light")));
    m_handler = std::make_unique<Handler>();
    m_count.begin();
}

void tst_ThemeFaults::cleanup()
{
    m_handler.reset();
    if (!QTest::currentTestFailed())
        m_count.end();
}

void tst_ThemeFaults::cleanupTestCase()
{
    m_count.say();
}

QString tst_ThemeFaults::theme() const
{
    return QStringLiteral("theme%1").arg(m_number);
}

QString tst_ThemeFaults::path() const
{
    return m_folder.filePath(theme() + QStringLiteral(".json"));
}

void tst_ThemeFaults::verifyLightInForce(int told)
{
    QCOMPARE(resources::theme(), QStringLiteral("light"));
    QCOMPARE(resources::color(keys::kWindow).name(), QStringLiteral("#eef0f3"));
    QCOMPARE(resources::color(keys::kRow).name(), QStringLiteral("#ffffff"));
    QCOMPARE(m_handler->themes, told);
}

void tst_ThemeFaults::everyBrokenFile_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("said");
    for (const FileRow& row : files())
        QTest::newRow(row.name) << row.contents << row.said;
}

void tst_ThemeFaults::everyBrokenFile()
{
    QFETCH(QByteArray, contents);
    QFETCH(QString, said);
    const LogLines log;
    for (int round = 0; round < 2; ++round) {
        QVERIFY(writeFile(path(), contents));
        QVERIFY(!resources::setTheme(theme()));
        QVERIFY(!resources::setTheme(theme()));
        QCOMPARE(LogLines::warnings().size(), 1);
        QVERIFY2(isSaid(LogLines::warnings().first(), path() + said),
                 qPrintable(LogLines::warnings().first().left(500)));
        QVERIFY(LogLines::warnings().first().size() < 300);
        verifyLightInForce(2 * round);
        LogLines::warnings().clear();
        QVERIFY(writeFile(path(), with("#eef0f3", "#010203")));
        QVERIFY(resources::setTheme(theme()));
        QCOMPARE(resources::color(keys::kWindow).name(), QStringLiteral("#010203"));
        QVERIFY(resources::setTheme(QStringLiteral("light")));
    }
    QCOMPARE(LogLines::warnings() + LogLines::notes(), QStringList());
}

void tst_ThemeFaults::everyBeginningOfAFileIsRefused()
{
    const QByteArray whole = lightFile().trimmed();
    const LogLines log;
    for (int length = 0; length < whole.size(); ++length) {
        m_count.begin();
        QVERIFY(writeFile(path(), whole.left(length)));
        QVERIFY(!resources::setTheme(theme()));
        m_count.end();
    }
    verifyLightInForce(0);
    for (const QString& warning : LogLines::warnings())
        QVERIFY2(isSaid(warning, path() + QStringLiteral(":*: *")), qPrintable(warning));
    QCOMPARE(LogLines::warnings().removeDuplicates(), 0);
    QVERIFY(writeFile(path(), whole) && resources::setTheme(theme()));
}

void tst_ThemeFaults::aPlaceThatIsNoFileIsNoTheme_data()
{
    QTest::addColumn<int>("place");
    QTest::newRow("missing") << 0;
    QTest::newRow("a folder") << 1;
    QTest::newRow("a pipe") << 2;
    QTest::newRow("a link to nothing") << 3;
    QTest::newRow("a link to itself") << 4;
    QTest::newRow("another spelling of the ending") << 5;
}

void tst_ThemeFaults::aPlaceThatIsNoFileIsNoTheme()
{
    QFETCH(int, place);
    if (place == 1)
        QVERIFY(QDir().mkdir(path()));
    else if (place == 2)
        QCOMPARE(::mkfifo(qPrintable(path()), 0600), 0);
    else if (place == 3)
        QVERIFY(QFile::link(path() + QStringLiteral(".gone"), path()));
    else if (place == 4)
        QVERIFY(QFile::link(path(), path()));
    else if (place == 5)
        QVERIFY(writeFile(m_folder.filePath(theme() + QStringLiteral(".JSON")), lightFile()));
    const LogLines log;
    QVERIFY(!resources::themes().contains(theme()));
    QVERIFY(!resources::setTheme(theme()));
    verifyLightInForce(0);
    QCOMPARE(LogLines::warnings(), QStringList());
    if (place > 0 && place < 5)
        QVERIFY(place == 1 ? QDir().rmdir(path()) : QFile::remove(path()));
}

void tst_ThemeFaults::aThemeThatVanishesKeepsTheOneInUse()
{
    const LogLines log;
    QVERIFY(writeFile(path(), with("#eef0f3", "#010203")));
    QVERIFY(resources::setTheme(theme()));
    QVERIFY(QFile::remove(path()));
    QVERIFY(resources::setTheme(theme()));
    QCOMPARE(resources::color(keys::kWindow).name(), QStringLiteral("#010203"));
    QVERIFY(!resources::setTheme(QStringLiteral("nothing")));
    QCOMPARE(resources::theme(), theme());
    QVERIFY(resources::setTheme(QStringLiteral("light")));
    QVERIFY(!resources::setTheme(theme()));
    QCOMPARE(LogLines::warnings(), QStringList());
}

void tst_ThemeFaults::aPipeInAnotherFolderHidesNoTheme()
{
    const QTemporaryDir second;
    resources::addThemeFolder(second.path());
    QCOMPARE(::mkfifo(qPrintable(path()), 0600), 0);
    QVERIFY(writeFile(second.filePath(theme() + QStringLiteral(".json")), with("#eef0f3", "#010203")));
    QVERIFY(resources::setTheme(theme()));
    QCOMPARE(resources::color(keys::kWindow).name(), QStringLiteral("#010203"));
    QVERIFY(QFile::remove(path()));
}

void tst_ThemeFaults::unknownKeysAreIgnoredAndLeaveNothingBehind()
{
    const LogLines log;
    QVERIFY(writeFile(path(), with(kFirstColour, QByteArray(kFirstColour) + ",\n\"clr_of_another_age\": \"#123456\"")));
    QVERIFY(resources::setTheme(theme()));
    QCOMPARE(LogLines::notes(),
             QStringList(path() + QStringLiteral(":4: unknown key \"clr_of_another_age\" is ignored")));
    QCOMPARE(resources::color(QStringLiteral("clr_of_another_age")), QColor(0xff, 0x00, 0xff));
    for (const char* name : {"dark", "light"})
        QVERIFY(resources::setTheme(QString::fromLatin1(name)));
    QCOMPARE(LogLines::warnings(), QStringList(QStringLiteral("theme: unknown colour key \"clr_of_another_age\"")));
}

void tst_ThemeFaults::errorsAreSaidHoweverManyKeysWereUnknown()
{
    const LogLines log;
    for (int i = 0; i < 2000; ++i)
        resources::size(QStringLiteral("siz_%1").arg(i), 1.0);
    QVERIFY(LogLines::warnings().size() <= 500);
    LogLines::warnings().clear();
    QVERIFY(writeFile(path(), "[]"));
    QVERIFY(!resources::setTheme(theme()));
    QCOMPARE(LogLines::warnings(), QStringList(path() + QStringLiteral(":1: is not a JSON object")));
}

void tst_ThemeFaults::wrongImagesAreRefused_data()
{
    QTest::addColumn<QByteArray>("image");
    QTest::newRow("empty") << QByteArray("\"\"");
    QTest::newRow("a number") << QByteArray("1");
    QTest::newRow("a way out of the folder") << QByteArray("\"../themes/dark\"");
    QTest::newRow("a file of the system") << QByteArray("\"/etc/passwd\"");
    QTest::newRow("itself, as a record") << QByteArray("{\"img_a\": \"check\"}");
    QTest::newRow("a zero") << QByteArray("\"check\\u0000\"");
}

void tst_ThemeFaults::wrongImagesAreRefused()
{
    QFETCH(QByteArray, image);
    QString said;
    QVERIFY(!readThemeMetrics("{\"sizes\": {}, \"fonts\": {},\n\"images\": {\n\"img_a\": " + image + "}}", said));
    QCOMPARE(said, QStringLiteral("3: \"img_a\" is wrong in \"images\""));
}

void tst_ThemeFaults::aMissingImageIsShownAndSaidOnce()
{
    const LogLines log;
    CPushButton button(CButtonColor(), 1, nullptr);
    button.setIcon(QStringLiteral("img_that_is_gone"), IconAlignCenter, 0);
    button.resize(40, 20);
    for (int time = 0; time < 3; ++time)
        QVERIFY(!button.grab().isNull());
    QVERIFY(LogLines::warnings().size() <= 1);
    QCOMPARE(resources::image(QStringLiteral("img_that_is_gone"), Qt::red, QSize(4, 4), 1.0).toImage().pixelColor(2, 2),
             QColor(0xff, 0x00, 0xff));
}

void tst_ThemeFaults::aHandlerThatThrowsLeavesNobodyOut()
{
    Handler other;
    m_handler->throws = true;
    QVERIFY_EXCEPTION_THROWN(resources::setTheme(QStringLiteral("dark")), std::runtime_error);
    QCOMPARE(resources::theme(), QStringLiteral("dark"));
    QCOMPARE(other.themes, 1);
    m_handler->throws = false;
    QVERIFY(resources::setTheme(QStringLiteral("light")));
    QCOMPARE(other.themes, 2);
    verifyLightInForce(2);
}

QTEST_MAIN(tst_ThemeFaults)
#include "tst_ThemeFaults.moc"
