// SPDX-License-Identifier: MIT
#include "interface/shell/LoginItemControl.h"

#include <algorithm>

namespace {

const QString kLaunchHelper = QStringLiteral("org.ticklog.TicklogLaunchHelper");

} // namespace

Outcome LoginItemControl::toggleLoginItem(bool isOn) {
    const Outcome done = m_items.setEnabled(kLaunchHelper, isOn);
    loginItemStateChanged();
    return done;
}

void LoginItemControl::loginItemStateChanged() {
    const std::vector<LoginEntry> items = m_items.items();
    const auto ours = std::ranges::find(items, kLaunchHelper, &LoginEntry::identifier);
    m_isOn = ours != items.end() && ours->isStarted;
}
