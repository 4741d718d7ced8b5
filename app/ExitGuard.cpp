// SPDX-License-Identifier: MIT
#include "app/ExitGuard.h"

#include <QCoreApplication>
#include <QThread>

#include <cstdlib>
#include <unistd.h>
#include <utility>

namespace {

struct Ending {
    std::function<void()> rescue;
    bool isSaved = false;
    QtMessageHandler usualMessages = nullptr;
    int status = EXIT_SUCCESS;
};

// Global, because exit() passes nothing to its handlers.
Ending& ending() {
    static Ending ending;
    return ending;
}

void runRescue() {
    const std::function<void()> rescue = std::exchange(ending().rescue, {});
    if (!rescue)
        return;
    rescue();
    // No other code of this process may run: the toolkit may be in the middle of anything.
    _exit(ending().status);
}

// When the compositor goes, Qt's Wayland plug-in does not call exit(): it prints a warning and ends the
// process at once. This warning is the last chance to save.
void watchMessages(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    ending().usualMessages(type, context, message);
    if (type != QtWarningMsg || !message.startsWith(QLatin1String("The Wayland connection")))
        return;
    if (ending().isSaved)
        _exit(ending().status);
    if (QThread::currentThread() == QCoreApplication::instance()->thread()) {
        runRescue();
        return;
    }
    QMetaObject::invokeMethod(QCoreApplication::instance(), runRescue, Qt::QueuedConnection);
    // The rescue will end the process; this thread must not end it before.
    for (;;)
        ::pause();
}

} // namespace

ExitGuard::ExitGuard(std::function<void()> rescue) {
    // Made before the handler is registered, so that it is destroyed after the handler has run.
    ending().rescue = std::move(rescue);
    std::atexit(runRescue);
    ending().usualMessages = qInstallMessageHandler(watchMessages);
}

ExitGuard::~ExitGuard() {
    ending().rescue = {};
    ending().isSaved = true;
}

void ExitGuard::exit(int status) {
    ending().status = status;
    std::exit(status);
}
