// SPDX-License-Identifier: MIT
// The part of the preferences that concerns the history.
#include "Classes/common/Settings.h"
#include "Classes/history/History.h"
#include "Classes/report/Moment.h"
#include "interface/mainwindow/TKController.h"
#include "interface/preferences/TKSetupController.h"
#include "interface/shell/Alerts.h"
#include "platform/Platform.h"
#include "platform/foundation/text/LocalizedStrings.h"
#include "platform/foundation/time/LocalTime.h"

HistoryTab::Actions TKSetupController::historyActions() {
    return {
        .mayKeepFor = [this](std::int64_t days) { return mayKeepFor(days); },
        .forget = [this] { forgetHistory(); },
        .obstacle = [this] { return m_history ? m_history->obstacle() : localized("No history is kept."); }};
}

// If days would be deleted for good, asks the user.
bool TKSetupController::mayKeepFor(std::int64_t days) {
    const std::int64_t now = m_defaults.integerForKey(kHistoryDays);
    const bool isLess = now >= 0 && (days < 0 || (days > 0 && (now == 0 || days < now)));
    if (!isLess)
        return true;
    return m_alerts.ask(
               {.message =
                    days < 0 ? localized("Stop keeping a history?") : localized("Forget what is older?"),
                .informativeText =
                    days < 0 ? localized("Its file is removed at once. This cannot be undone. Timers keep "
                                         "their times, but a crash may cost them the last 15 minutes.")
                             : localized("It is removed from the file at once. This cannot be undone."),
                .defaultButton = localized("Cancel"),
                .alternateButton = localized("Forget"),
                .otherButton = {}}) == Alerts::Alternate;
}

void TKSetupController::forgetHistory() {
    if (!m_history || !m_history->obstacle().isEmpty())
        return;
    if (!m_forgetWindow)
        m_forgetWindow = std::make_unique<ForgetWindow>(
            m_history->reader(), m_platform.runLoop, m_alerts,
            [this](const auto& what, auto told) { forget(what, std::move(told)); }, &m_prefWindow);
    const int dayBegins = m_history->dayBegins();
    m_forgetWindow->openFor(dayOf(localTime(m_platform.clock.now()), dayBegins), dayBegins);
}

void TKSetupController::forget(const HistoryChange::Forgotten& what, std::function<void(bool)> told) {
    m_history->forget(what, std::move(told));
    // The history no longer knows what a crash would cost the timers: from now on their own file has it.
    m_tkController.saveSettingsToDisk();
}

TitlesTab::Services TKSetupController::titleServices() {
    return {.settings = m_settings,
            .alerts = m_alerts,
            .clock = m_platform.clock,
            .history = m_history,
            .countTimers =
                [this](const PastTitles& past) { return m_tkController.tracker().countSayingMoreThan(past); },
            .holdOverPast = [this](const PastTitles& past,
                                   const PropertyListArray& rules) { holdOverPast(past, rules); }};
}

void TKSetupController::holdOverPast(const PastTitles& past, const PropertyListArray& rules) {
    const auto hidden = m_tkController.sayNoMoreThan(past);
    if (m_history)
        m_history->holdRules(PropertyListValue(rules), hidden);
    // What a crash would have cost the timers is in their own file from now on, under no other names.
    m_tkController.saveSettingsToDisk();
}
