#include "faults/LogLines.h"
#include "reference/services/ServiceControl.h"
#include "reference/services/TextFile.h"
#include "support/FaultCount.h"

#include <TC/CUserConfig.h>

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>
#include <sys/stat.h>

namespace {

constexpr int kMegabyte = 1 << 20;

const char kGood[] = "[client]\nmode=100\n[modules]\non=mdl_order/a, mdl_alg/b\n";
const char kOther[] = "[client]\nmode=101\n";

/// What is in force, "100 mdl_alg/b mdl_order/a".
QString inForce()
{
    QStringList modules = reference::modules().values();
    modules.sort();
    modules.prepend(QString::number(TC::getUserConfig()->clientMode()));
    return modules.join(QLatin1Char(' '));
}

const QString kGoodInForce = QStringLiteral("100 mdl_alg/b mdl_order/a");
const QString kOtherInForce = QStringLiteral("101");

QByteArray utf16(const char* text, const QByteArray& mark)
{
    QByteArray bytes = mark;
    for (; *text; ++text)
        bytes.append(*text).append('\0');
    return bytes;
}

/// Puts something in the place of the file; answers whether it could.
using Fault = std::function<bool(const QString& path)>;

struct FaultRow
{
    const char* name;
    Fault fault;
    QString said; ///< after the path
};

/// Writers that are careful write beside the file and rename.
bool replaceFile(const QString& path, const QByteArray& bytes)
{
    const QString fresh = path + QStringLiteral(".new");
    return writeFile(fresh, bytes) && ::rename(qPrintable(fresh), qPrintable(path)) == 0;
}

bool removeAll(const QString& path)
{
    const QFileInfo info(path);
    if (info.isDir() && !info.isSymLink())
        return QDir(path).removeRecursively();
    return (!info.exists() && !info.isSymLink()) || QFile::remove(path);
}

FaultRow text(const char* name, const QByteArray& bytes, const QString& said)
{
    return {name, [bytes](const QString& path) { return removeAll(path) && replaceFile(path, bytes); }, said};
}

FaultRow thing(const char* name, const QString& said, Fault make)
{
    return {name, [make](const QString& path) { return removeAll(path) && make(path); }, said};
}

QString line(int number, const char* what)
{
    return QStringLiteral(":%1: ").arg(number) + QString::fromUtf8(what);
}

// clang-format off
std::vector<FaultRow> faults()
{
    const QString noFile = QStringLiteral(": is no file");
    const QString missing = QStringLiteral(": cannot be read: No such file or directory");
    const char* const noMode = "the client mode is not a whole number of 32 bits";
    const char* const noEntry = "neither a [section] nor key=value";
    const char* const noText = "a control character, which no text has";
    const char* const noValue = "a value that is neither a number nor a text";
    const QByteArray client("[client]\nmode=100\n");
    return {
        thing("missing", missing, [](const QString&) { return true; }),
        thing("a folder", noFile, [](const QString& path) { return QDir().mkdir(path); }),
        thing("a pipe", noFile, [](const QString& path) { return ::mkfifo(qPrintable(path), 0600) == 0; }),
        thing("a device that never ends", noFile, [](const QString& path) { return QFile::link(QStringLiteral("/dev/zero"), path); }),
        thing("a link to nothing", missing, [](const QString& path) { return QFile::link(path + QStringLiteral(".gone"), path); }),
        thing("a link to itself", QStringLiteral(": cannot be read: Too many levels of symbolic links"),
              [](const QString& path) { return QFile::link(path, path); }),
        thing("a file of 300 megabytes", QStringLiteral(": is too large"),
              [](const QString& path) { QFile file(path); return file.open(QIODevice::WriteOnly) && file.resize(300LL * kMegabyte); }),

        text("cut off in a key", client + "[modules]\no", line(4, noEntry)),
        text("cut off in a section", client + "[mod", line(3, "a section without \"]\"")),
        text("cut off in a quote", client + "[modules]\non=\"mdl_order/a", line(4, "a quote that is not closed")),
        text("cut off in a module", client + "[modules]\non=mdl_order/a, mdl", line(4, "\"mdl\" is not a module of the form group/module")),
        text("cut off before a line's other half", client + "[modules]\non=mdl_order/a, \\\n", line(4, "the line goes on, and nothing follows")),
        text("cut off before a value", "[client]\nmode=", line(2, noMode)),

        text("the mode is a fraction", "[client]\nmode=1.5\n", line(2, noMode)),
        text("the mode is a megabyte of digits", "[client]\nmode=" + QByteArray(kMegabyte, '1') + '\n', line(2, noMode)),
        text("a megabyte without a line end", QByteArray(kMegabyte, 'x'), line(1, noEntry)),
        text("a megabyte behind good lines", client + QByteArray(kMegabyte, 'x') + '\n', line(3, noEntry)),
        text("a module of a megabyte", "[modules]\non=" + QByteArray(kMegabyte, 'm') + '\n',
             QStringLiteral(":2: \"") + QString(80, QLatin1Char('m')) + QStringLiteral("...\" is not a module of the form group/module")),
        text("a megabyte of open quote", "[modules]\non=\"" + QByteArray(kMegabyte, '\\') + "\n", line(2, "a quote that is not closed")),

        text("no UTF-8 in a value", client + "[modules]\non=\xBC\xD7/x\n", line(4, "not UTF-8")),
        text("no UTF-8 in a comment", "# \xC3\x28\n" + client, line(1, "not UTF-8")),
        text("half a character at the end", client + "# \xE4\xB8\n", line(3, "not UTF-8")),
        text("UTF-16 with its mark", utf16(kGood, "\xFF\xFE"), line(1, "not UTF-8")),
        text("UTF-16 without its mark", utf16(kGood, QByteArray()), line(1, noText)),
        text("zeros", QByteArray(4096, '\0'), line(1, noText)),
        text("a program", QByteArray("\x7f" "ELF\2\1\1\0\0\n", 10), line(1, noText)),
        text("a zero behind the number", QByteArray("[client]\nmode=100\0\n", 19), line(2, noText)),
        text("line ends of another age", "[client]\rmode=100\r", line(1, noText)),

        text("the key twice", client + "mode=101\n", line(3, "a second \"client/mode\", the first is in line 2")),
        text("the key twice, its section too", client + "[modules]\non=a/b\n[client]\nmode=100\n",
             line(6, "a second \"client/mode\", the first is in line 2")),
        text("an unknown key twice", "[window]\nwidth=1\nwidth=2\n" + client, line(3, "a second \"window/width\", the first is in line 2")),
        text("the key in disguise", client + "m%6Fde=101\n", line(3, "a name with \"%\" or \"\\\"")),
        text("the section in disguise", client + "[cl\\ient]\nmode=101\n", line(3, "a name with \"%\" or \"\\\"")),
        text("a section and more", "[client] mode=100\n", line(1, "more than a [section]")),
        text("a quote over two lines", "[modules]\non=a/b, \\\n\"c/d\n[client]\nmode=5\n", line(3, "a quote that is not closed")),
        text("a stored object among modules", "[modules]\non=a/b, @Variant(\\0\\0\\0\\x1a)\n", line(2, noValue)),
        text("a stored object in disguise", "[modules]\non=\\x40Variant(x)\n", line(2, noValue)),
        text("a stored object on another line", "[modules]\non=a/b, \\\n @Point(1 2)\n", line(3, noValue)),
        text("a stored object behind an escape", "[modules]\non=\\z@Point(1 2)\n", line(2, noValue)),
    };
}
// clang-format on

} // namespace

