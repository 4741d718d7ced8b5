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
    const std::vector<LoginJob> jobs = m_items.copyAllJobDictionaries();
    const auto ours = std::ranges::find(jobs, kLaunchHelper, &LoginJob::label);
    m_isOn = ours != jobs.end() && ours->isOnDemand;
}
