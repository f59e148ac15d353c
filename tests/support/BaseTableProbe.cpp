#include "support/BaseTableProbe.h"

#include "support/EventLog.h"

namespace support {

BaseTableProbe::BaseTableProbe(const TableSetup& setup)
    : TC::COrderParamBaseTable(TC::EOpParamWidgetID(setup.id), ttservice::ENVBrokerType(setup.brokerType),
                               setup.modeButtons, setup.parent, setup.fontScale,
                               ttservice::ENvTraderType(setup.traderType), setup.autoBook)
{
}

void BaseTableProbe::setParam(const QString&)
{
}

QString BaseTableProbe::param() const
{
    return {};
}

// A hook may delete the table, and with it the std::function that holds the hook.
void BaseTableProbe::save()
{
    ++saves;
    hooks << QStringLiteral("save");
    if (const auto hook = onSave)
        hook();
}

void BaseTableProbe::reloadParam()
{
    ++reloads;
    hooks << QStringLiteral("reload");
    if (const auto hook = onReload)
        hook();
}

void BaseTableProbe::noteHooks(EventLog& host)
{
    onSave = [&host] { host.note(QStringLiteral("save")); };
    onReload = [&host] { host.note(QStringLiteral("reload")); };
}

bool BaseTableProbe::sendCellChanged(int cellId, const QString& text, const QVariant& value)
{
    QVariant payload = value;
    return handleEvent(73, cellId, 0, text, &payload);
}

bool BaseTableProbe::sendPriceTypeFromOutside(const QString& text, int value)
{
    int payload = value;
    return handleEvent(1213, 0, 0, text, &payload);
}

bool BaseTableProbe::sendEvent(int event, int a, const QString& text)
{
    return handleEvent(event, a, 0, text, nullptr);
}

} // namespace support
