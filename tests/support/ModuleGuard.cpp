#include "support/ModuleGuard.h"

#include "reference/services/ServiceControl.h"
#include "reference/toolkit/Resources.h"

namespace support {

ModuleGuard::ModuleGuard(std::initializer_list<const char*> on)
{
    QSet<QString> names;
    for (const char* module : on) {
        if (*module)
            names.insert(QString::fromLatin1(module));
    }
    reference::setModules(names);
}

ModuleGuard::~ModuleGuard()
{
    reference::setModules({});
}

ClientModeGuard::ClientModeGuard(int mode)
{
    reference::setClientMode(mode);
}

ClientModeGuard::~ClientModeGuard()
{
    reference::setClientMode(0);
}

ScaleGuard::ScaleGuard(double scale)
{
    WQ::resources::setScale(scale);
}

ScaleGuard::~ScaleGuard()
{
    WQ::resources::setScale(1.0);
}

void sendAlgorithmHint(int orderType, bool hint)
{
    reference::emitAlgorithmHint(orderType, hint);
}

} // namespace support
