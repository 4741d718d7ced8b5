// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LoginItems.h"
#include "platform/foundation/programs/DesktopEntryFile.h"

#include <QStringList>

// The entries in the desktop's autostart folders. A file of the user replaces the system's file of the same
// name, also to disable it.
class AutostartEntries : public LoginItems {
public:
    struct Places {
        QString userFolder;
        // The most important first.
        QStringList systemFolders;
        // The desktop's own names: entries may be for some desktops only.
        QStringList desktops;
        // Where the helpers are; each is called like the last part of its identifier.
        QString helperFolder;

        // From $XDG_CONFIG_HOME, $XDG_CONFIG_DIRS and $XDG_CURRENT_DESKTOP. REQUIRES: a QCoreApplication.
        static Places forUser();
    };

    explicit AutostartEntries(Places places)
        : m_places(std::move(places)) {}

    std::vector<LoginEntry> items() const override;
    Outcome setEnabled(const QString& identifier, bool isEnabled) override;

    // A program's path, quoted for a desktop entry's Exec.
    static QString execValue(const QString& path);

private:
    bool isStarted(const DesktopEntryFile::Group& entry) const;
    QByteArray entryFor(const QString& identifier) const;
    QString userFile(const QString& identifier) const;
    Outcome write(const QString& path, const QByteArray& content) const;

    Places m_places;
};
