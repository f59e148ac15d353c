#include "faults/LogLines.h"
#include "reference/services/ServiceControl.h"
#include "reference/services/TextFile.h"
#include "support/FaultCount.h"

#include <TC/DataCenter.h>

#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using Tasks = std::vector<ttservice::CCodeOrderParam>;

namespace {

constexpr int kMany = 100000;
constexpr int kMegabyte = 1 << 20;

void addFile(const char* name, const QByteArray& json, const char* said)
{
    QTest::newRow(name) << json << QString::fromUtf8(said);
}

QByteArray nested(int depth)
{
    return "[{\"key\":\"a\",\n\"x\":" + QByteArray(depth, '[') + QByteArray(depth, ']') + "}]";
}

/// What is wrong whatever the records mean. A "*" stands for the parser's own words.
void addBrokenFiles()
{
    const QByteArray mark("\xEF\xBB\xBF");
    addFile("empty", "", ":1: *");
    addFile("blank", "\n\n", ":*: *");
    addFile("cut off in a name", "[{\"key\":\"a\"},\n{\"ke", ":2: *");
    addFile("cut off behind a record", "[{\"key\":\"a\"},\n", ":2: *");
    addFile("more behind the list", "[]\n]", ":2: *");
    addFile("a comma too many", "[{\"key\":\"a\"},\n]", ":2: *");
    addFile("one quote instead of two", "[\n{'key':'a'}]", ":2: *");
    addFile("a comment", "[\n// a\n]", ":2: *");
    addFile("no UTF-8", "[{\"key\":\"a\",\n\"name\":\"\xBC\xD7\"}]", ":2: *");
    addFile("half a character", "[{\"key\":\"\xE7\x94\"}]", ":1: *");
    addFile("UTF-16 with its mark", QByteArray("\xFF\xFE[\0]\0", 6), ":1: *");
    addFile("UTF-16 without its mark", QByteArray("[\0]\0", 4), ":1: *");
    addFile("zeros", QByteArray(4096, '\0'), ":1: *");
    addFile("a megabyte of brackets", QByteArray(kMegabyte, '['), ":1: *");
    addFile("a megabyte of open text", "[\"" + QByteArray(kMegabyte, 'x'), ":1: *");
    addFile("nested too deeply", nested(5000), ":2: *");
    addFile("a number beyond all", "[{\"key\":\"a\",\n\"brokerType\":1e999}]", ":2: *");
    addFile("no number", "[{\"key\":\"a\",\n\"brokerType\":NaN}]", ":2: *");
    addFile("an infinity", "[{\"key\":\"a\",\n\"brokerType\":-Infinity}]", ":2: *");
    addFile("a number with a plus", "[{\"key\":\"a\",\n\"brokerType\":+1}]", ":2: *");
    addFile("no list", mark + "{\"key\":\"a\"}", ":1: not a list of records");
    addFile("a text", "\"a\"", ":1: *");
    addFile("a field twice", "[{\"key\":\"a\",\n\"id\":\"1\",\n\"id\":\"2\"}]", ":3: a second \"id\" in one record");
    addFile("a field twice in disguise", "[{\"key\":\"a\",\n\"\\u006bey\":\"b\"}]",
            ":2: a second \"key\" in one record");
    addFile("an unknown field twice", "[{},{\"x\":1},\n{\"x\":1,\"y\":{\"x\":1},\n\"x\":1}]",
            ":3: a second \"x\" in one record");
    addFile("a field twice in a nested record", "[{\"x\":{\"y\":1,\n\"y\":1}}]", ":2: a second \"y\" in one record");
    addFile("a long field twice",
            "[{\"" + QByteArray(kMegabyte, 'x') + "\":1,\n\"" + QByteArray(kMegabyte, 'x') + "\":1}]",
            (":2: a second \"" + QByteArray(80, 'x') + "...\" in one record").constData());
    addFile("null as a record", "[\nnull]", ":2: not a record");
    addFile("a list as a record", "[{\"key\":\"a\"},\n[]]", ":2: not a record");
}

void addBrokenAccounts()
{
    const char* const noInt = ":2: \"brokerType\" is not a whole number of 32 bits";
    addFile("one over 32 bits", "[{\"key\":\"a\",\n\"brokerType\":2147483648}]", noInt);
    addFile("one under 32 bits", "[{\"key\":\"a\",\n\"brokerType\":-2147483649}]", noInt);
    addFile("as large as numbers are", "[{\"key\":\"a\",\n\"brokerType\":1.7e308}]", noInt);
    addFile("as small as numbers are", "[{\"key\":\"a\",\n\"brokerType\":5e-324}]", noInt);
    addFile("true as a number", "[{\"key\":\"a\",\n\"brokerType\":true}]", noInt);
    addFile("null as a number", "[{\"key\":\"a\",\n\"brokerType\":null}]", noInt);
    addFile("a record as a text", "[{\"key\":\"a\",\n\"id\":{}}]", ":2: \"id\" is not a text");
    addFile("an empty key", "[{\"key\":\"a\"},\n{\"key\":\"\"}]", ":2: an account needs a \"key\"");
    addFile("an empty record", "[{\"key\":\"a\"},\n{}]", ":2: an account needs a \"key\"");
    const QByteArray key = "{\"key\":\"" + QByteArray(kMegabyte, 'k') + "\"}";
    addFile("a key of a megabyte twice", '[' + key + ",\n" + key + ']',
            (":2: a second account with the key \"" + QByteArray(80, 'k') + "...\"").constData());
    addFile("a key of two lines twice", "[{\"key\":\"a\\nb\"},\n{\"key\":\"a\\nb\"}]",
            ":2: a second account with the key \"a\xEF\xBF\xBD"
            "b\"");
}

void addBrokenTasks()
{
    addFile("a text as a price", "[{},\n{\"price\":\"10\"}]", ":2: \"price\" is not a number");
    addFile("null as a price", "[{\n\"price\":null}]", ":2: \"price\" is not a number");
    addFile("a volume over 32 bits", "[{\n\"volume\":1e10}]", ":2: \"volume\" is not a whole number of 32 bits");
    addFile("half a share", "[{\n\"volume\":0.5}]", ":2: \"volume\" is not a whole number of 32 bits");
    addFile("a list as a type", "[{\n\"orderType\":[5]}]", ":2: \"orderType\" is not a whole number of 32 bits");
    addFile("a record as an account", "[{\n\"account\":{}}]",
            ":2: \"account\" is neither the key of an account nor null");
    const auto time = [](const char* name, const char* value) {
        addFile(name, QByteArray("[{\n\"validTimeStart\":") + value + "}]",
                ":2: \"validTimeStart\" is neither seconds since the epoch nor an ISO time");
    };
    time("a time beyond 32 bits", "\"2100-01-01T09:30:00\"");
    time("a time before 32 bits", "\"1800-01-01T09:30:00\"");
    time("a day that is none", "\"2024-02-30T09:30:00\"");
    time("an hour that is none", "\"2024-02-28T25:30:00\"");
    time("seconds beyond 32 bits", "3000000000");
    time("true as a time", "true");
    time("null as a time", "null");
    time("an empty time", "\"\"");
}

/// @p expected is a path and what addFile() was told; "*" in it is anything.
bool isSaid(const QString& said, const QString& expected)
{
    const QString pattern = QRegularExpression::escape(expected).replace(QStringLiteral("\\*"), QStringLiteral(".+"));
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(said).hasMatch();
}

QByteArray list(int count, const std::function<QByteArray(const QByteArray& number)>& record)
{
    QByteArray json("[");
    for (int i = 0; i < count; ++i)
        json += (i == 0 ? "" : ",\n") + record(QByteArray::number(i));
    return json + ']';
}

QByteArray plainAccount(const QByteArray& number)
{
    return "{\"key\":\"K" + number + "\",\"brokerType\":2,\"id\":\"" + number + "\",\"name\":\"账户" + number + "\"}";
}

} // namespace

