#include "model/ModelRun.h"

#include <QFile>
#include <QtTest>

#include <cstdio>

namespace {

using model::Command;
using model::Difference;
using model::ModelRun;
using model::Script;
using model::SessionModel;
using model::TableModel;
using WrongFact = ModelRun::WrongFact;

/// Nothing of what rapidcheck says on its way; a difference's report says it all.
class Silence : public rc::detail::TestListener
{
public:
    void onTestCaseFinished(const rc::detail::CaseDescription&) override
    {
    }
    void onShrinkTried(const rc::detail::CaseDescription&, bool) override
    {
    }
    void onTestFinished(const rc::detail::TestMetadata&, const rc::detail::TestResult&) override
    {
    }
};

constexpr int kScriptLength = 120;
constexpr int kScriptsARound = 50;

/// Without the commands that the difference does not need, the ones that make the object above all.
std::pair<Script, Difference> onlyWhatMatters(ModelRun& run, std::pair<Script, Difference> found)
{
    for (std::size_t index = found.first.size(); index-- > 0;) {
        Script shorter = found.first;
        shorter.erase(shorter.begin() + static_cast<std::ptrdiff_t>(index));
        if (const auto difference = run.firstDifference(shorter))
            found = {shorter, *difference};
    }
    return found;
}

/// Runs @p scripts random scripts; the first difference, shrunk.
std::optional<std::pair<Script, Difference>> smallestDifference(ModelRun& run, const std::string& className,
                                                                std::uint64_t seed, int scripts)
{
    std::optional<std::pair<Script, Difference>> smallest;
    const auto property = [&] {
        const Script script = *model::randomScript(className, kScriptLength).as("script");
        if (const auto difference = run.firstDifference(script)) {
            smallest = {script, *difference};
            RC_FAIL(difference->what);
        }
    };
    rc::detail::TestParams params;
    params.seed = seed;
    params.maxSuccess = scripts;
    Silence silence;
    rc::detail::checkTestable(property, rc::detail::TestMetadata{}, params, silence);
    return smallest ? onlyWhatMatters(run, *smallest) : smallest;
}

WrongFact onTables(void (*spoil)(TableModel& table))
{
    return [spoil](SessionModel& session) {
        for (auto& [name, object] : session.objects)
            spoil(*object.table);
    };
}

QByteArray asLines(const Script& script)
{
    QByteArray lines;
    for (const Command& command : script)
        lines += QByteArray::fromStdString(command.json.dump()) + '\n';
    return lines;
}

QString savedScript(const std::string& className, const QByteArray& lines)
{
    const QString path =
        QStringLiteral(MODEL_SCRIPT_FOLDER "/difference-%1.jsonl").arg(QString::fromStdString(className));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(lines) != lines.size())
        return QStringLiteral("(could not be written)");
    return path;
}

long long commandsWanted()
{
    bool isNumber = false;
    const long long asked = qEnvironmentVariable("ORDERPARAM_MODEL_COMMANDS").toLongLong(&isNumber);
    return isNumber ? asked : MODEL_COMMANDS;
}

std::uint64_t chosenSeed()
{
    bool isNumber = false;
    const std::uint64_t asked = qEnvironmentVariable("ORDERPARAM_MODEL_SEED").toULongLong(&isNumber);
    return isNumber ? asked : 20260101;
}

} // namespace

Q_DECLARE_METATYPE(WrongFact)

class tst_RandomRuns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWrongFactIsNoticedAndShrunkToAShortScript_data();
    void aWrongFactIsNoticedAndShrunkToAShortScript();
    void widgetsAndModelAgreeOnRandomCommands_data();
    void widgetsAndModelAgreeOnRandomCommands();
    void cleanupTestCase();

private:
    long long m_commands = 0;
    int m_differences = 0;
};

void tst_RandomRuns::aWrongFactIsNoticedAndShrunkToAShortScript_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<WrongFact>("wrongFact");
    const QString probe = QStringLiteral("BaseTableProbe");
    QTest::newRow("a mask's bit") << probe << onTables([](TableModel& table) {
        if (table.orderType == 2)
            table.grid.setItemHidden(0x800, true);
    });
    QTest::newRow("a tail volume off by a lot") << probe << onTables([](TableModel& table) {
        if (table.operationType == 1 && table.grid.itemUnit(0x40) == "股")
            table.grid.setItemDouble(0x40, table.grid.itemDouble(0x40) + 100);
    });
    QTest::newRow("a visible word that is not kept") << probe << onTables([](TableModel& table) { table.words = {}; });
    QTest::newRow("an original price that is not forgotten") << probe << onTables([](TableModel& table) {
        if (table.originalPrice == model::kNoPrice)
            table.originalPrice = 0.0;
    });
    QTest::newRow("a parameter set without its index")
        << probe << onTables([](TableModel& table) { table.paramIndex = -1; });
    QTest::newRow("a column as wide as any") << QStringLiteral("CreditProbe") << WrongFact([](SessionModel& session) {
        for (auto& [name, object] : session.objects)
            object.credit->columnWidth = 120;
    });
}

void tst_RandomRuns::aWrongFactIsNoticedAndShrunkToAShortScript()
{
    QFETCH(QString, className);
    QFETCH(WrongFact, wrongFact);
    ModelRun run(wrongFact);
    const auto found = smallestDifference(run, className.toStdString(), 1, 400);
    QVERIFY(found.has_value());
    const QByteArray lines = asLines(found->first);
    QVERIFY2(found->first.size() <= 7, lines.constData());
    QVERIFY2(run.firstDifference(found->first).has_value(), lines.constData());
    ModelRun rightFacts;
    QVERIFY2(!rightFacts.firstDifference(found->first).has_value(), lines.constData());
}

void tst_RandomRuns::widgetsAndModelAgreeOnRandomCommands_data()
{
    QTest::addColumn<int>("percent");
    QTest::newRow("BaseTableProbe") << 45;
    QTest::newRow("CGlobalOrderParamTable") << 15;
    QTest::newRow("CCodeOrderParamTable") << 10;
    QTest::newRow("CStopLossOrderParamTable") << 10;
    QTest::newRow("CCreditParamTable") << 8;
    QTest::newRow("CreditProbe") << 12;
}

void tst_RandomRuns::widgetsAndModelAgreeOnRandomCommands()
{
    QFETCH(int, percent);
    const std::string className = QTest::currentDataTag();
    const long long wanted = commandsWanted() * percent / 100;
    ModelRun run;
    std::uint64_t seed = chosenSeed();
    std::optional<std::pair<Script, Difference>> found;
    while (!found && run.commandsRun() < wanted)
        found = smallestDifference(run, className, seed++, kScriptsARound);
    m_commands += run.commandsRun();
    if (found) {
        ++m_differences;
        const QByteArray lines = asLines(found->first);
        const QString path = savedScript(className, lines);
        QFAIL(qPrintable(QStringLiteral("seed %1: %2\n%3saved as %4")
                             .arg(seed - 1)
                             .arg(QString::fromStdString(found->second.what), QString::fromUtf8(lines), path)));
    }
}

void tst_RandomRuns::cleanupTestCase()
{
    std::printf("model: %lld commands, %d differences, seed %llu\n", m_commands, m_differences,
                static_cast<unsigned long long>(chosenSeed()));
}

QTEST_MAIN(tst_RandomRuns)

#include "tst_RandomRuns.moc"