/// Whatever happens to the configuration file, the last good one stays in force and the log names file and line, once.
class tst_ConfigurationFaults : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void cleanupTestCase();
    void everyFaultOfALoad_data();
    void everyFaultOfALoad();
    void everyFaultWhileRunning_data();
    void everyFaultWhileRunning();
    void errorsInTurnAreSaidOnceEach();
    void messagesAreOneShortLine();
    void goodFilesThatLookStrange_data();
    void goodFilesThatLookStrange();
    void halfAValueIsNeverTaken();
    void anEmptiedFileIsTakenWhenItStaysEmpty();
    void anEmptyFileAfterADeletedOneIsTaken();
    void theSameFileAfterADeletedOneIsGoodAgain();
    void aFolderThatIsReplacedIsFollowed();
    void aLinkIsFollowedToItsFile();
    void manyReplacementsEndWithTheLast();
    void aTemporaryFolderThatIsNoneIsNamed();

private:
    /// The watch has looked at the file since @p act began; a look that takes nothing is seen by this alone.
    void lookAfter(const std::function<bool()>& act);

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    FaultCount m_count{"configuration file"};
};

void tst_ConfigurationFaults::init()
{
    reference::resetServices();
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath(QStringLiteral("orderparam.ini"));
    QVERIFY(writeFile(m_path, kGood));
    QVERIFY(reference::loadConfiguration(m_path).isGood());
    QCOMPARE(inForce(), kGoodInForce);
    m_count.begin();
}

