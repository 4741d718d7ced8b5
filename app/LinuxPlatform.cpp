// SPDX-License-Identifier: MIT
#include "app/LinuxPlatform.h"

#include "app/DesktopChooser.h"
#include "platform/atspi/AtspiAccessibility.h"
#include "platform/foundation/DesktopEntries.h"
#include "platform/foundation/QtRunLoop.h"
#include "platform/linux/DesktopScreenLock.h"
#include "platform/linux/FreedesktopFileViewer.h"
#include "platform/linux/JournalLog.h"
#include "platform/linux/LinuxOwnProgram.h"
#include "platform/linux/LinuxPower.h"
#include "platform/linux/LinuxSandbox.h"
#include "platform/linux/LinuxServiceManagement.h"
#include "platform/linux/LockAwareFrontApplication.h"
#include "platform/linux/LogindSession.h"
#include "platform/linux/SettingsWatch.h"

#include <QAbstractEventDispatcher>

// In the order of dependence: each stands on those above it.
struct LinuxPlatform::BackEnds {
    BackEnds();

    SystemClock clock;
    JournalLog log{JournalLog::usualDestinations()};
    QtRunLoop runLoop{log};
    NotificationCenter notifications;
    Folders folders = Folders::forUser();
    UserDefaults defaults{folders.settingsFile, notifications, runLoop, log};
    SettingsWatch settingsWatch{defaults, runLoop};
    Bus systemBus{Bus::systemBus(), runLoop, log};
    Bus sessionBus{Bus::sessionBus(), runLoop, log};
    OwnSession session{systemBus, log, qEnvironmentVariable("XDG_SESSION_ID")};
    LogindPower logindPower{systemBus, log};
    ClockJumpPower clockJumps{clock};
    LinuxPower power{logindPower, clockJumps};
    LogindSession sessionEvents{session, log};
    DesktopScreenLock screenLock{session, sessionBus, runLoop};
    DesktopEntries desktopEntries{DesktopEntries::Places::forUser(), clock};
    DesktopChooser desktop{{runLoop, log, desktopEntries}};
    LockAwareFrontApplication frontApplication{desktop.frontApplication(), screenLock};
    AtspiAccessibility accessibility{sessionBus, runLoop, log};
    FreedesktopFileViewer fileViewer{sessionBus, log, FreedesktopFileViewer::xdgOpen()};
    LinuxSandbox sandbox = LinuxSandbox::ofThisProcess();
    LinuxServiceManagement serviceManagement{systemBus, log, LinuxServiceManagement::Places::ofThisMachine()};
    LinuxOwnProgram ownProgram;
    std::unique_ptr<Platform> platform;
    // Ends the calls at every wake-up.
    QObject awakeContext;
};

LinuxPlatform::BackEnds::BackEnds() {
    platform = std::make_unique<Platform>(Platform{clock, runLoop, log, notifications, defaults, folders,
                                                   frontApplication, desktop.windowList(), desktop.idleTime(),
                                                   power, sessionEvents, accessibility, fileViewer, sandbox,
                                                   serviceManagement, ownProgram});
    // Right after every wait and before anything else is told: a sleep that nobody announced must be noticed before
    // its time is credited.
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &awakeContext,
                     [this] { clockJumps.check(); });
}

LinuxPlatform::LinuxPlatform()
    : m_backEnds(std::make_unique<BackEnds>()) {}

LinuxPlatform::~LinuxPlatform() = default;

Platform& LinuxPlatform::platform() {
    return *m_backEnds->platform;
}

void LinuxPlatform::setDisplayLostHandler(std::function<void()> handler) {
    m_backEnds->desktop.setLostHandler(std::move(handler));
}

QString LinuxPlatform::describe() const {
    const Platform& platform = *m_backEnds->platform;
    return QStringList{platform.frontApplication.describe(), platform.idleTime.describe(),
                       platform.power.describe(), platform.session.describe(),
                       platform.accessibility.describe()}
        .join(u'\n');
}
