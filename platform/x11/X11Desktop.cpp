// SPDX-License-Identifier: MIT
#include "platform/x11/X11Desktop.h"

#include "platform/foundation/programs/ProcessExecutable.h"
#include "platform/foundation/text/LocalizedStrings.h"
#include "platform/x11/Xwayland.h"

#include <algorithm>
#include <unistd.h>

namespace {

// The class of our own windows.
const QString kOwnClass = QStringLiteral("ticklog");
// In units of 4 bytes.
constexpr quint32 kMostWindows = 16384;
// Longer chains of dialogues of dialogues are loops.
constexpr int kLongestChain = 16;
constexpr quint32 kWindowEvents = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;

std::vector<xcb_window_t> windowsOf(const void* reply) {
    const auto* property = static_cast<const xcb_get_property_reply_t*>(reply);
    if (!property || property->format != 32)
        return {};
    const auto* windows = static_cast<const xcb_window_t*>(xcb_get_property_value(property));
    return {windows, windows + std::size_t(xcb_get_property_value_length(property)) / sizeof(xcb_window_t)};
}

xcb_window_t firstWindowOf(const void* reply) {
    const auto windows = windowsOf(reply);
    return windows.empty() ? xcb_window_t(0) : windows.front();
}

} // namespace

Result<std::unique_ptr<X11Desktop>> X11Desktop::open(const QByteArray& display, RunLoop& runLoop,
                                                     SystemLog& log, DesktopEntries& entries) {
    auto connection = X11Connection::tryConnect(display, runLoop, log);
    if (!connection)
        return connection.failure();
    if (isXwayland(**connection))
        return Failure{
            Failure::Kind::Refused,
            localized("Ticklog was started without knowing of the Wayland desktop, so it sees only programs "
                      "that run through the X server. Start Ticklog from the desktop’s menu.")};
    std::unique_ptr<X11Desktop> desktop(new X11Desktop(std::move(*connection), runLoop, entries));
    desktop->begin();
    desktop->m_connection->awaitReplies();
    return desktop;
}

X11Desktop::X11Desktop(std::unique_ptr<X11Connection> connection, RunLoop& runLoop, DesktopEntries& entries)
    : FollowedDesktop(entries, runLoop,
                      [this] {
                          m_isActiveUnasked = m_areWindowsUnasked = true;
                          settle();
                          m_connection->flush();
                      })
    , m_connection(std::move(connection))
    , m_focus(*m_connection, [this](xcb_window_t window) { takeInFocus(window); }) {
    m_news = m_connection->observe({[this] { begin(); },
                                    [this] {
                                        end();
                                        hear();
                                    },
                                    [this](const xcb_generic_event_t& event) { takeIn(event); },
                                    [this] {
                                        settle();
                                        hear();
                                    }});
}

QString X11Desktop::describe() const {
    if (!m_connection->isAlive())
        return QStringLiteral("X11: the server is gone");
    return m_manager
               ? QStringLiteral("X11: the window manager tells of the windows")
               : QStringLiteral("X11: no window manager tells of the windows; following the input focus");
}

void X11Desktop::askForSign() {
    // Without a connection nobody can fall silent: its loss is known.
    if (!m_connection->isAlive()) {
        hear();
        return;
    }
    m_connection->expect(xcb_get_input_focus(m_connection->xcb()).sequence, [](const void*) {});
    m_connection->flush();
}

void X11Desktop::begin() {
    selectOnRoot();
    m_isManagerUnasked = true;
    settle();
    m_connection->flush();
}

void X11Desktop::end() {
    forgetFront();
    m_clients.clear();
    m_numbers.clear();
    m_frontToBack.clear();
    m_manager = m_activeWindow = 0;
    lose(std::nullopt);
}

void X11Desktop::selectOnRoot() {
    const quint32 mask = XCB_EVENT_MASK_PROPERTY_CHANGE | (m_manager ? 0 : XCB_EVENT_MASK_FOCUS_CHANGE);
    xcb_change_window_attributes(m_connection->xcb(), m_connection->root(), XCB_CW_EVENT_MASK, &mask);
}

void X11Desktop::takeIn(const xcb_generic_event_t& event) {
    const int type = event.response_type & 0x7F;
    if (type == XCB_PROPERTY_NOTIFY) {
        takeInPropertyChange(reinterpret_cast<const xcb_property_notify_event_t&>(event));
    } else if (type == XCB_DESTROY_NOTIFY) {
        takeInEnd(reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window);
    }
    if (!m_manager && X11FocusWindow::isAboutFocus(event))
        m_isActiveUnasked = true;
    // An error means that a window has gone meanwhile; the window manager reports that too.
}

