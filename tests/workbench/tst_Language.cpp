#include "workbench/EventLogModel.h"
#include "workbench/Language.h"
#include "workbench/Vocabulary.h"

#include <WQ/CDropDownButtonGroup.h>

#include <QCoreApplication>
#include <QFile>
#include <QXmlStreamReader>
#include <QtTest>

using namespace workbench;

namespace {

bool hasChinese(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.script() == QChar::Script_Han; });
}

} // namespace

class tst_Language : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup();
    void translationFilesAreComplete_data();
    void translationFilesAreComplete();
    void everyNameHasAChineseText();
    void languagesSwitchBackAndForth();
    void anUnknownLanguageChangesNothing();
    void countsAreInflected();
    void theToolkitSpeaksTheSame();
};

void tst_Language::cleanup()
{
    setLanguage(QStringLiteral("en"));
}

void tst_Language::translationFilesAreComplete_data()
{
    QTest::addColumn<QString>("file");
    for (const QString& name : languages())
        QTest::newRow(qPrintable(name)) << QStringLiteral(TRANSLATION_FOLDER "/workbench_%1.ts").arg(name);
}

void tst_Language::translationFilesAreComplete()
{
    QFETCH(QString, file);
    QFile source(file);
    QVERIFY2(source.open(QIODevice::ReadOnly), qPrintable(file));
    QXmlStreamReader reader(&source);
    int entries = 0;
    QString text;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("source"))
            text = reader.readElementText();
        if (!reader.isStartElement() || reader.name() != QLatin1String("translation"))
            continue;
        ++entries;
        QVERIFY2(!reader.attributes().hasAttribute(QStringLiteral("type")), qPrintable(text));
        const QString translation = reader.readElementText(QXmlStreamReader::IncludeChildElements);
        QVERIFY2(!translation.trimmed().isEmpty(), qPrintable(text));
    }
    QVERIFY(!reader.hasError());
    QVERIFY(entries > 0);
}

void tst_Language::everyNameHasAChineseText()
{
    setLanguage(QStringLiteral("zh_CN"));
    for (const auto& rows :
         {identities(), brokerTypes(), traderTypes(), orderTypes(), operationTypes(), creditOperations()})
        for (const NamedValue& row : rows)
            QVERIFY2(hasChinese(translated(row.name)), row.name);
    EventLogModel model;
    for (int column = 0; column < EventLogModel::ColumnCount; ++column)
        QVERIFY(hasChinese(model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString()));
    for (const int event :
         {5, 73, 87, 97, 101, 102, 118, 124, 129, 130, 248, 1061, 1062, 1063, 1064, 1071, 1083, 1206, 1213, 1244})
        QVERIFY2(hasChinese(eventName(capture(event, 0, 0, QString(), nullptr))), qPrintable(QString::number(event)));
}

void tst_Language::languagesSwitchBackAndForth()
{
    QCOMPARE(translated("Events"), QStringLiteral("Events"));
    setLanguage(QStringLiteral("zh_CN"));
    QCOMPARE(language(), QStringLiteral("zh_CN"));
    QCOMPARE(translated("Events"), QStringLiteral("事件"));
    setLanguage(QStringLiteral("en"));
    QCOMPARE(translated("Events"), QStringLiteral("Events"));
}

void tst_Language::anUnknownLanguageChangesNothing()
{
    setLanguage(QStringLiteral("zh_CN"));
    setLanguage(QStringLiteral("xx"));
    QCOMPARE(language(), QStringLiteral("zh_CN"));
    QCOMPARE(translated("Events"), QStringLiteral("事件"));
}

void tst_Language::countsAreInflected()
{
    const auto events = [](int count) {
        return QCoreApplication::translate("workbench", "%n event(s)", nullptr, count);
    };
    setLanguage(QStringLiteral("en"));
    QCOMPARE(events(1), QStringLiteral("1 event"));
    QCOMPARE(events(2), QStringLiteral("2 events"));
    setLanguage(QStringLiteral("zh_CN"));
    QCOMPARE(events(2), QStringLiteral("2 个事件"));
}

void tst_Language::theToolkitSpeaksTheSame()
{
    setLanguage(QStringLiteral("en"));
    QCOMPARE(WQ::CDropDownButtonGroup::tr("帮助"), QStringLiteral("Help"));
    setLanguage(QStringLiteral("zh_CN"));
    QCOMPARE(WQ::CDropDownButtonGroup::tr("帮助"), QStringLiteral("帮助"));
    setLanguage(QStringLiteral("en"));
    QCOMPARE(WQ::CDropDownButtonGroup::tr("帮助"), QStringLiteral("Help"));
}

QTEST_MAIN(tst_Language)
#include "tst_Language.moc"
