#include "docs/Documents.h"

#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>

namespace {

const QString kPage = QStringLiteral("docs/events.md");

/// How sources spell an event's number.
struct Spelling
{
    const char* wildcard;
    const char* pattern;
};

// clang-format off
const Spelling kSpellings[] = {
    {"*.cpp",                  "\\b(?:send|sendAndStayAlive|deliverEvent)\\((\\d+),"},
    {"*.cpp",                  "\\bevent [!=]= ([1-9]\\d*)\\b"},
    {"*.cpp",                  "\\bk(?:\\w*Event|Clicked|\\w+Committed) = (\\d+);"},
    {"*_Events.cpp",           "\\bcase (\\d+):"},
    {"PersonCommits.cpp",      "^ +[A-Z]\\w+ = (\\d+),"},
};
// clang-format on

QSet<int> numbersInSources()
{
    QSet<int> numbers;
    for (const Spelling& spelling : kSpellings) {
        const QRegularExpression expression(QString::fromLatin1(spelling.pattern), QRegularExpression::MultilineOption);
        int found = 0;
        for (const char* const folder : {"OrderParamTable_mini", "reference"}) {
            for (const QString& file :
                 documents::files(QString::fromLatin1(folder), {QString::fromLatin1(spelling.wildcard)})) {
                for (auto match = expression.globalMatch(documents::text(file)); match.hasNext(); ++found)
                    numbers.insert(match.next().captured(1).toInt());
            }
        }
        if (found == 0)
            QTest::qFail(spelling.pattern, __FILE__, __LINE__);
    }
    return numbers;
}

QString ascending(const QSet<int>& numbers)
{
    QList<int> list = numbers.values();
    std::sort(list.begin(), list.end());
    QStringList texts;
    for (const int number : list)
        texts << QString::number(number);
    return texts.join(QLatin1Char(' '));
}

QList<QStringList> rowsUnder(const char* heading)
{
    return documents::tableRows(documents::text(kPage), QString::fromLatin1(heading));
}

} // namespace

class tst_EventsDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePageAndTheSourcesHaveTheSameNumbers();
    void theOrdersNameEventsOfTheTables();
    void theWorkbenchNamesEveryEventOfThePage();
};

void tst_EventsDocument::thePageAndTheSourcesHaveTheSameNumbers()
{
    QSet<int> onPage;
    for (const QStringList& row : rowsUnder("## What a host hears") + rowsUnder("## What a host may send")) {
        QCOMPARE(row.size(), 7);
        onPage.insert(row.constFirst().toInt());
    }
    QCOMPARE(ascending(onPage), ascending(numbersInSources()));
}

void tst_EventsDocument::theOrdersNameEventsOfTheTables()
{
    QSet<int> heard;
    for (const QStringList& row : rowsUnder("## What a host hears"))
        heard.insert(row.constFirst().toInt());
    const QList<QStringList> orders = rowsUnder("## In which order");
    QVERIFY(orders.size() >= 10);
    static const QRegularExpression number(QStringLiteral("\\d+"));
    for (const QStringList& row : orders) {
        for (auto match = number.globalMatch(row.value(1)); match.hasNext();) {
            const int event = match.next().captured().toInt();
            QVERIFY2(heard.contains(event), qPrintable(QString::number(event)));
        }
    }
}

void tst_EventsDocument::theWorkbenchNamesEveryEventOfThePage()
{
    const QString decoder = documents::text(QStringLiteral("workbench/EventDecoder.cpp"));
    for (const QStringList& row : rowsUnder("## What a host hears")) {
        const QRegularExpression named(QStringLiteral("EventRow\\{ *%1,").arg(row.constFirst()));
        QVERIFY2(decoder.contains(named), qPrintable(row.constFirst()));
    }
}

QTEST_APPLESS_MAIN(tst_EventsDocument)
#include "tst_EventsDocument.moc"
