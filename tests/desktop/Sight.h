// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FrontApplication.h"
#include "platform/SignsOfLife.h"
#include "platform/WindowList.h"
#include "platform/foundation/programs/DesktopEntries.h"
#include "platform/foundation/time/QtRunLoop.h"
#include "tests/desktop/harness/WaitFor.h"
#include "tests/fakes/RecordingLog.h"

#include <QStringList>

// What Ticklog sees of a desktop, in words; and what a back end needs for it.
class Sight {
public:
    // `dataFolder` contains "applications".
    explicit Sight(const QString& dataFolder)
        : runLoop(log)
        , entries({{dataFolder}, {QStringLiteral("de_AT"), QStringLiteral("de")}}, clock) {}

    // Look through this back end from now on; it must outlive this.
    template<class Desktop>
    void lookThrough(Desktop& desktop) {
        m_front = &desktop;
        m_windows = &desktop;
        if constexpr (std::is_base_of_v<SignsOfLife, Desktop>)
            m_signs = &desktop;
        m_switches = m_front->observeSwitches([this] { switches << front(); });
    }

    FrontApplication& frontApplication() const { return *m_front; }
    WindowList& windowList() const { return *m_windows; }
    SignsOfLife& signsOfLife() const { return *m_signs; }

    // The front application's name; "none" if there is none.
    QString front() const {
        const auto& application = m_front->activeApplication();
        return application ? application->name : QStringLiteral("none");
    }

    // 0 if there is no application.
    std::int64_t frontProcess() const {
        const auto& application = m_front->activeApplication();
        return application ? application->processIdentifier : 0;
    }

    // The title of the front application's first ordinary window, found as the tracker finds it: "title",
    // "(untitled)" or "none".
    QString frontTitle() const {
        const WindowListEntry* window = frontWindow();
        return window ? window->name.value_or(QStringLiteral("(untitled)")) : QStringLiteral("none");
    }

    const WindowListEntry* frontWindow() const {
        const auto& application = m_front->activeApplication();
        for (const WindowListEntry& window : m_windows->onScreenWindows()) {
            if (application && window.isOrdinary &&
                window.ownerProcessIdentifier == application->processIdentifier)
                return &window;
        }
        return nullptr;
    }

    // "Application: title" of what is in front.
    QString seen() const { return front() + QStringLiteral(": ") + frontTitle(); }

    // Waits until this is in front; answers what is in front then.
    QString seenAfterWaitingFor(const QString& expected) const {
        waitFor([&] { return seen() == expected; }, std::chrono::seconds(20));
        return seen();
    }

    // Waits until what the desktop has been made to do by now has been taken in, and what was asked of it
    // then.
    bool catchUp() const {
        bool isThrough = true;
        for (int turn = 0; turn < 3 && isThrough; ++turn) {
            bool heard = false;
            const Subscription hearing = m_signs->observeSigns([&] { heard = true; });
            m_signs->askForSign();
            isThrough = waitFor([&] { return heard; });
        }
        return isThrough;
    }

    // The titles of ordinary windows, front to back.
    QStringList titles() const {
        QStringList titles;
        for (const WindowListEntry& window : m_windows->onScreenWindows())
            titles << window.name.value_or(QStringLiteral("(untitled)"));
        return titles;
    }

    RecordingLog log;
    QtRunLoop runLoop;
    SystemClock clock;
    DesktopEntries entries;
    // The front application at each call of the switch handler.
    QStringList switches;

private:
    FrontApplication* m_front = nullptr;
    WindowList* m_windows = nullptr;
    SignsOfLife* m_signs = nullptr;
    Subscription m_switches;
};

// Passes when `expected` comes to the front; otherwise says what was there instead.
#define EXPECT_SEEN(scene, expected)                                                                         \
    EXPECT_EQ((scene).seenAfterWaitingFor(QStringLiteral(expected)), QStringLiteral(expected))
