// SPDX-License-Identifier: MIT
// Saves a store over and over, to be killed at it or to run against the end of the disk.
//   store-writer save PATH FIRST COUNT LENGTH [LIMIT]   prints the number of each save that is finished; LIMIT is the
//                                                       largest size that a file may have
//   store-writer read PATH                              prints the number of the save that a launch finds
#include "Classes/record/StoreFile.h"
#include "tests/fakes/NumberedSave.h"
#include "tests/fakes/RecordingLog.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/resource.h>

namespace {

int save(StoreFile& store, const QString& path, int first, int count, qsizetype length) {
    for (int number = first; number < first + count; ++number) {
        // Sometimes longer, sometimes shorter than the last.
        const auto outcome = store.write(path, numberedSave(number, length + number % 7 * 1000));
        if (!outcome) {
            std::fprintf(stderr, "%s\n", qPrintable(outcome.failure().text));
            return 1;
        }
        std::printf("%d\n", number);
        std::fflush(stdout);
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3)
        return 2;
    RecordingLog log;
    StoreFile store(log);
    const QString path = QString::fromLocal8Bit(argv[2]);
    if (std::strcmp(argv[1], "read") == 0) {
        const auto result = store.read(path);
        std::printf("%d\n", result ? numberOfSave(*result) : -1);
        return 0;
    }
    if (argc < 6)
        return 2;
    if (argc > 6) {
        // A write beyond the limit fails, instead of ending the program.
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{rlim_t(std::atol(argv[6])), rlim_t(std::atol(argv[6]))};
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
            return 3;
    }
    return save(store, path, std::atoi(argv[3]), std::atoi(argv[4]), std::atol(argv[5]));
}
