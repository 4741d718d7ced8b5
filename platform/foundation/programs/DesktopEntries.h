// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/Clock.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

// The names of installed programs in the user's language, from their desktop entries. Reads the disk when a
// program is asked for that was not asked for before, and never twice for the same question while nothing was
// installed. Main thread only.
class DesktopEntries {
public:
    struct Places {
        // Folders that hold "applications", the most important first.
        QStringList dataFolders;
        // The suffixes of translated keys, the best first: "de_AT", "de".
        QStringList languages;

        // From $XDG_DATA_HOME, $XDG_DATA_DIRS and the variables of the language.
        static Places forUser();
        // The suffixes for a locale such as "de_AT.UTF-8@euro".
        static QStringList languagesOfLocale(const QString& locale);
    };

    // `clock` outlives this.
    DesktopEntries(Places places, const Clock& clock);

    // The name of the program that a window belongs to. `classes` are what the window calls its program, the
    // most telling first and the class itself last: the parts of WM_CLASS, or an app id. `executable` is the full
    // path, or empty. Absent when no entry belongs to it, also where the class has nothing to do with the executable's
    // name: somebody gave it on purpose, and then it is the program (`xterm -class Mailer`).
    std::optional<QString> nameForWindow(const QStringList& classes, const QString& executable);
    // The name of the program at a full path; absent when no entry starts it.
    std::optional<QString> nameForExecutable(const QString& executable);

private:
    struct Entry {
        QString name;
        QString startupClass;
        // The file's name without its folder, of what it starts.
        QString executable;
        // How far this entry is from being the program's own, of several that start it: 0 is a menu entry that starts
        // it plainly; one that starts it with options, or is not shown in menus, stands for a part of it.
        int remoteness = 0;
    };

    struct Folder {
        QString path;
        qint64 modified = 0;
    };

    std::optional<QString> find(const QStringList& classes, const QString& executable) const;
    void scanIfChanged();
    void scan();
    void scanFolder(const QString& folder, const QString& idPrefix, int depth);
    void addEntry(const QString& path, const QString& id);
    std::optional<Entry> readEntry(const QString& path) const;
    bool isChanged() const;

    Places m_places;
    const Clock& m_clock;
    std::vector<Entry> m_entries;
    // From startup class, folded id and executable name to the entry.
    QHash<QString, std::size_t> m_byStartupClass;
    QHash<QString, std::size_t> m_byId;
    QHash<QString, std::size_t> m_byExecutable;
    // Every folder that was looked into, also those that do not exist.
    std::vector<Folder> m_folders;
    // Answers by question, null where no entry belongs.
    QHash<QString, QString> m_answers;
    std::optional<std::chrono::nanoseconds> m_lastLook;
};
