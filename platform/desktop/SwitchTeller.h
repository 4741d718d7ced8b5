// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FrontApplication.h"

// Reports switches to whoever observes them.
class SwitchTeller : public FrontApplication {
public:
    Subscription observeSwitches(News::Hearer hearer) override {
        return m_switches.observe(std::move(hearer));
    }

protected:
    void tellOfSwitch() const { m_switches.tell(); }

private:
    News m_switches;
};
