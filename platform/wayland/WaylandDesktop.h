// SPDX-License-Identifier: MIT
#pragma once

#include "platform/desktop/EmptyMoment.h"
#include "platform/desktop/TellingDesktop.h"
#include "platform/foundation/programs/MadeUpProcesses.h"
#include "platform/wayland/WaylandConnection.h"

#include <unordered_map>

// The windows of a Wayland desktop and the application in front, whichever protocol tells of them: a back end for each
// protocol says what its events mean. When the compositor goes no window is listed and the desktop is in front, until it is
// back. Main thread only.
class WaylandDesktop : public TellingDesktop {
public:
    ~WaylandDesktop() override;

    QString obstacle() const override;
    void askForSign() override { m_connection->askForSign(); }

protected:
    // What a window is known to be by now.
    struct Window {
        QString title;
        QString appId;
        // The process, where the protocol tells it.
        std::optional<std::int64_t> process;
        bool isActive = false;
        bool isMinimised = false;
        // The desktop itself: wallpaper, panels.
        bool isDesktop = false;

        friend bool operator==(const Window&, const Window&) = default;
    };

    // The others outlive the desktop.
    WaylandDesktop(std::unique_ptr<WaylandConnection> connection, RunLoop& runLoop, SystemLog& log,
                   DesktopEntries& entries);

    // Binds what the protocol needs, when a compositor has been reached. Answers whether it is offered.
    virtual bool bind() = 0;
    // Destroys what was bound.
    virtual void unbind() = 0;

    WaylandConnection& connection() const { return *m_connection; }

    // Numbers tell windows apart for as long as the process lives; every call answers another one.
    std::int64_t newNumber() { return ++m_lastNumber; }

    // From now on the window is this. A window that is there for the first time is behind all others unless it is
    // active. Nobody is told before the desktop has settled.
    void setWindow(std::int64_t number, const Window& window);
    void removeWindow(std::int64_t number);
    // The compositor tells no more of any window: what is in front is not known from now on.
    void endTelling();
    // Front to back, of those whose order is told; the others stay behind them.
    void setOrder(const std::vector<std::int64_t>& frontToBack);
    // Binds, and waits until the first windows are known.
    void start();
    bool isTelling() const { return m_isTelling; }

private:
    struct Known {
        Window window;
        ApplicationRecord application;
    };

    void beginTelling();
    void settle();
    void tellOfEnd();
    ApplicationRecord applicationOf(const Window& window);
    std::optional<std::int64_t> activeWindow() const;
    void bringToFront(std::int64_t window, const ApplicationRecord& application);
    void showAnew(const std::optional<ApplicationRecord>& front);

    std::unique_ptr<WaylandConnection> m_connection;
    SystemLog& m_log;

    std::unordered_map<std::int64_t, Known> m_windows;
    std::vector<std::int64_t> m_frontToBack;
    std::int64_t m_lastNumber = 0;
    // By app id, where the protocol tells no process.
    MadeUpProcesses m_processes;
    // 0 while no window is in front.
    std::int64_t m_frontWindow = 0;
    // Nothing is in front and nobody has been told.
    EmptyMoment m_emptyMoment;
    bool m_areEntriesStale = false;
    bool m_isTelling = false;
    bool m_isLossUntold = false;
};
