// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandDesktop.h"

#include "platform/foundation/programs/ProcessExecutable.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr int kDesktopLayer = -1000;
// Between two windows compositors say for a moment that none is active.
constexpr std::chrono::milliseconds kEmptyMoment{100};

// Under Wayland our windows bear the name of our desktop entry, under Xwayland that of the program.
const QStringList& ownAppIds() {
    static const QStringList kIds{QStringLiteral("org.ticklog.Ticklog"), QStringLiteral("ticklog")};
    return kIds;
}

} // namespace

WaylandDesktop::WaylandDesktop(std::unique_ptr<WaylandConnection> connection, RunLoop& runLoop,
                               SystemLog& log, DesktopEntries& entries)
    : m_connection(std::move(connection))
    , m_runLoop(runLoop)
    , m_log(log)
    , m_desktopEntries(entries) {
    m_connection->setHandlers({[this] { beginTelling(); },
                               [this] { lose(); },
                               {},
                               {},
                               [this] {
                                   settle();
                                   if (m_heardHandler)
                                       m_heardHandler();
                               }});
}

WaylandDesktop::~WaylandDesktop() = default;

bool WaylandDesktop::installSwitchHandler(std::function<void()> handler) {
    m_handler = std::move(handler);
    return true;
}

QString WaylandDesktop::bundleName(const QString& path) const {
    return m_desktopEntries.nameForExecutable(path).value_or(QFileInfo(path).fileName());
}

QString WaylandDesktop::obstacle() const {
    return m_isTelling
               ? QString()
               : localized("This Wayland desktop no longer tells other programs which window is in front.");
}

void WaylandDesktop::askForSign() {
    // Without a connection there is nobody to fall silent, which is known.
    if (!m_connection->isAlive())
        return;
    m_connection->afterAnswers([] {});
    m_connection->flush();
}

void WaylandDesktop::start() {
    beginTelling();
    // What there is, and then what each says of itself.
    if (m_connection->awaitAnswers())
        m_connection->awaitAnswers();
}

void WaylandDesktop::setWindow(std::int64_t number, const Window& window) {
    const auto [found, isNew] = m_windows.try_emplace(number);
    Known& known = found->second;
    if (!isNew && known.window == window)
        return;
    m_areEntriesStale = true;
    if (isNew || window.appId != known.window.appId || window.process != known.window.process)
        known.application = applicationOf(window);
    const bool comesToFront = window.isActive && (isNew || !known.window.isActive);
    if (comesToFront && !isNew)
        std::erase(m_frontToBack, number);
    if (comesToFront)
        m_frontToBack.insert(m_frontToBack.begin(), number);
    else if (isNew)
        m_frontToBack.push_back(number);
    known.window = window;
    m_processes.settle(m_windows, [](const auto& entry) -> QString { return entry.second.window.appId; });
}

void WaylandDesktop::removeWindow(std::int64_t number) {
    m_windows.erase(number);
    std::erase(m_frontToBack, number);
    m_areEntriesStale = true;
}

void WaylandDesktop::setOrder(const std::vector<std::int64_t>& frontToBack) {
    std::vector<std::int64_t> order;
    for (const std::int64_t number : frontToBack) {
        if (std::erase(m_frontToBack, number) != 0)
            order.push_back(number);
    }
    std::ranges::copy(m_frontToBack, std::back_inserter(order));
    m_frontToBack = std::move(order);
    m_areEntriesStale = true;
}

void WaylandDesktop::beginTelling() {
    m_isTelling = bind();
    if (!m_isTelling)
        m_log.log(QStringLiteral("The Wayland compositor that is there now does not tell of its windows."));
}

void WaylandDesktop::endTelling() {
    unbind();
    endEmptyMoment();
    m_windows.clear();
    m_frontToBack.clear();
    m_frontWindow = 0;
    m_isTelling = false;
}

void WaylandDesktop::lose() {
    endTelling();
    m_isLossUntold = true;
}

void WaylandDesktop::tellOfEnd() {
    m_entries.clear();
    // The account goes on crediting whoever was told last, and that must not be a window that is gone.
    const bool isSwitch = m_front && m_front != nothingInFront();
    if (isSwitch)
        m_front = nothingInFront();
    if (std::exchange(m_isLossUntold, false) && m_lostHandler)
        m_lostHandler();
    if (isSwitch)
        tellOfSwitch();
}

