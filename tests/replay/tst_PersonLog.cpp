#include "replay/PersonLog.h"

#include "replay/Objects.h"
#include "replay/Session.h"

#include <WQ/CMultiParamsTable.h>

#include <QtTest>

using replay::Json;
using replay::Session;

namespace {

Json parsed(const QByteArray& json)
{
    return Json::parse(json.toStdString());
}

QByteArray written(const Json& json)
{
    return QByteArray::fromStdString(json.dump());
}

/// A table of broker 6, which has a cell with a check box, and one cell of each kind that only hosts add.
void open(Session& session)
{
    const char* const commands[] = {
        R"({"do":"new","class":"BaseTableProbe","name":"t","args":[5,6,true,true,2,false]})",
        R"({"do":"grid","on":"t","op":"addRangeCell","args":[2097152,"区间",6,-9,9,-5,5,0.1,"元",1.0,-1,"-",false]})",
        R"({"do":"grid","on":"t","op":"addParamCell","args":[4194304,"说明",10,0,0,0,"股",0,4]})",
        R"({"do":"grid","on":"t","op":"addLineEdit","args":[8388608,"备注","初稿",false,""]})",
        R"({"do":"grid","on":"t","op":"addCheckParamUnitCell","args":[16777216,"偏离","元",false,
            [{"text":"%","type":6,"min":0,"max":9},{"text":"元","type":6,"min":0,"max":9}],1,-1.0]})",
        R"({"do":"grid","on":"t","op":"setAllItemSet","args":[[1,2,512]]})",
    };
    for (const char* command : commands) {
        const Json answer = session.run(Json::parse(command));
        QVERIFY2(answer["ok"].get<bool>(), written(answer).constData());
    }
}

/// What is noted of what happens to the object "t" of the session while this lives.
class Notes
{
public:
    explicit Notes(Session& session)
    {
        const QWidget* object = session.object(QStringLiteral("t"));
        m_cells = object->findChild<WQ::CMultiParamsTable*>();
        WQ::watchPersonEvents([this](const QWidget& sender, const WQ::PersonEvent& event) {
            m_commands.push_back(replay::personCommand("t", event, &sender == m_cells ? m_cells : nullptr));
        });
    }

    ~Notes()
    {
        WQ::watchPersonEvents({});
    }

    Notes(const Notes&) = delete;
    Notes& operator=(const Notes&) = delete;

    const std::vector<Json>& commands() const
    {
        return m_commands;
    }

private:
    const WQ::CMultiParamsTable* m_cells = nullptr;
    std::vector<Json> m_commands;
};

QByteArray stateOf(Session& session)
{
    return written(session.run({{"do", "dump"}, {"on", "t"}})["result"]);
}

} // namespace

class tst_PersonLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDeedIsNotedAsTheCommandThatDoesIt_data();
    void aDeedIsNotedAsTheCommandThatDoesIt();
    void whatChangesNothingIsNotNoted();
    void theNumberStandsWithAllItsDigits();
    void noCommandCausesADoubleClick();
    void aCellThatIsGoneAndATableThatIsMissingNoteNothing();
    void anEventOfAnotherKindOfCellNotesNothing();
};

