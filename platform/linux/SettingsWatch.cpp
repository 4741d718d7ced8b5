// SPDX-License-Identifier: MIT
#include "platform/linux/SettingsWatch.h"

#include <QFileInfo>

SettingsWatch::SettingsWatch(UserDefaults& defaults, RunLoop& runLoop)
    : m_defaults(defaults)
    , m_runLoop(runLoop) {
    QObject::connect(&m_watcher, &QFileSystemWatcher::fileChanged, &m_watcher,
                     [this] { somethingChanged(); });
    QObject::connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_watcher,
                     [this] { somethingChanged(); });
    follow();
}

void SettingsWatch::follow() {
    QString place = m_defaults.path();
    // Up to "/", which always exists.
    while (!QFileInfo::exists(place))
        place = QFileInfo(place).absolutePath();
    QStringList others = m_watcher.files() + m_watcher.directories();
    if (!others.removeOne(place))
        m_watcher.addPath(place);
    if (!others.isEmpty())
        m_watcher.removePaths(others);
}

void SettingsWatch::somethingChanged() {
    // If the file was replaced, the new one must be watched.
    follow();
    m_patience = m_runLoop.scheduleOnce(kPatience, [this] {
        follow();
        m_defaults.refresh();
    });
}
