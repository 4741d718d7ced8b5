// SPDX-License-Identifier: MIT
#include "platform/foundation/files/Folders.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <array>
#include <pwd.h>
#include <unistd.h>

namespace {

// Empty if there is none.
QString homeOfPasswordFile() {
    std::array<char, 16 * 1024> room;
    passwd entry{};
    passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, room.data(), room.size(), &found) != 0 || !found)
        return {};
    const QString home = QFile::decodeName(found->pw_dir);
    return QDir::isAbsolutePath(home) && QFileInfo(home).isDir() ? home : QString();
}

QString home() {
    const QString told = qEnvironmentVariable("HOME");
    return QDir::isAbsolutePath(told) ? told : homeOfPasswordFile();
}

// A folder of the XDG base directories. Relative values are invalid and count as unset, as that standard
// says.
QString baseFolder(const char* variable, const QString& belowHome, const QString& name) {
    const QString told = qEnvironmentVariable(variable);
    if (QDir::isAbsolutePath(told))
        return QDir::cleanPath(told) + name;
    const QString above = home();
    return above.isEmpty() ? QString() : QDir::cleanPath(above + u'/' + belowHome) + name;
}

} // namespace

Folders Folders::forUser() {
    return {baseFolder("XDG_DATA_HOME", QStringLiteral(".local/share"), QStringLiteral("/Ticklog")),
            baseFolder("XDG_CONFIG_HOME", QStringLiteral(".config"),
                       QStringLiteral("/org.ticklog.Ticklog.plist")),
            QDir::cleanPath(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))};
}

bool Folders::ensureHome() {
    const QString found = home();
    return !found.isEmpty() && qputenv("HOME", QFile::encodeName(found));
}
