// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/BusService.h"

#include <functional>

// One of the services by which screen savers and lockers report that they cover the screen. They differ only
// in their names. Never starts the service. `sessionBus` must outlive it.
class ScreenSaverService {
public:
    struct Name {
        QString service;
        QString path;
        QString interface;
    };

    // Calls `changed` after isActive() has changed.
    ScreenSaverService(Bus& sessionBus, const Name& name, std::function<void()> changed);

    bool isActive() const { return m_isActive; }

private:
    void follow();
    void setActive(bool isActive);

    Name m_name;
    BusService m_service;
    std::function<void()> m_changed;
    bool m_isActive = false;
    std::unique_ptr<BusSignal> m_activeChanged;
    Subscription m_presence;
};
