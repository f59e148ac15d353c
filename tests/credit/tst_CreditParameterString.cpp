#include "credit/CreditPanel.h"
#include "credit/ParameterTexts.h"

#include <QElapsedTimer>
#include <QTest>

#include <random>

namespace {

/// The reader as it is laid down, with the lists that the table itself does without.
void readWithLists(const QString& text, int& operation, QMap<int, QMap<int, QString>>& values)
{
    const QStringList parts = text.split(QLatin1Char('+'), Qt::KeepEmptyParts, Qt::CaseSensitive);
    if (parts.size() < 2)
        return;
    operation = parts.at(0).toInt();
    for (const QString& part : parts.mid(1)) {
        const QStringList fields = part.split(QLatin1Char('-'), Qt::KeepEmptyParts, Qt::CaseSensitive);
        if (fields.size() < 5)
            continue;
        for (const QString& field : fields.mid(1)) {
            const QStringList pieces = field.split(QLatin1Char('='), Qt::KeepEmptyParts, Qt::CaseSensitive);
            if (pieces.size() >= 2)
                values[fields.at(0).toInt()][pieces.at(0).toInt()] = pieces.at(1);
        }
    }
}

QString written(int operation, const QMap<int, QMap<int, QString>>& values)
{
    QStringList parts{QString::number(operation)};
    for (auto group = values.cbegin(); group != values.cend(); ++group) {
        QStringList fields{QString::number(group.key())};
        for (auto value = group->cbegin(); value != group->cend(); ++value)
            fields << QString::number(value.key()) + QLatin1Char('=') + value.value();
        parts << fields.join(QLatin1Char('-'));
    }
    return parts.join(QLatin1Char('+'));
}

QString randomText(std::mt19937& random)
{
    static const QStringList kPieces{
        QStringLiteral("+"),   QStringLiteral("+"),          QStringLiteral("-"),    QStringLiteral("-"),
        QStringLiteral("-"),   QStringLiteral("-"),          QStringLiteral("="),    QStringLiteral("="),
        QStringLiteral("="),   QStringLiteral("22"),         QStringLiteral("1021"), QStringLiteral("727"),
        QStringLiteral("728"), QStringLiteral("2147483648"), QStringLiteral(" "),    QStringLiteral("\t"),
        QStringLiteral("7"),   QStringLiteral("abc"),        QStringLiteral("1.5"),  QStringLiteral("账户"),
        QStringLiteral("0"),   QStringLiteral("２"),         QStringLiteral("-5"),   QString(QChar(0x2212)),
        QString(QChar(0)),     QString(QChar(0xA0)),         QString(QChar(0xD800)), QStringLiteral("2147483647"),
        QStringLiteral("0x1"), QStringLiteral("1e2"),        QStringLiteral(","),    QStringLiteral("000000000007"),
    };
    QString text = random() % 2 == 0 ? QStringLiteral("22+22-726=A-727=X-728=1-729=") : QString();
    const int length = int(random() % 40);
    for (int i = 0; i < length; ++i)
        text += kPieces.at(int(random() % unsigned(kPieces.size())));
    return text;
}

QString repeated(const QString& piece, int size)
{
    return piece.repeated(size / piece.size());
}

constexpr int kTenMegabytes = 10 * 1024 * 1024;

} // namespace

class tst_CreditParameterString : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reading_data();
    void reading();
    void readingAnOperationAloneChangesNothing();
    void readingTheSameTextTwiceLeavesTheValuesOfTheFirst();
    void readingAnotherGroupKeepsTheFirst();
    void readingASecondTimeReplacesTheRowsItNames();
    void rowsAreReadInAnyOrder();
    void aTextTakesThePlaceOfAnyValue();
    void anIgnoredTextSendsNothingAndLeavesTheLayout();
    void whatIsWrittenReadsBack();
    void anyTextReadsAsWithLists();
    void textsOneAfterTheOtherReadAsWithLists();
    void valuesAreWrittenAsTheirTexts();
    void groupsAndRowsAreWrittenAscending();
    void tenMegabytes_data();
    void tenMegabytes();
    void aValueOfTenMegabytesIsKept();
};

void tst_CreditParameterString::reading_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("operation");
    QTest::addColumn<QString>("remembered");
    QTest::addColumn<QString>("events");
    QTest::addColumn<QString>("param");
    for (const parametertexts::Row& row : parametertexts::kRows) {
        const auto text = [](const char16_t* value) { return QString::fromUtf16(value); };
        QTest::newRow(row.name) << text(row.text) << row.operation << text(row.remembered)
                                << QString::fromLatin1(row.events) << text(row.param);
    }
}

void tst_CreditParameterString::reading()
{
    QFETCH(QString, text);
    CreditPanel panel;
    panel.table->setParam(text);
    QTEST(panel.table->m_operationType, "operation");
    QTEST(panel.remembered(), "remembered");
    QStringList events;
    for (const int event : panel.host.takeNumbers())
        events << QString::number(event);
    QTEST(events.join(QLatin1Char(' ')), "events");
    QTEST(panel.table->param(), "param");
    panel.table->setParam(text);
    QTEST(panel.remembered(), "remembered");
    QTEST(panel.table->param(), "param");
}

