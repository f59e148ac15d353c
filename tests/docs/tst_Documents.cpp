#include "docs/Documents.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

namespace {

constexpr qint64 kMostPictureBytes = 3 * 1024 * 1024;

QString sourcePath(const QString& path)
{
    return QStringLiteral(ORDERPARAM_SOURCES "/") + path;
}

QString besides(const QString& document, const QString& target)
{
    return QDir::cleanPath(QFileInfo(document).path() + QLatin1Char('/') + target);
}

QStringList matches(const QString& text, const QString& pattern)
{
    QStringList found;
    for (auto match = QRegularExpression(pattern).globalMatch(text); match.hasNext();)
        found << match.next().captured(1);
    return found;
}

/// The options that a program's help text names.
QSet<QString> optionsOf(const QString& program)
{
    QProcess process;
    process.start(program, {QStringLiteral("--help")});
    if (!process.waitForFinished())
        return {};
    const QStringList names =
        matches(QString::fromUtf8(process.readAllStandardOutput()), QStringLiteral("(--[a-z][a-z-]*)"));
    return QSet<QString>(names.begin(), names.end());
}

/// The options after a program's name on a line, up to what it hands on to another one.
QStringList optionsIn(QString line, const QString& program)
{
    line = line.section(QLatin1Char('#'), 0, 0).section(QStringLiteral(" -- "), 0, 0);
    const int at = line.indexOf(program);
    return at < 0 ? QStringList() : matches(line.mid(at), QStringLiteral("(--[a-z][a-z-]*)"));
}

struct Program
{
    const char* name; ///< as documents write it
    const char* path;
};

const Program kPrograms[] = {
    {"./run.sh", ORDERPARAM_SOURCES "/run.sh"},
    {"./test.sh", ORDERPARAM_SOURCES "/test.sh"},
    {"orderparam-replay ", ORDERPARAM_REPLAY},
    {"orderparam-workbench ", ORDERPARAM_WORKBENCH},
};

/// Commands as documents show them: lines of code, and what stands between backticks.
QStringList commandsOf(const QString& markdown)
{
    return documents::codeLines(markdown) + documents::quoted(markdown);
}

} // namespace

class tst_Documents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyLinkAndPictureLeadsSomewhere();
    void everyPictureIsShownAndTogetherTheyAreSmall();
    void everyPanelOfTheTourIsShown();
    void everyExportedClassIsNamed_data();
    void everyExportedClassIsNamed();
    void everyFileNamedIsThere();
    void everyCommandIsThereWithItsOptions();
    void everyPresetNamedIsThere();
    void everyPageOfTheFolderIsLinkedFromThere();
};

void tst_Documents::everyLinkAndPictureLeadsSomewhere()
{
    int checked = 0;
    for (const QString& document : documents::all()) {
        const QString text = documents::text(document);
        QVERIFY2(!text.isEmpty(), qPrintable(document));
        for (const QString& target : documents::targets(text)) {
            if (target.contains(QLatin1String("://")))
                continue;
            ++checked;
            const QString wrong = QStringLiteral("%1 links to %2").arg(document, target);
            const QString file = target.section(QLatin1Char('#'), 0, 0);
            const QString path = file.isEmpty() ? document : besides(document, file);
            QVERIFY2(documents::exists(path), qPrintable(wrong));
            const QString anchor = target.section(QLatin1Char('#'), 1);
            if (!anchor.isEmpty())
                QVERIFY2(documents::anchors(documents::text(path)).contains(anchor), qPrintable(wrong));
        }
    }
    QVERIFY(checked > 50);
}

void tst_Documents::everyPictureIsShownAndTogetherTheyAreSmall()
{
    QSet<QString> shown;
    for (const QString& document : documents::all()) {
        for (const QString& target : documents::targets(documents::text(document)))
            shown.insert(besides(document, target));
    }
    qint64 bytes = 0;
    for (const QString& picture :
         documents::files(QStringLiteral("docs"), {QStringLiteral("*.png"), QStringLiteral("*.svg")})) {
        QVERIFY2(shown.contains(picture), qPrintable(picture + QLatin1String(" is shown nowhere")));
        bytes += QFileInfo(sourcePath(picture)).size();
    }
    QVERIFY2(bytes < kMostPictureBytes, qPrintable(QString::number(bytes)));
}

