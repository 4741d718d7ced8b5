// SPDX-License-Identifier: MIT
#include "platform/linux/SettingsWatch.h"

#include <QFileInfo>

SettingsWatch::SettingsWatch(UserDefaults& defaults, RunLoop& runLoop)
    : m_defaults(defaults)
    , m_runLoop(runLoop) {
    QObject::connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_watcher, [this] { somethingChanged(); });
    QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_watcher,
                     [this] { somethingChanged(); });
    follow();
}

void SettingsWatch::follow() {
    const QString file = m_defaults.path();
    const QString folder = QFileInfo(file).absolutePath();
    if (m_watcher.files().contains(file) || m_watcher.addPath(file))
        m_watcher.removePath(folder);
    else
        m_watcher.addPath(folder);
}

void SettingsWatch::somethingChanged() {
    // A file that was replaced is another one to follow.
    follow();
    m_patience = m_runLoop.scheduleOnce(kPatience, [this] {
        follow();
        m_defaults.refresh();
    });
}