void WaylandDesktop::settle() {
    if (!m_isTelling) {
        tellOfEnd();
        return;
    }
    if (const auto active = activeWindow()) {
        endEmptyMoment();
        const Known& known = m_windows.at(*active);
        if (known.window.isDesktop)
            bringToFront(0, nothingInFront());
        else
            bringToFront(*active, known.application);
    } else if (m_front != nothingInFront()) {
        waitThroughEmptyMoment();
    }
    if (m_areEntriesStale)
        updateEntries();
}

std::optional<std::int64_t> WaylandDesktop::activeWindow() const {
    // There may be several, one for each seat: whoever sat down last is followed.
    for (const std::int64_t number : m_frontToBack) {
        const Window& window = m_windows.at(number).window;
        if (window.isActive && !window.isMinimised)
            return number;
    }
    return std::nullopt;
}

ApplicationRecord WaylandDesktop::applicationOf(const Window& window) {
    ApplicationRecord application;
    if (window.process) {
        application.processIdentifier = *window.process;
        application.path = executableOfProcess(*window.process);
    } else {
        application.processIdentifier = madeUpProcessOf(window.appId);
    }
    const bool isOwn = application.processIdentifier == QCoreApplication::applicationPid() ||
                       ownAppIds().contains(window.appId);
    if (isOwn)
        application.name = kOwnName;
    else if (const auto name = m_desktopEntries.nameForWindow({window.appId}, application.path))
        application.name = *name;
    else if (!window.appId.isEmpty())
        application.name = window.appId;
    else if (!application.path.isEmpty())
        application.name = QFileInfo(application.path).fileName();
    else
        application.name = kNamelessName;
    return application;
}

std::int64_t WaylandDesktop::madeUpProcessOf(const QString& appId) {
    return m_processes.of(appId);
}

void WaylandDesktop::waitThroughEmptyMoment() {
    if (m_emptyMoment == EmptyMoment::None) {
        m_emptyMoment = EmptyMoment::Running;
        m_emptyTimer = m_runLoop.scheduleOnce(kEmptyMoment, [this] {
            // This program may have been kept waiting, and not have heard yet what is in front by now.
            m_emptyMoment = EmptyMoment::Asked;
            m_connection->afterAnswers([this] {
                if (m_emptyMoment == EmptyMoment::Asked)
                    m_emptyMoment = EmptyMoment::Over;
            });
            m_connection->flush();
        });
    } else if (m_emptyMoment == EmptyMoment::Over) {
        // Nothing has the focus: the desktop itself is in front, or the last application would be credited for it.
        endEmptyMoment();
        bringToFront(0, nothingInFront());
    }
}

void WaylandDesktop::endEmptyMoment() {
    m_emptyMoment = EmptyMoment::None;
    m_emptyTimer.reset();
}

void WaylandDesktop::bringToFront(std::int64_t window, const ApplicationRecord& application) {
    m_areEntriesStale |= m_frontWindow != window;
    m_frontWindow = window;
    const bool isSwitch = m_front != application;
    if (isSwitch)
        m_front = application;
    if (m_areEntriesStale)
        updateEntries();
    if (isSwitch)
        tellOfSwitch();
}

void WaylandDesktop::tellOfSwitch() {
    // A copy, because the handler may install another one.
    if (const std::function<void()> handler = m_handler)
        handler();
}

void WaylandDesktop::updateEntries() {
    m_areEntriesStale = false;
    m_entries.clear();
    const auto add = [this](std::int64_t number) {
        const auto found = m_windows.find(number);
        if (found == m_windows.end() || found->second.window.isMinimised)
            return;
        const auto& [window, application] = found->second;
        m_entries.push_back({number, application.processIdentifier, window.isDesktop ? kDesktopLayer : 0,
                             window.title.isEmpty() ? std::nullopt : std::optional(window.title),
                             application.name});
    };
    // What has the focus is in front even where it is not raised.
    add(m_frontWindow);
    for (const std::int64_t window : m_frontToBack) {
        if (window != m_frontWindow)
            add(window);
    }
}
