// SPDX-License-Identifier: MIT
#include "app/LinuxPlatform.h"

#include "Classes/common/Settings.h"
#include "app/DesktopChooser.h"
#include "platform/atspi/AtspiAccessibility.h"
#include "platform/desktop/NoDesktop.h"
#include "platform/desktop/SilenceWatch.h"
#include "platform/foundation/programs/DesktopEntries.h"
#include "platform/foundation/programs/ProcessExecutable.h"
#include "platform/foundation/time/QtRunLoop.h"
#include "platform/linux/AutostartEntries.h"
#include "platform/linux/DesktopScreenLock.h"
#include "platform/linux/FreedesktopFileViewer.h"
#include "platform/linux/FreedesktopNotices.h"
#include "platform/linux/JournalLog.h"
#include "platform/linux/LinuxOwnProgram.h"
#include "platform/linux/LinuxPower.h"
#include "platform/linux/LinuxSandbox.h"
#include "platform/linux/LinuxServiceManagement.h"
#include "platform/linux/LinuxSystemTray.h"
#include "platform/linux/LockAwareFrontApplication.h"
#include "platform/linux/LogindSession.h"
#include "platform/linux/SandboxedLoginItems.h"
#include "platform/linux/SandboxedProgram.h"
#include "platform/linux/SettingsWatch.h"
#include "platform/linux/TrustRecord.h"
#include "platform/x11/X11TaskBar.h"
#include "platform/x11/X11TrayManager.h"

#include <QGuiApplication>

namespace {

Folders usualFolders() {
    Folders folders = Folders::forUser();
    // In Flatpak, the sandbox's home and its documents are lost when it ends; the application's data folder
    // is kept.
    if (isInFlatpak())
        folders.documents = folders.applicationSupport;
    return folders;
}

} // namespace

// In order of dependence: each uses those above it.
struct LinuxPlatform::BackEnds {
    BackEnds();
    void openX11Presence();
    std::optional<std::chrono::nanoseconds> absence() const;

    SystemClock clock;
    JournalLog log{JournalLog::usualDestinations()};
    QtRunLoop runLoop{log};
    NotificationCenter notifications;
    LinuxSandbox sandbox = LinuxSandbox::ofThisProcess();
    Folders folders = usualFolders();
    UserDefaults defaults{folders.settingsFile, notifications, runLoop, log};
    SettingsWatch settingsWatch{defaults, runLoop};
    Bus systemBus{Bus::systemBus(), runLoop, log};
    Bus sessionBus{Bus::sessionBus(), runLoop, log};
    Admission admission;
    ActivationService activation{sessionBus, admission, runLoop, log};
    BusName ownName{sessionBus, kTicklogName, log};
    OwnSession session{systemBus, log, qEnvironmentVariable("XDG_SESSION_ID")};
    LogindPower logindPower{systemBus, log};
    ClockJumpPower clockJumps{clock};
    LinuxPower power{logindPower, clockJumps};
    LogindSession sessionEvents{session, log};
    DesktopScreenLock screenLock{session, sessionBus, runLoop};
    DesktopEntries desktopEntries{DesktopEntries::Places::forUser(), clock};
    DesktopChooser desktop{
        {runLoop, log, desktopEntries, clock, sessionBus, ownName, systemBus, session, sandbox}};
    SilenceWatch silenceWatch{{desktop.desktop(), desktop.desktop(), desktop.desktop(), desktop.idleTime()},
                              runLoop,
                              log,
                              [this] { return defaults.boolForKey(kTKWasTimerRunning); },
                              {.absence = [this] { return absence(); }}};
    LockAwareFrontApplication frontApplication{silenceWatch, screenLock};
    AtspiAccessibility accessibility{sessionBus, runLoop, log};
    FreedesktopFileViewer fileViewer{sessionBus, log, FreedesktopFileViewer::xdgOpen()};
    FreedesktopNotices notices{sessionBus, log};
    LinuxServiceManagement serviceManagement{systemBus, log, LinuxServiceManagement::Places::ofThisMachine()};
    LinuxOwnProgram ownProgram;
    SandboxedProgram sandboxedProgram{ownProgram};
    LinuxSystemTray systemTray{sessionBus, runLoop, log};
    NoTaskBar noTaskBar;
    // Absent if our windows do not belong to an X server. The task bar uses the tray manager's connection.
    std::unique_ptr<X11TrayManager> x11TrayManager;
    std::unique_ptr<X11TaskBar> x11TaskBar;
    AutostartEntries loginItems{AutostartEntries::Places::forUser()};
    SandboxedLoginItems sandboxedLoginItems;
    std::unique_ptr<Platform> platform;
    // Directly after each wait, before anything else: a sleep that nobody announced must be noticed before its time
    // is credited.
    Subscription waits = runLoop.observeWaits({.woken = [this] { clockJumps.check(); }, .aboutToWait = {}});
};

LinuxPlatform::BackEnds::BackEnds() {
    // Wherever the windows of others are learnt from: only windows on an X server can be embedded in its tray
    // and listed in its task bar.
    if (QGuiApplication::platformName() == QLatin1String("xcb"))
        openX11Presence();
    OwnProgram* program = isInFlatpak() ? static_cast<OwnProgram*>(&sandboxedProgram) : &ownProgram;
    LoginItems* items = sandbox.isSandboxed() ? static_cast<LoginItems*>(&sandboxedLoginItems) : &loginItems;
    TaskBar* taskBar = x11TaskBar ? static_cast<TaskBar*>(x11TaskBar.get()) : &noTaskBar;
    platform = std::make_unique<Platform>(
        Platform{clock, runLoop, log, notifications, defaults, folders, frontApplication, silenceWatch,
                 desktop.idleTime(), power, sessionEvents, accessibility, fileViewer, sandbox,
                 serviceManagement, *program, *taskBar, systemTray, *items});
    if (TrustRecord(TrustRecord::usualFolder()).names(ownProgram.executable()))
        accessibility.grantTrust();
}

std::optional<std::chrono::nanoseconds> LinuxPlatform::BackEnds::absence() const {
    if (!defaults.boolForKey(kEnableIdleDetection))
        return std::nullopt;
    return std::chrono::minutes(defaults.integerForKey(kMinutesUntilIdle));
}

void LinuxPlatform::BackEnds::openX11Presence() {
    auto connection = X11Connection::tryConnect({}, runLoop, log);
    if (!connection)
        return;
    x11TaskBar = std::make_unique<X11TaskBar>(**connection);
    x11TrayManager = std::make_unique<X11TrayManager>(
        std::move(*connection), [this] { systemTray.setEmbedding(x11TrayManager->isThere()); });
}

LinuxPlatform::LinuxPlatform()
    : m_backEnds(std::make_unique<BackEnds>()) {}

LinuxPlatform::~LinuxPlatform() = default;

Platform& LinuxPlatform::platform() {
    return *m_backEnds->platform;
}

const Admission& LinuxPlatform::admission() const {
    return m_backEnds->admission;
}

ActivationService& LinuxPlatform::activation() {
    return m_backEnds->activation;
}

DesktopEntries& LinuxPlatform::desktopEntries() {
    return m_backEnds->desktopEntries;
}

Notices& LinuxPlatform::notices() {
    return m_backEnds->notices;
}

ShellExtension* LinuxPlatform::shellExtension() {
    return m_backEnds->desktop.shellExtension();
}

Subscription LinuxPlatform::observeDisplayLoss(News::Hearer hearer) {
    return m_backEnds->desktop.desktop().observeLoss(std::move(hearer));
}
