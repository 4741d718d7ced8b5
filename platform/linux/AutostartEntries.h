// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LoginItems.h"
#include "platform/foundation/programs/DesktopEntryFile.h"

#include <QStringList>

// The entries in the autostart folders of the desktop: a file of the user's own takes the place of the system's file of the
// same name, also to say that nothing is started.
class AutostartEntries : public LoginItems {
public:
    struct Places {
        QString userFolder;
        // The most important first.
        QStringList systemFolders;
        // What the desktop calls itself: entries may be for some desktops only.
        QStringList desktops;
        // Where helpers lie, each called like the last part of its identifier.
        QString helperFolder;

        // From $XDG_CONFIG_HOME, $XDG_CONFIG_DIRS and $XDG_CURRENT_DESKTOP. REQUIRES: a QCoreApplication.
        static Places forUser();
    };

    explicit AutostartEntries(Places places)
        : m_places(std::move(places)) {}

    std::vector<LoginEntry> items() const override;
    Outcome setEnabled(const QString& identifier, bool isEnabled) override;

    // A program's path as a desktop entry's Exec wants it.
    static QString execValue(const QString& path);

private:
    bool isStarted(const DesktopEntryFile::Group& entry) const;
    QByteArray entryFor(const QString& identifier) const;
    QString userFile(const QString& identifier) const;
    Outcome write(const QString& path, const QByteArray& content) const;

    Places m_places;
};
