// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandDesktop.h"

#include "platform/foundation/text/LocalizedStrings.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

// Longer chains of dialogues of dialogues are loops.
constexpr int kLongestChain = 16;

// Our windows have the name of our desktop entry under Wayland, and that of the program under Xwayland.
const QStringList& ownAppIds() {
    static const QStringList kIds{QStringLiteral("org.ticklog.Ticklog"), QStringLiteral("ticklog")};
    return kIds;
}

} // namespace

WaylandDesktop::WaylandDesktop(std::unique_ptr<WaylandConnection> connection, RunLoop& runLoop,
                               SystemLog& log, DesktopEntries& entries)
    // Asks whether it has said everything.
    : FollowedDesktop(entries, runLoop, [this] { m_connection->askForSign(); })
    , m_connection(std::move(connection))
    , m_log(log) {
    m_news = m_connection->observe({[this] { beginTelling(); },
                                    [this] {
                                        endTelling();
                                        m_isLossUntold = true;
                                    },
                                    {},
                                    {},
                                    [this] {
                                        settle();
                                        hear();
                                    }});
}

WaylandDesktop::~WaylandDesktop() = default;

QString WaylandDesktop::obstacle() const {
    return m_isTelling
               ? QString()
               : localized("This Wayland desktop no longer tells other programs which window is in front.");
}

void WaylandDesktop::start() {
    beginTelling();
    // The first answers list the windows, the second ones describe them.
    if (m_connection->awaitAnswers())
        m_connection->awaitAnswers();
}

void WaylandDesktop::setWindow(std::int64_t number, const Window& window) {
    const auto [found, isNew] = m_windows.try_emplace(number);
    Known& known = found->second;
    if (!isNew && known.window == window)
        return;
    noteChange();
    const bool isSaidAnew =
        isNew || window.appId != known.window.appId || window.process != known.window.process;
    const bool comesToFront = window.isActive && (isNew || !known.window.isActive);
    if (comesToFront && !isNew)
        std::erase(m_frontToBack, number);
    if (comesToFront)
        m_frontToBack.insert(m_frontToBack.begin(), number);
    else if (isNew)
        m_frontToBack.push_back(number);
    known.window = window;
    if (isSaidAnew)
        findApplication(known);
    m_processes.settle(m_windows, [](const auto& entry) -> QString { return entry.second.window.appId; });
}

void WaylandDesktop::removeWindow(std::int64_t number) {
    m_windows.erase(number);
    std::erase(m_frontToBack, number);
    noteChange();
}

void WaylandDesktop::setOrder(const std::vector<std::int64_t>& frontToBack) {
    std::vector<std::int64_t> order;
    for (const std::int64_t number : frontToBack) {
        if (std::erase(m_frontToBack, number) != 0)
            order.push_back(number);
    }
    std::ranges::copy(m_frontToBack, std::back_inserter(order));
    m_frontToBack = std::move(order);
    noteChange();
}

void WaylandDesktop::beginTelling() {
    m_isTelling = bind();
    if (!m_isTelling)
        m_log.log(QStringLiteral("The Wayland compositor that is there now does not tell of its windows."));
}

void WaylandDesktop::endTelling() {
    unbind();
    forgetFront();
    m_windows.clear();
    m_frontToBack.clear();
    m_isTelling = false;
}

void WaylandDesktop::tellOfEnd() {
    if (std::exchange(m_isLossUntold, false))
        lose(frontAfterwards());
    else
        show({}, frontAfterwards());
}

void WaylandDesktop::settle() {
    if (!m_isTelling) {
        tellOfEnd();
        return;
    }
    std::optional<Front> front;
    if (const auto active = activeWindow()) {
        front = m_windows.at(*active).window.isDesktop ? desktopInFront() : frontOf(*active);
    }
    settleFront(front, m_connection->isAwaitingAnswers());
}

std::optional<std::int64_t> WaylandDesktop::activeWindow() const {
    // There may be one for each seat: the latest is in front.
    for (const std::int64_t number : m_frontToBack) {
        const Window& window = m_windows.at(number).window;
        if (window.isActive && !window.isMinimised)
            return number;
    }
    return std::nullopt;
}

void WaylandDesktop::findApplication(Known& known) {
    const Window& window = known.window;
    const std::int64_t process = window.process ? *window.process : m_processes.of(window.appId);
    const bool isOwn = process == QCoreApplication::applicationPid() || ownAppIds().contains(window.appId);
    known.application = recordOf(process, {window.appId}, isOwn);
    known.isInstalled = isOwn || desktopEntries().knows({window.appId});
}

// The window that says which program this one belongs to: for a dialogue, the window that it was opened for, unless
// that is known to be another process's.
std::int64_t WaylandDesktop::speakerFor(std::int64_t dialogue) const {
    const auto process = m_windows.at(dialogue).window.process;
    std::int64_t speaker = dialogue;
    for (int i = 0; i < kLongestChain; ++i) {
        const auto parent = m_windows.find(m_windows.at(speaker).window.parent);
        if (parent == m_windows.end() || parent->second.window.process != process)
            break;
        speaker = parent->first;
    }
    return speaker;
}

FollowedDesktop::Front WaylandDesktop::frontOf(std::int64_t active) const {
    const std::int64_t speaker = speakerFor(active);
    const Known& known = m_windows.at(speaker);
    return {.window = active, .application = known.application, .undecided = known.isInstalled ? 0 : speaker};
}

std::vector<WindowListEntry> WaylandDesktop::listed() const {
    std::vector<WindowListEntry> entries;
    for (const std::int64_t number : m_frontToBack) {
        const Window& window = m_windows.at(number).window;
        const ApplicationRecord& application = m_windows.at(speakerFor(number)).application;
        if (!window.isMinimised)
            entries.push_back({number, application.processIdentifier, !window.isDesktop,
                               window.title.isEmpty() ? std::nullopt : std::optional(window.title),
                               application.name});
    }
    return entries;
}
