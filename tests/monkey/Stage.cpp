#include "monkey/Stage.h"

#include "replay/PersonLog.h"
#include "replay/State.h"

#include <WQ/CMultiParamsTable.h>
#include <WQ/CScrollArea.h>

#include <QApplication>

namespace monkey {

namespace {

constexpr int kFrozen = 1767578400; // a morning of trading
constexpr QSize kScrollArea(260, 300);

Json made(const char* className, const char* name, Json arguments)
{
    return {{"do", "new"}, {"class", className}, {"name", name}, {"args", std::move(arguments)}};
}

Json tableArguments(Random& random)
{
    const Json id = randomIdentity(random);
    const Json broker = randomBroker(random);
    const bool withButtons = !random.oneIn(4);
    const bool isScaled = !random.oneIn(4);
    const Json trader = randomTrader(random);
    return Json::array({id, broker, withButtons, isScaled, trader, random.oneIn(2)});
}

Json globalTable(Random& random, const char* name)
{
    return made("CGlobalOrderParamTable", name, tableArguments(random));
}

Json probe(Random& random, const char* name)
{
    return made("BaseTableProbe", name, tableArguments(random));
}

Json codeTable(Random& random, const char* name)
{
    const Json id = randomIdentity(random);
    const Json broker = randomBroker(random);
    const bool isScaled = random.oneIn(2);
    const Json trader = randomTrader(random);
    return made("CCodeOrderParamTable", name, Json::array({id, broker, isScaled, trader, !random.oneIn(4)}));
}

Json stopLossTable(Random& random, const char* name)
{
    const Json id = randomIdentity(random);
    return made("CStopLossOrderParamTable", name, Json::array({id, randomBroker(random)}));
}

Json creditTable(Random& random, const char* name)
{
    return made(random.oneIn(2) ? "CCreditParamTable" : "CreditProbe", name, Json::array());
}

Json taskDialog(Random& random, const char* name)
{
    const Json task = randomTask(random);
    const bool flag = random.oneIn(2);
    const Json trader = randomTrader(random);
    return made("CBaseTaskParamWidget", name, Json::array({task, "", flag, trader, random.oneIn(2), ""}));
}

Json basketDialog(Random& random, const char* name)
{
    Json tasks = Json::array();
    tasks.push_back(randomTask(random));
    return made(random.oneIn(2) ? "CHpfBasketTaskParamWidget" : "BasketProbe", name, Json::array({tasks, "", ""}));
}

} // namespace

// clang-format off
const std::vector<Stage::Slot>& Stage::slotRows()
{
    static const std::vector<Slot> rows = {
        {5, "global",   Family::GlobalTable,  &globalTable, false},
        {4, "code",     Family::Table,        &codeTable, false},
        {4, "stopLoss", Family::Table,        &stopLossTable, false},
        {4, "scrolled", Family::Table,        &probe, true},
        {3, "credit",   Family::CreditTable,  &creditTable, false},
        {2, "task",     Family::TaskDialog,   &taskDialog, false},
        {1, "basket",   Family::BasketDialog, &basketDialog, false},
    };
    return rows;
}
// clang-format on

Stage::Stage(Random& random)
    : m_random(random)
{
    m_watcherBefore =
        WQ::watchPersonEvents([this](const QWidget& sender, const WQ::PersonEvent& event) { heard(sender, event); });
}

Stage::~Stage()
{
    WQ::watchPersonEvents(m_watcherBefore);
}

void Stage::open(const QString& scriptPath)
{
    m_script.start(scriptPath);
    m_isOpen = true;
    m_scrollArea = std::make_unique<WQ::CScrollArea>(nullptr);
    m_scrollArea->resize(kScrollArea);
    run({{"do", "reset"}});
    run({{"do", "clock"}, {"epoch", kFrozen}});
    for (const Slot& slot : slotRows())
        make(slot);
}

void Stage::close()
{
    m_isOpen = false;
    m_session.reset();
    deliverAll();
    m_scrollArea.reset();
}

void Stage::run(const Json& command)
{
    m_script.add(command);
    m_inCommand = true;
    m_session.run(command);
    deliverAll();
    m_inCommand = false;
}

void Stage::settle()
{
    deliverAll();
    for (const Slot& slot : slotRows()) {
        if (object(slot))
            continue;
        m_script.add({{"do", "delete"}, {"on", slot.name}});
        make(slot);
    }
}

void Stage::reopen(const Slot& slot)
{
    run({{"do", "delete"}, {"on", slot.name}});
    make(slot);
}

void Stage::make(const Slot& slot)
{
    run(slot.make(m_random, slot.name));
    QWidget* made = object(slot);
    if (made && slot.isScrolled)
        m_scrollArea->setWidget(made->parentWidget());
    show(slot);
}

void Stage::show(const Slot& slot)
{
    run({{"do", "show"}, {"on", slot.name}});
    if (QWidget* window = windowOf(slot))
        window->show();
    deliverAll();
}

QWidget* Stage::object(const Slot& slot) const
{
    return m_session.object(QLatin1String(slot.name));
}

QWidget* Stage::windowOf(const Slot& slot) const
{
    const QWidget* found = object(slot);
    return found ? found->window() : nullptr;
}

std::vector<const WQ::CMultiParamsTable*> Stage::cellTables() const
{
    std::vector<const WQ::CMultiParamsTable*> tables;
    for (const Slot& slot : slotRows()) {
        const QWidget* found = object(slot);
        const auto* cells = found ? found->findChild<WQ::CMultiParamsTable*>() : nullptr;
        if (cells)
            tables.push_back(cells);
    }
    return tables;
}

Json Stage::states()
{
    QCoreApplication::processEvents();
    Json states = Json::object();
    for (const Slot& slot : slotRows()) {
        const QWidget* found = object(slot);
        states[slot.name] = found ? replay::stateOf(found) : Json();
    }
    return states;
}

void Stage::heard(const QWidget& sender, const WQ::PersonEvent& event)
{
    for (const Slot& slot : slotRows()) {
        const QWidget* found = object(slot);
        if (!m_isOpen || !found || !found->isAncestorOf(&sender))
            continue;
        const Json command =
            replay::personCommand(slot.name, event, qobject_cast<const WQ::CMultiParamsTable*>(&sender));
        if (command.is_null())
            return;
        ++m_deeds[event.event];
        m_inCommand ? m_script.addBeforeLast(command) : m_script.add(command);
        return;
    }
}

// What goes out may post more.
void Stage::deliverAll()
{
    constexpr int kRounds = 3;
    for (int round = 0; round < kRounds; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

} // namespace monkey
