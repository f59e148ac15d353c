#include "workbench/Language.h"
#include "workbench/Recording.h"

#include "replay/Json.h"

#include <QtTest>

using namespace workbench;
using Kind = RecordingProblem::Kind;

Q_DECLARE_METATYPE(workbench::RecordingProblem::Kind)

namespace {

const char* const kScript =
    "# A price for one table.\n"
    "{\"do\":\"reset\"}\n"
    "# Recorded from here on.\n"
    "{\"do\":\"call\",\"on\":\"a\",\"op\":\"setFixedPrice\",\"args\":[1.7976931348623157e308]}\n"
    "{\"do\":\"edit\",\"on\":\"a\",\"cell\":67108864,\"text\":\"投资\\t\\\"+\\\"\"}\n";

const char* const kAnswers = "{\"ok\":true}\n{\"ok\":true,\"events\":[[129,5,0,\"\",null]]}\n{\"ok\":false}\n";

Recording read(const std::string& script, const std::string& answers = {})
{
    Recording recording;
    if (!readScript(script, recording).isGood())
        return {};
    if (!answers.empty() && !readExpectations(answers, recording).isGood())
        return {};
    return recording;
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QByteArray fileBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class tst_Recording : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aScriptIsReadAndWrittenTheSame();
    void linesMayEndAsOnOtherSystems();
    void answersAreReadAndWrittenTheSame();
    void withoutAnAnswerThereAreNoExpectations();
    void aTestIsTwoFiles();
    void whatIsWrongIsSaidWithItsLine_data();
    void whatIsWrongIsSaidWithItsLine();
    void wrongExpectationsAreSaidWithTheirLine_data();
    void wrongExpectationsAreSaidWithTheirLine();
    void savedAndLoadedItIsTheSame();
    void savingWithoutAnswersTakesOldExpectationsAway();
    void afterAProblemTheRecordingIsAsItWas();
    void filesThatCannotBeReadOrWrittenAreSaid();
    void problemsAreSaidInBothLanguages();
    void expectationsStandBesideTheScript();
};

void tst_Recording::aScriptIsReadAndWrittenTheSame()
{
    const Recording recording = read(kScript);
    QCOMPARE(recording.steps.size(), std::size_t(3));
    QCOMPARE(recording.preparation, std::size_t(1));
    QVERIFY(recording.steps[0]->remark == "# A price for one table.");
    QCOMPARE(scriptText(recording), std::string(kScript));
}

void tst_Recording::linesMayEndAsOnOtherSystems()
{
    const Recording recording = read("# a\r\n\r\n{\"do\":\"reset\"}\r\n");
    QCOMPARE(scriptText(recording), std::string("# a\n{\"do\":\"reset\"}\n"));
}

void tst_Recording::answersAreReadAndWrittenTheSame()
{
    const Recording recording = read(kScript, kAnswers);
    QVERIFY(recording.hasAnswers());
    QCOMPARE(expectationText(recording), std::string(kAnswers));
}

void tst_Recording::withoutAnAnswerThereAreNoExpectations()
{
    const Recording recording = read(kScript);
    QVERIFY(!recording.hasAnswers());
    QCOMPARE(expectationText(recording), std::string());
}

void tst_Recording::aTestIsTwoFiles()
{
    const std::string text = testText(read("{\"do\":\"reset\"}\n", "{\"ok\":true}\n"), "price");
    QCOMPARE(text,
             std::string("cat > price.jsonl <<'END_OF_RECORDING'\n{\"do\":\"reset\"}\nEND_OF_RECORDING\n"
                         "cat > price.expected.jsonl <<'END_OF_RECORDING'\n{\"ok\":true}\nEND_OF_RECORDING\n"));
}

void tst_Recording::whatIsWrongIsSaidWithItsLine_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<int>("line");
    QTest::newRow("half a line") << QByteArray("{\"do\":\"reset\"}\n\n{\"do\":") << Kind::Malformed << 3;
    QTest::newRow("no JSON") << QByteArray("reset\n") << Kind::Malformed << 1;
    QTest::newRow("no object") << QByteArray("# x\n[1]\n") << Kind::NoCommand << 2;
    QTest::newRow("no command") << QByteArray("{\"ok\":true}\n") << Kind::NoCommand << 1;
    QTest::newRow("a command that is no text") << QByteArray("{\"do\":5}\n") << Kind::NoCommand << 1;
    QTest::newRow("no UTF-8") << QByteArray("{\"do\":\"\xff\"}\n") << Kind::NotUtf8 << 0;
    QTest::newRow("a megabyte of brackets")
        << QByteArray("{\"do\":").append(QByteArray(1 << 20, '[')) << Kind::Malformed << 1;
    QTest::newRow("nested a thousand deep")
        << QByteArray("{\"do\":\"call\",\"args\":") + QByteArray(1000, '[') + QByteArray(1000, ']') + "}"
        << Kind::TooDeep << 1;
}