void X11Desktop::takeInPropertyChange(const xcb_property_notify_event_t& event) {
    if (event.window == m_connection->root()) {
        if (event.atom == m_connection->atom(X11Atom::NetActiveWindow))
            m_isActiveUnasked = true;
        else if (event.atom == m_connection->atom(X11Atom::NetClientListStacking) ||
                 event.atom == m_connection->atom(X11Atom::NetClientList))
            m_areWindowsUnasked = true;
        else if (event.atom == m_connection->atom(X11Atom::NetSupportingWmCheck))
            m_isManagerUnasked = true;
        return;
    }
    const auto found = m_clients.find(event.window);
    if (found == m_clients.end())
        return;
    if (const auto fact = X11Window::factOf(event.atom, *m_connection))
        found->second.window.mayHaveChanged(*fact);
}

void X11Desktop::takeInEnd(xcb_window_t window) {
    if (window == m_manager)
        m_isManagerUnasked = true;
    // If the same id is listed again, it is another window.
    m_numbers.erase(window);
    if (m_clients.erase(window) == 0)
        return;
    m_areWindowsUnasked = true;
    noteChange();
}

void X11Desktop::settle() {
    if (!m_connection->isAlive())
        return;
    if (std::exchange(m_isManagerUnasked, false))
        askForManager();
    if (std::exchange(m_isActiveUnasked, false))
        askForActiveWindow();
    if (std::exchange(m_areWindowsUnasked, false))
        askForWindows();
    for (auto& [number, client] : m_clients) {
        if (client.window.hasQuestions())
            askWindow(client);
    }
    updateFront();
}

void X11Desktop::askRoot(X11Atom property, quint32 length, X11Connection::ReplyHandler handler) {
    const auto cookie = xcb_get_property(m_connection->xcb(), 0, m_connection->root(),
                                         m_connection->atom(property), XCB_ATOM_ANY, 0, length);
    m_connection->expect(cookie.sequence, std::move(handler));
}

void X11Desktop::askForManager() {
    askRoot(X11Atom::NetSupportingWmCheck, 1, [this](const void* reply) {
        const xcb_window_t manager = firstWindowOf(reply);
        if (!manager) {
            takeInManager(manager, false);
            return;
        }
        const quint32 mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection->xcb(), manager, XCB_CW_EVENT_MASK, &mask);
        const auto cookie =
            xcb_get_property(m_connection->xcb(), 0, manager,
                             m_connection->atom(X11Atom::NetSupportingWmCheck), XCB_ATOM_ANY, 0, 1);
        // EWMH: a window manager that crashed leaves its mark on the root window, but the window that it
        // names is gone.
        m_connection->expect(cookie.sequence, [this, manager](const void* answer) {
            takeInManager(manager, firstWindowOf(answer) == manager);
        });
    });
}

void X11Desktop::takeInManager(xcb_window_t manager, bool isThere) {
    m_manager = isThere ? manager : 0;
    selectOnRoot();
    m_isActiveUnasked = true;
    m_areWindowsUnasked = isThere;
}

void X11Desktop::askForActiveWindow() {
    if (!m_manager) {
        m_focus.look();
        return;
    }
    askRoot(X11Atom::NetActiveWindow, 1,
            [this](const void* reply) { m_activeWindow = firstWindowOf(reply); });
}

void X11Desktop::askForWindows() {
    if (!m_manager)
        return;
    const auto stacking = std::make_shared<std::vector<xcb_window_t>>();
    askRoot(X11Atom::NetClientListStacking, kMostWindows,
            [stacking](const void* reply) { *stacking = windowsOf(reply); });
    askRoot(X11Atom::NetClientList, kMostWindows, [this, stacking](const void* reply) {
        std::vector<xcb_window_t> windows = stacking->empty() ? windowsOf(reply) : std::move(*stacking);
        std::ranges::reverse(windows);
        takeInWindows(std::move(windows));
    });
}

void X11Desktop::takeInWindows(std::vector<xcb_window_t> frontToBack) {
    const quint32 mask = m_manager ? kWindowEvents : X11FocusWindow::kEventMask;
    for (const xcb_window_t window : frontToBack) {
        if (m_clients.try_emplace(window, window, numberOf(window)).second)
            // Before anything is asked for, so that no change in between is missed.
            xcb_change_window_attributes(m_connection->xcb(), window, XCB_CW_EVENT_MASK, &mask);
    }
    if (m_clients.size() > frontToBack.size()) {
        std::vector<xcb_window_t> sorted = frontToBack;
        std::ranges::sort(sorted);
        std::erase_if(m_clients,
                      [&](const auto& client) { return !std::ranges::binary_search(sorted, client.first); });
    }
    m_frontToBack = std::move(frontToBack);
    noteChange();
}

void X11Desktop::takeInFocus(xcb_window_t window) {
    if (m_manager)
        return;
    m_activeWindow = window;
    takeInWindows(window ? std::vector{window} : std::vector<xcb_window_t>());
}

