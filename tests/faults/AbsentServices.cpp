#include "faults/AbsentServices.h"

#include <TC/CTimeService.h>
#include <TC/CUserConfig.h>
#include <TC/DataCenter.h>
#include <WQ/CUiResource.h>
#include <luawrapper/LuaModuleCtrl.h>

#include <dlfcn.h>

// The platform's entry points, defined once more: the program's come before those of its libraries, whose own are
// asked while nothing is absent.

namespace faults {

namespace {

struct State
{
    bool isAbsent = false;
    int questions = 0;
};

State& stateOf(Service service)
{
    static State states[std::size(kServices)];
    return states[int(service)];
}

template <class Answer>
Answer* answerOf(Service service, const char* symbol)
{
    State& state = stateOf(service);
    if (state.isAbsent) {
        ++state.questions;
        return nullptr;
    }
    const auto original = reinterpret_cast<Answer* (*)()>(dlsym(RTLD_NEXT, symbol));
    return original();
}

} // namespace

AbsentService::AbsentService(Service service)
    : m_service(service)
{
    stateOf(service) = {true, 0};
}

AbsentService::~AbsentService()
{
    stateOf(m_service).isAbsent = false;
}

int questions(Service service)
{
    return stateOf(service).questions;
}

} // namespace faults

using faults::answerOf;
using faults::Service;

namespace TC {

CUserConfig* getUserConfig()
{
    return answerOf<CUserConfig>(Service::UserConfig, "_ZN2TC13getUserConfigEv");
}

CTimeService* getTimeService()
{
    return answerOf<CTimeService>(Service::Clock, "_ZN2TC14getTimeServiceEv");
}

DataCenter* DataCenter::instance()
{
    return answerOf<DataCenter>(Service::DataCenter, "_ZN2TC10DataCenter8instanceEv");
}

} // namespace TC

namespace luawrapper {

LuaModuleCtrl* LuaModuleCtrl::instance()
{
    return answerOf<LuaModuleCtrl>(Service::Modules, "_ZN10luawrapper13LuaModuleCtrl8instanceEv");
}

} // namespace luawrapper

namespace WQ {

CUiResource* CUiResource::instance()
{
    return answerOf<CUiResource>(Service::Resources, "_ZN2WQ11CUiResource8instanceEv");
}

} // namespace WQ
