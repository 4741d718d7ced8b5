// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/BusService.h"

// A notice on the desktop that asks the user to let other programs' windows be seen. The bus must outlive it.
class TrustNotice {
public:
    // `allow` is called each time the user does.
    TrustNotice(Bus& sessionBus, SystemLog& log, std::function<void()> allow);

    // Shows the notice, in the place of the last one.
    void show();

private:
    BusService m_notifications;
    SystemLog& m_log;
    // As the desktop counts them; 0 before the first.
    quint32 m_shown = 0;
    std::unique_ptr<BusSignal> m_answers;
};
