// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FileViewer.h"
#include "platform/FrontApplication.h"
#include "platform/IdleTime.h"
#include "platform/PowerEvents.h"
#include "platform/Sandbox.h"
#include "platform/SessionEvents.h"
#include "platform/SignsOfLife.h"
#include "platform/SystemTray.h"
#include "platform/TaskBar.h"
#include "platform/WindowList.h"
#include "tests/fakes/ManualRunLoop.h"

#include <QHash>
#include <QStringList>

#include <vector>

// Desktop services with exactly the state they are given. Each of these fakes is shorter than the real thing.

class FakeFrontApplication : public FrontApplication {
public:
    const std::optional<ApplicationRecord>& activeApplication() const override { return record; }

    bool isUndecided() const override { return mayTurnOut; }

    Subscription observeSwitches(News::Hearer hearer) override {
        return tellsOfSwitches ? m_switches.observe(std::move(hearer)) : Subscription();
    }

    QString nameOfProgram(const QString& path) const override { return programNames.value(path); }

    QString describe() const override { return QStringLiteral("a fake"); }

    QString obstacle() const override { return obstacleText; }

    // The desktop brings an application to the front and reports it.
    void switchTo(std::optional<ApplicationRecord> front, bool isUndecided = false) {
        record = std::move(front);
        mayTurnOut = isUndecided;
        m_switches.tell();
    }

    bool isObserved() const { return m_switches.isHeard(); }

    // Changing this brings an application to the front without a report.
    std::optional<ApplicationRecord> record;
    // Whether the window in front may still say that it belongs to another program.
    bool mayTurnOut = false;
    // By path of the program.
    QHash<QString, QString> programNames;
    bool tellsOfSwitches = true;
    // Why nothing can be told; empty if it can.
    QString obstacleText;

private:
    News m_switches;
};

class FakeWindowList : public WindowList {
public:
    std::span<const WindowListEntry> onScreenWindows() const override {
        ++copies;
        return windows;
    }

    // Front to back.
    std::vector<WindowListEntry> windows;
    // How often the list was asked for.
    mutable int copies = 0;
};

class FakeSignsOfLife : public SignsOfLife {
public:
    Subscription observeSigns(News::Hearer hearer) override { return m_signs.observe(std::move(hearer)); }

    void askForSign() override {
        ++asked;
        if (answersAtOnce)
            giveSign();
    }

    // The desktop reports or answers something.
    void giveSign() { m_signs.tell(); }

    bool answersAtOnce = false;
    int asked = 0;

private:
    News m_signs;
};

// Idle since the last input by the clock, which must outlive it.
class FakeIdleTime : public IdleTime {
public:
    explicit FakeIdleTime(const HandClock& clock)
        : m_clock(clock)
        , m_lastInput(clock.monotonic()) {}

    IdleReading read() override {
        ++reads;
        return answer.value_or(idle());
    }

    QString describe() const override { return QStringLiteral("a fake"); }

    // The user touches something now.
    void touch() {
        m_lastInput = m_clock.monotonic();
        if (tells)
            m_input.tell();
    }

    // The user touches something all the time, from now on or no more.
    void setBusy(bool busy) {
        isBusy = busy;
        touch();
    }

    bool tellsOfInput() const override { return tells; }

    // As if the last input had been this long ago.
    void setIdle(std::chrono::nanoseconds time) { m_lastInput = m_clock.monotonic() - time; }

    std::chrono::nanoseconds idle() const {
        return isBusy ? std::chrono::nanoseconds::zero() : m_clock.monotonic() - m_lastInput;
    }

    // The user touches something all the time.
    bool isBusy = false;
    // Whether it tells of input by itself.
    bool tells = false;
    // What a reading answers instead of the time by the clock.
    std::optional<IdleReading> answer;
    int reads = 0;

private:
    const HandClock& m_clock;
    std::chrono::nanoseconds m_lastInput;
};

class FakePowerEvents : public PowerEvents {
public:
    bool tellsOfSleep() const override {
        ++registrations;
        return tells;
    }

    QString describe() const override { return QStringLiteral("a fake"); }

    // When it returns, the machine may sleep.
    void aboutToSleep() { m_news.tell(&Hearer::aboutToSleep); }
    void wake() { m_news.tell(&Hearer::woke); }

    // Whether the system reports power events.
    bool tells = true;
    // How often somebody wanted to know that, before hearing of them.
    mutable int registrations = 0;
};

class FakeSessionEvents : public SessionEvents {
public:
    QString describe() const override { return QStringLiteral("a fake"); }

    void resignActive() { m_news.tell(&Hearer::wentToBackground); }

    void becomeActive() { m_news.tell(&Hearer::cameToFront); }

    void powerOff() { m_news.tell(&Hearer::aboutToEnd); }
};

class FakeFileViewer : public FileViewer {
public:
    void reveal(const QString& path) override { revealed << path; }

    QStringList revealed;
};

class FakeSandbox : public Sandbox {
public:
    bool isSandboxed() const override { return sandboxed; }

    bool sandboxed = false;
};

class FakeTaskBar : public TaskBar {
public:
    void setListed(std::uint64_t window, bool isToBeListed) override {
        isListed = isToBeListed;
        told << window;
    }

    QString describe() const override { return QStringLiteral("a fake"); }

    // What it was last told, and about which windows.
    bool isListed = true;
    QList<std::uint64_t> told;
};

class FakeSystemTray : public SystemTray {
public:
    Offer offer() const override { return m_offer; }
    Subscription observe(News::Hearer hearer) override { return m_changes.observe(std::move(hearer)); }
    QString describe() const override { return QStringLiteral("a fake"); }

    // The desktop offers something else.
    void give(Offer offer) {
        m_offer = offer;
        m_changes.tell();
    }

private:
    Offer m_offer = Offer::Embedded;
    News m_changes;
};
