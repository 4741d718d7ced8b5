// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/files/UserDefaults.h"

#include <QFileSystemWatcher>

// Has the settings read again when another program has written them.
class SettingsWatch {
public:
    // How long a program is given to finish what it has begun to write.
    static constexpr std::chrono::milliseconds kPatience{300};

    // Both must outlive the watch.
    SettingsWatch(UserDefaults& defaults, RunLoop& runLoop);

private:
    // Follows the file while it is there, and until then the folder in which it, or the way to it, would appear.
    void follow();
    void somethingChanged();

    UserDefaults& m_defaults;
    RunLoop& m_runLoop;
    QFileSystemWatcher m_watcher;
    std::unique_ptr<RunLoopTimer> m_patience;
};
