// SPDX-License-Identifier: MIT
// Puts the program together, along the way of a second of time: the desktop's back ends, the engine that
// credits, the window that shows.
#include "Classes/history/History.h"
#include "Classes/report/Moment.h"
#include "app/AccountLock.h"
#include "app/CommandLine.h"
#include "app/ExitGuard.h"
#include "app/LinuxPlatform.h"
#include "interface/history/HistoryController.h"
#include "interface/history/HistoryToday.h"
#include "interface/mainwindow/ObstacleBar.h"
#include "interface/mainwindow/TKController.h"
#include "interface/preferences/Preferences.h"
#include "interface/shell/ExtensionOffer.h"
#include "interface/shell/PauseMenu.h"
#include "interface/shell/QtAlerts.h"
#include "interface/shell/SingleInstance.h"
#include "platform/foundation/files/PrivateFiles.h"
#include "platform/foundation/programs/LoginStart.h"
#include "platform/foundation/text/Translations.h"
#include "platform/foundation/time/LocalTime.h"
#include "platform/linux/TerminationSignals.h"

#include <QApplication>
#include <QLocale>
#include <QSessionManager>

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

// Runs from the first window to the last save; answers the exit status. Opens `files` once it runs.
int run(QApplication& application, SingleInstance& instance, const QStringList& files) {
    const Translations translations(QLocale().uiLanguages());
    LinuxPlatform desktop;
    QtAlerts alerts;
    TKController controller(desktop.platform(), alerts, [](int status) { ExitGuard::exit(status); });
    alerts.setWindow(&controller.window());
    TKApplicationDelegate& delegate = controller.appDelegate();
    // Before anything runs, adds to the timers what a crash has cost them.
    History history({.tracker = controller.tracker(),
                     .database = controller.database(),
                     .trouble = controller.trouble(),
                     .notifications = desktop.platform().notifications,
                     .defaults = desktop.platform().defaults,
                     .runLoop = desktop.platform().runLoop,
                     .clock = desktop.platform().clock,
                     .log = desktop.platform().log});
    // Questions of the preferences belong to their window, not to the main window.
    QtAlerts setupAlerts(alerts);
    Preferences preferences(
        controller, desktop.platform(), setupAlerts,
        [&](PrefWindow& window) { setupAlerts.setWindow(&window); }, &history);

    HistoryController historyController(
        {.window = controller.window(),
         .platform = desktop.platform(),
         .alerts = alerts,
         .project = [&] { return controller.shownProject(); },
         .isCounting = [&] { return controller.timer().isRunning(); },
         .labelOf = [&](const QString& name) { return controller.colorOfProject(name); }},
        history);

    const HistoryToday today({.history = history,
                              .runLoop = desktop.platform().runLoop,
                              .clock = desktop.platform().clock,
                              .folders = desktop.platform().folders,
                              .menu = delegate.statusMenu().mainMenu(),
                              .isCounting = [&] { return controller.timer().isRunning(); }},
                             [&](const QString& line) { delegate.presence().showToday(line); });
    PauseMenu pauses(controller.timer(), desktop.platform().runLoop, desktop.platform().clock, [&] {
        const QDateTime now = localTime(desktop.platform().clock.now());
        return beginningOf(dayOf(now, history.dayBegins()).addDays(1), history.dayBegins());
    });
    delegate.statusMenu().offerPauses(pauses.menu());

    const auto powerOff = [&] {
        delegate.willPowerOffHandler();
        history.finish();
        desktop.platform().defaults.synchronize();
    };
    const ExitGuard exitGuard(powerOff);
    const auto end = [&] {
        powerOff();
        QCoreApplication::exit(EXIT_SUCCESS);
    };
    const TerminationSignals signals(desktop.platform().runLoop, [&](int) { end(); });
    const Subscription displayLoss = desktop.observeDisplayLoss(end);
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &application, powerOff,
                     Qt::DirectConnection);
    // No file is forgotten while a question is open; files are asked about in order. Each keeps its ticket
    // until then.
    const auto openFiles = [&](const QStringList& given, const Admission::Ticket& ticket) {
        for (const QString& file : given)
            alerts.whenFree(
                [&controller, file, ticket] { controller.documents().openDocumentWithContentsOfURL(file); });
    };
    const auto beCalled = [&](const QStringList& given, const Admission::Ticket& ticket) {
        controller.displayMainWindow();
        openFiles(given, ticket);
    };
    instance.listen(desktop.admission(),
                    [&](const std::optional<QString>& file, const Admission::Ticket& ticket) {
                        beCalled(listOf(file), ticket);
                    });
    desktop.activation().listen(beCalled);

    controller.awakeFromNib();
    // Whether a new window comes to the front is left to the window manager. At login the tray icon is
    // enough.
    if (!LoginStart::take() || !delegate.presence().showMenuBarItem())
        controller.shownWindow().show();
    delegate.applicationDidFinishLaunching();
    std::unique_ptr<ExtensionOffer> offer;
    if (ShellExtension* extension = desktop.shellExtension())
        offer = std::make_unique<ExtensionOffer>(ExtensionOffer::Ground{
            *extension, alerts, desktop.platform().defaults, desktop.platform().runLoop,
            desktop.platform().log, [&](std::function<void()> remedy) {
                controller.window().obstacleBar().offerRemedy(std::move(remedy));
            }});
    desktop.platform().runLoop.performSoon([&] { openFiles(files, {}); });
    QApplication::exec();
    // However the loop ended, saves what was credited since the last save.
    controller.saveSettingsToDisk();
    history.finish();
    // Newer toolkits end the loop with 1 when the display goes. Everything is saved, so that is no failure.
    return EXIT_SUCCESS;
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
    const auto answer =
        instance.isFirst() ? SingleInstance::Answer::None : instance.handOver(commandLine.file);
    if (answer == SingleInstance::Answer::Heard)
        return EXIT_SUCCESS;
    if (answer == SingleInstance::Answer::Busy) {
        std::fputs("Ticklog is running already and waits for answers to what it was handed before.\n",
                   stderr);
        return EXIT_FAILURE;
    }
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
