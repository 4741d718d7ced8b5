// SPDX-License-Identifier: MIT
#include "interface/shell/TKApplicationDelegate.h"

#include "Classes/common/Settings.h"
#include "interface/mainwindow/TKController.h"
#include "interface/shell/Alerts.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QGuiApplication>
#include <QPointer>

using namespace std::chrono_literals;

namespace {

constexpr auto kSaveTolerance = 30s;

} // namespace

TKApplicationDelegate::TKApplicationDelegate(TKController& controller, Platform& platform, Alerts& alerts)
    : m_controller(controller)
    , m_platform(platform)
    , m_alerts(alerts)
    , m_authorization(platform, alerts,
                      {.activate = [this] { activateIgnoringOtherApps(true); },
                       .openUniversalAccessPreferences =
                           [this] { m_controller.tracker().openUniversalAccessPreferences(); }})
    , m_statusMenu(
          {.projects = controller.projects(),
           .applicationObjects = [this] { return m_controller.applicationObjects(); },
           .nodeOfProject =
               [this](const ProjectRecord& record) {
                   return m_controller.timeStoreCategoryForProjectDict(record);
               },
           .totalTime = [this](int kind) { return m_controller.totalTimeStringForAllObjects(kind, nullptr); },
           .toggleStartStop = [this] { toggleStartStop(); },
           .showTimeWindow = [this] { showTimeWindow(); },
           .showPrefWindow = [this] { m_controller.window().actions().showPrefWindow->trigger(); },
           .showAboutBox = [this] { showAboutBox(); },
           .terminate = [this] { terminate(); }},
          platform.runLoop)
    , m_presence(controller.window(), m_statusMenu, platform, alerts,
                 {.setWindowStateShown = [this](bool isShown) { m_controller.setWindowStateShown(isShown); },
                  .reloadAppType = [this] { m_controller.reloadAppType(); },
                  .isRunning = [this] { return m_controller.timer().isRunning(); },
                  .showTimeWindow = [this] { showTimeWindow(); },
                  .shownWindow = [this]() -> QWidget& { return m_controller.shownWindow(); }}) {
    m_presence.setShowDockIcon(m_presence.showDockIcon(), true);
}

TKApplicationDelegate::~TKApplicationDelegate() = default;

void TKApplicationDelegate::applicationDidFinishLaunching() {
    m_statusMenu.makeTitle();
    m_presence.begin();
    m_sessionNews = m_platform.session.observe({.wentToBackground = [this] { switchHandler(true); },
                                                .cameToFront = [this] { switchHandler(false); },
                                                .aboutToEnd = [this] { willPowerOffHandler(); }});
    m_saveTimer = m_platform.runLoop.scheduleRepeating(kSaveInterval, kSaveTolerance,
                                                       [this] { m_controller.saveSettingsToDisk(); });
    updateMenuIconState();
    // The timer goes on without a window.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, &m_receiver,
                     [this](Qt::ApplicationState state) {
                         if (state != Qt::ApplicationActive)
                             m_controller.applicationWillTerminate();
                     });
    m_presence.setFinishedLaunching();
    // Soon, so that the window is shown first.
    m_platform.runLoop.performSoon([receiver = QPointer(&m_receiver), this] {
        if (!receiver)
            return;
        if (QGuiApplication::windowIcon().isNull())
            m_controller.showRecordingBadge(m_controller.timer().computeTimerIsValid());
        m_controller.loginItem().loginItemStateChanged();
    });
}

bool TKApplicationDelegate::applicationShouldTerminate() {
    if (!m_controller.timer().computeTimerIsValid())
        return true;
    m_controller.setWindowStateShown(true);
    const int answer = m_alerts.ask(
        {.message = localized("Timer still running."),
         .informativeText = localized(
             "There is a timer currently running. Ticklog must remain open in order to keep track of "
             "time. Are you sure you wish to quit?"),
         .defaultButton = localized("Remain Open"),
         .alternateButton = localized("Quit"),
         .otherButton = {}});
    if (answer != Alerts::Alternate)
        return false;
    m_platform.defaults.setObject(kStartTicklogOnNextLaunch, true);
    m_controller.saveSettingsToDisk();
    return true;
}

void TKApplicationDelegate::terminate() {
    if (!applicationShouldTerminate())
        return;
    // Even if the timer is stopped, names may have changed since.
    m_controller.applicationWillTerminate();
    m_platform.defaults.synchronize();
    QCoreApplication::exit(0);
}

bool TKApplicationDelegate::applicationShouldHandleReopen(bool hasVisibleWindows) {
    if (!hasVisibleWindows)
        m_controller.setWindowStateShown(true);
    return false;
}

void TKApplicationDelegate::activateIgnoringOtherApps(bool isWanted) {
    if (isWanted)
        m_controller.setWindowStateShown(true);
}

void TKApplicationDelegate::showTimeWindow() {
    m_controller.setWindowStateShown(true);
}

void TKApplicationDelegate::toggleStartStop() {
    m_controller.timer().toggleCounting();
}

void TKApplicationDelegate::showAboutBox() {
    // A window that is shown comes to the front, because a user who asks from the tray may see only other
    // programs.
    if (m_controller.window().isVisible())
        m_controller.setWindowStateShown(true);
    const QStringList backEnds{m_platform.frontApplication.describe(),
                               m_platform.idleTime.describe(),
                               m_platform.power.describe(),
                               m_platform.session.describe(),
                               m_platform.accessibility.describe(),
                               m_platform.taskBar.describe(),
                               m_platform.systemTray.describe()};
    m_alerts.showAbout(localized("About Ticklog"),
                       QStringLiteral("Ticklog %1\n%2\n\n%3")
                           .arg(TKController::versionString(),
                                localized("Free software under the MIT licence."), backEnds.join(u'\n')));
}

void TKApplicationDelegate::switchHandler(bool wentToBackground) {
    if (wentToBackground)
        m_controller.timer().sessionDidResignActive();
    else
        m_controller.timer().sessionDidBecomeActive();
}

void TKApplicationDelegate::willPowerOffHandler() {
    m_controller.timer().willPowerOff();
}
