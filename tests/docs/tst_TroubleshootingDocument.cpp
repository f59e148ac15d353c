#include "docs/Documents.h"

#include <QRegularExpression>
#include <QTest>

namespace {

const QChar kAnything(0x2026);

/// The texts of sources and scripts, with the ellipsis for every argument that is put into one.
QString spokenTexts()
{
    QString text = documents::text(QStringLiteral("run.sh")) + documents::text(QStringLiteral("test.sh"));
    for (const char* const folder : {"OrderParamTable_mini", "reference", "replay", "workbench", "scripts"}) {
        for (const QString& file : documents::files(
                 QString::fromLatin1(folder), {QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.sh")}))
            text += documents::text(file);
    }
    // Literals beside each other are one text, and so are those that a plus joins to something else.
    text.replace(QRegularExpression(QStringLiteral("\"\\s*\\+?\\s*\"")), QString());
    text.replace(QRegularExpression(QStringLiteral("\"\\s*\\+\\s*std::to_string\\(\\w+\\)\\s*\\+\\s*\"")), kAnything);
    text.replace(QRegularExpression(QStringLiteral("%[0-9sd]|\\$\\{[^}]*\\}|\\$\\([^)]*\\)|\\$[\\w*]+")), kAnything);
    return text;
}

/// Without the arguments at its ends, which sources may put there in any way.
QString bare(QString message)
{
    while (message.startsWith(kAnything) || message.startsWith(QLatin1Char(' ')))
        message.remove(0, 1);
    while (message.endsWith(kAnything) || message.endsWith(QLatin1Char(' ')))
        message.chop(1);
    return message;
}

} // namespace

class tst_TroubleshootingDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyMessageIsWrittenAsThePageHasIt();
};

// The first column of a table; what is a message there has several words.
void tst_TroubleshootingDocument::everyMessageIsWrittenAsThePageHasIt()
{
    static const QRegularExpression firstColumn(QStringLiteral("^\\|([^|]*)\\|"), QRegularExpression::MultilineOption);
    static const QRegularExpression quoted(QStringLiteral("`([^`]* [^`]*)`"));
    const QString spoken = spokenTexts();
    int checked = 0;
    const QString page = documents::text(QStringLiteral("docs/troubleshooting.md"));
    for (auto row = firstColumn.globalMatch(page); row.hasNext();) {
        for (auto match = quoted.globalMatch(row.next().captured(1)); match.hasNext();) {
            const QString message = match.next().captured(1);
            ++checked;
            QVERIFY2(spoken.contains(bare(message)), qPrintable(message));
        }
    }
    QVERIFY(checked >= 18);
}

QTEST_APPLESS_MAIN(tst_TroubleshootingDocument)
#include "tst_TroubleshootingDocument.moc"