void tst_ConfigurationFaults::cleanup()
{
    reference::resetServices();
    if (!QTest::currentTestFailed())
        m_count.end();
}

void tst_ConfigurationFaults::cleanupTestCase()
{
    m_count.say();
}

void tst_ConfigurationFaults::lookAfter(const std::function<bool()>& act)
{
    const auto timers = QCoreApplication::instance()->findChildren<QTimer*>();
    QCOMPARE(timers.size(), 1);
    QSignalSpy looks(timers.first(), &QTimer::timeout);
    QVERIFY(act());
    QTRY_VERIFY(looks.count() > 0);
}

void tst_ConfigurationFaults::everyFaultOfALoad_data()
{
    QTest::addColumn<int>("row");
    const auto rows = faults();
    for (std::size_t i = 0; i < rows.size(); ++i)
        QTest::newRow(rows[i].name) << int(i);
}

void tst_ConfigurationFaults::everyFaultOfALoad()
{
    QFETCH(int, row);
    const FaultRow fault = faults()[std::size_t(row)];
    const QStringList said(m_path + fault.said);
    const LogLines log;
    for (int round = 0; round < 2; ++round) {
        QVERIFY(fault.fault(m_path));
        QCOMPARE(reference::loadConfiguration(m_path).error, said.first());
        QCOMPARE(reference::loadConfiguration(m_path).error, said.first());
        QCOMPARE(inForce(), kGoodInForce);
        QCOMPARE(LogLines::warnings(), said);
        QCOMPARE(LogLines::notes(), QStringList());
        QVERIFY(removeAll(m_path) && writeFile(m_path, kGood));
        QVERIFY(reference::loadConfiguration(m_path).isGood());
        LogLines::warnings().clear();
    }
}

void tst_ConfigurationFaults::everyFaultWhileRunning_data()
{
    everyFaultOfALoad_data();
}

void tst_ConfigurationFaults::everyFaultWhileRunning()
{
    QFETCH(int, row);
    const FaultRow fault = faults()[std::size_t(row)];
    const QStringList said(m_path + fault.said);
    const LogLines log;
    QVERIFY(fault.fault(m_path));
    QTRY_COMPARE(LogLines::warnings(), said);
    QCOMPARE(inForce(), kGoodInForce);
    lookAfter([&] { return writeFile(m_path + QStringLiteral(".other"), "a neighbour"); });
    QCOMPARE(LogLines::warnings(), said);
    QVERIFY(removeAll(m_path) && replaceFile(m_path, kOther));
    QTRY_COMPARE(inForce(), kOtherInForce);
    // Between the two steps the file is missing, which may have been seen.
    LogLines::warnings().clear();
    QVERIFY(fault.fault(m_path));
    QTRY_VERIFY(LogLines::warnings().contains(said.first()));
    QCOMPARE(LogLines::warnings().count(said.first()), 1);
    QCOMPARE(inForce(), kOtherInForce);
}

