#include "contract/RecordedPanel.h"

#include <WQ/CDropDownButtonGroup.h>

namespace contract {

QStringList lines(const char* utf8)
{
    QStringList texts = QString::fromUtf8(utf8).split(QLatin1Char('\n'));
    for (QString& text : texts)
        text = text.trimmed();
    texts.removeAll(QString());
    return texts;
}

support::TableSetup setupOf(int id, int brokerType, int traderType)
{
    support::TableSetup setup;
    setup.id = id;
    setup.brokerType = brokerType;
    setup.traderType = traderType;
    return setup;
}

RecordedPanel::RecordedPanel(const support::TableSetup& setup)
    : table(setup)
{
    table.onSave = [] { recorder::record(recorder::Hook, QStringLiteral("save")); };
    table.onReload = [] { recorder::record(recorder::Hook, QStringLiteral("reload")); };
    table.resetCellVisibilities();
    recorder::clear();
}

void addModeButton(support::BaseTableProbe& table, int id, const QString& text)
{
    auto* const button = new WQ::CPushButton(WQ::CButtonColor(), id, table.m_btnGroup);
    button->setText(text);
    table.m_btnGroup->addButton(button, WQ::AnchorStart);
    recorder::clear();
}

} // namespace contract
