#include "replay/Script.h"
#include "replay/Session.h"

#include <QTest>

#include <limits>
#include <sstream>

using replay::Json;

namespace {

QByteArray answers(const std::string& script, bool* isOk = nullptr)
{
    replay::Session session;
    std::istringstream in(script);
    std::ostringstream out;
    const bool ok = replay::runScript(session, in, out);
    if (isOk)
        *isOk = ok;
    return QByteArray::fromStdString(out.str());
}

QByteArray differences(const std::string& script, const std::string& expected, bool* isSame)
{
    replay::Session session;
    std::istringstream in(script);
    std::istringstream expectations(expected);
    std::ostringstream report;
    *isSame = replay::compareScript(session, in, expectations, report);
    return QByteArray::fromStdString(report.str());
}

} // namespace

class tst_Script : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersCountTheLinesOfTheScript();
    void malformedLinesAreAnsweredAndTheRunGoesOn_data();
    void malformedLinesAreAnsweredAndTheRunGoesOn();
    void noPriceIsWrittenWithoutASign();
    void signsAndQuotesInTextsStay();
    void expectationsStandForTheCommandsInOrder();
    void tooFewAndTooManyExpectationsAreDifferences();
    void anExpectationThatIsNoObjectIsUnreadable();
    void whatBelongsToALineStaysOnIt();
};

void tst_Script::answersCountTheLinesOfTheScript()
{
    bool isOk = false;
    const QByteArray out = answers("# first\n\n   \t\n{\"do\":\"reset\"}\r\n#\n{\"do\":\"reset\"}", &isOk);
    QVERIFY(isOk);
    const QList<QByteArray> lines = out.split('\n');
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines[0], QByteArray("{\"line\":4,\"ok\":true,\"result\":null,\"events\":[],\"saves\":0,\"reloads\":0}"));
    QCOMPARE(lines[1], QByteArray("{\"line\":6,\"ok\":true,\"result\":null,\"events\":[],\"saves\":0,\"reloads\":0}"));
    QVERIFY(lines[2].isEmpty());
}

void tst_Script::malformedLinesAreAnsweredAndTheRunGoesOn_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("a word") << QByteArray("reset");
    QTest::newRow("half an object") << QByteArray("{\"do\":\"reset\"");
    QTest::newRow("two objects") << QByteArray("{\"do\":\"reset\"}{\"do\":\"reset\"}");
    QTest::newRow("not UTF-8") << QByteArray("{\"do\":\"\xff\xfe\"}");
    QTest::newRow("a number out of range") << QByteArray("{\"do\":1e999}");
    QTest::newRow("half of a surrogate pair") << QByteArray("{\"do\":\"\\ud800\"}");
    QTest::newRow("a comment after a blank") << QByteArray(" # no");
    QTest::newRow("a list of lists without end") << QByteArray(100000, '[');
    QTest::newRow("lists inside each other") << QByteArray(100000, '[') + QByteArray(100000, ']');
    QTest::newRow("arguments inside each other")
        << QByteArray("{\"do\":\"call\",\"args\":") + QByteArray(65, '[') + QByteArray(65, ']') + '}';
    QByteArray keys;
    for (int i = 0; i < 1001; ++i)
        keys += ",\"" + QByteArray::number(i) + "\":0";
    QTest::newRow("more keys than anything has") << QByteArray("{\"do\":\"reset\"") + keys + '}';
    QTest::newRow("a byte of nothing") << QByteArray("{\"do\":\"re\0set\"}", 15);
}

void tst_Script::malformedLinesAreAnsweredAndTheRunGoesOn()
{
    QFETCH(QByteArray, line);
    bool isOk = true;
    const QList<QByteArray> lines = answers(line.toStdString() + "\n{\"do\":\"reset\"}\n", &isOk).split('\n');
    QVERIFY(!isOk);
    QCOMPARE(lines.size(), 3);
    const Json answer = Json::parse(lines[0].toStdString());
    QCOMPARE(answer["line"].get<int>(), 1);
    QCOMPARE(answer["ok"].get<bool>(), false);
    QVERIFY(!answer["error"].get<std::string>().empty());
    QCOMPARE(Json::parse(lines[1].toStdString())["ok"].get<bool>(), true);
}

void tst_Script::noPriceIsWrittenWithoutASign()
{
    const double noPrice = std::numeric_limits<double>::max();
    QCOMPARE(QByteArray::fromStdString(replay::writtenLine(Json::array({noPrice, 0.1, -2.5e-7}))),
             QByteArray("[1.7976931348623157e308,0.1,-2.5e-07]"));
}

void tst_Script::signsAndQuotesInTextsStay()
{
    const Json texts = {{"a+b", "1+2\"+\\"}, {"c", "\\\"+"}};
    QCOMPARE(QByteArray::fromStdString(replay::writtenLine(texts)),
             QByteArray("{\"a+b\":\"1+2\\\"+\\\\\",\"c\":\"\\\\\\\"+\"}"));
}

void tst_Script::expectationsStandForTheCommandsInOrder()
{
    const std::string script = "{\"do\":\"reset\"}\n# between\n{\"do\":\"jump\"}\n";
    bool isSame = false;
    QCOMPARE(differences(script, "{\"ok\":true}\n\n# as well\n{\"ok\":false,\"events\":[]}\n", &isSame), QByteArray());
    QVERIFY(isSame);
    const QByteArray report = differences(script, "{\"ok\":true}\n{\"ok\":true}\n", &isSame);
    QVERIFY(!isSame);
    QVERIFY2(report.startsWith("line 3: ok"), report.constData());
}

void tst_Script::tooFewAndTooManyExpectationsAreDifferences()
{
    bool isSame = true;
    QVERIFY(differences("{\"do\":\"reset\"}\n{\"do\":\"reset\"}\n", "{}\n", &isSame).startsWith("line 2: "));
    QVERIFY(!isSame);
    isSame = true;
    QVERIFY(!differences("{\"do\":\"reset\"}\n", "{}\n{}\n", &isSame).isEmpty());
    QVERIFY(!isSame);
}

void tst_Script::anExpectationThatIsNoObjectIsUnreadable()
{
    bool isSame = false;
    QVERIFY_EXCEPTION_THROWN(differences("{\"do\":\"reset\"}\n", "[1]\n", &isSame), std::runtime_error);
    QVERIFY_EXCEPTION_THROWN(differences("{\"do\":\"reset\"}\n", "{\n", &isSame), std::runtime_error);
}

// An answer is one line whatever its texts hold.
void tst_Script::whatBelongsToALineStaysOnIt()
{
    const QByteArray out = answers("{\"do\":\"dump\",\"on\":\"a\\nb\"}\n");
    QCOMPARE(out.count('\n'), 1);
    QVERIFY(out.contains("a\\nb"));
}

QTEST_MAIN(tst_Script)
#include "tst_Script.moc"