void tst_ConfigurationFaults::errorsInTurnAreSaidOnceEach()
{
    const LogLines log;
    for (int round = 0; round < 3; ++round) {
        for (const char* bad : {"rubbish\n", "[client]\nmode=x\n"}) {
            QVERIFY(writeFile(m_path, bad));
            QVERIFY(!reference::loadConfiguration(m_path).isGood());
        }
    }
    QCOMPARE(LogLines::warnings(),
             QStringList({m_path + line(1, "neither a [section] nor key=value"),
                          m_path + line(2, "the client mode is not a whole number of 32 bits")}));
    QCOMPARE(inForce(), kGoodInForce);
}

void tst_ConfigurationFaults::messagesAreOneShortLine()
{
    const LogLines log;
    QVERIFY(writeFile(m_path, "[x]\n" + QByteArray(kMegabyte, 'k') + "=1\n[client]\nmode=7\n"));
    const auto report = reference::loadConfiguration(m_path);
    QVERIFY(report.isGood());
    QCOMPARE(report.notes,
             QStringList(m_path + QStringLiteral(":2: unknown key \"x/") + QString(78, QLatin1Char('k'))
                         + QStringLiteral("...\" is ignored")));
    QCOMPARE(inForce(), QStringLiteral("7"));
}

void tst_ConfigurationFaults::goodFilesThatLookStrange_data()
{
    QTest::addColumn<QByteArray>("ini");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const QByteArray& ini, const char* expected) {
        QTest::newRow(name) << ini << QString::fromLatin1(expected);
    };
    QByteArray modules("[modules]\non=");
    for (int i = 0; i < 1000; ++i)
        modules += "a/b, ";
    row("a comment of a megabyte", '#' + QByteArray(kMegabyte, '#') + "\n[client]\nmode=5\n", "5");
    row("a module a thousand times", modules + "c/d\n", "0 a/b c/d");
    row("quotes in a comment", "[client]\nmode=5 ; it's \"so\n", "5");
    row("a comment that ends in a backslash", "[client]\nmode=5 ; \\\n[modules]\non=a/b\n", "5 a/b");
    row("a comment behind a section", "[client] ; here\nmode=5\n", "5");
    row("blanks in a section", "[ client ]\nmode = 5\n", "5");
    row("a quote over two lines that go on", "[modules]\non=\"a/b\", \\\n\"c/d\"\n", "0 a/b c/d");
    row("a mark inside a module", "[modules]\non=a/b@c\n", "0 a/b@c");
    row("a tab", "[client]\n\tmode\t=\t5\n", "5");
    row("nothing but blank lines", "\n\n\n", "0");
}

void tst_ConfigurationFaults::goodFilesThatLookStrange()
{
    QFETCH(QByteArray, ini);
    QFETCH(QString, expected);
    QVERIFY(writeFile(m_path, ini));
    const auto report = reference::loadConfiguration(m_path);
    QCOMPARE(report.error, QString());
    QCOMPARE(report.notes, QStringList());
    QCOMPARE(inForce(), expected);
}

void tst_ConfigurationFaults::halfAValueIsNeverTaken()
{
    const LogLines log;
    lookAfter([this] { return replaceFile(m_path, "[client]\nmode=10"); });
    QCOMPARE(inForce(), kGoodInForce);
    QVERIFY(replaceFile(m_path, "[client]\nmode=102\n"));
    QTRY_COMPARE(inForce(), QStringLiteral("102"));
    QVERIFY(replaceFile(m_path, "[client]\nmode=10"));
    QTRY_COMPARE(inForce(), QStringLiteral("10"));
    QCOMPARE(LogLines::warnings(), QStringList());
}

void tst_ConfigurationFaults::anEmptiedFileIsTakenWhenItStaysEmpty()
{
    lookAfter([this] { return writeFile(m_path, QByteArray()); });
    QCOMPARE(inForce(), kGoodInForce);
    QTRY_COMPARE(inForce(), QStringLiteral("0"));
}

void tst_ConfigurationFaults::anEmptyFileAfterADeletedOneIsTaken()
{
    const LogLines log;
    QVERIFY(QFile::remove(m_path));
    QTRY_COMPARE(LogLines::warnings().size(), 1);
    QCOMPARE(inForce(), kGoodInForce);
    QVERIFY(writeFile(m_path, QByteArray()));
    QTRY_COMPARE(inForce(), QStringLiteral("0"));
    QVERIFY(QFile::remove(m_path));
    QTRY_COMPARE(LogLines::warnings().size(), 2);
}

