// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/common/Settings.h"
#include "platform/Platform.h"
#include "tests/fakes/FakeAccessibility.h"
#include "tests/fakes/FakeDesktop.h"
#include "tests/fakes/FakeLoginItems.h"
#include "tests/fakes/FakeServiceManagement.h"
#include "tests/fakes/RecordingLog.h"

#include <QTemporaryDir>

// All services of the desktop as fakes, with a temporary home. The settings are real and have the registered
// defaults. What is built on it must be destroyed first.
struct FakePlatform {
    // `tellsOfWaits`: whether the loop does.
    explicit FakePlatform(bool tellsOfWaits = false);
    ~FakePlatform();

    QTemporaryDir home;
    HandClock clock;
    ManualRunLoop runLoop{clock};
    RecordingLog log;
    NotificationCenter notifications;
    Folders folders{home.filePath(QStringLiteral("share/Ticklog")),
                    home.filePath(QStringLiteral("config/org.ticklog.Ticklog.plist")),
                    home.filePath(QStringLiteral("Documents"))};
    UserDefaults defaults{folders.settingsFile, notifications, runLoop, log};
    FakeFrontApplication frontApplication;
    FakeWindowList windowList;
    FakeIdleTime idleTime{clock};
    FakePowerEvents power;
    FakeSessionEvents session;
    FakeAccessibility accessibility;
    FakeFileViewer fileViewer;
    FakeSandbox sandbox;
    FakeServiceManagement serviceManagement{runLoop};
    FakeOwnProgram ownProgram{folders.settingsFile};
    FakeTaskBar taskBar;
    FakeSystemTray systemTray;
    FakeLoginItems loginItems;
    Platform platform{clock,      runLoop,          log,        notifications, defaults,
                      folders,    frontApplication, windowList, idleTime,      power,
                      session,    accessibility,    fileViewer, sandbox,       serviceManagement,
                      ownProgram, taskBar,          systemTray, loginItems};
};
