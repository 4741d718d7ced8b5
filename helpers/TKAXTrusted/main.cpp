// SPDX-License-Identifier: MIT
// The privileged helper. The system bus starts it as root when it is called; it ends when nobody has called
// for a while. docs/security.md says who may ask for what.
#include "helpers/TKAXTrusted/TrustService.h"
#include "platform/foundation/time/QtRunLoop.h"
#include "platform/linux/JournalLog.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

#include <cstdio>
#include <cstdlib>
#include <sys/stat.h>

namespace {

const QString kName = QStringLiteral("org.ticklog.TKAXTrusted");
const QString kPath = QStringLiteral("/org/ticklog/TKAXTrusted");

bool serve(TrustService& service, const Bus& bus) {
    QDBusConnection connection = bus.connection();
    return connection.registerObject(kPath, &service, QDBusConnection::ExportScriptableSlots) &&
           connection.registerService(kName);
}

} // namespace

int main(int argc, char** argv) {
    ::umask(S_IWGRP | S_IWOTH);
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption folder(QStringLiteral("folder"), QStringLiteral("Where the record is kept."),
                                    QStringLiteral("folder"), TrustRecord::usualFolder());
    const QCommandLineOption patience(QStringLiteral("idle"), QStringLiteral("When to end without calls."),
                                      QStringLiteral("milliseconds"), QStringLiteral("30000"));
    parser.addOptions({folder, patience});
    parser.process(application);

    // systemd has made the folder; a bus that starts this without systemd has not. If this fails, the
    // requests report it.
    QDir().mkdir(parser.value(folder));

    const SystemClock clock;
    JournalLog log(JournalLog::usualDestinations());
    QtRunLoop runLoop(log);
    Bus bus(Bus::systemBus(), runLoop, log);
    if (!bus.isConnected()) {
        std::fputs("There is no system bus.\n", stderr);
        return EXIT_FAILURE;
    }
    TrustService service(bus, TrustRecord(parser.value(folder)), clock, log,
                         std::chrono::milliseconds(parser.value(patience).toInt()),
                         [] { QCoreApplication::quit(); });
    const Subscription loss = bus.observe([] { QCoreApplication::quit(); });
    if (!serve(service, bus)) {
        std::fputs("The name org.ticklog.TKAXTrusted cannot be had: this is started by the system bus.\n",
                   stderr);
        return EXIT_FAILURE;
    }
    return QCoreApplication::exec();
}
