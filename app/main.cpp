// SPDX-License-Identifier: MIT
// Puts the program together, along the way of a second of time: the desktop's back ends, the engine that
// credits, the window that shows.
#include "Classes/history/History.h"
#include "Classes/history/NameKeeping.h"
#include "Classes/report/Moment.h"
#include "app/AccountLock.h"
#include "app/CommandLine.h"
#include "app/ExitGuard.h"
#include "app/LinuxPlatform.h"
#include "interface/absences/AbsenceBookings.h"
#include "interface/history/Amending.h"
#include "interface/history/HistoryController.h"
#include "interface/history/HistoryToday.h"
#include "interface/mainwindow/FirstStart.h"
#include "interface/mainwindow/ObstacleBar.h"
#include "interface/mainwindow/TKController.h"
#include "interface/mainwindow/WindowMemory.h"
#include "interface/preferences/Preferences.h"
#include "interface/shell/ExtensionOffer.h"
#include "interface/shell/PauseMenu.h"
#include "interface/shell/ProgramIcons.h"
#include "interface/shell/QtAlerts.h"
#include "interface/shell/ReadableGreys.h"
#include "interface/shell/RoomForTexts.h"
#include "interface/shell/SingleInstance.h"
#include "platform/foundation/files/PrivateFiles.h"
#include "platform/foundation/programs/DesktopEntries.h"
#include "platform/foundation/programs/LoginStart.h"
#include "platform/foundation/text/Translations.h"
#include "platform/foundation/time/LocalTime.h"
#include "platform/linux/TerminationSignals.h"

#include <QApplication>
#include <QLocale>
#include <QSessionManager>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/stat.h>

namespace {

void nameApplication() {
    QCoreApplication::setApplicationName(QStringLiteral("ticklog"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TICKLOG_VERSION));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Ticklog"));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.ticklog.Ticklog"));
}

QStringList listOf(const std::optional<QString>& file) {
    return file ? QStringList(*file) : QStringList();
}

// What the history of this account needs.
History::Services servicesOf(TKController& controller, Platform& platform) {
    return {.tracker = controller.tracker(),
            .database = controller.database(),
            .trouble = controller.trouble(),
            .notifications = platform.notifications,
            .defaults = platform.defaults,
            .runLoop = platform.runLoop,
            .clock = platform.clock,
            .log = platform.log};
}

// Whether there was no account before this start.
bool isNew(const TimeDatabase& database) {
    return !database.isAwaitingMainStore() &&
           std::ranges::all_of(database.contentsRead(),
                               [](const QByteArray& read) { return read.isEmpty(); });
}

// What the window and the tray show of the history, and what they ask for it.
class ShownHistory {
public:
    ShownHistory(TKController& controller, LinuxPlatform& desktop, Alerts& alerts, History& history)
        : ShownHistory(controller, desktop.platform(), desktop, alerts, history) {}

private:
    ShownHistory(TKController& controller, const Platform& platform, LinuxPlatform& desktop, Alerts& alerts,
                 History& history)
        : m_side({.window = controller.window(),
                  .platform = platform,
                  .alerts = alerts,
                  .project = [&] { return controller.shownProject(); },
                  .isCounting = [&] { return controller.timer().isRunning(); },
                  .labelOf = [&](const QString& name) { return controller.colorOfProject(name); },
                  .showProjectTimes =
                      [&](const RangeAnswer* answer) {
                          answer ? controller.sidebarTimes().showRange(*answer)
                                 : controller.sidebarTimes().clear();
                      }},
                 history)
        , m_amending({.window = controller.window(),
                      .view = m_side,
                      .history = history,
                      .projects = controller.projects(),
                      .undoStack = controller.undoStack(),
                      .alerts = alerts,
                      .clock = platform.clock,
                      .save = [&] { controller.saveSettingsToDisk(); }})
        , m_today({.history = history,
                   .runLoop = platform.runLoop,
                   .clock = platform.clock,
                   .folders = platform.folders,
                   .menu = controller.appDelegate().statusMenu().mainMenu(),
                   .isCounting = [&] { return controller.timer().isRunning(); }},
                  [&](const QString& line) { controller.appDelegate().presence().showToday(line); })
        , m_pauses(controller.timer(), platform.runLoop, platform.clock,
                   [&] {
                       const QDateTime now = localTime(platform.clock.now());
                       return beginningOf(dayOf(now, history.dayBegins()).addDays(1), history.dayBegins());
                   })
        , m_bookings(history, controller.projects(), controller.undoStack(), platform.clock)
        , m_comingBack({.tracker = controller.tracker(),
                        .projects = controller.projects(),
                        .bar = [&]() -> AbsenceBar& { return controller.window().absenceBar(); },
                        .notices = desktop.notices(),
                        .notifications = platform.notifications,
                        .defaults = platform.defaults,
                        .clock = platform.clock,
                        .runLoop = platform.runLoop,
                        .hasHistory = [&] { return history.isKept(); },
                        .showWindow = [&] { controller.displayMainWindow(); },
                        .askForNames = [this](auto told) { m_bookings.askForNames(std::move(told)); },
                        .book = [this](const auto& answer) { m_bookings.book(answer); }}) {
        controller.appDelegate().statusMenu().offerPauses(m_pauses.menu());
    }

