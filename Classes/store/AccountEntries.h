// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The entries of a database file.
inline const QString kDatabaseVersion = QStringLiteral("Version");
inline const QString kDatabaseApps = QStringLiteral("Apps");
inline const QString kDatabaseProjects = QStringLiteral("Projects");
inline const QString kDatabaseLastResetDate = QStringLiteral("LastResetDate");

// The entries of an application in a database file.
inline const QString kEntryApp = QStringLiteral("App");
inline const QString kEntryWindows = QStringLiteral("Windows");