void tst_Documents::everyPanelOfTheTourIsShown()
{
    const QStringList stops = matches(documents::text(QStringLiteral("workbench/TourStops.cpp")),
                                      QStringLiteral("Stop\\{\"((?:order|state|task|credit)-[a-z0-9-]+)\""));
    QVERIFY(stops.size() > 40);
    const QStringList shown = documents::targets(documents::text(QStringLiteral("docs/panels.md")));
    for (const QString& stop : stops)
        QVERIFY2(shown.contains(QStringLiteral("pictures/panels/%1.png").arg(stop)), qPrintable(stop));
}

void tst_Documents::everyExportedClassIsNamed_data()
{
    QTest::addColumn<QString>("document");
    QTest::newRow("read me") << QStringLiteral("README.md");
    QTest::newRow("read me in Chinese") << QStringLiteral("README.zh_CN.md");
}

void tst_Documents::everyExportedClassIsNamed()
{
    QFETCH(QString, document);
    const QStringList named = documents::quoted(documents::text(document));
    int classes = 0;
    for (const QString& header : documents::files(QStringLiteral("OrderParamTable_mini"), {QStringLiteral("*.h")})) {
        for (const QString& name :
             matches(documents::text(header), QStringLiteral("class ORDERPARAMTABLE_EXPORT (\\w+)"))) {
            ++classes;
            QVERIFY2(named.contains(name), qPrintable(name));
        }
    }
    QCOMPARE(classes, 7);
}

// Between backticks, from a folder of the root on: a name with a wildcard or a placeholder names no file.
void tst_Documents::everyFileNamedIsThere()
{
    static const QRegularExpression path(QStringLiteral(
        "^(?:OrderParamTable_mini|reference|workbench|replay|tests|benchmarks|examples|docs|cmake|packaging|scripts)"
        "/[\\w./-]*$"));
    int checked = 0;
    for (const QString& document : documents::all()) {
        for (const QString& quoted : documents::quoted(documents::text(document))) {
            if (!path.match(quoted).hasMatch())
                continue;
            ++checked;
            QVERIFY2(documents::exists(quoted), qPrintable(QStringLiteral("%1 names %2").arg(document, quoted)));
        }
    }
    QVERIFY(checked > 30);
}

void tst_Documents::everyCommandIsThereWithItsOptions()
{
    static const QRegularExpression script(
        QStringLiteral("^((?:\\./|scripts/|benchmarks/|tests/)[\\w./-]+\\.sh)(?:\\s|$)"));
    int checked = 0;
    for (const QString& document : documents::all()) {
        for (const QString& command : commandsOf(documents::text(document))) {
            const QRegularExpressionMatch match = script.match(command);
            if (!match.hasMatch())
                continue;
            ++checked;
            const QFileInfo file(sourcePath(match.captured(1)));
            QVERIFY2(file.isExecutable(), qPrintable(QStringLiteral("%1: %2").arg(document, command)));
        }
    }
    QVERIFY(checked > 10);
    for (const Program& program : kPrograms) {
        const QString name = QString::fromLatin1(program.name);
        const QSet<QString> known = optionsOf(QString::fromLocal8Bit(program.path));
        QVERIFY2(known.contains(QStringLiteral("--help")), program.path);
        for (const QString& document : documents::all()) {
            for (const QString& command : commandsOf(documents::text(document))) {
                for (const QString& option : optionsIn(command, name))
                    QVERIFY2(known.contains(option), qPrintable(QStringLiteral("%1: %2").arg(document, command)));
            }
        }
    }
}

void tst_Documents::everyPresetNamedIsThere()
{
    const QString presets = documents::text(QStringLiteral("CMakePresets.json"));
    int checked = 0;
    for (const QString& document : documents::all()) {
        for (const QString& command : commandsOf(documents::text(document))) {
            for (const QString& preset : matches(command, QStringLiteral("--preset ([a-z]+)"))) {
                ++checked;
                QVERIFY2(presets.contains(QStringLiteral("\"name\": \"%1\"").arg(preset)), qPrintable(command));
            }
        }
    }
    QVERIFY(checked > 3);
}

// A page that nobody links to is read by nobody; the folder's own front page is found by itself.
void tst_Documents::everyPageOfTheFolderIsLinkedFromThere()
{
    QStringList pages = documents::files(QStringLiteral("docs"), {QStringLiteral("*.md")});
    QVERIFY(pages.removeOne(QStringLiteral("docs/README.md")));
    for (const QString& page : pages) {
        bool isLinked = false;
        for (const QString& document : documents::all()) {
            const QStringList targets = documents::targets(documents::text(document));
            for (const QString& target : targets)
                isLinked = isLinked || (document != page && besides(document, target) == page);
        }
        QVERIFY2(isLinked, qPrintable(page));
    }
}

QTEST_GUILESS_MAIN(tst_Documents)
#include "tst_Documents.moc"
