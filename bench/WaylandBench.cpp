// SPDX-License-Identifier: MIT
// The cost of the whole program on each kind of Wayland desktop while its window cannot be seen: CPU time and
// wake-ups a minute, compared with a timer that does nothing, and the messages on its bus.
#include "bench/RunningCost.h"
#include "tests/desktop/harness/GnomeDesk.h"
#include "tests/desktop/harness/ProductProgram.h"
#include "tests/desktop/harness/WaylandClient.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>

#include <algorithm>
#include <csignal>

namespace {

using namespace std::chrono_literals;

const QString kLetter = QStringLiteral("Letter");
const QString kInbox = QStringLiteral("Inbox");

// Counts the messages that a program has sent or got on a bus since the last call.
class BusTraffic {
public:
    BusTraffic(WaylandDesk& desk, qint64 program)
        : m_names(namesOf(desk, program))
        , m_monitor(
              desk.start(QStringLiteral("dbus-monitor"),
                         {QStringLiteral("--address"), desk.bus().address(), QStringLiteral("--profile")},
                         Program::Output::Read)) {
        static_cast<void>(passTime(1s));
        messages();
    }

    int messages() {
        int count = 0;
        while (const auto line = m_monitor->readLine(10ms))
            count += std::ranges::any_of(line->split('\t'), [&](const QByteArray& word) {
                return m_names.contains(QString::fromLatin1(word));
            });
        return count;
    }

private:
    // The names of the program's connections.
    static QStringList namesOf(WaylandDesk& desk, qint64 program) {
        const QString address = desk.bus().address();
        QDBusConnection connection =
            QDBusConnection::connectToBus(address, QStringLiteral("bench ") + address);
        QStringList names = connection.interface()->registeredServiceNames();
        names.removeIf(
            [&](const QString& name) { return connection.interface()->servicePid(name) != uint(program); });
        return names;
    }

    QStringList m_names;
    std::unique_ptr<Program> m_monitor;
};

void measure(const char* family, WaylandDesk& desk) {
    writeAccount(desk.home(), 500, 20'000);
    WaylandClient writer(desk, QStringLiteral("Writer"));
    WaylandClient mailer(desk, QStringLiteral("Mailer"));
    writer.open(kLetter);
    mailer.open(kInbox);
    ProductProgram product(desk.home());
    product.writeSettings({{QStringLiteral("kTKWasTimerRunning"), true}});
    product.launch(desk.environment());
    const auto floor = desk.start(QStringLiteral(TICKLOG_BINARY_DIR "/IdleTimer"));
    desk.activate(QStringLiteral("Ticklog"));
    static_cast<void>(passTime(3s));
    desk.putAway(QStringLiteral("Ticklog"));
    desk.activate(kLetter);
    static_cast<void>(passTime(3s));

    const qint64 program = product.program().processIdentifier();
    const auto print = [&](const char* what, const std::function<void()>& eachSecond, double budget) {
        BusTraffic traffic(desk, program);
        const Cost cost = measureCost(program, floor->processIdentifier(), eachSecond);
        printCost(QByteArray(QByteArray(family) + ", hidden, " + what).constData(), cost, budget);
        std::printf("  messages that Ticklog sent or got on the bus in these %d s: %d\n",
                    int(kRun.count()) * kRuns, traffic.messages());
        std::fflush(stdout);
    };
    print("nothing changing", {}, 60);
    bool isWriting = true;
    print(
        "focus changing",
        [&] {
            isWriting = !isWriting;
            desk.activate(isWriting ? kLetter : kInbox);
        },
        90);
    print(
        "only touched", [&] { desk.touch(); }, 60);
    product.end(SIGTERM);
    const auto times = product.applicationTimes();
    std::printf("  credited: Writer %.0f s, Mailer %.0f s\n", times.value(QStringLiteral("Writer")),
                times.value(QStringLiteral("Mailer")));
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QString wanted = QString::fromLocal8Bit(argv[argc - 1]);
    const auto isWanted = [&](const char* family) { return argc == 1 || wanted == QLatin1String(family); };
    if (isWanted("sway")) {
        SwayDesk desk;
        measure("sway", desk);
    }
    if (isWanted("kwin")) {
        KWinDesk desk;
        measure("kwin", desk);
    }
    if (isWanted("gnome")) {
        GnomeDesk desk(GnomeDesk::Extension{.executable = QStringLiteral(TICKLOG_BINARY_DIR "/ticklog")});
        measure("gnome", desk);
    }
    return 0;
}