void tst_ConfigurationFaults::theSameFileAfterADeletedOneIsGoodAgain()
{
    const LogLines log;
    for (int round = 1; round < 4; ++round) {
        QVERIFY(QFile::remove(m_path));
        QTRY_COMPARE(LogLines::warnings().size(), round);
        reference::setClientMode(-5);
        QVERIFY(replaceFile(m_path, kGood));
        QTRY_COMPARE(inForce(), kGoodInForce);
    }
}

void tst_ConfigurationFaults::aFolderThatIsReplacedIsFollowed()
{
    const QString folder = m_folder->filePath(QStringLiteral("a/b"));
    const QString path = folder + QStringLiteral("/orderparam.ini");
    const LogLines log;
    QVERIFY(!reference::loadConfiguration(path).isGood());
    for (const char* next : {kOther, kGood}) {
        QVERIFY(QDir().mkpath(folder) && writeFile(path, next));
        QTRY_COMPARE(inForce(), next == kGood ? kGoodInForce : kOtherInForce);
        LogLines::warnings().clear();
        QVERIFY(QDir(m_folder->filePath(QStringLiteral("a"))).removeRecursively());
        QTRY_COMPARE(LogLines::warnings().size(), 1);
        QVERIFY(LogLines::warnings().first().startsWith(path + QStringLiteral(": cannot be read: ")));
    }
}

void tst_ConfigurationFaults::aLinkIsFollowedToItsFile()
{
    const QTemporaryDir elsewhere;
    const QString target = elsewhere.filePath(QStringLiteral("real.ini"));
    const QString link = m_folder->filePath(QStringLiteral("link.ini"));
    const LogLines log;
    QVERIFY(QFile::link(target, link));
    QVERIFY(!reference::loadConfiguration(link).isGood());
    QVERIFY(replaceFile(target, kOther));
    QTRY_COMPARE(inForce(), kOtherInForce);
    QVERIFY(replaceFile(target, kGood));
    QTRY_COMPARE(inForce(), kGoodInForce);
    QVERIFY(replaceFile(target + QStringLiteral("2"), kOther));
    QVERIFY(QFile::link(target + QStringLiteral("2"), link + QStringLiteral("2")));
    QCOMPARE(::rename(qPrintable(link + QStringLiteral("2")), qPrintable(link)), 0);
    QTRY_COMPARE(inForce(), kOtherInForce);
    QCOMPARE(LogLines::warnings().size(), 1);
}

void tst_ConfigurationFaults::manyReplacementsEndWithTheLast()
{
    const LogLines log;
    for (int next = 1; next <= 300; ++next) {
        const QByteArray number = QByteArray::number(next);
        QVERIFY(replaceFile(m_path, "[client]\nmode=" + number + "\n[modules]\non=m/" + number + '\n'));
        QCoreApplication::processEvents();
        const QStringList now = inForce().split(QLatin1Char(' '));
        QVERIFY2(inForce() == kGoodInForce || now == QStringList({now.first(), QStringLiteral("m/") + now.first()}),
                 qPrintable(inForce()));
    }
    QTRY_COMPARE(inForce(), QStringLiteral("300 m/300"));
    QCOMPARE(LogLines::warnings(), QStringList());
}

void tst_ConfigurationFaults::aTemporaryFolderThatIsNoneIsNamed()
{
    const QByteArray before = qgetenv("TMPDIR");
    const QString noFolder = m_folder->filePath(QStringLiteral("file"));
    QVERIFY(writeFile(noFolder, "no folder"));
    const LogLines log;
    qputenv("TMPDIR", noFolder.toLocal8Bit());
    const auto report = reference::loadConfiguration(m_path);
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    QVERIFY2(
        report.error.startsWith(m_path + QStringLiteral(": cannot be copied to ") + noFolder + QLatin1String(": ")),
        qPrintable(report.error));
    QCOMPARE(inForce(), kGoodInForce);
}

QTEST_GUILESS_MAIN(tst_ConfigurationFaults)
#include "tst_ConfigurationFaults.moc"
