// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LoginItems.h"

// Whether Ticklog starts at login, as the check box for it shows and sets it. The login items must outlive it.
class LoginItemControl {
public:
    explicit LoginItemControl(LoginItems& items)
        : m_items(items) {}

    // The user set the check box. What the session says afterwards is what counts.
    Outcome toggleLoginItem(bool isOn);
    // Asks the session again: at the end of the launch, and when the box is shown.
    void loginItemStateChanged();

    // As the session last said. Off until then, and while the session does not know of the launch helper.
    bool isOn() const { return m_isOn; }

private:
    LoginItems& m_items;
    bool m_isOn = false;
};