/// A data file is taken whole or not at all; what was there before stays, and the log names file and line, once.
class tst_DataFileFaults : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void cleanupTestCase();
    void everyBrokenAccountFile_data();
    void everyBrokenAccountFile();
    void everyBrokenTaskFile_data();
    void everyBrokenTaskFile();
    void everyPlaceThatIsNoFile_data();
    void everyPlaceThatIsNoFile();
    void everyBeginningOfAFileIsRefused();
    void whatLooksStrangeAndIsGood();
    void oneNoteStandsForAllRecords();
    void aHundredThousandAccounts();
    void theLastOfAHundredThousandIsWrong_data();
    void theLastOfAHundredThousandIsWrong();
    void aHundredThousandTasks();

private:
    void refusesAccounts(const QByteArray& json, const QString& said);
    void refusesTasks(const QByteArray& json, const QString& said);

    QTemporaryDir m_folder;
    QString m_path;
    FaultCount m_count{"data files"};
};

void tst_DataFileFaults::init()
{
    reference::resetServices();
    reference::addAccount("kept", {ttservice::BROKER_TYPE_CREDIT, "880001", "甲"});
    m_path = m_folder.filePath(QStringLiteral("records.json"));
    m_count.begin();
}

void tst_DataFileFaults::cleanup()
{
    QVERIFY(!QFileInfo::exists(m_path) || QFile::remove(m_path));
    if (!QTest::currentTestFailed())
        m_count.end();
}

