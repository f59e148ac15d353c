#include "TextFile.h"
#include "reference/services/ServiceControl.h"

#include <TC/DataCenter.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QString shown(const std::string& key)
{
    const auto account = TC::DataCenter::instance()->getAccountInfo(key);
    if (!account)
        return QStringLiteral("none");
    return QStringLiteral("%1 %2 %3")
        .arg(QString::number(account->brokerType), QString::fromStdString(account->accountId),
             QString::fromStdString(account->accountName));
}

} // namespace

class tst_DataCenter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        reference::resetServices();
        m_path = m_folder.filePath(QStringLiteral("accounts.json"));
    }

    void anAccountIsFoundByItsKey()
    {
        reference::addAccount("A1", {ttservice::BROKER_TYPE_CREDIT, "880001", "甲"});
        QCOMPARE(shown("A1"), QStringLiteral("3 880001 甲"));
        QCOMPARE(shown("A2"), QStringLiteral("none"));
        QCOMPARE(shown(""), QStringLiteral("none"));
    }

    void aReplacedAccountLeavesPointersAlone()
    {
        reference::addAccount("A1", {ttservice::BROKER_TYPE_STOCK, "1", "a"});
        const auto before = TC::DataCenter::instance()->getAccountInfo("A1");
        reference::addAccount("A1", {ttservice::BROKER_TYPE_OPTION, "2", "b"});
        QCOMPARE(before->accountId, std::string("1"));
        QCOMPARE(shown("A1"), QStringLiteral("6 2 b"));
        reference::clearAccounts();
        QCOMPARE(before->accountName, std::string("a"));
        QCOMPARE(shown("A1"), QStringLiteral("none"));
    }

    void aFileReplacesAllAccounts()
    {
        reference::addAccount("old", {});
        load(R"([{"key":"K1","brokerType":1001,"id":"9001","name":"甲号"},{"key":"K2"}])");
        QCOMPARE(m_report.error, QString());
        QCOMPARE(m_report.notes, QStringList());
        QCOMPARE(reference::accountKeys(), std::vector<std::string>({"K1", "K2"}));
        QCOMPARE(shown("K1"), QStringLiteral("1001 9001 甲号"));
        QCOMPARE(shown("K2"), QStringLiteral("0  "));
    }

    void unknownFieldsAreIgnoredWithANote()
    {
        load("[{\"key\":\"K1\",\n\"colour\":7}]");
        QVERIFY(m_report.isGood());
        QCOMPARE(m_report.notes, QStringList({m_path + QStringLiteral(":2: unknown field \"colour\" is ignored")}));
        QCOMPARE(shown("K1"), QStringLiteral("0  "));
    }

    void aBadFileIsSaidWithItsLineAndChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("error");
        const auto row = [](const char* name, const char* json, const char* error) {
            QTest::newRow(name) << QByteArray(json) << QString::fromLatin1(error);
        };
        row("text as broker type", "[{\"key\":\"a\",\"brokerType\":1},\n{\"key\":\"b\",\n\"brokerType\":\"2\"}]",
            ":3: \"brokerType\" is not a whole number of 32 bits");
        row("fraction as broker type", "[{\"key\":\"a\",\n\"brokerType\":1.5}]",
            ":2: \"brokerType\" is not a whole number of 32 bits");
        row("broker type over 32 bits", "[{\"key\":\"a\",\"brokerType\":2147483648}]",
            ":1: \"brokerType\" is not a whole number of 32 bits");
        row("number as name", "[\n{\"key\":\"a\",\"name\":5}]", ":2: \"name\" is not a text");
        row("null as key", "[{\"key\":null}]", ":1: \"key\" is not a text");
        row("no key", "[{\"key\":\"a\"},\n\n{\"id\":\"1\"}]", ":3: an account needs a \"key\"");
        row("key twice", "[{\"key\":\"a\"},\n{\"key\":\"a\"}]", ":2: a second account with the key \"a\"");
        row("not a record", "[\n5]", ":2: not a record");
        row("not a record after others", "[{\"key\":\"a\"},[{\"key\":\"b\"}],\n\"key\"]", ":1: not a record");
        row("not a list", "{\"key\":\"a\"}", ":1: not a list of records");
        row("field named in a nested record", "[{\"x\":{\"brokerType\":1},\n\"key\":\"a\",\n\"brokerType\":\"\"}]",
            ":3: \"brokerType\" is not a whole number of 32 bits");
        row("field named in a text", "[{\"key\":\"\\\"name\\\":\",\n\"id\":\"name\",\n\"name\":[]}]",
            ":3: \"name\" is not a text");
    }

    void aBadFileIsSaidWithItsLineAndChangesNothing()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, error);
        reference::addAccount("kept", {});
        QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(m_path + error));
        load(json);
        QCOMPARE(m_report.error, m_path + error);
        QCOMPARE(reference::accountKeys(), std::vector<std::string>({"kept"}));
        QVERIFY(writeFile(m_path, "[]"));
        QVERIFY(reference::loadAccounts(m_path).isGood());
    }

    void brokenJsonIsSaidWithItsLine()
    {
        for (const char* json : {"[{\"key\":\"a\"},\n", "[{\"key\":\"a\"},\n{\"key\":\"b\"", "[\n}"}) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("accounts.json:2: .+")));
            load(json);
            QVERIFY(!m_report.isGood());
            load("[]");
        }
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("accounts.json:1: .+")));
        load("");
        QVERIFY(!m_report.isGood());
    }

    void anotherEncodingIsSaid()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("accounts.json:2: .*UTF8")));
        load("[{\"key\":\"a\",\n\"name\":\"\xBC\xD7\"}]"); // GB 18030
        QVERIFY(!m_report.isGood());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("accounts.json:1: ")));
        load(QByteArray("\xFF\xFE[\0]\0", 6)); // UTF-16
        QVERIFY(!m_report.isGood());
    }

    void aMissingFileAFolderAndADeviceAreSaid()
    {
        const QString missing = m_folder.filePath(QStringLiteral("missing.json"));
        QTest::ignoreMessage(QtWarningMsg,
                             qUtf8Printable(missing + QLatin1String(": cannot be read: No such file or directory")));
        QVERIFY(!reference::loadAccounts(missing).isGood());
        QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(m_folder.path() + QLatin1String(": is no file")));
        QVERIFY(!reference::loadAccounts(m_folder.path()).isGood());
        QTest::ignoreMessage(QtWarningMsg, "/dev/zero: is no file");
        QVERIFY(!reference::loadAccounts(QStringLiteral("/dev/zero")).isGood());
    }

    void theSameErrorIsWrittenToTheLogOnce()
    {
        QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(m_path + QLatin1String(":1: not a list of records")));
        load("{}");
        load("{}");
        QVERIFY(!m_report.isGood());
        load("[]");
        QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(m_path + QLatin1String(":1: not a list of records")));
        load("{}");
    }

    void aHundredThousandAccountsLoadInOneGo()
    {
        QByteArray json("[");
        for (int i = 0; i < 100000; ++i)
            json += QStringLiteral("%1{\"key\":\"K%2\",\"brokerType\":2,\"id\":\"%2\",\"name\":\"账户%2\",\"x\":0}\n")
                        .arg(i == 0 ? QString() : QStringLiteral(","))
                        .arg(i)
                        .toUtf8();
        QVERIFY(writeFile(m_path, json + ']'));
        QElapsedTimer timer;
        timer.start();
        QVERIFY(reference::loadAccounts(m_path).isGood());
        // A walk over the file for each of them would take many minutes; the rest is room for instrumented builds.
        QVERIFY2(timer.elapsed() < 30000, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(shown("K99999"), QStringLiteral("2 99999 账户99999"));
    }

    void theProjectsAccountsCoverEveryBrokerType()
    {
        const auto report = reference::loadAccounts(reference::dataFolder() + QStringLiteral("/accounts.json"));
        QCOMPARE(report.error, QString());
        QCOMPARE(report.notes, QStringList());
        QSet<int> brokerTypes;
        for (const std::string& key : reference::accountKeys())
            brokerTypes.insert(TC::DataCenter::instance()->getAccountInfo(key)->brokerType);
        QCOMPARE(brokerTypes, QSet<int>({1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 1001, 1002}));
    }

private:
    void load(const QByteArray& json)
    {
        QVERIFY(writeFile(m_path, json));
        m_report = reference::loadAccounts(m_path);
    }

    QTemporaryDir m_folder;
    QString m_path;
    reference::LoadReport m_report;
};

QTEST_GUILESS_MAIN(tst_DataCenter)
#include "tst_DataCenter.moc"
