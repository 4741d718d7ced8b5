// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxOwnProgram.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <unistd.h>

namespace {

constexpr long kPaceNanoseconds = 5'000'000;

// Runs in the new process, where only functions that are safe in signal handlers may be called: other threads
// of the old process may have held any lock.
[[noreturn]] void takeOver(pid_t predecessor, const char* executable, char* const* arguments) {
    // A process releases its files before its children get another parent.
    const timespec pace{0, kPaceNanoseconds};
    while (::getppid() == predecessor)
        ::nanosleep(&pace, nullptr);
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    ::signal(SIGPIPE, SIG_DFL);
    ::execv(executable, arguments);
    _exit(EXIT_FAILURE);
}

} // namespace

LinuxOwnProgram::LinuxOwnProgram()
    : LinuxOwnProgram(QCoreApplication::applicationFilePath()) {}

LinuxOwnProgram::LinuxOwnProgram(const QString& executable)
    : m_executable(QFile::encodeName(executable)) {}

QString LinuxOwnProgram::executable() const {
    return QFile::decodeName(m_executable);
}

Outcome LinuxOwnProgram::relaunch() {
    const auto failed = [this] {
        return Failure{
            Failure::Kind::NotFound,
            QStringLiteral("%1: %2").arg(executable(), QString::fromLocal8Bit(std::strerror(errno)))};
    };
    // After this process has ended, nobody could report that there is nothing to start.
    if (::access(m_executable.constData(), X_OK) != 0)
        return failed();
    char* const arguments[] = {m_executable.data(), nullptr};
    const pid_t predecessor = ::getpid();
    const pid_t successor = ::fork();
    if (successor < 0)
        return failed();
    if (successor == 0)
        takeOver(predecessor, arguments[0], arguments);
    _exit(EXIT_SUCCESS);
}
