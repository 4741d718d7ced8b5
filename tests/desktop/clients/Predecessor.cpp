// SPDX-License-Identifier: MIT
// Holds what a running Ticklog holds, and at a line on standard input starts the program given as argument in
// its place, as Ticklog does with itself. It is heavy, so that it takes its time to be gone. Without an
// argument it is a light successor that leaves the file "free" or "taken" in its home, for the locks as it
// found them.
#include "app/AccountLock.h"
#include "interface/shell/SingleInstance.h"
#include "platform/foundation/files/Folders.h"
#include "platform/linux/LinuxOwnProgram.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/mman.h>

namespace {

constexpr std::size_t kWeight = 512U << 20U;

int leaveVerdict(bool isFree) {
    QFile verdict(QDir::home().filePath(isFree ? QStringLiteral("free") : QStringLiteral("taken")));
    return verdict.open(QFile::WriteOnly) ? EXIT_SUCCESS : EXIT_FAILURE;
}

// Memory that a successor does not inherit; otherwise that would be as slow.
void takeOnWeight() {
    void* weight = ::mmap(nullptr, kWeight, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (weight == MAP_FAILED || ::madvise(weight, kWeight, MADV_DONTFORK) != 0)
        std::abort();
    std::memset(weight, 'x', kWeight);
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    SingleInstance instance(InstanceAddress::ofThisSession());
    const AccountLock account(Folders::forUser().applicationSupport);
    const bool isFree = instance.isFirst() && account.isHeld();
    const QString successor = QCoreApplication::arguments().value(1);
    if (successor.isEmpty())
        return leaveVerdict(isFree);
    if (!isFree)
        return EXIT_FAILURE;
    takeOnWeight();
    std::puts("ready");
    std::fflush(stdout);
    (void)std::getchar();
    (void)LinuxOwnProgram(successor).relaunch();
    return EXIT_FAILURE;
}