void tst_DataFileFaults::cleanupTestCase()
{
    m_count.say();
}

void tst_DataFileFaults::refusesAccounts(const QByteArray& json, const QString& said)
{
    const auto kept = TC::DataCenter::instance()->getAccountInfo("kept");
    const LogLines log;
    for (int round = 1; round < 3; ++round) {
        QVERIFY(writeFile(m_path, json));
        const auto report = reference::loadAccounts(m_path);
        QVERIFY2(isSaid(report.error, m_path + said), qPrintable(report.error.left(500)));
        QCOMPARE(reference::loadAccounts(m_path).error, report.error);
        QCOMPARE(LogLines::warnings(), QStringList(report.error));
        QCOMPARE(reference::accountKeys(), std::vector<std::string>({"kept"}));
        QVERIFY(round == 2 || TC::DataCenter::instance()->getAccountInfo("kept") == kept);
        QVERIFY(writeFile(m_path, R"([{"key":"kept"}])") && reference::loadAccounts(m_path).isGood());
        LogLines::warnings().clear();
    }
}

void tst_DataFileFaults::refusesTasks(const QByteArray& json, const QString& said)
{
    const LogLines log;
    Tasks tasks(3);
    tasks[1].code = "kept";
    for (int round = 1; round < 3; ++round) {
        QVERIFY(writeFile(m_path, json));
        const auto report = reference::loadTasks(m_path, tasks);
        QVERIFY2(isSaid(report.error, m_path + said), qPrintable(report.error.left(500)));
        QCOMPARE(reference::loadTasks(m_path, tasks).error, report.error);
        QCOMPARE(LogLines::warnings(), QStringList(report.error));
        QCOMPARE(tasks.size(), std::size_t(3));
        QCOMPARE(tasks[1].code, std::string("kept"));
        Tasks others;
        QVERIFY(writeFile(m_path, "[]") && reference::loadTasks(m_path, others).isGood());
        LogLines::warnings().clear();
    }
}

void tst_DataFileFaults::everyBrokenAccountFile_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("said");
    addBrokenFiles();
    addBrokenAccounts();
}

void tst_DataFileFaults::everyBrokenAccountFile()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, said);
    refusesAccounts(json, said);
}

void tst_DataFileFaults::everyBrokenTaskFile_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("said");
    addBrokenFiles();
    addBrokenTasks();
}

void tst_DataFileFaults::everyBrokenTaskFile()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, said);
    refusesTasks(json, said);
}

void tst_DataFileFaults::everyPlaceThatIsNoFile_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("said");
    QTest::newRow("missing") << 0 << QStringLiteral(": cannot be read: No such file or directory");
    QTest::newRow("a folder") << 1 << QStringLiteral(": is no file");
    QTest::newRow("a pipe") << 2 << QStringLiteral(": is no file");
    QTest::newRow("a link to itself") << 3 << QStringLiteral(": cannot be read: Too many levels of symbolic links");
    QTest::newRow("a file of 300 megabytes") << 4 << QStringLiteral(": is too large");
}

