#include "reference/toolkit/ChangeHandlers.h"

#include <WQ/CMultiParamsTable.h>
#include <WQ/CUiResourceChangeHandler.h>

#include <QtGlobal>

#include <algorithm>
#include <exception>
#include <unordered_map>
#include <utility>
#include <vector>

namespace WQ::handlers {

namespace {

using Serial = quint64;

struct Announcements
{
    std::unordered_map<CUiResourceChangeHandler*, Serial> registered;
    Serial lastSerial = 0;
    bool theme = false; ///< to be told
    bool scale = false; ///< to be told
    bool telling = false;
    std::exception_ptr thrown; ///< the first that a handler has thrown; the others are told nevertheless
};

Announcements& state()
{
    static Announcements* const announcements = new Announcements;
    return *announcements;
}

struct Recipient
{
    CUiResourceChangeHandler* handler;
    Serial serial;
};

std::vector<Recipient> recipients()
{
    std::vector<Recipient> list;
    list.reserve(state().registered.size());
    for (const auto& entry : state().registered)
        list.push_back({entry.first, entry.second});
    std::sort(list.begin(), list.end(), [](const Recipient& a, const Recipient& b) { return a.serial < b.serial; });
    return list;
}

// The serial tells a handler from a later one at the same address.
bool isAlive(const Recipient& recipient)
{
    const auto found = state().registered.find(recipient.handler);
    return found != state().registered.end() && found->second == recipient.serial;
}

void tellOf(const Recipient& recipient, void (CUiResourceChangeHandler::*change)())
{
    try {
        (recipient.handler->*change)();
    } catch (...) {
        if (!state().thrown)
            state().thrown = std::current_exception();
    }
}

void tell(const Recipient& recipient, bool theme, bool scale)
{
    if (theme && isAlive(recipient))
        tellOf(recipient, &CUiResourceChangeHandler::themeChanged);
    if (scale && isAlive(recipient) && !dynamic_cast<CMultiParamsTable*>(recipient.handler))
        tellOf(recipient, &CUiResourceChangeHandler::scaleChanged);
}

constexpr int kMostRounds = 64;

struct Telling
{
    Telling()
    {
        state().telling = true;
    }
    ~Telling()
    {
        state().telling = false;
    }
    Q_DISABLE_COPY(Telling)
};

void tellEveryRound(Announcements& pending)
{
    for (int round = 0; pending.theme || pending.scale; ++round) {
        const bool theme = std::exchange(pending.theme, false);
        const bool scale = std::exchange(pending.scale, false);
        if (round == kMostRounds) {
            qWarning("theme: a handler answers every change by another one; it is told no more of these");
            return;
        }
        for (const Recipient& recipient : recipients())
            tell(recipient, theme, scale);
    }
}

void tellAll()
{
    Announcements& pending = state();
    if (pending.telling)
        return;
    {
        const Telling telling;
        tellEveryRound(pending);
    }
    if (const std::exception_ptr thrown = std::exchange(pending.thrown, nullptr))
        std::rethrow_exception(thrown);
}

} // namespace

void add(CUiResourceChangeHandler* handler)
{
    state().registered.emplace(handler, ++state().lastSerial);
}

void remove(CUiResourceChangeHandler* handler)
{
    state().registered.erase(handler);
}

void announceTheme()
{
    state().theme = true;
    tellAll();
}

void announceScale()
{
    state().scale = true;
    tellAll();
}

} // namespace WQ::handlers

namespace WQ {

CUiResourceChangeHandler::CUiResourceChangeHandler()
{
    handlers::add(this);
}

CUiResourceChangeHandler::~CUiResourceChangeHandler()
{
    handlers::remove(this);
}

void CUiResourceChangeHandler::themeChanged()
{
}

void CUiResourceChangeHandler::scaleChanged()
{
}

} // namespace WQ
