// SPDX-License-Identifier: MIT
#include "platform/Folders.h"

#include <QDir>
#include <QStandardPaths>

namespace {

// A folder of the XDG base directories. Relative values are invalid and count as unset, as that standard
// says; without a home the account is kept where it at least survives until the next boot.
QString baseFolder(const char* variable, const QString& belowHome) {
    const QString told = qEnvironmentVariable(variable);
    if (QDir::isAbsolutePath(told))
        return QDir::cleanPath(told);
    const QString home = qEnvironmentVariable("HOME");
    return QDir::cleanPath(QDir::isAbsolutePath(home) ? home + u'/' + belowHome : QDir::tempPath());
}

} // namespace

Folders Folders::forUser() {
    return {baseFolder("XDG_DATA_HOME", QStringLiteral(".local/share")) + QStringLiteral("/Ticklog"),
            baseFolder("XDG_CONFIG_HOME", QStringLiteral(".config")) +
                QStringLiteral("/org.ticklog.Ticklog.plist"),
            QDir::cleanPath(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))};
}
