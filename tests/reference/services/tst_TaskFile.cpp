#include "TextFile.h"
#include "reference/services/ServiceControl.h"

#include <QDateTime>
#include <QTemporaryDir>
#include <QtTest>

using Tasks = std::vector<ttservice::CCodeOrderParam>;

class tst_TaskFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        reference::resetServices();
        m_path = m_folder.filePath(QStringLiteral("tasks.json"));
        m_tasks.clear();
    }

    void everyFieldIsRead()
    {
        reference::addAccount("K1", {ttservice::BROKER_TYPE_OPTION, "6001", "期权账户"});
        load(R"([{"account":"K1","operationType":25,"orderType":7,"code":"90000001","name":"合约","priceType":11,
                  "price":0.1234,"volume":-5,"validTimeStart":1716168600,"validTimeEnd":"2024-05-20T15:00:00"}])");
        QCOMPARE(m_report.error, QString());
        QCOMPARE(m_tasks.size(), size_t(1));
        const auto& task = m_tasks.front();
        QVERIFY(task.account);
        QCOMPARE(task.account->accountId, std::string("6001"));
        QCOMPARE(int(task.operationType), 25);
        QCOMPARE(int(task.orderType), 7);
        QCOMPARE(task.code, std::string("90000001"));
        QCOMPARE(task.name, std::string("合约"));
        QCOMPARE(int(task.priceType), 11);
        QCOMPARE(task.price, 0.1234);
        QCOMPARE(task.volume, -5);
        QCOMPARE(task.validTimeStart, 1716168600);
        QCOMPARE(task.validTimeEnd, 1716188400); // 15:00 in Shanghai
    }

    void whatIsLeftOutKeepsItsDefault()
    {
        load(R"([{},{"account":null}])");
        QVERIFY(m_report.isGood());
        QCOMPARE(m_tasks.size(), size_t(2));
        const auto& task = m_tasks.front();
        QVERIFY(!task.account && !m_tasks.back().account);
        QCOMPARE(int(task.operationType) + int(task.orderType) + int(task.priceType) + task.volume, 0);
        QCOMPARE(task.price, 0.0);
        QVERIFY(task.code.empty() && task.name.empty());
        QCOMPARE(task.validTimeStart + task.validTimeEnd, 0);
    }

    void anAccountThatIsNotLoadedIsNoted()
    {
        load("[{},\n{\"account\":\"K9\"}]");
        QVERIFY(m_report.isGood());
        QCOMPARE(m_report.notes, QStringList({m_path + QStringLiteral(":2: no account \"K9\", the task has none")}));
        QVERIFY(!m_tasks.back().account);
    }

    void vocabularyValuesMayBeUnknown()
    {
        load(R"([{"operationType":-2147483648,"orderType":77,"priceType":2147483647}])");
        QVERIFY(m_report.isGood());
        QCOMPARE(int(m_tasks.front().operationType), INT_MIN);
        QCOMPARE(int(m_tasks.front().orderType), 77);
        QCOMPARE(int(m_tasks.front().priceType), INT_MAX);
    }

    void aBadFileIsSaidWithItsLineAndChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("error");
        const auto row = [](const char* name, const char* json, const char* error) {
            QTest::newRow(name) << QByteArray(json) << QString::fromLatin1(error);
        };
        row("text as price", "[{},\n{\"price\":\"12\"}]", ":2: \"price\" is not a number");
        row("fraction as volume", "[{\n\"volume\":0.5}]", ":2: \"volume\" is not a whole number of 32 bits");
        row("number as account", "[{\"account\":1}]", ":1: \"account\" is neither the key of an account nor null");
        row("no time", "[{\"validTimeEnd\":\"soon\"}]",
            ":1: \"validTimeEnd\" is neither seconds since the epoch nor an ISO time");
        row("time over 32 bits", "[{\"validTimeStart\":3000000000}]",
            ":1: \"validTimeStart\" is neither seconds since the epoch nor an ISO time");
    }

    void aBadFileIsSaidWithItsLineAndChangesNothing()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, error);
        m_tasks.resize(3);
        QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(m_path + error));
        load(json);
        QCOMPARE(m_report.error, m_path + error);
        QCOMPARE(m_tasks.size(), size_t(3));
    }

    void theProjectsTasksCoverBrokerAndOrderTypes()
    {
        QVERIFY(reference::loadAccounts(reference::dataFolder() + QStringLiteral("/accounts.json")).isGood());
        const auto report = reference::loadTasks(reference::dataFolder() + QStringLiteral("/tasks.json"), m_tasks);
        QCOMPARE(report.error, QString());
        QCOMPARE(report.notes, QStringList());
        QSet<int> brokerTypes;
        QSet<int> orderTypes;
        for (const auto& task : m_tasks) {
            orderTypes.insert(task.orderType);
            QVERIFY(!task.code.empty() && !task.name.empty() && task.volume > 0);
            if (task.account)
                brokerTypes.insert(task.account->brokerType);
        }
        QVERIFY(brokerTypes.contains({1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 1001, 1002}));
        QVERIFY(orderTypes.contains({0, 1, 2, 5, 6, 7, 13}));
    }

private:
    void load(const QByteArray& json)
    {
        QVERIFY(writeFile(m_path, json));
        m_report = reference::loadTasks(m_path, m_tasks);
    }

    QTemporaryDir m_folder;
    QString m_path;
    Tasks m_tasks;
    reference::LoadReport m_report;
};

QTEST_GUILESS_MAIN(tst_TaskFile)
#include "tst_TaskFile.moc"