    HistoryController m_side;
    Amending m_amending;
    HistoryToday m_today;
    PauseMenu m_pauses;
    AbsenceBookings m_bookings;
    ComingBack m_comingBack;
};

// No file is forgotten while a question is open; files are asked about in order. Each keeps its ticket until
// then.
void openFiles(TKController& controller, QtAlerts& alerts, const QStringList& files,
               const Admission::Ticket& ticket) {
    for (const QString& file : files)
        alerts.whenFree(
            [&controller, file, ticket] { controller.documents().openDocumentWithContentsOfURL(file); });
}

// From now on comes to the front and opens files when a second start or a launcher asks for it.
void takeRequests(SingleInstance& instance, LinuxPlatform& desktop, TKController& controller,
                  QtAlerts& alerts) {
    const auto beCalled = [&](const QStringList& files, const Admission::Ticket& ticket) {
        controller.displayMainWindow();
        openFiles(controller, alerts, files, ticket);
    };
    instance.listen(desktop.admission(),
                    [beCalled](const std::optional<QString>& file, const Admission::Ticket& ticket) {
                        beCalled(listOf(file), ticket);
                    });
    desktop.activation().listen(beCalled);
}

// Null where the desktop needs no extension.
std::unique_ptr<ExtensionOffer> offerExtension(LinuxPlatform& desktop, Alerts& alerts, ObstacleBar& bar) {
    ShellExtension* extension = desktop.shellExtension();
    if (!extension)
        return nullptr;
    const Platform& platform = desktop.platform();
    auto offer = std::make_unique<ExtensionOffer>(
        ExtensionOffer::Ground{*extension, alerts, platform.defaults, platform.runLoop, platform.log,
                               [&bar](bool isOffered) { bar.offerRemedy(isOffered); }});
    // The button is hidden before the offer goes.
    QObject::connect(&bar, &ObstacleBar::remedyWanted, &bar, [asked = offer.get()] { asked->offer(); });
    return offer;
}

// Shows the window, except at login, where the tray's icon is enough.
void appear(TKController& controller) {
    controller.awakeFromNib();
    // Whether a new window comes to the front is left to the window manager.
    if (!LoginStart::take() || !controller.appDelegate().presence().showMenuBarItem())
        controller.shownWindow().show();
    controller.appDelegate().applicationDidFinishLaunching();
}

