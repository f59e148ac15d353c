#include "workbench/StateFile.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <cerrno>
#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace workbench;

namespace {

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QStringList filesLike(const QTemporaryDir& folder, const QString& pattern)
{
    return QDir(folder.path()).entryList({pattern}, QDir::Files);
}

/// Puts something that is no file in the place of a path; 0 when that is done.
using Occupant = int (*)(const QByteArray& path);

/// No file grows beyond a size while it lives, as on a disk that is nearly full.
class SmallFiles
{
public:
    explicit SmallFiles(rlim_t size)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit small = m_before;
        small.rlim_cur = size;
        ::setrlimit(RLIMIT_FSIZE, &small);
    }

    ~SmallFiles()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    void (*m_handler)(int);
    rlimit m_before = {};
};

} // namespace

Q_DECLARE_METATYPE(Occupant)

class tst_StateFile : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void whatIsWrittenIsRead();
    void aFileCutAtAnyPlaceIsDamaged();
    void aByteThatChangedIsNoticed();
    void otherBytesAreDamaged_data();
    void otherBytesAreDamaged();
    void valuesOfOtherTypesAreLeftOut();
    void aDamagedFileIsSetAsideAndTold();
    void whatIsNoFileIsSetAsideAndTold_data();
    void whatIsNoFileIsSetAsideAndTold();
    void aFullDiskIsToldAndTheLastStateStays();
    void severalDamagedFilesAreAllKept();
    void aLaterVersionIsReadAndCopied();
    void anUnwritableFolderIsToldOnce();
    void theSameStateIsNotWrittenAgain();
};

void tst_StateFile::whatIsWrittenIsRead()
{
    const StateReading reading = readState(writtenState({{"a", 1}, {"b", {{"c", "文"}}}}));
    QVERIFY(reading.fault == StateFault::None);
    QCOMPARE(intIn(reading.state, "a", 0), 1);
    QCOMPARE(textIn(objectIn(reading.state, "b"), "c"), QStringLiteral("文"));
}

void tst_StateFile::aFileCutAtAnyPlaceIsDamaged()
{
    const QByteArray whole = writtenState({{"look", {{"theme", "light"}, {"scale", 1.25}}}, {"list", {1, 2}}});
    QVERIFY(whole.endsWith("}\n"));
    for (int length = 0; length < whole.size() - 1; ++length) {
        const StateReading reading = readState(whole.left(length));
        QVERIFY2(reading.fault == StateFault::Damaged, qPrintable(QString::number(length)));
        QVERIFY(reading.state.empty());
    }
    QVERIFY(readState(whole.chopped(1)).fault == StateFault::None);
}

void tst_StateFile::aByteThatChangedIsNoticed()
{
    const Json state = {{"layout", "AAAA/wAAAAD9"}, {"cells", {{"2", 0.12}, {"text", "备注 \xff"}}}, {"half", 1.5}};
    const QByteArray whole = writtenState(state);
    const Json before = readState(whole).state;
    QCOMPARE(numberIn(objectIn(before, "cells"), "2", 0), 0.12);
    int noticed = 0;
    for (int place = 0; place < whole.size(); ++place) {
        for (const char other : {'0', '7', 'Q', ' '}) {
            QByteArray changed = whole;
            changed[place] = other;
            const StateReading reading = readState(changed);
            noticed += reading.fault == StateFault::Damaged;
            if (reading.fault == StateFault::Damaged)
                continue;
            // The name of the sum itself, and room between the values.
            for (const auto& member : before.items())
                QVERIFY2(reading.state.value(member.key(), Json()) == member.value(), changed.constData());
        }
    }
    QVERIFY(noticed > 3 * whole.size());
}

void tst_StateFile::otherBytesAreDamaged_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("zeros") << QByteArray(4096, '\0');
    QTest::newRow("no object") << QByteArray("[1]");
    QTest::newRow("no version") << QByteArray("{}");
    QTest::newRow("a version of 0") << QByteArray(R"({"version":0})");
    QTest::newRow("a version that is a text") << QByteArray(R"({"version":"1"})");
    QTest::newRow("no UTF-8") << QByteArray("{\"version\":1,\"a\":\"\xff\"}");
    QTest::newRow("a number out of range") << QByteArray(R"({"version":1,"a":1e999})");
    QTest::newRow("very deep") << QByteArray(R"({"version":1,"a":)") + QByteArray(100000, '[') + QByteArray(100000, ']')
            + '}';
    QTest::newRow("very large") << QByteArray(R"({"version":1,"a":")") + QByteArray(5 * 1024 * 1024, 'x') + "\"}";
}

void tst_StateFile::otherBytesAreDamaged()
{
    QFETCH(QByteArray, bytes);
    const StateReading reading = readState(bytes);
    QVERIFY(reading.fault == StateFault::Damaged);
    QVERIFY(reading.state.empty());
}

void tst_StateFile::valuesOfOtherTypesAreLeftOut()
{
    const Json object = Json::parse(R"({"text":"x","big":3e9,"half":1.5,"list":["a",1,null],"number":7,"null":null})");
    QCOMPARE(intIn(object, "text", 4), 4);
    QCOMPARE(intIn(object, "big", 4), 4);
    QCOMPARE(intIn(object, "half", 4), 4);
    QCOMPARE(intIn(object, "null", 4), 4);
    QCOMPARE(intIn(object, "number", 4), 7);
    QCOMPARE(intIn(Json(), "number", 4), 4);
    QCOMPARE(boolIn(object, "number", true), true);
    QCOMPARE(textIn(object, "number"), QString());
    QCOMPARE(textsIn(object, "list"), QStringList{QStringLiteral("a")});
    QVERIFY(objectIn(object, "list").empty());
}

