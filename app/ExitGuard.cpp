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

// exit() hands its handlers nothing, so there is no other place for it.
Ending& ending() {
    static Ending ending;
    return ending;
}

void runRescue() {
    const std::function<void()> rescue = std::exchange(ending().rescue, {});
    if (!rescue)
        return;
    rescue();
    // Nothing else of this process may run: the toolkit is in the middle of something.
    _exit(ending().status);
}

// Qt's Wayland plug-in does not call exit() when the compositor goes: it warns, and ends the process at once. The
// warning is the last that is heard.
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
    // The process ends when the rescue has run; this thread, not before.
    for (;;)
        ::pause();
}

} // namespace

ExitGuard::ExitGuard(std::function<void()> rescue) {
    // Before the handler is registered, so that it is destroyed after.
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