void tst_DataFileFaults::everyPlaceThatIsNoFile()
{
    QFETCH(int, place);
    QFETCH(QString, said);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("place.json"));
    QFile huge(path);
    if (place == 1)
        QVERIFY(QDir().mkdir(path));
    else if (place == 2)
        QCOMPARE(::mkfifo(qPrintable(path), 0600), 0);
    else if (place == 3)
        QVERIFY(QFile::link(path, path));
    else if (place == 4)
        QVERIFY(huge.open(QIODevice::WriteOnly) && huge.resize(300LL * kMegabyte));
    const LogLines log;
    Tasks tasks(3);
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(reference::loadAccounts(path).error, path + said);
        QCOMPARE(reference::loadTasks(path, tasks).error, path + said);
    }
    QCOMPARE(LogLines::warnings(), QStringList(path + said));
    QCOMPARE(reference::accountKeys(), std::vector<std::string>({"kept"}));
    QCOMPARE(tasks.size(), std::size_t(3));
}

void tst_DataFileFaults::everyBeginningOfAFileIsRefused()
{
    const QByteArray whole = "[{\"key\":\"a\\\"\\u00e4\",\"brokerType\":-1.5e1,\n\"id\":\"\xE7\x94\xB2\",\"x\":[{\"y\":"
                             "null}]},\n{\"key\":\"b\"}]";
    const LogLines log;
    for (int length = 0; length < whole.size(); ++length) {
        m_count.begin();
        QVERIFY(writeFile(m_path, whole.left(length)));
        const auto report = reference::loadAccounts(m_path);
        QVERIFY2(report.error.startsWith(m_path + QLatin1Char(':')), qPrintable(QString::number(length)));
        const int line = report.error.mid(m_path.size() + 1).section(QLatin1Char(':'), 0, 0).toInt();
        QVERIFY2(line >= 1 && line <= 1 + whole.left(length).count('\n'), qPrintable(report.error));
        QCOMPARE(reference::accountKeys(), std::vector<std::string>({"kept"}));
        m_count.end();
    }
    QVERIFY(writeFile(m_path, whole) && reference::loadAccounts(m_path).isGood());
    QCOMPARE(reference::accountKeys(), std::vector<std::string>({"a\"\xC3\xA4", "b"}));
}

void tst_DataFileFaults::whatLooksStrangeAndIsGood()
{
    const LogLines log;
    QVERIFY(writeFile(m_path,
                      "\xEF\xBB\xBF\r\n[{\"key\":\"\\u0000\",\"name\":\"\\ud83d\\ude00\",\"id\":\"\"},\t"
                      "{\"id\":\"key\",\"key\":\"id\",\"name\":\"\\\"key\\\":\",\"brokerType\":-2147483648},"
                      "{\"key\":\"2\",\"brokerType\":1.0e0}]"));
    QCOMPARE(reference::loadAccounts(m_path).error, QString());
    QCOMPARE(reference::accountKeys(), std::vector<std::string>({std::string(1, '\0'), "2", "id"}));
    QCOMPARE(TC::DataCenter::instance()->getAccountInfo(std::string(1, '\0'))->accountName,
             std::string("\xF0\x9F\x98\x80"));
    QCOMPARE(int(TC::DataCenter::instance()->getAccountInfo("id")->brokerType), INT_MIN);
    QCOMPARE(int(TC::DataCenter::instance()->getAccountInfo("2")->brokerType), 1);
    QCOMPARE(LogLines::warnings() + LogLines::notes(), QStringList());
    QVERIFY(writeFile(m_path, nested(500)) && reference::loadAccounts(m_path).isGood());
    QCOMPARE(LogLines::notes(), QStringList(m_path + QStringLiteral(":2: unknown field \"x\" is ignored")));
}

void tst_DataFileFaults::oneNoteStandsForAllRecords()
{
    const LogLines log;
    QVERIFY(writeFile(m_path, list(kMany, [](const QByteArray& number) {
                          return "{\"key\":\"K" + number + "\",\"colour\":7,\"size\":[1,{\"colour\":2}]}";
                      })));
    const auto report = reference::loadAccounts(m_path);
    QVERIFY(report.isGood());
    QCOMPARE(report.notes,
             QStringList({m_path + QStringLiteral(":1: unknown field \"colour\" is ignored"),
                          m_path + QStringLiteral(":1: unknown field \"size\" is ignored")}));
    QCOMPARE(LogLines::notes(), report.notes);
    QCOMPARE(reference::accountKeys().size(), std::size_t(kMany));
}

