// SPDX-License-Identifier: MIT
#pragma once

#include "platform/desktop/FollowedDesktop.h"
#include "platform/foundation/programs/MadeUpProcesses.h"
#include "platform/wayland/WaylandConnection.h"

#include <unordered_map>

// The windows of a Wayland desktop and the application in front, for any protocol; a back end for each
// protocol interprets its events. When the compositor goes, no window is listed and the desktop is in front
// until it is back. Main thread only.
class WaylandDesktop : public FollowedDesktop {
public:
    ~WaylandDesktop() override;

    QString obstacle() const override;
    void askForSign() override { m_connection->askForSign(); }

protected:
    // What is known of a window.
    struct Window {
        QString title;
        QString appId;
        // The process, if the protocol tells it.
        std::optional<std::int64_t> process;
        bool isActive = false;
        bool isMinimised = false;
        // Part of the desktop itself: wallpaper, panels.
        bool isDesktop = false;
        // The number of the window whose dialogue this is; 0 if it is none.
        std::int64_t parent = 0;

        friend bool operator==(const Window&, const Window&) = default;
    };

    // All arguments outlive the desktop.
    WaylandDesktop(std::unique_ptr<WaylandConnection> connection, RunLoop& runLoop, SystemLog& log,
                   DesktopEntries& entries);

    // A compositor has been reached: binds what the protocol needs. Answers whether the compositor offers it.
    virtual bool bind() = 0;
    // Destroys everything that was bound.
    virtual void unbind() = 0;

    WaylandConnection& connection() const { return *m_connection; }

    // From now on the window looks like this. A new window is behind all others unless it is active. Nobody
    // is told before the desktop has settled.
    void setWindow(std::int64_t number, const Window& window);
    void removeWindow(std::int64_t number);
    // The compositor reports no windows any more: it is unknown what is in front.
    void endTelling();
    // Front to back; windows that are not in it stay behind these.
    void setOrder(const std::vector<std::int64_t>& frontToBack);
    // Binds, and waits until the first windows are known.
    void start();
    bool isTelling() const { return m_isTelling; }

private:
    struct Known {
        Window window;
        ApplicationRecord application;
        // Whether its app id is that of an installed program, so that nothing better can come.
        bool isInstalled = false;
    };

    void beginTelling();
    void settle();
    void tellOfEnd();
    void findApplication(Known& known);
    std::int64_t speakerFor(std::int64_t dialogue) const;
    Front frontOf(std::int64_t active) const;
    std::optional<std::int64_t> activeWindow() const;
    std::vector<WindowListEntry> listed() const override;

    std::unique_ptr<WaylandConnection> m_connection;
    SystemLog& m_log;

    std::unordered_map<std::int64_t, Known> m_windows;
    std::vector<std::int64_t> m_frontToBack;
    // Made up by app id, if the protocol tells no process.
    MadeUpProcesses m_processes;
    bool m_isTelling = false;
    bool m_isLossUntold = false;
    Subscription m_news;
};
