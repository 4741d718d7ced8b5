// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/Clock.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

// The names of installed programs in the user's language, from their desktop entries. Reads the disk when a
// program is asked for the first time, and again only after something was installed. Main thread only.
class DesktopEntries {
public:
    struct Places {
        // Folders that contain "applications", the most important first.
        QStringList dataFolders;
        // The suffixes of translated keys, the best first: "de_AT", "de".
        QStringList languages;

        // From $XDG_DATA_HOME, $XDG_DATA_DIRS and the variables of the language.
        static Places forUser();
        // The suffixes for a locale such as "de_AT.UTF-8@euro".
        static QStringList languagesOfLocale(const QString& locale);
    };

    // `clock` outlives this object.
    DesktopEntries(Places places, const Clock& clock);

    // The name of the program that a window belongs to. `classes` are the names that the window gives its
    // program, the most specific first and the class itself last: the parts of WM_CLASS, or an app id.
    // `executable` is a full path or empty. Absent if there is no entry for it; also if the class has nothing
    // to do with the executable's name, because somebody chose such a class deliberately, and then it is the
    // program (`xterm -class Mailer`).
    std::optional<QString> nameForWindow(const QStringList& classes, const QString& executable);
    // Whether one of these names is that of an installed program.
    bool knows(const QStringList& classes) const;
    // The name of the program at a full path; absent if no entry starts it.
    std::optional<QString> nameForExecutable(const QString& executable);
    // The icon of the program that is called so: by its entry, in the user's language or untranslated, or by its
    // windows' class or its executable where no entry has this name. The name of an icon in a theme, or a full path;
    // absent if there is none.
    std::optional<QString> iconOf(const QString& program);

private:
    struct Entry {
        QString name;
        QString plainName;
        QString icon;
        QString startupClass;
        // The file name of the program that it starts, without the folder.
        QString executable;
        // Chooses among several entries for the same program. 0 is an entry in the menu that starts it
        // without options; one with options, or one that menus do not show, stands for only a part of the
        // program.
        int remoteness = 0;
    };

    struct Folder {
        QString path;
        qint64 modified = 0;
    };

    std::optional<QString> find(const QStringList& classes, const QString& executable);
    const Entry* entryBehind(const QString& program);
    void scanIfChanged();
    void scan();
    void scanFolder(const QString& folder, const QString& idPrefix, int depth);
    void addEntry(const QString& path, const QString& id);
    std::optional<Entry> readEntry(const QString& path) const;
    bool isChanged() const;

    Places m_places;
    const Clock& m_clock;
    std::vector<Entry> m_entries;
    // From startup class, lower-case id, executable name, and the program's own names to the entry.
    QHash<QString, std::size_t> m_byStartupClass;
    QHash<QString, std::size_t> m_byId;
    QHash<QString, std::size_t> m_byExecutable;
    QHash<QString, std::size_t> m_byName;
    // From the name of the file that an entry's command is a link to. Made when it is first needed.
    std::optional<QHash<QString, std::size_t>> m_byLinkedFile;
    // All folders that were searched, also those that do not exist.
    std::vector<Folder> m_folders;
    // The answers so far; a null text means that there is no entry.
    QHash<QString, QString> m_answers;
    std::optional<std::chrono::nanoseconds> m_lastLook;
};
