// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FrontApplication.h"

// Tells of switches to whoever asked for it.
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
