// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/files/UserDefaults.h"

#include <QFileSystemWatcher>

// Reads the settings again when another program has written them.
class SettingsWatch {
public:
    // How long to wait, so that a program can finish writing.
    static constexpr std::chrono::milliseconds kPatience{300};

    // Both must outlive the watch.
    SettingsWatch(UserDefaults& defaults, RunLoop& runLoop);

private:
    // Watches the file or, until it exists, the folder in which it or its folder would appear.
    void follow();
    void somethingChanged();

    UserDefaults& m_defaults;
    RunLoop& m_runLoop;
    QFileSystemWatcher m_watcher;
    std::unique_ptr<RunLoopTimer> m_patience;
};
