// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Result.h"

#include <functional>
#include <memory>
#include <optional>

// While it lives: the right to change which privileged services the machine runs.
class ServiceRight {
public:
    virtual ~ServiceRight() = default;
};

// A privileged service that the machine knows.
struct Service {
    // Its name on the system bus.
    QString name;
    QString program;
};

// A connection to the privileged helper, which lasts as long as this object. Handlers are called in a later
// turn of the loop, and may destroy this object.
class TKAuthXPC {
public:
    virtual ~TKAuthXPC() = default;

    // Asks the helper to trust a program, by its full path. Calls `reply` once when that is done, otherwise
    // the connection's error handler.
    virtual void authorize(const QString& executable, std::function<void()> reply) = 0;
};

// Installs, removes and starts the machine's privileged services, and connects to them. Never waits for a
// person or a service. Main thread only, also for the handlers.
class ServiceManagement {
public:
    virtual ~ServiceManagement() = default;

    // Null when this right cannot be had on this machine.
    virtual std::unique_ptr<ServiceRight> requestRight() = 0;
    // Removes the service from those that the machine runs, if it is there.
    virtual void removeService(const QString& name, const ServiceRight& right) = 0;
    // Makes sure that the service is installed, which may ask a person; `done` gets whether it is, at once or
    // later. The right must live until then.
    virtual void installService(const QString& name, const ServiceRight& right,
                                std::function<void(bool isInstalled)> done) = 0;
    // Absent when the machine does not know the service.
    virtual std::optional<Service> findService(const QString& name) = 0;
    // Starts it unless it runs.
    virtual void startService(const Service& service, const ServiceRight& right) = 0;
    // Connects to the helper with the bus name `name`; null when there is no bus. `failed` is called when a
    // message was not delivered or not answered; the kind is Refused when a person or the machine said no.
    virtual std::unique_ptr<TKAuthXPC> connectToHelper(const QString& name,
                                                       std::function<void(const Failure&)> failed) = 0;
};
