#include "replay/Operation.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>

namespace {

/// The sections of a class as its header has them.
enum class Access { Public, Protected, Other };

Access accessOf(const QString& line, Access current)
{
    if (line.startsWith(QLatin1String("public:")))
        return Access::Public;
    if (line.startsWith(QLatin1String("protected:")))
        return Access::Protected;
    const bool isOther = line.startsWith(QLatin1String("private:")) || line.startsWith(QLatin1String("Q_SIGNALS:"));
    return isOther ? Access::Other : current;
}

/// Names of the member functions that a header declares in sections of that access.
QSet<QString> declared(const QString& header, Access wanted)
{
    static const QRegularExpression function(QStringLiteral(R"(\b([a-zA-Z]\w*)\()"));
    QFile file(QStringLiteral(ORDERPARAM_SOURCES) + QLatin1Char('/') + header);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QSet<QString> names;
    Access access = Access::Other;
    bool goesOn = false; // a declaration that began on a line before
    for (const QString& line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        const QString code = line.section(QStringLiteral("//"), 0, 0).trimmed();
        access = accessOf(code, access);
        const QRegularExpressionMatch match = function.match(code);
        if (!goesOn && access == wanted && match.hasMatch())
            names.insert(match.captured(1));
        goesOn = code.endsWith(QLatin1Char(','));
    }
    return names;
}

QSet<QString> offered(const replay::Operations& operations)
{
    QSet<QString> names;
    for (const replay::Operation& operation : operations)
        names.insert(QString::fromStdString(operation.name));
    return names;
}

QString sorted(const QSet<QString>& names)
{
    QStringList list = names.values();
    list.sort();
    return list.join(QLatin1Char(' '));
}

QSet<QString> words(const char* text)
{
    const QStringList list = QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return QSet<QString>(list.begin(), list.end());
}

struct Row
{
    const char* header;
    Access access;
    const replay::Operations& (*operations)();
    const char* otherwise; ///< declared there and reached in another way: constructors, events, what builds
};

const char* const kTableHeader = "OrderParamTable_mini/frame/COrderParamBaseTable.h";
const char* const kCreditHeader = "OrderParamTable_mini/credit/CCreditParamTable.h";

// clang-format off
const Row kRows[] = {
    {kTableHeader, Access::Public, replay::baseTableOperations,
     "COrderParamBaseTable handleEvent"},
    {kTableHeader, Access::Protected, replay::baseTableProbeOperations,
     "createUi paintEvent resizeEvent OperationCellFlags fromLatin1"},
    {"OrderParamTable_mini/tables/CGlobalOrderParamTable.h", Access::Public, replay::globalTableOperations,
     "CGlobalOrderParamTable setStockCode clear param save"},
    {"OrderParamTable_mini/tables/CCodeOrderParamTable.h", Access::Public, replay::codeTableOperations,
     "CCodeOrderParamTable setStockCode setParam param save"},
    {"OrderParamTable_mini/tables/CStopLossOrderParamTable.h", Access::Public, replay::stopLossTableOperations,
     "CStopLossOrderParamTable setParam param save"},
    {kCreditHeader, Access::Public, replay::creditTableOperations,
     "CCreditParamTable"},
    {kCreditHeader, Access::Protected, replay::creditProbeOperations,
     "createUi resizeEvent handleEvent"},
    {"OrderParamTable_mini/tables/CHpfBasketTaskParamWidget.h", Access::Protected, replay::basketProbeOperations,
     "handleEvent"},
    {"OrderParamTable_mini/platform/WQ/CMultiParamsTable.h", Access::Public, replay::cellTableOperations,
     "CMultiParamsTable sizeHint minimumSizeHint setSelectionModel"},
};
// clang-format on

} // namespace

class tst_Operations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyOperationOfAClassIsWithinReach();
    void aRowNamesAsManyParametersAsTheOperationHas();
};

// An operation that a header gains and scripts lack would go untested by recordings and random runs.
void tst_Operations::everyOperationOfAClassIsWithinReach()
{
    for (const Row& row : kRows) {
        const QSet<QString> names = declared(QString::fromLatin1(row.header), row.access);
        QVERIFY2(!names.isEmpty(), row.header);
        const QSet<QString> wanted = names - words(row.otherwise);
        const QSet<QString> has = offered(row.operations());
        QCOMPARE(QString::fromLatin1(row.header) + sorted(wanted - has), QString::fromLatin1(row.header));
        QCOMPARE(QString::fromLatin1(row.header) + sorted(has - wanted), QString::fromLatin1(row.header));
    }
}

void tst_Operations::aRowNamesAsManyParametersAsTheOperationHas()
{
    for (const Row& row : kRows) {
        for (const replay::Operation& operation : row.operations()) {
            const QStringList names =
                QString::fromStdString(operation.parameters).split(QStringLiteral(", "), Qt::SkipEmptyParts);
            QVERIFY2(std::size_t(names.size()) == operation.count, operation.name.c_str());
        }
    }
}

QTEST_APPLESS_MAIN(tst_Operations)
#include "tst_Operations.moc"
