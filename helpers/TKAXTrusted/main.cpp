// SPDX-License-Identifier: MIT
// The privileged helper: started by the system bus as root when it is called, and gone when nobody calls it any more. Who
// may ask for what is in docs/security.md.
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

    // Systemd has made it; a bus that starts this by itself has not. Where that fails, whoever asks is told so.
    QDir().mkdir(parser.value(folder));

    const SystemClock clock;
    JournalLog log(JournalLog::usualDestinations());
    QtRunLoop runLoop(log);
    Bus bus(Bus::systemBus(), runLoop, log);
    if (!bus.isConnected()) {
        std::fputs("There is no system bus.\n", stderr);
        return EXIT_FAILURE;
    }
    TrustService service(bus, TrustRecord(parser.value(folder)), clock, log);
    const Subscription loss = bus.observe([] { QCoreApplication::quit(); });
    service.setIdleHandler(std::chrono::milliseconds(parser.value(patience).toInt()),
                           [] { QCoreApplication::quit(); });
    if (!serve(service, bus)) {
        std::fputs("The name org.ticklog.TKAXTrusted cannot be had: this is started by the system bus.\n",
                   stderr);
        return EXIT_FAILURE;
    }
    return QCoreApplication::exec();
}
