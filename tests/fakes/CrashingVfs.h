// SPDX-License-Identifier: MIT
#pragma once

#include "tests/fakes/CrashingDisk.h"

// Has SQLite write on a CrashingDisk as long as it lives: what it writes counts among that disk's calls,
// fails from the crash on, and is lost by losePower() where it was not synced. One at a time; `disk` outlives
// it. Whatever is open is to be closed before it goes.
class CrashingVfs {
public:
    explicit CrashingVfs(CrashingDisk& disk);
    CrashingVfs(const CrashingVfs&) = delete;
    CrashingVfs& operator=(const CrashingVfs&) = delete;
    ~CrashingVfs();
};
