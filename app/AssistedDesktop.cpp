// SPDX-License-Identifier: MIT
#include "app/AssistedDesktop.h"

#include "platform/foundation/text/LocalizedStrings.h"

AssistedDesktop::AssistedDesktop(std::unique_ptr<WaylandConnection> compositor, Bus& sessionBus,
                                 RunLoop& runLoop, SystemLog& log, DesktopEntries& entries)
    : m_compositor(std::move(compositor))
    , m_programs(sessionBus, runLoop, log, entries) {
    m_compositor->setHandlers({{}, {}, {}, {}, [this] { settle(); }});
    m_programs.installSwitchHandler([this] { tell(); });
    m_programs.begin();
}

std::span<const WindowListEntry> AssistedDesktop::onScreenWindows() const {
    return m_compositor->isAlive() ? m_programs.onScreenWindows() : std::span<const WindowListEntry>();
}

bool AssistedDesktop::installSwitchHandler(std::function<void()> handler) {
    m_handler = std::move(handler);
    return true;
}

QString AssistedDesktop::describe() const {
    return QStringLiteral("Wayland: the compositor tells of no windows; ") + m_programs.describe();
}

QString AssistedDesktop::obstacle() const {
    if (!m_programs.isTelling())
        return localized("This Wayland desktop does not tell other programs which window is in front, so "
                         "that there is no time to credit.");
    return localized("This Wayland desktop does not tell other programs which window is in front. Only "
                     "programs that tell assistive programs of their windows are seen, and all other time "
                     "counts as “Desktop”.");
}

void AssistedDesktop::askForSign() {
    // Without a connection there is nobody to fall silent, which is known.
    if (!m_compositor->isAlive())
        return;
    m_compositor->afterAnswers([] {});
    m_compositor->flush();
}

void AssistedDesktop::settle() {
    if (const bool wasAlive = std::exchange(m_wasAlive, m_compositor->isAlive()); wasAlive != m_wasAlive) {
        if (wasAlive && m_lostHandler)
            m_lostHandler();
        tell();
    }
    if (m_heardHandler)
        m_heardHandler();
}

void AssistedDesktop::tell() {
    std::optional<ApplicationRecord> front;
    if (m_compositor->isAlive())
        front = m_programs.activeApplication();
    // The account goes on crediting whoever was told last, when nobody is told any more.
    if (!front && m_front)
        front = nothingInFront();
    if (std::exchange(m_front, front) == front)
        return;
    // A copy, because the handler may install another one.
    if (const std::function<void()> handler = m_handler)
        handler();
}
