// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Names of the login manager's D-Bus interface, org.freedesktop.login1(5).
inline const QString kLogindService = QStringLiteral("org.freedesktop.login1");
inline const QString kLogindPath = QStringLiteral("/org/freedesktop/login1");
inline const QString kLogindManager = QStringLiteral("org.freedesktop.login1.Manager");
inline const QString kLogindSession = QStringLiteral("org.freedesktop.login1.Session");
inline const QString kLogindUser = QStringLiteral("org.freedesktop.login1.User");