// Runs from the first window to the last save; answers the exit status. Opens `files` once it runs.
int run(QApplication& application, SingleInstance& instance, const QStringList& files) {
    const Translations translations(QLocale().uiLanguages());
    const ReadableGreys greys;
    const RoomForTexts room;
    LinuxPlatform desktop;
    Platform& platform = desktop.platform();
    QtAlerts alerts;
    ProgramIcons icons([&](const QString& program) { return desktop.desktopEntries().iconOf(program); });
    WindowMemory::openRows(platform.defaults);
    TKController controller(platform, alerts, [](int status) { ExitGuard::exit(status); });
    controller.setProgramIcons(icons);
    alerts.setWindow(&controller.window());
    // Before anything runs, adds to the timers what a crash has cost them.
    History history(servicesOf(controller, platform));
    const NameKeeping names(controller.registry(), controller.tracker(), history,
                            [&] { return controller.projects().allMembers(); });
    // Questions of the preferences belong to their window, not to the main window.
    QtAlerts setupAlerts(alerts);
    Preferences preferences(
        controller, platform, setupAlerts, [&](PrefWindow& window) { setupAlerts.setWindow(&window); },
        &history);
    const ShownHistory shownHistory(controller, desktop, alerts, history);
    const bool isNewAccount = isNew(controller.database());
    const WindowMemory memory(controller.window(), platform.defaults,
                              isNewAccount ? WindowMemory::Account::New : WindowMemory::Account::Existing);
    std::optional<FirstStart> firstStart;
    if (isNewAccount)
        firstStart.emplace(controller, platform.defaults, preferences.loginItem(),
                           [&] { preferences.showTitles(); });
    const auto powerOff = [&] {
        controller.appDelegate().willPowerOffHandler();
        history.finish();
        platform.defaults.synchronize();
    };
    const ExitGuard exitGuard(powerOff);
    const auto end = [&] {
        powerOff();
        QCoreApplication::exit(EXIT_SUCCESS);
    };
    const TerminationSignals signals(platform.runLoop, [&](int) { end(); });
    const Subscription displayLoss = desktop.observeDisplayLoss(end);
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &application, powerOff,
                     Qt::DirectConnection);
    takeRequests(instance, desktop, controller, alerts);
    appear(controller);
    const auto offer = offerExtension(desktop, alerts, controller.window().obstacleBar());
    platform.runLoop.performSoon([&] { openFiles(controller, alerts, files, {}); });
    // Newer toolkits end the loop with a failure of their own when the display goes, before its loss is told here.
    // Everything is saved and goes on at the next start, so that is no failure.
    if (QApplication::exec() != EXIT_SUCCESS) {
        powerOff();
        return EXIT_SUCCESS;
    }
    // However else the loop ended, saves what was credited since the last save.
    controller.tracker().waitNoLonger();
    controller.saveSettingsToDisk();
    history.finish();
    return EXIT_SUCCESS;
}

// Hands the file to the first start. Answers the exit status; absent if this is the first start.
std::optional<int> handOver(SingleInstance& instance, const std::optional<QString>& file) {
    const auto answer = instance.isFirst() ? SingleInstance::Answer::None : instance.handOver(file);
    switch (answer) {
    case SingleInstance::Answer::Heard:
        return EXIT_SUCCESS;
    case SingleInstance::Answer::Busy:
        std::fputs("Ticklog is running already and waits for answers to what it was handed before.\n",
                   stderr);
        return EXIT_FAILURE;
    case SingleInstance::Answer::None:
        break;
    }
    return std::nullopt;
}

} // namespace

int main(int argc, char** argv) {
    // Files are readable by the user alone, because window titles are private.
    ::umask(S_IRWXG | S_IRWXO);
    // Writing to a display that is gone must fail and be noticed there; the signal would end the process
    // without a save.
    std::signal(SIGPIPE, SIG_IGN);
    nameApplication();
    if (!Folders::ensureHome()) {
        std::fputs("Ticklog needs a home folder: neither HOME nor the password file names one.\n", stderr);
        return EXIT_FAILURE;
    }
    const CommandLine commandLine = CommandLine::parse(argc, argv);
    if (InstanceAddress::nameOfDisplay().isEmpty() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        std::puts("Error accessing IOHIDSystem");
        std::fputs("Ticklog needs a display: neither DISPLAY nor WAYLAND_DISPLAY is set.\n", stderr);
        return EXIT_FAILURE;
    }
    QApplication application(argc, argv);
    // Otherwise Qt would quit Ticklog when somebody's file dialogue ends.
    QCoreApplication::setQuitLockEnabled(false);

    SingleInstance instance(InstanceAddress::ofThisSession());
    if (const auto status = handOver(instance, commandLine.file))
        return *status;
    const QString account = Folders::forUser().applicationSupport;
    const AccountLock accountLock(account);
    if (PrivateFiles::belongsToOthers(account)) {
        std::fputs("Ticklog keeps no account in a folder that belongs to somebody else.\n", stderr);
        return EXIT_FAILURE;
    }
    if (!accountLock.isHeld()) {
        std::fputs("Ticklog is running already and keeps this account.\n", stderr);
        return EXIT_FAILURE;
    }
    return run(application, instance, listOf(commandLine.file));
}
