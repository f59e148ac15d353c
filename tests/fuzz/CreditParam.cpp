// The credit table's parameter string. The oracle takes the text apart with lists, as the format's rules are worded;
// the table does it in one pass.
#include "fuzz/FuzzTarget.h"
#include "support/CreditProbe.h"
#include "support/EventLog.h"

#include <OrderParamTable_mini/credit/CreditLayout.h>
#include <WQ/CMultiParamsTable.h>

#include "support/CellText.h"

namespace {

using Values = QMap<int, QMap<int, QVariant>>;

constexpr int kFewestFields = 5;

struct Remembered
{
    int operation = 22;
    Values values;
};

QStringList pieces(const QString& text, char separator)
{
    return text.split(QLatin1Char(separator), Qt::KeepEmptyParts, Qt::CaseSensitive);
}

/// Answers whether the text counts at all.
bool take(const QString& text, Remembered& remembered)
{
    const QStringList groups = pieces(text, '+');
    if (groups.size() < 2)
        return false;
    remembered.operation = groups.first().toInt();
    for (const QString& group : groups.mid(1)) {
        const QStringList fields = pieces(group, '-');
        if (fields.size() < kFewestFields)
            continue;
        for (const QString& field : fields.mid(1)) {
            const QStringList entry = pieces(field, '=');
            if (entry.size() >= 2)
                remembered.values[fields.first().toInt()][entry.first().toInt()] = entry.at(1);
        }
    }
    return true;
}

QString written(const Remembered& remembered)
{
    QStringList groups{QString::number(remembered.operation)};
    for (auto group = remembered.values.cbegin(); group != remembered.values.cend(); ++group) {
        QStringList fields{QString::number(group.key())};
        for (auto row = group->cbegin(); row != group->cend(); ++row)
            fields.append(QString::number(row.key()) + QLatin1Char('=') + row->toString());
        groups.append(fields.join(QLatin1Char('-')));
    }
    return groups.join(QLatin1Char('+'));
}

/// One table for all inputs, made as a fresh one that has been laid out for operation 22.
struct Host
{
    Host()
        : table(new support::CreditProbe(&log))
    {
    }

    void reset()
    {
        table->m_savedValues.clear();
        table->m_operationType = Remembered().operation;
        table->refreshUIData();
        log.take();
        log.takeNumbers();
    }

    support::EventLog log;
    support::CreditProbe* const table; ///< the log's child
};

Host& host()
{
    static Host* const theHost = new Host;
    return *theHost;
}

void checkRead(const QString& text, Remembered& expected)
{
    support::CreditProbe& table = *host().table;
    host().log.takeNumbers();
    table.setParam(text);
    QList<int> events;
    if (take(text, expected)) {
        if (expected.values.value(expected.operation).value(TC::CR_Contract).toString().isEmpty())
            events.append(1083);
        events.append(73);
    }
    fuzz::require(table.m_operationType == expected.operation, "the operation is that of the text");
    fuzz::require(table.m_savedValues == expected.values, "the values are those that the rules take");
    fuzz::require(host().log.takeNumbers() == events, "the events are those of one new layout");
}

void checkRows(int operation)
{
    WQ::CMultiParamsTable& cells = *host().table->m_table;
    const bool isLaidOut =
        operation == 22 || operation == 23 || operation == 24 || operation == 25 || operation == 1021;
    if (isLaidOut) {
        const bool showsToday = operation == 22 || operation == 23;
        fuzz::require(support::isHidden(cells, TC::CR_RepayableToday) != showsToday, "today's row is as asked");
        fuzz::require(support::isHidden(cells, TC::CR_Repayable), "the last row is hidden");
    }
    fuzz::require(support::isHidden(cells, TC::CR_Contract), "the contract is never shown");
}

/// What the table writes reads back as the groups that are long enough to count.
void checkReadBack(const Remembered& state)
{
    host().reset();
    Remembered expected;
    checkRead(written(state), expected);
    for (auto group = state.values.cbegin(); group != state.values.cend(); ++group) {
        if (group->size() >= kFewestFields - 1 && group.key() >= 0 && group->firstKey() >= 0)
            fuzz::require(expected.values.value(group.key()) == *group, "a full group survives");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::startApplication();
    host().reset();
    const QString text = fuzz::textOf(data, size);
    if (size > fuzz::kLongestChecked) {
        host().table->setParam(text);
        return 0;
    }
    Remembered state;
    checkRead(text, state);
    checkRows(state.operation);
    fuzz::require(host().table->param() == written(state), "the text is that of the state, ascending");
    checkRead(text, state);
    checkReadBack(state);
    return 0;
}
