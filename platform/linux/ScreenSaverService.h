// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/BusService.h"

#include <functional>

// One of the services by which screen savers and lockers tell that they cover the screen. They differ in
// nothing but their names. Never starts the service. `sessionBus` must outlive it.
class ScreenSaverService {
public:
    struct Name {
        QString service;
        QString path;
        // The interface has the service's name.
    };

    // Calls `changed` after isActive() has changed.
    ScreenSaverService(Bus& sessionBus, const Name& name, std::function<void()> changed);

    bool isActive() const { return m_isActive; }

private:
    void follow();
    void setActive(bool isActive);

    QString m_path;
    BusService m_service;
    std::function<void()> m_changed;
    bool m_isActive = false;
    std::unique_ptr<BusSignal> m_activeChanged;
    Subscription m_presence;
};