void tst_CreditParameterString::readingAnOperationAloneChangesNothing()
{
    CreditPanel panel;
    panel.table->setParam(QStringLiteral("23+"));
    const QString alone = panel.table->param();
    QCOMPARE(alone, QStringLiteral("23"));
    CreditPanel other;
    other.table->setParam(alone);
    QCOMPARE(other.table->m_operationType, -1);
    QCOMPARE(other.table->param(), QStringLiteral("-1"));
    QCOMPARE(other.host.take(), QStringList());
}

void tst_CreditParameterString::readingTheSameTextTwiceLeavesTheValuesOfTheFirst()
{
    CreditPanel panel;
    const QString text = QStringLiteral("22+22-726=A1-727=X1-728=5-729=6+24-726=A-727=B-728=1.5-729=0");
    panel.table->setParam(text);
    const auto first = panel.table->m_savedValues;
    panel.table->setParam(text);
    QCOMPARE(panel.table->m_savedValues, first);
    QCOMPARE(panel.table->param(), text);
}

void tst_CreditParameterString::readingAnotherGroupKeepsTheFirst()
{
    CreditPanel panel;
    panel.table->setParam(QStringLiteral("22+22-726=A1-727=X1-728=5-729=6"));
    panel.table->setParam(QStringLiteral("25+25-726=A2-727=X2-728=7-729=8"));
    QCOMPARE(panel.remembered(), QStringLiteral("22: 726=A1, 727=X1, 728=5, 729=6; 25: 726=A2, 727=X2, 728=7, 729=8"));
    QCOMPARE(panel.table->param(), QStringLiteral("25+22-726=A1-727=X1-728=5-729=6+25-726=A2-727=X2-728=7-729=8"));
}

void tst_CreditParameterString::readingASecondTimeReplacesTheRowsItNames()
{
    CreditPanel panel;
    panel.table->setParam(QStringLiteral("22+22-726=A1-727=X1-728=5-729=6"));
    panel.table->setParam(QStringLiteral("22+22-728=9-730=1-731=2-727="));
    QCOMPARE(panel.remembered(), QStringLiteral("22: 726=A1, 727=, 728=9, 729=6, 730=1, 731=2"));
}

void tst_CreditParameterString::rowsAreReadInAnyOrder()
{
    CreditPanel panel;
    panel.table->setParam(QStringLiteral("22+22-731=a-727=b-727=c-9=d-731=e-732=+22-730=f-8=g-733=h-731=i"));
    QCOMPARE(panel.remembered(), QStringLiteral("22: 8=g, 9=d, 727=c, 730=f, 731=i, 732=, 733=h"));
}

void tst_CreditParameterString::aTextTakesThePlaceOfAnyValue()
{
    CreditPanel panel;
    auto& rows = panel.table->m_savedValues[22];
    rows = {{726, 5}, {727, QVariant()}, {728, 1.5}, {729, QStringLiteral("old")}};
    const QString kept = rows[729].toString();
    panel.table->setParam(QStringLiteral("23+22-726=a-727=b-728=c-729=d"));
    QCOMPARE(panel.remembered(), QStringLiteral("22: 726=a, 727=b, 728=c, 729=d"));
    for (const int row : {726, 727, 728, 729})
        QCOMPARE(panel.table->m_savedValues[22][row].userType(), int(QMetaType::QString));
    QCOMPARE(kept, QStringLiteral("old"));
}

void tst_CreditParameterString::anIgnoredTextSendsNothingAndLeavesTheLayout()
{
    CreditPanel panel;
    panel.table->setParam(QStringLiteral("25+25-726=A2-727=X2-728=7-729=8"));
    panel.host.take();
    panel.cells().setItemText(728, QStringLiteral("touched"));
    panel.cells().setColumnWidth(0, 77);
    for (const QString& text : {QString(), QStringLiteral("22"), QStringLiteral("-1"), QStringLiteral("22-726=A")}) {
        panel.table->setParam(text);
        QCOMPARE(panel.table->m_operationType, 25);
        QCOMPARE(panel.row(728), QStringLiteral("负债金额: \"touched\" 元, fixed"));
        QCOMPARE(panel.cells().columnWidth(0), 77);
    }
    QCOMPARE(panel.host.take(), QStringList());
}

void tst_CreditParameterString::whatIsWrittenReadsBack()
{
    std::mt19937 random(44);
    for (int i = 0; i < 300; ++i) {
        CreditPanel panel;
        for (const int operation : {22, 23, 24, 25, 1021}) {
            if (random() % 3 == 0)
                continue;
            for (int row = 726; row <= 729 + int(random() % 3); ++row)
                panel.table->m_savedValues[operation][row] = QString::number(random());
        }
        if (panel.table->m_savedValues.isEmpty())
            continue;
        panel.table->m_operationType = int(random() % 2000);
        CreditPanel other;
        other.table->setParam(panel.table->param());
        QCOMPARE(other.table->m_savedValues, panel.table->m_savedValues);
        QCOMPARE(other.table->param(), panel.table->param());
    }
}

