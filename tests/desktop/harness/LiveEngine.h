// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/Engine.h"
#include "Classes/TimerControl.h"
#include "platform/foundation/DesktopEntries.h"
#include "platform/foundation/QtRunLoop.h"
#include "platform/x11/X11Desktop.h"
#include "platform/x11/X11IdleTime.h"
#include "tests/desktop/harness/Desk.h"
#include "tests/fakes/FakeAccessibility.h"
#include "tests/fakes/FakeDesktop.h"
#include "tests/fakes/RecordingLog.h"

#include <QTemporaryDir>

// The engine as the program makes it, on the windows of a desk, without an interface.
class LiveEngine {
public:
    explicit LiveEngine(Desk& desk)
        : m_desktop(openDesktop(desk)) {}

    TimeTracker& tracker() { return m_engine.tracker(); }
    TimerControl& timer() { return m_timer; }
    Clock& clock() { return m_clock; }
    UserDefaults& defaults() { return m_defaults; }
    X11Desktop& desktop() { return *m_desktop; }

private:
    class NoDisplay : public TimerDisplay {
    public:
        void showToggle(const QString&, const QString&) override {}
        void showRecordingBadge(bool) override {}
        void updateMenuIconState() override {}
        void refreshTimeSum() override {}
        void updateMenus() override {}
    };

    std::unique_ptr<X11Desktop> openDesktop(Desk& desk) {
        auto opened = X11Desktop::open(desk.display().name().toUtf8(), m_runLoop, m_log, m_entries);
        if (!opened)
            qFatal("no desktop: %s", qPrintable(opened.failure().text));
        return std::move(*opened);
    }

    QTemporaryDir m_home;
    SystemClock m_clock;
    RecordingLog m_log;
    QtRunLoop m_runLoop{m_log};
    NotificationCenter m_notifications;
    Folders m_folders{m_home.filePath(QStringLiteral("Ticklog")), m_home.filePath(QStringLiteral("settings")),
                      m_home.path()};
    UserDefaults m_defaults{m_folders.settingsFile, m_notifications, m_runLoop, m_log};
    DesktopEntries m_entries{{}, m_clock};
    std::unique_ptr<X11Desktop> m_desktop;
    X11IdleTime m_idleTime{m_desktop->connection()};
    FakePowerEvents m_power;
    FakeSessionEvents m_session;
    FakeAccessibility m_accessibility;
    FakeFileViewer m_fileViewer;
    FakeSandbox m_sandbox;
    Platform m_platform{m_clock,   m_runLoop,       m_log,        m_notifications, m_defaults,
                        m_folders, *m_desktop,      *m_desktop,   m_idleTime,      m_power,
                        m_session, m_accessibility, m_fileViewer, m_sandbox};
    Engine m_engine{m_platform, {}};
    NoDisplay m_display;
    TimerControl m_timer{m_engine.tracker(), m_engine.services(), m_display, [] {}};
};
