// SPDX-License-Identifier: MIT
#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QTemporaryDir>

// A user's home that nobody has used before, and that vanishes with it.
class TemporaryHome {
public:
    TemporaryHome();

    // Full paths without a slash at the end.
    QString path() const;

    QString dataFolder() const { return path() + QStringLiteral("/data"); }

    QString configurationFolder() const { return path() + QStringLiteral("/config"); }

    // For sockets; private to the user.
    QString runtimeFolder() const { return path() + QStringLiteral("/run"); }

    // This process's environment with the home in it and without any desktop: no display, no bus, no
    // language.
    QProcessEnvironment environment() const;
    // Writes a file below the home, and the folders above it.
    void write(const QString& relativePath, const QByteArray& content) const;

private:
    QTemporaryDir m_folder;
};
