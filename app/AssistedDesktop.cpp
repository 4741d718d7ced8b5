// SPDX-License-Identifier: MIT
#include "app/AssistedDesktop.h"

#include "platform/foundation/text/LocalizedStrings.h"

AssistedDesktop::AssistedDesktop(std::unique_ptr<WaylandConnection> compositor, QString remedy,
                                 Bus& sessionBus, RunLoop& runLoop, SystemLog& log, DesktopEntries& entries)
    : TellingDesktop(entries)
    , m_compositor(std::move(compositor))
    , m_remedy(std::move(remedy))
    , m_programs(sessionBus, runLoop, log, entries) {
    m_news = m_compositor->observe({{}, {}, {}, {}, [this] { settle(); }});
    m_switches = m_programs.observeSwitches([this] { tell(); });
    m_programs.begin();
}

std::span<const WindowListEntry> AssistedDesktop::onScreenWindows() const {
    return m_compositor->isAlive() ? m_programs.onScreenWindows() : std::span<const WindowListEntry>();
}

QString AssistedDesktop::describe() const {
    return QStringLiteral("Wayland: the compositor tells of no windows; ") + m_programs.describe();
}

QString AssistedDesktop::obstacle() const {
    if (!m_remedy.isEmpty())
        return m_programs.isTelling()
                   ? m_remedy + u' ' +
                         localized("Until then, Ticklog sees only programs that tell assistive programs "
                                   "about their windows; all other time counts as “Desktop”.")
                   : m_remedy;
    if (!m_programs.isTelling())
        return localized("This Wayland desktop does not tell other programs which window is in front, so no "
                         "time can be counted.");
    return localized(
        "This Wayland desktop does not tell other programs which window is in front. Ticklog sees only "
        "programs that tell assistive programs about their windows; all other time counts as “Desktop”.");
}

void AssistedDesktop::settle() {
    const bool wasAlive = std::exchange(m_wasAlive, m_compositor->isAlive());
    if (wasAlive && !m_wasAlive)
        lose(frontAfterwards());
    else if (!wasAlive && m_wasAlive)
        tell();
    hear();
}

void AssistedDesktop::tell() {
    const auto& front = m_programs.activeApplication();
    show({}, front && m_compositor->isAlive() ? front : frontAfterwards());
}