void tst_StateFile::aDamagedFileIsSetAsideAndTold()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("workbench.json"));
    write(path, "{\"version\":1,");
    StateFile file(path);
    QVERIFY(file.load().empty());
    QVERIFY(!QFile::exists(path));
    const QStringList aside = filesLike(folder, QStringLiteral("workbench.json.damaged-*"));
    QCOMPARE(aside.size(), 1);
    QCOMPARE(bytesOf(folder.filePath(aside.first())), QByteArray("{\"version\":1,"));
    const QStringList messages = file.takeMessages();
    QCOMPARE(messages.size(), 1);
    QVERIFY2(messages.first().contains(aside.first()), qPrintable(messages.first()));
    QVERIFY(file.takeMessages().isEmpty());
    file.store({{"a", 2}});
    QCOMPARE(intIn(StateFile(path).load(), "a", 0), 2);
}

void tst_StateFile::whatIsNoFileIsSetAsideAndTold_data()
{
    QTest::addColumn<Occupant>("occupy");
    QTest::newRow("a folder") << Occupant([](const QByteArray& path) { return ::mkdir(path, 0700); });
    QTest::newRow("a pipe that nobody writes to")
        << Occupant([](const QByteArray& path) { return ::mkfifo(path, 0600); });
    QTest::newRow("a device without an end")
        << Occupant([](const QByteArray& path) { return ::symlink("/dev/zero", path); });
    QTest::newRow("a link to itself") << Occupant([](const QByteArray& path) { return ::symlink(path, path); });
}

void tst_StateFile::whatIsNoFileIsSetAsideAndTold()
{
    QFETCH(Occupant, occupy);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("workbench.json"));
    QCOMPARE(occupy(QFile::encodeName(path)), 0);
    QVERIFY(!stateBytes(path));
    StateFile file(path);
    QVERIFY(file.load().empty());
    const QStringList messages = file.takeMessages();
    QCOMPARE(messages.size(), 1);
    QVERIFY2(messages.first().contains(path + QStringLiteral(".damaged-")), qPrintable(messages.first()));
    file.store({{"a", 1}});
    QCOMPARE(file.takeMessages(), QStringList());
    QCOMPARE(intIn(StateFile(path).load(), "a", 0), 1);
}

void tst_StateFile::aFullDiskIsToldAndTheLastStateStays()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("workbench.json"));
    StateFile file(path);
    file.store({{"a", 1}});
    const QByteArray before = bytesOf(path);
    {
        const SmallFiles limit(1000);
        file.store({{"a", std::string(5000, 'x')}});
    }
    const QStringList messages = file.takeMessages();
    QCOMPARE(messages.size(), 1);
    QVERIFY2(messages.first().endsWith(qt_error_string(EFBIG)), qPrintable(messages.first()));
    QCOMPARE(bytesOf(path), before);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
    file.store({{"a", 2}});
    QCOMPARE(intIn(StateFile(path).load(), "a", 0), 2);
}

void tst_StateFile::severalDamagedFilesAreAllKept()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("workbench.json"));
    for (int i = 0; i < 3; ++i) {
        write(path, "x" + QByteArray::number(i));
        StateFile(path).load();
    }
    QCOMPARE(filesLike(folder, QStringLiteral("workbench.json.damaged-*")).size(), 3);
}

void tst_StateFile::aLaterVersionIsReadAndCopied()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("workbench.json"));
    const QByteArray later = R"({"version":7,"look":{"theme":"light"},"unheard":[1]})";
    write(path, later);
    StateFile file(path);
    const Json state = file.load();
    QCOMPARE(textIn(objectIn(state, "look"), "theme"), QStringLiteral("light"));
    QCOMPARE(file.takeMessages().size(), 1);
    file.store(state);
    QVERIFY(readState(bytesOf(path)).fault == StateFault::None);
    QVERIFY(readState(bytesOf(path)).state.contains("unheard"));
    const QStringList aside = filesLike(folder, QStringLiteral("workbench.json.newer-*"));
    QCOMPARE(aside.size(), 1);
    QCOMPARE(bytesOf(folder.filePath(aside.first())), later);
}

void tst_StateFile::anUnwritableFolderIsToldOnce()
{
    StateFile file(QStringLiteral("/dev/null/none/workbench.json"));
    QVERIFY(file.load().empty());
    QVERIFY(file.takeMessages().isEmpty());
    file.store({{"a", 1}});
    const QStringList messages = file.takeMessages();
    QCOMPARE(messages.size(), 1);
    QVERIFY2(messages.first().contains(QStringLiteral("/dev/null/none")), qPrintable(messages.first()));
    file.store({{"a", 2}});
    QVERIFY(file.takeMessages().isEmpty());
}

void tst_StateFile::theSameStateIsNotWrittenAgain()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("workbench.json"));
    StateFile file(path);
    file.store({{"a", 1}});
    QVERIFY(QFile::remove(path));
    file.store({{"a", 1}});
    QVERIFY(!QFile::exists(path));
    file.store({{"a", 2}});
    QVERIFY(QFile::exists(path));
}

QTEST_GUILESS_MAIN(tst_StateFile)
#include "tst_StateFile.moc"
