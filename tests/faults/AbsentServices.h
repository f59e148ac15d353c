#pragma once

namespace faults {

/// The services that a client may lack.
enum class Service { UserConfig, Clock, DataCenter, Modules, Resources };
constexpr Service kServices[] = {Service::UserConfig, Service::Clock, Service::DataCenter, Service::Modules,
                                 Service::Resources};
constexpr const char* kServiceNames[] = {"user configuration", "clock", "data center", "modules", "resources"};

/// From here to the end of its scope that service is null, as for a client that has none.
class AbsentService
{
public:
    explicit AbsentService(Service service);
    ~AbsentService();
    AbsentService(const AbsentService&) = delete;
    AbsentService& operator=(const AbsentService&) = delete;

private:
    Service m_service;
};

/// How often the library has asked for a service that was absent.
int questions(Service service);

} // namespace faults
