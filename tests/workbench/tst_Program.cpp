#include <QProcess>
#include <QtTest>

namespace {

struct Outcome
{
    int exitCode = -1;
    QString output;
    QString errors;
};

Outcome run(const QStringList& arguments, const QString& platform = QStringLiteral("offscreen"))
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(variable));
    if (!platform.isEmpty())
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(WORKBENCH_PROGRAM), arguments);
    program.waitForFinished(30000);
    return {program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1,
            QString::fromUtf8(program.readAllStandardOutput()), QString::fromUtf8(program.readAllStandardError())};
}

} // namespace

class tst_Program : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void itTellsItsVersionWithoutADisplay();
    void itTellsItsOptionsWithoutADisplay();
    void wrongArgumentsAreNamed_data();
    void wrongArgumentsAreNamed();
    void withoutADisplayItSaysSo();
    void itTellsWhenItIsUsable();
};

void tst_Program::itTellsItsVersionWithoutADisplay()
{
    const Outcome outcome = run({QStringLiteral("--version")}, QString());
    QCOMPARE(outcome.exitCode, 0);
    QVERIFY2(outcome.output.startsWith(QStringLiteral("orderparam-workbench ")), qPrintable(outcome.output));
    QCOMPARE(outcome.errors, QString());
}

void tst_Program::itTellsItsOptionsWithoutADisplay()
{
    const Outcome outcome = run({QStringLiteral("--help")}, QString());
    QCOMPARE(outcome.exitCode, 0);
    for (const char* option :
         {"--tour", "--scale", "--theme", "--language", "--data", "--version", "--watchdog", "--measure-start"})
        QVERIFY2(outcome.output.contains(QLatin1String(option)), option);
    QCOMPARE(outcome.errors, QString());
}

void tst_Program::wrongArgumentsAreNamed_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    const auto row = [](const char* name, const QStringList& arguments, const QString& named) {
        QTest::newRow(name) << arguments << named;
    };
    row("scale too large", {QStringLiteral("--scale"), QStringLiteral("4")}, QStringLiteral("4"));
    row("scale too small", {QStringLiteral("--scale=0.5")}, QStringLiteral("0.5"));
    row("scale no number", {QStringLiteral("--scale=nan")}, QStringLiteral("nan"));
    row("unknown theme", {QStringLiteral("--theme=pink")}, QStringLiteral("pink"));
    row("unknown language", {QStringLiteral("--language=xx")}, QStringLiteral("xx"));
    row("a watchdog without a number", {QStringLiteral("--watchdog=x")}, QStringLiteral("--watchdog"));
    row("unknown option", {QStringLiteral("--frobnicate")}, QStringLiteral("frobnicate"));
    row("an argument too many", {QStringLiteral("extra")}, QStringLiteral("extra"));
    row("a tour without a folder", {QStringLiteral("--tour=")}, QStringLiteral("--tour"));
}

void tst_Program::wrongArgumentsAreNamed()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    const Outcome outcome = run(arguments);
    QCOMPARE(outcome.exitCode, 1);
    QCOMPARE(outcome.output, QString());
    QVERIFY2(outcome.errors.contains(named), qPrintable(outcome.errors));
}

void tst_Program::withoutADisplayItSaysSo()
{
    const Outcome outcome = run({}, QString());
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY2(outcome.errors.contains(QStringLiteral("--tour")), qPrintable(outcome.errors));
}

// The figure is a report: how long it takes depends on what else the machine does.
void tst_Program::itTellsWhenItIsUsable()
{
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    const Outcome outcome = run({QStringLiteral("--measure-start"), QStringLiteral("--watchdog=50")});
    qunsetenv("XDG_CONFIG_HOME");
    QCOMPARE(outcome.exitCode, 0);
    const QRegularExpression usable(QStringLiteral("^usable after \\d+ ms\n$"));
    QVERIFY2(usable.match(outcome.output).hasMatch(), qPrintable(outcome.output));
    QVERIFY2(outcome.errors.contains(QStringLiteral("watchdog: held")), qPrintable(outcome.errors));
    qInfo("%s%s", qPrintable(outcome.output), qPrintable(outcome.errors));
}

QTEST_APPLESS_MAIN(tst_Program)
#include "tst_Program.moc"