void tst_CreditParameterString::anyTextReadsAsWithLists()
{
    std::mt19937 random(4404);
    for (int i = 0; i < 2000; ++i) {
        const QString text = randomText(random);
        int operation = -1;
        QMap<int, QMap<int, QString>> values;
        readWithLists(text, operation, values);
        CreditPanel panel;
        panel.table->setParam(text);
        if (panel.table->param() != written(operation, values))
            qInfo() << "the text was" << text;
        QCOMPARE(panel.table->param(), written(operation, values));
    }
}

void tst_CreditParameterString::textsOneAfterTheOtherReadAsWithLists()
{
    std::mt19937 random(40404);
    CreditPanel panel;
    int operation = -1;
    QMap<int, QMap<int, QString>> values;
    for (int i = 0; i < 3000; ++i) {
        const QString text = randomText(random);
        readWithLists(text, operation, values);
        panel.table->setParam(text);
        QCOMPARE(panel.table->param(), written(operation, values));
    }
}

void tst_CreditParameterString::valuesAreWrittenAsTheirTexts()
{
    CreditPanel panel;
    auto& values = panel.table->m_savedValues[22];
    values[726] = QVariant();
    values[727] = QVariant(-5);
    values[728] = QVariant(1.5);
    values[729] = QVariant(true);
    values[730] = QVariant(QStringLiteral("a+b-c=d"));
    values[-1] = QVariant(QString());
    QCOMPARE(panel.table->param(), QStringLiteral("-1+22--1=-726=-727=-5-728=1.5-729=true-730=a+b-c=d"));
}

void tst_CreditParameterString::groupsAndRowsAreWrittenAscending()
{
    CreditPanel panel;
    for (const int operation : {1021, 22, -3, 25, INT_MAX, INT_MIN}) {
        for (const int row : {731, 726, 0})
            panel.table->m_savedValues[operation][row] = QString::number(row);
    }
    panel.table->m_savedValues[30] = {};
    QCOMPARE(panel.table->param(),
             QStringLiteral("-1+-2147483648-0=0-726=726-731=731+-3-0=0-726=726-731=731+22-0=0-726=726-731=731+"
                            "25-0=0-726=726-731=731+30+1021-0=0-726=726-731=731+2147483647-0=0-726=726-731=731"));
}

void tst_CreditParameterString::tenMegabytes_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("piece");
    QTest::addColumn<QString>("end");
    QTest::addColumn<QString>("param");
    const auto row = [](const char* name, const char* start, const char* piece, const char* end, const char* param) {
        QTest::newRow(name) << QString::fromLatin1(start) << QString::fromLatin1(piece) << QString::fromLatin1(end)
                            << QString::fromLatin1(param);
    };
    row("group separators", "", "+", "", "0");
    row("field separators", "22+", "-", "", "22");
    row("value separators", "22+22-4=d-3=c-2=b-1", "=", "", "22+22-1=-2=b-3=c-4=d");
    row("digits without a group", "22", "2", "", "-1");
    row("digits of the operation", "1", "2", "+", "0");
    row("digits of a key", "22+", "2", "-1=a-2=b-3=c-4=d", "22+0-1=a-2=b-3=c-4=d");
    row("zeros before a row", "22+22-1=a-2=b-3=c-", "0", "4=d", "22+22-1=a-2=b-3=c-4=d");
    row("short groups", "22", "+1-2=3", "", "22");
    row("groups", "22", "+1-1=a-2=b-3=c-4=d", "", "22+1-1=a-2=b-3=c-4=d");
    row("entries of one group", "22+22", "-728=1", "", "22+22-728=1");
    row("entries without a value", "22+22", "-7", "", "22");
    row("all separators", "", "+-=", "", "0");
    row("blanks for a key", "22+", " ", "", "22");
    row("blanks around the operation", "22", " ", "+", "22");
}

void tst_CreditParameterString::tenMegabytes()
{
    QFETCH(QString, start);
    QFETCH(QString, piece);
    QFETCH(QString, end);
    const QString text = start + repeated(piece, kTenMegabytes) + end;
    CreditPanel panel;
    QElapsedTimer timer;
    timer.start();
    panel.table->setParam(text);
    QVERIFY2(timer.elapsed() < 5000, "not linear in the length of the text");
    QTEST(panel.table->param(), "param");
}

void tst_CreditParameterString::aValueOfTenMegabytesIsKept()
{
    const QString value(kTenMegabytes, QLatin1Char('9'));
    CreditPanel panel;
    panel.table->setParam(QStringLiteral("22+22-727=X-729=1-730=2-728=") + value);
    QVERIFY(panel.table->m_savedValues.value(22).value(728).toString() == value);
    QCOMPARE(panel.cells().itemText(728), QStringLiteral("0"));
}

QTEST_MAIN(tst_CreditParameterString)
#include "tst_CreditParameterString.moc"