void tst_DataFileFaults::aHundredThousandAccounts()
{
    const LogLines log;
    QVERIFY(writeFile(m_path, list(kMany, plainAccount)));
    const auto report = reference::loadAccounts(m_path);
    QCOMPARE(report.error, QString());
    QCOMPARE(report.notes, QStringList());
    QCOMPARE(reference::accountKeys().size(), std::size_t(kMany));
    for (int i = 0; i < kMany; ++i) {
        const std::string number = std::to_string(i);
        const auto account = TC::DataCenter::instance()->getAccountInfo("K" + number);
        QVERIFY(account);
        QVERIFY(account->accountId == number && account->accountName == "账户" + number && account->brokerType == 2);
    }
    QCOMPARE(LogLines::warnings() + LogLines::notes(), QStringList());
}

void tst_DataFileFaults::theLastOfAHundredThousandIsWrong_data()
{
    QTest::addColumn<QByteArray>("last");
    QTest::addColumn<QString>("said");
    QTest::newRow("a text as a number") << QByteArray("{\"key\":\"a\",\"brokerType\":\"2\"}")
                                        << QStringLiteral(":100000: \"brokerType\" is not a whole number of 32 bits");
    QTest::newRow("the key of the first")
        << QByteArray("{\"key\":\"K0\"}") << QStringLiteral(":100000: a second account with the key \"K0\"");
    QTest::newRow("a field twice") << QByteArray("{\"key\":\"a\",\"id\":\"1\",\"id\":\"1\"}")
                                   << QStringLiteral(":100000: a second \"id\" in one record");
    QTest::newRow("cut off") << QByteArray("{\"key\":\"a\",\"id\":") << QStringLiteral(":100000: *");
}

void tst_DataFileFaults::theLastOfAHundredThousandIsWrong()
{
    QFETCH(QByteArray, last);
    QFETCH(QString, said);
    const QByteArray lastNumber = QByteArray::number(kMany - 1);
    const auto record = [&](const QByteArray& number) { return number == lastNumber ? last : plainAccount(number); };
    const LogLines log;
    QVERIFY(writeFile(m_path, list(kMany, record)));
    const auto report = reference::loadAccounts(m_path);
    QVERIFY2(isSaid(report.error, m_path + said), qPrintable(report.error));
    QCOMPARE(LogLines::warnings(), QStringList(report.error));
    QCOMPARE(reference::accountKeys(), std::vector<std::string>({"kept"}));
}

void tst_DataFileFaults::aHundredThousandTasks()
{
    const LogLines log;
    QVERIFY(writeFile(m_path, list(kMany, [](const QByteArray& number) {
                          return "{\"account\":\"" + QByteArray(number.endsWith('7') ? "gone" : "kept")
                              + "\",\"code\":\"" + number + "\",\"volume\":" + number + ",\"price\":0." + number
                              + ",\"validTimeStart\":\"2024-05-20T09:30:00\"}";
                      })));
    Tasks tasks;
    const auto report = reference::loadTasks(m_path, tasks);
    QCOMPARE(report.error, QString());
    QCOMPARE(report.notes, QStringList(m_path + QStringLiteral(":8: no account \"gone\", the task has none")));
    QCOMPARE(LogLines::notes(), report.notes);
    QCOMPARE(tasks.size(), std::size_t(kMany));
    const auto kept = TC::DataCenter::instance()->getAccountInfo("kept");
    for (int i = 0; i < kMany; ++i) {
        const ttservice::CCodeOrderParam& task = tasks[std::size_t(i)];
        QVERIFY(task.account == (i % 10 == 7 ? nullptr : kept));
        QVERIFY(task.volume == i && task.code == std::to_string(i) && task.validTimeStart == 1716168600);
    }
}

QTEST_GUILESS_MAIN(tst_DataFileFaults)
#include "tst_DataFileFaults.moc"
