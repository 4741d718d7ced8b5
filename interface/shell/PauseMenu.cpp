// SPDX-License-Identifier: MIT
#include "interface/shell/PauseMenu.h"

#include "Classes/engine/TimerControl.h"
#include "platform/foundation/text/LocalizedStrings.h"

using namespace std::chrono_literals;

namespace {

// The clock may be set, and the machine may sleep: nobody tells of the end of a pause.
constexpr auto kBetweenLooks = 30s;
constexpr auto kTolerance = 5s;

} // namespace

PauseMenu::PauseMenu(TimerControl& timer, RunLoop& runLoop, const Clock& clock, Tomorrow tomorrow)
    : m_timer(timer)
    , m_runLoop(runLoop)
    , m_clock(clock)
    , m_menu(localized("Pause For")) {
    m_menu.setObjectName(QStringLiteral("pauseMenu"));
    add("pauseQuarter", localized("15 Minutes"), [this] { return m_clock.now() + 15min; });
    add("pauseHour", localized("An Hour"), [this] { return m_clock.now() + 1h; });
    add("pauseDay", localized("Until Tomorrow"), [tomorrow = std::move(tomorrow)] {
        return Date(std::chrono::duration_cast<Date::duration>(
            std::chrono::milliseconds(tomorrow().toMSecsSinceEpoch())));
    });
}

void PauseMenu::add(const char* name, const QString& text, std::function<Date()> end) {
    QAction* item = m_menu.addAction(text);
    item->setObjectName(QLatin1String(name));
    // Queued: the desktop waits for this call to return, and stopping writes the timers.
    QObject::connect(
        item, &QAction::triggered, &m_menu, [this, end = std::move(end)] { pauseUntil(end()); },
        Qt::QueuedConnection);
}

void PauseMenu::pauseUntil(Date end) {
    if (m_timer.isRunning())
        m_timer.stopTimer();
    m_end = end;
    m_nextLook = m_runLoop.scheduleRepeating(kBetweenLooks, kTolerance, [this] { look(); });
}

void PauseMenu::look() {
    if (!m_timer.isRunning() && m_clock.now() < *m_end)
        return;
    m_end.reset();
    if (!m_timer.isRunning())
        m_timer.startTimer();
    // Last: this runs within it.
    m_nextLook->invalidate();
}
