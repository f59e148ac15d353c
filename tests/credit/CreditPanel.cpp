#include "credit/CreditPanel.h"

#include "reference/toolkit/cells/CellItem.h"

CreditPanel::CreditPanel()
    : table(new support::CreditProbe(&host))
{
}

void CreditPanel::offerAccounts(const QStringList& accounts, int current)
{
    QStringList names;
    QVector<QVariant> values;
    for (const QString& account : accounts) {
        names << QStringLiteral("name of ") + account;
        values << account;
    }
    cells().resetComboData(726, names, values, current);
}

QString CreditPanel::row(int id) const
{
    const WQ::CMultiParamsTableItem* item = cells().getItem(id);
    if (!item)
        return QStringLiteral("none");
    const WQ::CellItem& cell = *item->cell();
    QString row = cell.label() + QLatin1String(": \"") + cells().itemText(id) + QLatin1Char('"');
    if (!cells().itemUnit(id).isEmpty())
        row += QLatin1Char(' ') + cells().itemUnit(id);
    if (cell.isHidden())
        row += QLatin1String(", hidden");
    if (!cell.isEditable())
        row += QLatin1String(", fixed");
    return row;
}

QStringList CreditPanel::codeAndFigures() const
{
    QStringList rows;
    for (int id = 727; id <= 731; ++id)
        rows << row(id);
    return rows;
}

QStringList CreditPanel::texts() const
{
    QStringList texts;
    for (int id = 727; id <= 731; ++id)
        texts << cells().itemText(id);
    return texts;
}

QString CreditPanel::remembered() const
{
    QStringList operations;
    for (auto values = table->m_savedValues.cbegin(); values != table->m_savedValues.cend(); ++values) {
        QStringList rows;
        for (auto value = values->cbegin(); value != values->cend(); ++value)
            rows << QString::number(value.key()) + QLatin1Char('=') + value->toString();
        operations << QString::number(values.key()) + QLatin1String(": ") + rows.join(QLatin1String(", "));
    }
    return operations.join(QLatin1String("; "));
}

void remember(support::CreditProbe& table, int operation, const QMap<int, QString>& values)
{
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        table.m_savedValues[operation][value.key()] = value.value();
}

void chooseOperation(CreditPanel& panel, int operation)
{
    panel.table->setParam(QString::number(operation) + QLatin1Char('+'));
    panel.host.take();
}
