#include "workbench/StateFile.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QtTest>

using workbench::Json;

namespace {

constexpr int kPatience = 60000;

/// A workbench under a home of its own, driven line by line.
class Driven
{
public:
    explicit Driven(const QTemporaryDir& home)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), home.path());
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.filePath(QStringLiteral("config")));
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(DRIVEN_WORKBENCH), {});
    }

    ~Driven()
    {
        kill();
    }

    /// Carries out a command; the answer is the state afterwards.
    Json say(const QByteArray& command)
    {
        m_process.write(command + '\n');
        while (!m_process.canReadLine())
            if (!m_process.waitForReadyRead(kPatience))
                return Json();
        const QByteArray line = m_process.readLine();
        return Json::parse(line.constBegin(), line.constEnd(), nullptr, false);
    }

    void kill()
    {
        m_process.kill();
        m_process.waitForFinished(kPatience);
    }

private:
    QProcess m_process;
};

QString statePath(const QTemporaryDir& home)
{
    return home.filePath(QStringLiteral("config/orderparam/workbench.json"));
}

/// What of @p expected is otherwise in @p actual, a line for each; empty when nothing is.
QByteArray differences(const Json& expected, const Json& actual)
{
    QByteArray all;
    for (const Json& change : Json::diff(expected, actual))
        all += QByteArray::fromStdString(change.dump()) + '\n';
    return all;
}

} // namespace

class tst_Restart : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void whatWasCommittedIsBackAfterAKill_data();
    void whatWasCommittedIsBackAfterAKill();
    void whatIsBeingTypedIsNot();
    void aDamagedStateIsSetAsideAndTold();
};

void tst_Restart::whatWasCommittedIsBackAfterAKill_data()
{
    QTest::addColumn<QList<QByteArray>>("commands");
    QTest::newRow("look") << QList<QByteArray>{"theme light", "scale 1.25", "language zh_CN"};
    QTest::newRow("services") << QList<QByteArray>{"module 0", "freeze 1716168600", "rate 50"};
    QTest::newRow("a number") << QList<QByteArray>{"mode 601", "expand", "type 2 0.12"};
    // A duration counts from the clock, which stands still for it.
    QTest::newRow("every cell of the algorithm")
        << QList<QByteArray>{"freeze 1716168600", "mode 601", "expand", "edit"};
    QTest::newRow("every cell of plain orders") << QList<QByteArray>{"freeze 1716168600", "expand", "edit"};
    QTest::newRow("chosen cells") << QList<QByteArray>{"mode 601", "filter 1 2 16"};
    QTest::newRow("credit") << QList<QByteArray>{"credit 24"};
    QTest::newRow("all of it") << QList<QByteArray>{"theme light", "module 0", "freeze 1716168600", "mode 601",
                                                    "expand",      "edit",     "credit 23",         "language zh_CN"};
}

void tst_Restart::whatWasCommittedIsBackAfterAKill()
{
    QFETCH(QList<QByteArray>, commands);
    const QTemporaryDir home;
    Json before;
    {
        Driven first(home);
        const Json fresh = first.say("state");
        QVERIFY(fresh.is_object());
        for (const QByteArray& command : qAsConst(commands))
            before = first.say(command);
        QVERIFY2(!differences(fresh, before).isEmpty(), "the commands did nothing");
        first.kill();
    }
    Driven second(home);
    QCOMPARE(differences(before, second.say("state")), QByteArray());
}

void tst_Restart::whatIsBeingTypedIsNot()
{
    const QTemporaryDir home;
    {
        Driven first(home);
        first.say("mode 601");
        first.say("expand");
        const Json committed = first.say("type 2 0.12");
        QCOMPARE(committed["cells"]["2"]["text"].get<std::string>(), std::string("0.12"));
        first.say("open 2 7.5");
        first.kill();
    }
    Driven second(home);
    const Json after = second.say("state");
    QVERIFY(after.is_object());
    QCOMPARE(after["cells"]["2"]["text"].get<std::string>(), std::string("0.12"));
    QCOMPARE(after["orderType"].get<int>(), 1);
    QCOMPARE(after["expanded"].get<bool>(), true);
    QCOMPARE(after["said"].get<std::string>(), std::string());
}

void tst_Restart::aDamagedStateIsSetAsideAndTold()
{
    const QTemporaryDir home;
    {
        Driven first(home);
        first.say("theme light");
        first.kill();
    }
    QFile file(statePath(home));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.resize(file.size() / 2));
    file.close();
    Driven second(home);
    const Json after = second.say("state");
    QVERIFY(after.is_object());
    QCOMPARE(after["theme"].get<std::string>(), std::string("dark"));
    const QStringList aside =
        QFileInfo(statePath(home)).dir().entryList({QStringLiteral("workbench.json.damaged-*")}, QDir::Files);
    QCOMPARE(aside.size(), 1);
    QVERIFY(QString::fromStdString(after["said"].get<std::string>()).contains(aside.first()));
}

QTEST_GUILESS_MAIN(tst_Restart)
#include "tst_Restart.moc"
