// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/Engine.h"
#include "Classes/engine/TimerControl.h"
#include "platform/foundation/programs/DesktopEntries.h"
#include "platform/foundation/time/QtRunLoop.h"
#include "platform/x11/X11Desktop.h"
#include "platform/x11/X11IdleTime.h"
#include "tests/desktop/harness/Desk.h"
#include "tests/fakes/FakeAccessibility.h"
#include "tests/fakes/FakeDesktop.h"
#include "tests/fakes/FakeLoginItems.h"
#include "tests/fakes/FakeServiceManagement.h"
#include "tests/fakes/RecordingLog.h"

#include <QTemporaryDir>

// What a back end needs.
struct LiveGround {
    SystemClock clock;
    RecordingLog log;
    QtRunLoop runLoop{log};
    DesktopEntries entries{{}, clock};
};

// The engine as the program makes it, on the windows of a desktop, without a user interface.
class LiveEngine {
public:
    // All outlive it.
    LiveEngine(LiveGround& ground, FrontApplication& front, WindowList& windows, IdleTime& idleTime)
        : m_ground(ground)
        , m_front(front)
        , m_windows(windows)
        , m_idleTime(idleTime) {}

    TimeTracker& tracker() { return m_engine.tracker(); }
    TimerControl& timer() { return m_timer; }
    Clock& clock() { return m_ground.clock; }
    UserDefaults& defaults() { return m_defaults; }

private:
    class NoDisplay : public TimerDisplay {
    public:
        void showToggle(const QString&, const QString&) override {}
        void showRecordingBadge(bool) override {}
        void updateMenuIconState() override {}
        void refreshTimeSum() override {}
        void updateMenus() override {}
    };

    LiveGround& m_ground;
    FrontApplication& m_front;
    WindowList& m_windows;
    IdleTime& m_idleTime;
    QTemporaryDir m_home;
    NotificationCenter m_notifications;
    Folders m_folders{m_home.filePath(QStringLiteral("Ticklog")), m_home.filePath(QStringLiteral("settings")),
                      m_home.path()};
    UserDefaults m_defaults{m_folders.settingsFile, m_notifications, m_ground.runLoop, m_ground.log};
    FakePowerEvents m_power;
    FakeSessionEvents m_session;
    FakeAccessibility m_accessibility;
    FakeFileViewer m_fileViewer;
    FakeSandbox m_sandbox;
    FakeServiceManagement m_serviceManagement{m_ground.runLoop};
    FakeOwnProgram m_ownProgram{m_folders.settingsFile};
    FakeTaskBar m_taskBar;
    FakeSystemTray m_systemTray;
    FakeLoginItems m_loginItems;
    Platform m_platform{m_ground.clock, m_ground.runLoop, m_ground.log, m_notifications, m_defaults,
                        m_folders,      m_front,          m_windows,    m_idleTime,      m_power,
                        m_session,      m_accessibility,  m_fileViewer, m_sandbox,       m_serviceManagement,
                        m_ownProgram,   m_taskBar,        m_systemTray, m_loginItems};
    Engine m_engine{m_platform, {}};
    NoDisplay m_display;
    TimerControl m_timer{m_engine.tracker(), m_engine.services(), m_display, [] {}};
};

// Made before the engine on it.
struct X11Live {
    explicit X11Live(const Desk& desk)
        : desktop(open(desk, ground)) {}

    static std::unique_ptr<X11Desktop> open(const Desk& desk, LiveGround& ground) {
        auto opened =
            X11Desktop::open(desk.display().name().toUtf8(), ground.runLoop, ground.log, ground.entries);
        if (!opened)
            qFatal("no desktop: %s", qPrintable(opened.failure().text));
        return std::move(*opened);
    }

    LiveGround ground;
    std::unique_ptr<X11Desktop> desktop;
    X11IdleTime idleTime{desktop->connection()};
};

// The engine on the windows of an X11 desk.
class X11LiveEngine : private X11Live, public LiveEngine {
public:
    explicit X11LiveEngine(const Desk& desk)
        : X11Live(desk)
        , LiveEngine(ground, *X11Live::desktop, *X11Live::desktop, X11Live::idleTime) {}

    X11Desktop& desktop() { return *X11Live::desktop; }
};
