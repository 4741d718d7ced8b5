// SPDX-License-Identifier: MIT
#include "platform/linux/AutostartEntries.h"

#include "platform/foundation/files/PrivateFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSet>
#include <QStandardPaths>

#include <algorithm>

namespace {

const QString kSuffix = QStringLiteral(".desktop");
const QString kAutostart = QStringLiteral("/autostart");

const QString kHidden = QStringLiteral("Hidden");
const QString kExec = QStringLiteral("Exec");
const QString kTryExec = QStringLiteral("TryExec");
const QString kOnlyShowIn = QStringLiteral("OnlyShowIn");
const QString kNotShowIn = QStringLiteral("NotShowIn");
const QString kAutostartEnabled = QStringLiteral("X-GNOME-Autostart-enabled");

// The escapes of desktop entries; only the backslash needs one in every value.
QString escaped(QString value) {
    return value.replace(u'\\', QLatin1String("\\\\"))
        .replace(u'\n', QLatin1String("\\n"))
        .replace(u'\t', QLatin1String("\\t"))
        .replace(u'\r', QLatin1String("\\r"));
}

// The program at the beginning of an Exec value.
QString programOf(const QString& exec) {
    return DesktopEntryFile::commandWords(exec).value(0).replace(QLatin1String("%%"), QLatin1String("%"));
}

bool canBeRun(const QString& program) {
    return program.startsWith(u'/') ? QFileInfo(program).isExecutable()
                                    : !QStandardPaths::findExecutable(program).isEmpty();
}

QStringList foldersOf(const char* variable, const QString& fallback) {
    QString value = qEnvironmentVariable(variable);
    if (value.isEmpty())
        value = fallback;
    return value.split(u':', Qt::SkipEmptyParts);
}

} // namespace

AutostartEntries::Places AutostartEntries::Places::forUser() {
    Places places{.userFolder =
                      QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + kAutostart,
                  .systemFolders = {},
                  .desktops = foldersOf("XDG_CURRENT_DESKTOP", {}),
                  .helperFolder = {}};
    for (const QString& folder : foldersOf("XDG_CONFIG_DIRS", QStringLiteral("/etc/xdg")))
        places.systemFolders << folder + kAutostart;
    const QString beside = QCoreApplication::applicationDirPath();
    const QString installed = QDir::cleanPath(beside + QStringLiteral("/../libexec/ticklog"));
    places.helperFolder = QFileInfo(installed).isDir() ? installed : beside;
    return places;
}

std::vector<LoginEntry> AutostartEntries::items() const {
    std::vector<LoginEntry> items;
    QSet<QString> seen;
    for (const QString& folder : QStringList{m_places.userFolder} + m_places.systemFolders)
        for (const QString& name : QDir(folder).entryList({u'*' + kSuffix}, QDir::Files)) {
            if (seen.contains(name))
                continue;
            seen << name;
            const auto entry = DesktopEntryFile::read(folder + u'/' + name);
            // A hidden entry only hides the system's entry.
            if (entry && entry->value(kHidden) != QLatin1String("true"))
                items.push_back({name.chopped(kSuffix.size()), isStarted(*entry)});
        }
    return items;
}

bool AutostartEntries::isStarted(const DesktopEntryFile::Group& entry) const {
    const auto isForThisDesktop = [&](const QString& key) {
        const QStringList named = entry.value(key).split(u';', Qt::SkipEmptyParts);
        return std::ranges::any_of(m_places.desktops,
                                   [&](const QString& desktop) { return named.contains(desktop); });
    };
    if (entry.value(kAutostartEnabled) == QLatin1String("false") || isForThisDesktop(kNotShowIn) ||
        (entry.contains(kOnlyShowIn) && !isForThisDesktop(kOnlyShowIn)))
        return false;
    return canBeRun(programOf(entry.value(kExec))) &&
           (!entry.contains(kTryExec) || canBeRun(entry.value(kTryExec)));
}

Outcome AutostartEntries::setEnabled(const QString& identifier, bool isEnabled) {
    const QString path = userFile(identifier);
    if (isEnabled)
        return write(path, entryFor(identifier));
    const bool isSystems = std::ranges::any_of(m_places.systemFolders, [&](const QString& folder) {
        return QFileInfo::exists(folder + u'/' + identifier + kSuffix);
    });
    if (isSystems)
        return write(path, "[Desktop Entry]\nType=Application\nName=Ticklog\nHidden=true\n");
    QFile file(path);
    if (file.remove() || !file.exists())
        return Done{};
    return Failure{Failure::Kind::CannotWrite, path + QStringLiteral(": ") + file.errorString()};
}

QString AutostartEntries::userFile(const QString& identifier) const {
    return m_places.userFolder + u'/' + identifier + kSuffix;
}

QString AutostartEntries::execValue(const QString& path) {
    QString quoted = QStringLiteral("\"");
    for (const QChar character : path) {
        if (QStringView(u"\"`$\\").contains(character))
            quoted += u'\\';
        quoted += character;
        // A single "%" would mean a file that is passed.
        if (character == u'%')
            quoted += u'%';
    }
    quoted += u'"';
    // Desktops look for the program before they undo "%%" in its path, but they undo it in arguments; so the
    // path becomes an argument.
    if (path.contains(u'%'))
        quoted.prepend(QStringLiteral("nice -n 0 "));
    return escaped(quoted);
}

QByteArray AutostartEntries::entryFor(const QString& identifier) const {
    const QString helper = m_places.helperFolder + u'/' + identifier.section(u'.', -1);
    return QStringLiteral("[Desktop Entry]\n"
                          "Type=Application\n"
                          "Name=Ticklog\n"
                          "Comment=Start Ticklog at login\n"
                          "Icon=org.ticklog.Ticklog\n"
                          "Exec=%1\n"
                          "TryExec=%2\n"
                          "Terminal=false\n"
                          "X-GNOME-Autostart-enabled=true\n"
                          // Started after the panel, because its icon needs a tray.
                          "X-KDE-autostart-after=panel\n")
        .arg(execValue(helper), escaped(helper))
        .toUtf8();
}

Outcome AutostartEntries::write(const QString& path, const QByteArray& content) const {
    if (auto made = PrivateFiles::makeFolder(m_places.userFolder); !made)
        return made;
    QSaveFile file(path);
    if (file.open(QFile::WriteOnly) && file.write(content) == content.size() && file.commit())
        return Done{};
    return Failure{Failure::Kind::CannotWrite, path + QStringLiteral(": ") + file.errorString()};
}
