// SPDX-License-Identifier: MIT
#pragma once

#include "platform/bus/BusService.h"

// A notice on the desktop that asks the user to let Ticklog see other programs' windows. The bus must outlive
// it.
class TrustNotice {
public:
    // `allow` is called each time the user agrees.
    TrustNotice(Bus& sessionBus, SystemLog& log, std::function<void()> allow);

    // Shows the notice; it replaces an earlier one.
    void show();

private:
    BusService m_notifications;
    SystemLog& m_log;
    // The desktop's number of the notice; 0 before the first one.
    quint32 m_shown = 0;
    std::unique_ptr<BusSignal> m_answers;
};
