#include "binary/SlotListing.h"
#include "binary/VirtualTables.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

namespace {

QString textOf(const char* path)
{
    QFile file(QString::fromUtf8(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// What differs, one line a slot.
QStringList differences(const VirtualTables& listed, const VirtualTables& built)
{
    QStringList found;
    if (listed.size() != built.size())
        found.append(QStringLiteral("%1 tables are listed, %2 built").arg(listed.size()).arg(built.size()));
    for (int table = 0; table < std::min(listed.size(), built.size()); ++table) {
        const QStringList& expected = listed.at(table);
        const QStringList& actual = built.at(table);
        for (int slot = 0; slot < std::max(expected.size(), actual.size()); ++slot) {
            const QString want = expected.value(slot, QStringLiteral("nothing"));
            const QString have = actual.value(slot, QStringLiteral("nothing"));
            if (want != have)
                found.append(
                    QStringLiteral("table %1, slot %2: listed %3, built %4").arg(table).arg(slot).arg(want, have));
        }
    }
    return found;
}

QStringList differences(const SlotListing& listing, const VirtualTableReader& library, const QString& name)
{
    QStringList found = differences(listing.tablesOf(name), library.tablesOf(name));
    const QString listed = listing.basesOf(name).join(QLatin1Char(' '));
    const QString built = library.basesOf(name).join(QLatin1Char(' '));
    if (listed != built)
        found.append(QStringLiteral("bases: listed %1, built %2").arg(listed, built));
    return found;
}

} // namespace

class tst_VirtualSlots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void slotsAndBasesAreTheListedOnes_data();
    void slotsAndBasesAreTheListedOnes();
    void everyExportedClassIsListed();
    void aDoctoredListingIsSeen_data();
    void aDoctoredListingIsSeen();
    void aListingWithMistakesSaysSo();

private:
    const QString m_text = textOf(SLOT_LISTING);
    const SlotListing m_listing{m_text};
    const VirtualTableReader m_library{QString::fromUtf8(LIBRARY_FILE)};
};

void tst_VirtualSlots::initTestCase()
{
    QCOMPARE(m_library.error(), QString());
    QCOMPARE(m_listing.errors(), QStringList());
}

void tst_VirtualSlots::slotsAndBasesAreTheListedOnes_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : m_listing.ownClasses())
        QTest::newRow(qPrintable(name)) << name;
}

void tst_VirtualSlots::slotsAndBasesAreTheListedOnes()
{
    QFETCH(QString, name);
    const QStringList found = differences(m_listing, m_library, name);
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
}

void tst_VirtualSlots::everyExportedClassIsListed()
{
    const QString symbols = textOf(SYMBOL_BASELINE);
    const QRegularExpression table(QStringLiteral("'_ZTVN2TC[0-9]+(\\w+)E'"));
    QStringList exported;
    for (auto match = table.globalMatch(symbols); match.hasNext();)
        exported.append(QStringLiteral("TC::") + match.next().captured(1));
    QStringList listed = m_listing.ownClasses();
    exported.sort();
    listed.sort();
    QCOMPARE(listed, exported);
}

void tst_VirtualSlots::aDoctoredListingIsSeen_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    const auto row = [](const char* title, const char* name, const char* from, const char* to) {
        QTest::newRow(title) << QString::fromUtf8(name) << QString::fromUtf8(from) << QString::fromUtf8(to);
    };
    row("two slots change places", "TC::COrderParamBaseTable", "adds clear()\npure setParam(QString const&)",
        "pure setParam(QString const&)\nadds clear()");
    row("a slot is missing at the end", "TC::CStopLossOrderParamTable", "pure save()\npure reloadParam()",
        "pure save()");
    row("a slot is added", "TC::CStopLossOrderParamTable", "pure reloadParam()", "pure reloadParam()\nadds more()");
    row("an override is missing", "TC::CCreditParamTable",
        "bases WQ::CBaseWidget\noverrides resizeEvent(QResizeEvent*)", "bases WQ::CBaseWidget");
    row("an override is added", "TC::CStopLossOrderParamTable",
        "overrides save()\noverrides reloadParam()\n\nclass TC::CBase",
        "overrides save()\noverrides reloadParam()\noverrides clear()\n\nclass TC::CBase");
    row("a pure slot is implemented", "TC::COrderParamBaseTable", "pure save()", "adds save()");
    row("a base is missing", "TC::CCreditParamTable", "bases WQ::CEventWidgetT<QWidget> WQ::CUiResourceChangeHandler",
        "bases WQ::CEventWidgetT<QWidget>");
    row("a base is another one", "TC::CHpfBasketTaskParamWidget",
        "class TC::CHpfBasketTaskParamWidget\nbases WQ::CFloatWidget",
        "class TC::CHpfBasketTaskParamWidget\nbases WQ::CCustomDialog");
}

void tst_VirtualSlots::aDoctoredListingIsSeen()
{
    QFETCH(QString, name);
    QFETCH(QString, from);
    QFETCH(QString, to);
    QCOMPARE(m_text.count(from), 1);
    const SlotListing doctored(QString(m_text).replace(from, to));
    QVERIFY(!differences(doctored, m_library, name).isEmpty());
}

void tst_VirtualSlots::aListingWithMistakesSaysSo()
{
    QCOMPARE(SlotListing(QStringLiteral("class A\nads f()")).errors().size(), 1);
    QCOMPARE(SlotListing(QStringLiteral("class A\nadds f()\nadds ~\nclass B\nbases A\noverrides g()")).errors().size(),
             1);
    QCOMPARE(SlotListing(QStringLiteral("class A\nadds ~\nclass B\nbases A Z")).errors().size(), 1);
}

QTEST_APPLESS_MAIN(tst_VirtualSlots)
#include "tst_VirtualSlots.moc"