void X11Desktop::askWindow(Client& client) {
    client.window.ask(*m_connection, [&](X11Window::Fact fact, unsigned sequence) {
        m_connection->expect(sequence, [this, fact, window = client.window.number()](const void* reply) {
            takeInFact(window, fact, reply);
        });
    });
}

void X11Desktop::takeInFact(xcb_window_t window, X11Window::Fact fact, const void* reply) {
    const auto found = m_clients.find(window);
    if (found == m_clients.end())
        return;
    // The window has gone before its events were selected, and nothing else reports that.
    if (!reply && fact != X11Window::Fact::ConnectedProcess) {
        takeInEnd(window);
        return;
    }
    Client& client = found->second;
    const bool wasKnown = client.window.isKnown();
    const bool isDifferent = client.window.takeIn(fact, reply, *m_connection);
    if (!client.window.isKnown() || (wasKnown && !isDifferent))
        return;
    noteChange();
    if (!wasKnown || X11Window::isAboutProgram(fact))
        findApplication(client);
}

std::int64_t X11Desktop::numberOf(xcb_window_t window) {
    const auto [entry, isNew] = m_numbers.try_emplace(window);
    if (isNew)
        entry->second = newNumber();
    return entry->second;
}

const X11Desktop::Client* X11Desktop::client(xcb_window_t window) const {
    const auto found = m_clients.find(window);
    return found == m_clients.end() ? nullptr : &found->second;
}

void X11Desktop::findApplication(Client& client) const {
    const X11Window& window = client.window;
    const std::int64_t process = window.process().identifier();
    // In Flatpak, the first program in every other sandbox has the same number.
    const bool isOwn = process == ::getpid() && (!isInFlatpak() || window.classes().contains(kOwnClass));
    client.application = recordOf(process, window.classes(), isOwn);
    client.isInstalled = isOwn || desktopEntries().knows(window.classes());
    client.isNamed = client.isInstalled ||
                     desktopEntries().nameForWindow(window.classes(), client.application.path).has_value();
}

// The window that says which program this one belongs to: for a dialogue, the window that it was opened for, if that
// is one of the same process. A dialogue for another program's window is a program of its own.
const X11Desktop::Client& X11Desktop::speakerFor(const Client& dialogue) const {
    const Client* speaker = &dialogue;
    for (int i = 0; i < kLongestChain; ++i) {
        const Client* parent = client(speaker->window.transientFor());
        if (!parent || !parent->window.isKnown() ||
            parent->window.process().identifier() != dialogue.window.process().identifier())
            break;
        speaker = parent;
    }
    return *speaker;
}

// An office suite asks how to read a file before the window for it is there.
bool X11Desktop::isBeforeItsWindow(const Client& dialogue) const {
    const xcb_window_t parent = dialogue.window.transientFor();
    return m_manager && parent && parent != m_connection->root() && !m_numbers.contains(parent);
}

// Such a dialogue's window may never come. It is no program of its own for that: where no entry has a name for it, it is
// of its process's foremost window that says it is of an installed program.
const ApplicationRecord& X11Desktop::applicationOf(const Client& speaker) const {
    if (speaker.isNamed || !isBeforeItsWindow(speaker))
        return speaker.application;
    for (const xcb_window_t window : m_frontToBack)
        if (const Client* known = client(window);
            known && known->window.isKnown() && known->isInstalled &&
            known->application.processIdentifier == speaker.application.processIdentifier)
            return known->application;
    return speaker.application;
}

FollowedDesktop::Front X11Desktop::frontOf(const Client& active) const {
    const Client& speaker = speakerFor(active);
    Front front{.window = active.number, .application = applicationOf(speaker)};
    if (speaker.isInstalled)
        return front;
    front.undecided = speaker.number;
    if (isBeforeItsWindow(speaker))
        front.moment = FirstMoments::kLengthBeforeParent;
    return front;
}

void X11Desktop::updateFront() {
    const Client* active = client(m_activeWindow);
    // It is reported when all of it is known, including its title.
    if (active && !active->window.isKnown())
        return awaitFront();
    // EWMH: the active window may be gone already. Then nothing has the focus and the desktop itself is in
    // front; otherwise the last application would go on being credited.
    std::optional<Front> front;
    if (active && active->window.kind() == X11Window::Kind::Desktop)
        front = desktopInFront();
    else if (active && !active->window.isHidden())
        front = frontOf(*active);
    settleFront(front, m_connection->isAwaitingReplies());
}

std::vector<WindowListEntry> X11Desktop::listed() const {
    std::vector<WindowListEntry> entries;
    for (const xcb_window_t window : m_frontToBack) {
        const Client* listed = client(window);
        if (!listed || !listed->window.isKnown() || listed->window.isHidden())
            continue;
        const ApplicationRecord& application = applicationOf(speakerFor(*listed));
        entries.push_back({listed->number, application.processIdentifier,
                           listed->window.kind() == X11Window::Kind::Ordinary, listed->window.title(),
                           application.name});
    }
    return entries;
}
