// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Result.h"

#include <functional>
#include <memory>
#include <optional>

// The right to change which privileged services the machine runs, for as long as it lives.
class ServiceRight {
public:
    virtual ~ServiceRight() = default;
};

// A privileged service as the machine knows it.
struct Service {
    // What it is called on the system bus.
    QString name;
    QString program;
};

// The privileged helper at the other end of a connection, which lasts as long as this. Its handlers are called in a later
// turn of the loop, and may destroy it.
class TKAuthXPC {
public:
    virtual ~TKAuthXPC() = default;

    // Asks the helper to trust a program, by its full path. `reply` is called once when that is done; otherwise the
    // connection's error handler is.
    virtual void authorize(const QString& executable, std::function<void()> reply) = 0;
};

// Installs, removes and starts the machine's privileged services, and connects to them. Nothing here waits for a person
// or a service. Main thread only; the handlers are called on it.
class ServiceManagement {
public:
    virtual ~ServiceManagement() = default;

    // Null when the right cannot be had here at all.
    virtual std::unique_ptr<ServiceRight> requestRight() = 0;
    // Takes the service out of what the machine runs, if it is there.
    virtual void removeService(const QString& name, const ServiceRight& right) = 0;
    // Sees to it that the service is installed, which may mean asking a person; `done` tells whether it is, at once or
    // later. The right lives until then.
    virtual void installService(const QString& name, const ServiceRight& right,
                                std::function<void(bool isInstalled)> done) = 0;
    // Absent when the machine does not know the service.
    virtual std::optional<Service> findService(const QString& name) = 0;
    // Starts it, as far as it does not run.
    virtual void startService(const Service& service, const ServiceRight& right) = 0;
    // Connects to the helper that serves `name`; null when there is nothing to connect through. `failed` is called when a
    // message could not be delivered or was not answered: Refused when a person or the machine said no.
    virtual std::unique_ptr<TKAuthXPC> connectToHelper(const QString& name,
                                                       std::function<void(const Failure&)> failed) = 0;
};
