// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LoginItems.h"

// Shows and sets whether Ticklog starts at login. The login items must outlive it.
class LoginItemControl {
public:
    explicit LoginItemControl(LoginItems& items)
        : m_items(items) {}

    // The user has set the check box. Its state afterwards is what the session says.
    Outcome toggleLoginItem(bool isOn);
    // Asks the session again. Called at the end of the launch and when the box is shown.
    void loginItemStateChanged();

    // What the session said last. Off before that, and while the session does not know the launch helper.
    bool isOn() const { return m_isOn; }

private:
    LoginItems& m_items;
    bool m_isOn = false;
};
