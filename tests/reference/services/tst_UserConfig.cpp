#include "TextFile.h"
#include "reference/services/ServiceControl.h"

#include <TC/CUserConfig.h>
#include <luawrapper/LuaModuleCtrl.h>

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

int mode()
{
    return TC::getUserConfig()->clientMode();
}

QStringList modules()
{
    QStringList names = reference::modules().values();
    names.sort();
    return names;
}

/// The warnings said while it lives; they do not reach the test's own log.
class WarningLog
{
public:
    WarningLog()
    {
        lines().clear();
        m_before = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
            if (type == QtWarningMsg)
                lines().append(text);
        });
    }

    WarningLog(const WarningLog&) = delete;
    WarningLog& operator=(const WarningLog&) = delete;

    ~WarningLog()
    {
        qInstallMessageHandler(m_before);
    }

    static QStringList& lines()
    {
        static QStringList theLines;
        return theLines;
    }

private:
    QtMessageHandler m_before = nullptr;
};

} // namespace

class tst_UserConfig : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        reference::resetServices();
        m_path = m_folder.filePath(QStringLiteral("orderparam.ini"));
        QFile::remove(m_path);
    }

    void cleanupTestCase()
    {
        reference::resetServices();
    }

    void withoutAFileModeIs0AndModulesAreOff()
    {
        QCOMPARE(mode(), 0);
        QCOMPARE(modules(), QStringList());
    }

    void theFileSetsModeAndModules_data()
    {
        QTest::addColumn<QByteArray>("ini");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QStringList>("modules");
        const auto row = [](const char* name, const char* ini, int clientMode, const QStringList& on) {
            QTest::newRow(name) << QByteArray(ini) << clientMode << on;
        };
        const QString a = QStringLiteral("mdl_order/a");
        const QString b = QStringLiteral("mdl_alg/b");
        row("both", "[client]\nmode=100\n[modules]\non=mdl_order/a, mdl_alg/b\n", 100, {b, a});
        row("mode alone", "[client]\nmode=-7\n", -7, {});
        row("one module", "[modules]\non=mdl_order/a\n", 0, {a});
        row("no modules", "[modules]\non=\n", 0, {});
        row("empty file", "", 0, {});
        row("over two lines", "[modules]\non=mdl_order/a, \\\n   mdl_alg/b\n", 0, {b, a});
        row("quoted", "[modules]\non=\"mdl_order/a\", \"mdl_alg/b\"\n", 0, {b, a});
        row("comments", "# one\n; two\n[client]\nmode=101 ; three\n", 101, {});
        row("line ends of another system", "[client]\r\nmode=100\r\n[modules]\r\non=mdl_order/a\r\n", 100, {a});
        row("with a byte order mark", "\xEF\xBB\xBF[client]\nmode=100\n", 100, {});
        row("no line end at the end", "[client]\nmode=100", 100, {});
    }

    void theFileSetsModeAndModules()
    {
        QFETCH(QByteArray, ini);
        QFETCH(int, mode);
        QFETCH(QStringList, modules);
        reference::setClientMode(1);
        reference::setModule(QStringLiteral("x/y"), true);
        QVERIFY(writeFile(m_path, ini));
        const auto report = reference::loadConfiguration(m_path);
        QCOMPARE(report.error, QString());
        QCOMPARE(report.notes, QStringList());
        QCOMPARE(::mode(), mode);
        QCOMPARE(::modules(), modules);
    }

    void unknownKeysAreIgnoredWithANote()
    {
        QVERIFY(writeFile(m_path, "[client]\nmode=100\nMode=5\n\n[window]\nwidth=7\n"));
        const auto report = reference::loadConfiguration(m_path);
        QVERIFY(report.isGood());
        QCOMPARE(report.notes,
                 QStringList({m_path + QStringLiteral(":3: unknown key \"client/Mode\" is ignored"),
                              m_path + QStringLiteral(":6: unknown key \"window/width\" is ignored")}));
        QCOMPARE(mode(), 100);
    }

    void aBadFileIsSaidWithItsLineAndTheLastGoodKept_data()
    {
        QTest::addColumn<QByteArray>("ini");
        QTest::addColumn<QString>("error");
        const auto row = [](const char* name, const QByteArray& ini, const char* error) {
            QTest::newRow(name) << ini << QString::fromLatin1(error);
        };
        row("mode is a text", "[client]\n\nmode=live\n", ":3: the client mode is not a whole number of 32 bits");
        row("mode is empty", "[client]\nmode=\n", ":2: the client mode is not a whole number of 32 bits");
        row("mode is a list", "[client]\nmode=1,2\n", ":2: the client mode is not a whole number of 32 bits");
        row("mode over 32 bits", "[client]\nmode=4294967296\n", ":2: the client mode is not a whole number of 32 bits");
        row("module without group", "[client]\nmode=100\n[modules]\non=a/b, c\n",
            ":4: \"c\" is not a module of the form group/module");
        row("module of three", "[modules]\non=a/b/c\n", ":2: \"a/b/c\" is not a module of the form group/module");
        row("section not closed", "[client\nmode=100\n", ":1: a section without \"]\"");
        row("half a line", "[client]\nmode=100\n[modules]\no", ":4: neither a [section] nor key=value");
        row("no key", "[client]\n=100\n", ":2: neither a [section] nor key=value");
        row("open quote", "[modules]\non=\"a/b\n", ":2: a quote that is not closed");
        row("stored object", "[client]\nmode=@Variant(\\0\\0\\0\\x1a)\n",
            ":2: a value that is neither a number nor a text");
        row("another encoding", "[client]\nmode=100\n[modules]\non=\xBC\xD7/x\n", ":4: not UTF-8");
        row("another 16-bit encoding", QByteArray("\xFF\xFE[\0", 4), ":1: not UTF-8");
    }

    void aBadFileIsSaidWithItsLineAndTheLastGoodKept()
    {
        QFETCH(QByteArray, ini);
        QFETCH(QString, error);
        reference::setClientMode(42);
        reference::setModules({QStringLiteral("kept/on")});
        QVERIFY(writeFile(m_path, ini));
        QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(m_path + error));
        const auto report = reference::loadConfiguration(m_path);
        QCOMPARE(report.error, m_path + error);
        QCOMPARE(mode(), 42);
        QCOMPARE(modules(), QStringList({QStringLiteral("kept/on")}));
        QVERIFY(writeFile(m_path, ""));
        QVERIFY(reference::loadConfiguration(m_path).isGood());
    }

    void aChangeOfTheFileIsReadWhileRunning()
    {
        QVERIFY(writeFile(m_path, "[client]\nmode=100\n"));
        QVERIFY(reference::loadConfiguration(m_path).isGood());
        QVERIFY(writeFile(m_path, "[client]\nmode=101\n")); // of the same length, at once
        QTRY_COMPARE(mode(), 101);
        QVERIFY(writeFile(m_path, "[client]\nmode=102\n[modules]\non=a/b\n"));
        QTRY_COMPARE(mode(), 102);
        QCOMPARE(modules(), QStringList({QStringLiteral("a/b")}));
    }

    void aReplacedFileIsReadAndWatchedOn()
    {
        QVERIFY(writeFile(m_path, "[client]\nmode=1\n"));
        QVERIFY(reference::loadConfiguration(m_path).isGood());
        for (int next = 2; next < 5; ++next) {
            const QString fresh = m_path + QStringLiteral(".new");
            QVERIFY(writeFile(fresh, "[client]\nmode=" + QByteArray::number(next) + '\n'));
            QCOMPARE(::rename(fresh.toLocal8Bit(), m_path.toLocal8Bit()), 0);
            QTRY_COMPARE(mode(), next);
        }
    }

    void aMissingFileIsSaidAndReadWhenItAppears()
    {
        QTest::ignoreMessage(QtWarningMsg,
                             qUtf8Printable(m_path + QLatin1String(": cannot be read: No such file or directory")));
        QVERIFY(!reference::loadConfiguration(m_path).isGood());
        QVERIFY(writeFile(m_path, "[client]\nmode=9\n"));
        QTRY_COMPARE(mode(), 9);
    }

    void aFileThatTurnsBadOrVanishesKeepsTheLastGoodAndIsSaid()
    {
        QVERIFY(writeFile(m_path, "[client]\nmode=100\n"));
        QVERIFY(reference::loadConfiguration(m_path).isGood());
        const WarningLog log;
        QVERIFY(writeFile(m_path, "rubbish\n"));
        QTRY_COMPARE(WarningLog::lines(),
                     QStringList({m_path + QStringLiteral(":1: neither a [section] nor key=value")}));
        QVERIFY(QFile::remove(m_path));
        QTRY_COMPARE(WarningLog::lines().size(), 2);
        QCOMPARE(WarningLog::lines().last(), m_path + QStringLiteral(": cannot be read: No such file or directory"));
        QCOMPARE(mode(), 100);
        QVERIFY(writeFile(m_path, "[client]\nmode=101\n"));
        QTRY_COMPARE(mode(), 101);
        QCOMPARE(WarningLog::lines().size(), 2);
    }

    void afterAResetNothingWatchesTheFile()
    {
        const int before = QCoreApplication::instance()->children().size();
        QVERIFY(writeFile(m_path, "[client]\nmode=100\n"));
        QVERIFY(reference::loadConfiguration(m_path).isGood());
        QCOMPARE(QCoreApplication::instance()->children().size(), before + 1);
        reference::resetServices();
        QCOMPARE(QCoreApplication::instance()->children().size(), before);
        QCOMPARE(mode(), 0);
    }

    void theHintIsEmittedWithItsArguments()
    {
        QSignalSpy hints(TC::getUserConfig(), &TC::CUserConfig::sigShouldHintAlgorithm);
        reference::emitAlgorithmHint(5, true);
        reference::emitAlgorithmHint(-1, false);
        QCOMPARE(hints, QList<QList<QVariant>>({{5, true}, {-1, false}}));
    }

    void theProjectsConfigurationIsGood()
    {
        const auto report = reference::loadConfiguration(reference::dataFolder() + QStringLiteral("/orderparam.ini"));
        QCOMPARE(report.error, QString());
        QCOMPARE(report.notes, QStringList());
        QVERIFY(!modules().isEmpty());
    }

private:
    QTemporaryDir m_folder;
    QString m_path;
};

QTEST_GUILESS_MAIN(tst_UserConfig)
#include "tst_UserConfig.moc"