void tst_PersonLog::aDeedIsNotedAsTheCommandThatDoesIt_data()
{
    QTest::addColumn<QByteArray>("deed");
    QTest::addColumn<QByteArrayList>("noted");
    const auto row = [](const char* name, const char* deed, QByteArrayList noted) {
        QTest::newRow(name) << QByteArray(deed) << noted;
    };
    row("an entry by its text", R"({"do":"edit","on":"t","cell":1,"text":"对手价"})",
        {R"({"do":"edit","on":"t","cell":1,"index":1})"});
    row("a whole number", R"({"do":"edit","on":"t","cell":512,"value":20000})",
        {R"({"do":"edit","on":"t","cell":512,"value":20000})"});
    row("a number", R"({"do":"edit","on":"t","cell":2,"text":"1.25"})",
        {R"({"do":"edit","on":"t","cell":2,"value":1.25})"});
    row("a unit", R"({"do":"edit","on":"t","cell":2,"unit":"元"})", {R"({"do":"edit","on":"t","cell":2,"unit":"元"})"});
    row("unit, check and number", R"({"do":"edit","on":"t","cell":8,"unit":"元","checked":true,"value":2.5})",
        {R"({"do":"edit","on":"t","cell":8,"unit":"元"})", R"({"do":"edit","on":"t","cell":8,"checked":true})",
         R"({"do":"edit","on":"t","cell":8,"value":2.5})"});
    row("a check of the unit's name", R"({"do":"edit","on":"t","cell":16777216,"checked":true})",
        {R"({"do":"edit","on":"t","cell":16777216,"checked":true})"});
    row("a unit of the check's name", R"({"do":"edit","on":"t","cell":16777216,"unit":"元"})",
        {R"({"do":"edit","on":"t","cell":16777216,"unit":"元","checked":false})"});
    row("a range across zero", R"({"do":"edit","on":"t","cell":2097152,"low":-3.5,"high":-1})",
        {R"({"do":"edit","on":"t","cell":2097152,"low":-3.5,"high":-1})"});
    row("a text", R"({"do":"edit","on":"t","cell":4194304,"text":"一千"})",
        {R"({"do":"edit","on":"t","cell":4194304,"text":"一千"})"});
    row("a line", R"({"do":"edit","on":"t","cell":8388608,"text":"定稿 \"A\""})",
        {R"({"do":"edit","on":"t","cell":8388608,"text":"定稿 \"A\""})"});
    row("a clock range", R"({"do":"edit","on":"t","cell":2048,"time":["10:00:00","11:30:05"]})",
        {R"({"do":"edit","on":"t","cell":2048,"time":["10:00:00","11:30:05"]})"});
    row("a duration", R"({"do":"edit","on":"t","cell":2048,"elapse":90})",
        {R"({"do":"edit","on":"t","cell":2048,"elapse":90})"});
    row("a mode button", R"({"do":"click","on":"t","button":600})", {R"({"do":"click","on":"t","button":600})"});
    row("a reset filter", R"({"do":"filterReset","on":"t"})", {R"({"do":"filterReset","on":"t"})"});
    row("a filter", R"({"do":"filter","on":"t","cells":[2,1]})", {R"({"do":"filter","on":"t","cells":[1,2]})"});
}

void tst_PersonLog::aDeedIsNotedAsTheCommandThatDoesIt()
{
    QFETCH(QByteArray, deed);
    QFETCH(QByteArrayList, noted);
    Session session;
    open(session);
    QByteArrayList commands;
    {
        const Notes notes(session);
        const Json answer = session.run(parsed(deed));
        QVERIFY2(answer["ok"].get<bool>(), written(answer).constData());
        for (const Json& command : notes.commands())
            commands << written(command);
    }
    QCOMPARE(commands, noted);
    const QByteArray once = stateOf(session);
    session.reset();
    open(session);
    for (const QByteArray& command : commands)
        QVERIFY(session.run(parsed(command))["ok"].get<bool>());
    QCOMPARE(stateOf(session), once);
}

void tst_PersonLog::whatChangesNothingIsNotNoted()
{
    Session session;
    open(session);
    const Notes notes(session);
    QVERIFY(session.run(parsed(R"({"do":"edit","on":"t","cell":8,"checked":false})"))["ok"].get<bool>());
    QCOMPARE(int(notes.commands().size()), 0);
}

void tst_PersonLog::theNumberStandsWithAllItsDigits()
{
    Session session;
    open(session);
    const Notes notes(session);
    session.run(parsed(R"({"do":"edit","on":"t","cell":2,"text":"0.12345678901"})"));
    QCOMPARE(int(notes.commands().size()), 1);
    QCOMPARE(notes.commands().front()["value"].get<double>(), 0.12345678901);
}

void tst_PersonLog::noCommandCausesADoubleClick()
{
    Session session;
    open(session);
    const auto* cells = session.object(QStringLiteral("t"))->findChild<WQ::CMultiParamsTable*>();
    QVERIFY(replay::personCommand("t", {97, 1, 0, QStringLiteral("最新价")}, cells).is_null());
}

void tst_PersonLog::aCellThatIsGoneAndATableThatIsMissingNoteNothing()
{
    Session session;
    open(session);
    const auto* cells = session.object(QStringLiteral("t"))->findChild<WQ::CMultiParamsTable*>();
    QVERIFY(replay::personCommand("t", {87, 999, 0, QStringLiteral("1")}, cells).is_null());
    for (const int event : {73, 87, 101, 102, 118, 124})
        QVERIFY(replay::personCommand("t", {event, 1, 0, QStringLiteral("1")}, nullptr).is_null());
    QCOMPARE(written(replay::personCommand("d", {5, 0, 0, {}}, nullptr)),
             QByteArray(R"({"do":"click","on":"d","button":0})"));
}

void tst_PersonLog::anEventOfAnotherKindOfCellNotesNothing()
{
    Session session;
    open(session);
    const auto* cells = session.object(QStringLiteral("t"))->findChild<WQ::CMultiParamsTable*>();
    QVERIFY(replay::personCommand("t", {101, 1, 0, {}}, cells).is_null());
    QVERIFY(replay::personCommand("t", {73, 2, 0, {}}, cells).is_null());
}

QTEST_MAIN(tst_PersonLog)
#include "tst_PersonLog.moc"
