// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FrontApplication.h"

// Calls the handler that was installed for switches.
class SwitchTeller : public FrontApplication {
public:
    bool installSwitchHandler(std::function<void()> handler) override {
        m_handler = std::move(handler);
        return true;
    }

protected:
    void tellOfSwitch() const {
        // A copy, because the handler may install another one.
        if (const std::function<void()> handler = m_handler)
            handler();
    }

private:
    std::function<void()> m_handler;
};