void tst_Recording::whatIsWrongIsSaidWithItsLine()
{
    QFETCH(QByteArray, script);
    Recording recording;
    const RecordingProblem problem = readScript(script.toStdString(), recording);
    QTEST(problem.kind, "kind");
    QTEST(problem.line, "line");
    QVERIFY(recording.isEmpty());
}

void tst_Recording::wrongExpectationsAreSaidWithTheirLine_data()
{
    QTest::addColumn<QByteArray>("answers");
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<int>("line");
    QTest::newRow("half a line") << QByteArray("{\"ok\":true}\n{\"ok\"") << Kind::Malformed << 2;
    QTest::newRow("no object") << QByteArray("{}\n{}\ntrue\n") << Kind::NoAnswer << 3;
    QTest::newRow("one too few") << QByteArray("{}\n{}\n") << Kind::OtherCount << 0;
    QTest::newRow("one too many") << QByteArray("{}\n{}\n{}\n{}\n") << Kind::OtherCount << 0;
}

void tst_Recording::wrongExpectationsAreSaidWithTheirLine()
{
    QFETCH(QByteArray, answers);
    Recording recording = read(kScript);
    const RecordingProblem problem = readExpectations(answers.toStdString(), recording);
    QTEST(problem.kind, "kind");
    QTEST(problem.line, "line");
    QVERIFY(!recording.hasAnswers());
}

void tst_Recording::savedAndLoadedItIsTheSame()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("录制.jsonl"));
    QVERIFY(saveRecording(read(kScript, kAnswers), path).isGood());
    QCOMPARE(fileBytes(path), QByteArray(kScript));
    QCOMPARE(fileBytes(folder.filePath(QStringLiteral("录制.expected.jsonl"))), QByteArray(kAnswers));
    Recording loaded;
    QVERIFY(loadRecording(path, loaded).isGood());
    QCOMPARE(scriptText(loaded), std::string(kScript));
    QCOMPARE(expectationText(loaded), std::string(kAnswers));
    QCOMPARE(loaded.preparation, std::size_t(1));
}

void tst_Recording::savingWithoutAnswersTakesOldExpectationsAway()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.jsonl"));
    QVERIFY(saveRecording(read(kScript, kAnswers), path).isGood());
    QVERIFY(saveRecording(read("{\"do\":\"reset\"}\n"), path).isGood());
    QVERIFY(!QFile::exists(expectationPath(path)));
    Recording loaded;
    QVERIFY(loadRecording(path, loaded).isGood());
    QCOMPARE(loaded.steps.size(), std::size_t(1));
}

void tst_Recording::afterAProblemTheRecordingIsAsItWas()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.jsonl"));
    writeFile(path, "{\"do\":\"reset\"}\n");
    writeFile(expectationPath(path), "{\"ok\":true}\nnonsense\n");
    Recording recording = read(kScript, kAnswers);
    const RecordingProblem problem = loadRecording(path, recording);
    QVERIFY(problem.kind == Kind::Malformed);
    QCOMPARE(problem.line, 2);
    QCOMPARE(problem.path, expectationPath(path));
    QCOMPARE(scriptText(recording), std::string(kScript));
    QCOMPARE(expectationText(recording), std::string(kAnswers));
}

void tst_Recording::filesThatCannotBeReadOrWrittenAreSaid()
{
    QTemporaryDir folder;
    Recording recording;
    const QString missing = folder.filePath(QStringLiteral("missing.jsonl"));
    QVERIFY(loadRecording(missing, recording).kind == Kind::CannotRead);
    QCOMPARE(loadRecording(missing, recording).path, missing);
    QVERIFY(loadRecording(folder.path(), recording).kind == Kind::CannotRead);
    const QString impossible = QStringLiteral("/dev/null/a.jsonl");
    QVERIFY(saveRecording(read(kScript), impossible).kind == Kind::CannotWrite);
    QCOMPARE(saveRecording(read(kScript), impossible).path, impossible);
}

void tst_Recording::problemsAreSaidInBothLanguages()
{
    const RecordingProblem problem{Kind::NoCommand, QStringLiteral("/a.jsonl"), 7, {}};
    setLanguage(QStringLiteral("en"));
    QCOMPARE(problemText(problem),
             QStringLiteral("/a.jsonl: line 7: is no command: an object with \"do\" is expected"));
    setLanguage(QStringLiteral("zh_CN"));
    QCOMPARE(problemText(problem), QStringLiteral("/a.jsonl: 第 7 行：不是命令：应为带“do”的对象"));
    setLanguage(QStringLiteral("en"));
    QCOMPARE(problemText({}), QString());
}

void tst_Recording::expectationsStandBesideTheScript()
{
    QCOMPARE(expectationPath(QStringLiteral("/x/a.jsonl")), QStringLiteral("/x/a.expected.jsonl"));
    QCOMPARE(expectationPath(QStringLiteral("/x/a")), QStringLiteral("/x/a.expected.jsonl"));
    QCOMPARE(expectationPath(QStringLiteral("/x/a.txt")), QStringLiteral("/x/a.txt.expected.jsonl"));
}

QTEST_MAIN(tst_Recording)
#include "tst_Recording.moc"
