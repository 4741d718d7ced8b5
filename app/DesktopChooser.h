// SPDX-License-Identifier: MIT
#pragma once

#include "app/Candidates.h"
#include "platform/Sandbox.h"
#include "platform/ShellExtension.h"
#include "platform/bus/BusName.h"
#include "platform/desktop/NoDesktop.h"
#include "platform/foundation/programs/DesktopEntries.h"
#include "platform/foundation/time/RunLoop.h"
#include "platform/linux/OwnSession.h"

#include <memory>

// Finds who tells which window is in front, and who counts the time since the last input, once at launch: candidates
// are tried in an order, the last of them knows nothing and always works. Refusals and their reasons go to the log.
class DesktopChooser {
public:
    // What the back ends stand on; outlives the chooser.
    struct Ground {
        RunLoop& runLoop;
        SystemLog& log;
        DesktopEntries& entries;
        const Clock& clock;
        Bus& sessionBus;
        // What we are known by on the session bus.
        BusName& ownName;
        Bus& systemBus;
        const OwnSession& session;
        const Sandbox& sandbox;
    };

    explicit DesktopChooser(const Ground& ground);

    TellingDesktop& desktop() { return *m_desktop.desktop; }
    IdleTime& idleTime() { return *m_idleTime; }
    // Null where the desktop tells without one.
    ShellExtension* shellExtension() { return m_desktop.shellExtension.get(); }

private:
    struct Desktop {
        std::shared_ptr<TellingDesktop> desktop;
        // Absent where the idle time is somebody else's business.
        std::shared_ptr<IdleTime> idleTime;
        std::shared_ptr<ShellExtension> shellExtension;
    };

    template<class BackEnd>
    static Result<Desktop> desktopOf(Result<std::unique_ptr<BackEnd>> opened);
    static Result<Desktop> withIdleTime(Result<std::unique_ptr<class X11Desktop>> opened);
    bool isUnderWayland() const;
    Result<Desktop> gnome() const;
    std::vector<Candidate<Desktop>> desktops(bool isWayland) const;
    std::vector<Candidate<std::shared_ptr<IdleTime>>> idleTimes() const;
    // What is left where the desktop tells nobody: programs may.
    Result<Desktop> assisted() const;
    Desktop none(bool isWayland, const std::vector<Failure>& refusals) const;

    Ground m_ground;
    Desktop m_desktop;
    std::shared_ptr<IdleTime> m_idleTime;
};
