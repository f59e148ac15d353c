#include "docs/Documents.h"

#include <QRegularExpression>
#include <QTest>

namespace {

/// One of the two read-mes, and what a translation leaves as it is.
struct ReadMe
{
    explicit ReadMe(const char* path)
        : text(documents::text(QString::fromLatin1(path)))
    {
    }

    QList<int> headingLevels() const
    {
        QList<int> levels;
        for (const QString& heading : documents::headings(text))
            levels << heading.indexOf(QLatin1Char(' '));
        return levels;
    }

    /// Links in order; the one to the other language is no content.
    QStringList links() const
    {
        QStringList targets = documents::targets(text);
        targets.removeAll(QStringLiteral("README.md"));
        targets.removeAll(QStringLiteral("README.zh_CN.md"));
        targets.sort();
        return targets;
    }

    /// Blocks of code without comments and the folders' explanations, which are words.
    QStringList code() const
    {
        QStringList lines;
        for (QString line : documents::codeLines(text)) {
            line = line.section(QStringLiteral("#  "), 0, 0).section(QStringLiteral(" # "), 0, 0);
            line = line.section(QStringLiteral("  "), 0, 0).trimmed();
            if (!line.isEmpty())
                lines << line;
        }
        return lines;
    }

    QStringList classes() const
    {
        return documents::quoted(text).filter(QRegularExpression(QStringLiteral("^C[A-Z]\\w+$")));
    }

    QString text;
};

} // namespace

class tst_Readmes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTranslationHasTheSameParts();
    void theTranslationIsChinese();
};

void tst_Readmes::theTranslationHasTheSameParts()
{
    const ReadMe english("README.md");
    const ReadMe chinese("README.zh_CN.md");
    QVERIFY(english.headingLevels().size() > 4);
    QCOMPARE(chinese.headingLevels(), english.headingLevels());
    QCOMPARE(chinese.links(), english.links());
    QVERIFY(!english.code().isEmpty());
    QCOMPARE(chinese.code(), english.code());
    QCOMPARE(chinese.classes(), english.classes());
}

// Each paragraph and row of words has Chinese characters; names and pictures alone have none.
void tst_Readmes::theTranslationIsChinese()
{
    static const QRegularExpression han(QStringLiteral("\\p{Han}"));
    const ReadMe chinese("README.zh_CN.md");
    for (const QString& heading : documents::headings(chinese.text).mid(1))
        QVERIFY2(heading.contains(han), qPrintable(heading));
    for (const QString& paragraph : documents::prose(chinese.text).split(QStringLiteral("\n\n"))) {
        if (paragraph.count(QLatin1Char(' ')) > 6)
            QVERIFY2(paragraph.contains(han), qPrintable(paragraph));
    }
}

QTEST_APPLESS_MAIN(tst_Readmes)
#include "tst_Readmes.moc"
