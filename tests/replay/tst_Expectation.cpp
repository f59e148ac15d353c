#include "replay/Expectation.h"

#include <QtTest>

using replay::differences;
using replay::Json;

class tst_Expectation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsExpectedHasNoDifferences_data();
    void whatIsExpectedHasNoDifferences();
    void eachDifferenceSaysWhereItStands_data();
    void eachDifferenceSaysWhereItStands();
    void everyDifferenceIsReported();
    void aFileMayNestAsDeepAsItIsLong();
    void textsThatAreNoUtf8AreReported();
};

void tst_Expectation::whatIsExpectedHasNoDifferences_data()
{
    QTest::addColumn<QByteArray>("expected");
    QTest::addColumn<QByteArray>("actual");

    const auto row = [](const char* name, const char* expected, const char* actual) {
        QTest::newRow(name) << QByteArray(expected) << QByteArray(actual);
    };
    row("the same", R"({"ok":true,"result":[1,"a",null]})", R"({"ok":true,"result":[1,"a",null]})");
    row("a key left out", R"({"ok":true})", R"({"line":7,"ok":true,"result":null})");
    row("a key left out inside", R"({"result":{"grid":{"width":220}}})",
        R"({"ok":true,"result":{"id":31,"grid":{"hidden":false,"width":220}}})");
    row("a key left out inside a list", R"({"cells":[{"id":1},{"id":2}]})",
        R"({"cells":[{"id":1,"kind":"combo"},{"id":2,"kind":"number"}]})");
    row("keys in another order", R"({"a":1,"b":2})", R"({"b":2,"a":1})");
    row("an empty object", "{}", R"({"ok":false})");
    row("1 and 1.0", R"({"value":1,"min":-100})", R"({"value":1.0,"min":-100.0})");
    row("1.0 and 1", R"([1.0,0.0])", R"([1,0])");
    row("0.1 written otherwise", "[1e-1]", "[0.1]");
    row("not a number", R"(["nan"])", R"(["nan"])");
    row("null", "[null]", "[null]");
}

void tst_Expectation::whatIsExpectedHasNoDifferences()
{
    QFETCH(QByteArray, expected);
    QFETCH(QByteArray, actual);
    const auto found = differences(Json::parse(expected.toStdString()), Json::parse(actual.toStdString()));
    QVERIFY2(found.empty(), found.empty() ? "" : found.front().c_str());
}

void tst_Expectation::eachDifferenceSaysWhereItStands_data()
{
    QTest::addColumn<QByteArray>("expected");
    QTest::addColumn<QByteArray>("actual");
    QTest::addColumn<QByteArray>("line");

    const auto row = [](const char* name, const char* expected, const char* actual, const char* line) {
        QTest::newRow(name) << QByteArray(expected) << QByteArray(actual) << QByteArray(line);
    };
    row("a number in an event", R"({"events":[[129,5,3]]})", R"({"events":[[129,5,4]]})",
        "events[0][2]: expected 3, got 4");
    row("a member of a member", R"({"result":{"grid":{"width":220}}})", R"({"result":{"grid":{"width":240}}})",
        "result.grid.width: expected 220, got 240");
    row("a text", R"({"unit":"股"})", R"({"unit":"手"})", R"(unit: expected "股", got "手")");
    row("a member that is missing", R"({"result":{"step":1}})", R"({"result":{}})",
        "result.step: expected 1, got nothing");
    row("null is not missing", R"({"step":null})", "{}", "step: expected null, got nothing");
    row("zero is not null", R"({"step":null})", R"({"step":0})", "step: expected null, got 0");
    row("false is not zero", "[0]", "[false]", "[0]: expected 0, got false");
    row("a text is no number", R"(["1"])", "[1]", R"([0]: expected "1", got 1)");
    row("an element too few", R"({"events":[[5],[6]]})", R"({"events":[[5]]})", "events[1]: expected [6], got nothing");
    row("an element too many", R"({"events":[]})", R"({"events":[[5]]})", "events[0]: expected nothing, got [5]");
    row("an object is no list", R"({"result":{}})", R"({"result":[]})", "result: expected {}, got []");
    row("a member of an element", R"({"cells":[{"id":1},{"id":2}]})", R"({"cells":[{"id":1},{"id":4}]})",
        "cells[1].id: expected 2, got 4");
    row("the whole", "7", "8", "expected 7, got 8");
    row("bits alike, numbers not", "[-1]", "[18446744073709551615]", "[0]: expected -1, got 18446744073709551615");
    row("neighbours", "[0.1]", "[0.10000000000000002]", "[0]: expected 0.1, got 0.10000000000000002");
}

void tst_Expectation::eachDifferenceSaysWhereItStands()
{
    QFETCH(QByteArray, expected);
    QFETCH(QByteArray, actual);
    QFETCH(QByteArray, line);
    const auto found = differences(Json::parse(expected.toStdString()), Json::parse(actual.toStdString()));
    QCOMPARE(found.size(), std::size_t(1));
    QCOMPARE(QByteArray::fromStdString(found.front()), line);
}

void tst_Expectation::everyDifferenceIsReported()
{
    const auto found = differences(Json::parse(R"({"ok":true,"saves":1,"events":[[129,5],[1061,5]]})"),
                                   Json::parse(R"({"ok":false,"saves":1,"events":[[129,6],[1061,7],[5]]})"));
    const std::vector<std::string> lines = {
        "ok: expected true, got false",
        "events[0][1]: expected 5, got 6",
        "events[1][1]: expected 5, got 7",
        "events[2]: expected nothing, got [5]",
    };
    QCOMPARE(found, lines);
}

void tst_Expectation::aFileMayNestAsDeepAsItIsLong()
{
    constexpr std::size_t kLevels = 1000000;
    const Json deep = Json::parse(std::string(kLevels, '[') + std::string(kLevels, ']'));
    const auto found = differences(deep, Json::parse(R"({"ok":true})"));
    QCOMPARE(found.size(), std::size_t(1));
    QCOMPARE(QByteArray::fromStdString(found.front()), QByteArray(R"(expected (nested too deep), got {"ok":true})"));
}

void tst_Expectation::textsThatAreNoUtf8AreReported()
{
    const auto found = differences(Json("a"), Json("\xff"));
    QCOMPARE(found.size(), std::size_t(1));
    QCOMPARE(QByteArray::fromStdString(found.front()), QByteArray("expected \"a\", got \"\xEF\xBF\xBD\""));
}

QTEST_APPLESS_MAIN(tst_Expectation)
#include "tst_Expectation.moc"
