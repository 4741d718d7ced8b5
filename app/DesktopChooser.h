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

// At launch chooses the back ends for what is in front and for the idle time. Candidates are tried in order;
// the last one knows nothing and always works. Refusals are logged with their reasons.
class DesktopChooser {
public:
    // What the back ends use; it outlives the chooser.
    struct Ground {
        RunLoop& runLoop;
        SystemLog& log;
        DesktopEntries& entries;
        const Clock& clock;
        Bus& sessionBus;
        // Our name on the session bus.
        BusName& ownName;
        Bus& systemBus;
        const OwnSession& session;
        const Sandbox& sandbox;
    };

    explicit DesktopChooser(const Ground& ground);

    TellingDesktop& desktop() { return *m_desktop.desktop; }
    IdleTime& idleTime() { return *m_idleTime; }
    // Null on desktops that need no extension.
    ShellExtension* shellExtension() { return m_desktop.shellExtension.get(); }

private:
    struct Desktop {
        std::shared_ptr<TellingDesktop> desktop;
        // Absent where something else gives the idle time.
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
    // For desktops that tell nobody, or not this process: asks the programs. `remedy` as in AssistedDesktop.
    Result<Desktop> assisted(const QString& remedy) const;
    Desktop none(bool isWayland, const std::vector<Failure>& refusals) const;

    Ground m_ground;
    Desktop m_desktop;
    std::shared_ptr<IdleTime> m_idleTime;
};
