// SPDX-License-Identifier: MIT
#include "app/LinuxPlatform.h"

#include "platform/NoDesktop.h"
#include "platform/atspi/AtspiAccessibility.h"
#include "platform/foundation/DesktopEntries.h"
#include "platform/foundation/QtRunLoop.h"
#include "platform/linux/DesktopScreenLock.h"
#include "platform/linux/FreedesktopFileViewer.h"
#include "platform/linux/JournalLog.h"
#include "platform/linux/LinuxPower.h"
#include "platform/linux/LinuxSandbox.h"
#include "platform/linux/LockAwareFrontApplication.h"
#include "platform/linux/LogindSession.h"
#include "platform/linux/SettingsWatch.h"
#include "platform/x11/X11Desktop.h"
#include "platform/x11/X11IdleTime.h"

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
    // Absent where there is no X server.
    std::unique_ptr<X11Desktop> x11;
    std::unique_ptr<X11IdleTime> x11IdleTime;
    NoDesktop noDesktop;
    NoIdleTime noIdleTime;
    std::unique_ptr<LockAwareFrontApplication> frontApplication;
    AtspiAccessibility accessibility{sessionBus, runLoop, log};
    FreedesktopFileViewer fileViewer{sessionBus, log, FreedesktopFileViewer::xdgOpen()};
    LinuxSandbox sandbox = LinuxSandbox::ofThisProcess();
    std::unique_ptr<Platform> platform;
    // Ends the calls at every wake-up.
    QObject awakeContext;
};

LinuxPlatform::BackEnds::BackEnds() {
    auto opened = X11Desktop::open({}, runLoop, log, desktopEntries);
    if (opened) {
        x11 = std::move(*opened);
        x11IdleTime = std::make_unique<X11IdleTime>(x11->connection());
    } else {
        log.log(QStringLiteral("The X11 desktop is not used: ") + opened.failure().text);
    }
    FrontApplication* unlocked = x11 ? static_cast<FrontApplication*>(x11.get()) : &noDesktop;
    frontApplication = std::make_unique<LockAwareFrontApplication>(*unlocked, screenLock);
    WindowList* windowList = x11 ? static_cast<WindowList*>(x11.get()) : &noDesktop;
    IdleTime* idleTime = x11 ? static_cast<IdleTime*>(x11IdleTime.get()) : &noIdleTime;
    platform = std::make_unique<Platform>(Platform{clock, runLoop, log, notifications, defaults, folders,
                                                   *frontApplication, *windowList, *idleTime, power,
                                                   sessionEvents, accessibility, fileViewer, sandbox});
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
    if (m_backEnds->x11)
        m_backEnds->x11->setLostHandler(std::move(handler));
}

QString LinuxPlatform::describe() const {
    const Platform& platform = *m_backEnds->platform;
    return QStringList{platform.frontApplication.describe(), platform.idleTime.describe(),
                       platform.power.describe(), platform.session.describe(),
                       platform.accessibility.describe()}
        .join(u'\n');
}
