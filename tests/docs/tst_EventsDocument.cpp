#include "docs/Documents.h"

#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>

namespace {

const QString kPage = QStringLiteral("docs/events.md");

/// The names that the headers give, by number.
QMap<int, QString> namesInHeaders()
{
    static const QRegularExpression named(QStringLiteral("\\bconstexpr int (k\\w+) = (\\d+);"));
    QMap<int, QString> names;
    for (const QString& file :
         documents::files(QStringLiteral("OrderParamTable_mini"), {QStringLiteral("EventNumbers.h")})) {
        for (auto at = named.globalMatch(documents::text(file)); at.hasNext();) {
            const QRegularExpressionMatch match = at.next();
            names.insert(match.captured(2).toInt(), match.captured(1));
        }
    }
    return names;
}

/// Numbers that sources spell where an event has its name.
QStringList bareNumbers()
{
    static const QRegularExpression bare(
        QStringLiteral("\\b(?:send|sendAndStayAlive|deliverEvent)\\(\\d+,|\\bevent [!=]= [1-9]\\d*\\b"));
    QStringList found;
    for (const char* const folder : {"OrderParamTable_mini", "reference", "replay", "workbench", "examples"}) {
        for (const QString& file : documents::files(QString::fromLatin1(folder), {QStringLiteral("*.cpp")})) {
            const auto match = bare.match(documents::text(file));
            if (match.hasMatch())
                found << file + QLatin1String(": ") + match.captured();
        }
    }
    return found;
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
    void thePageAndTheHeadersHaveTheSameNumbersAndNames();
    void sourcesCallEventsByTheirNames();
    void theOrdersNameEventsOfTheTables();
    void theWorkbenchNamesEveryEventOfThePage();
};

void tst_EventsDocument::thePageAndTheHeadersHaveTheSameNumbersAndNames()
{
    const QMap<int, QString> names = namesInHeaders();
    QSet<int> onPage;
    for (const QStringList& row : rowsUnder("## What a host hears") + rowsUnder("## What a host may send")) {
        QCOMPARE(row.size(), 7);
        const int event = row.constFirst().toInt();
        onPage.insert(event);
        QCOMPARE(row.at(1).section(QLatin1Char(' '), -1), names.value(event));
    }
    const QList<int> numbers = names.keys();
    QCOMPARE(ascending(onPage), ascending(QSet<int>(numbers.begin(), numbers.end())));
}

void tst_EventsDocument::sourcesCallEventsByTheirNames()
{
    QCOMPARE(bareNumbers().join(QLatin1Char('\n')), QString());
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
