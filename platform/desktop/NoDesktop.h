// SPDX-License-Identifier: MIT
#pragma once

#include "platform/IdleTime.h"
#include "platform/TaskBar.h"
#include "platform/desktop/TellingDesktop.h"

// Used when no window system can be asked: nothing is in front, and nothing is credited.
class NoDesktop : public TellingDesktop {
public:
    // `obstacle` tells the user why. `entries` outlive this object.
    NoDesktop(DesktopEntries& entries, QString obstacle)
        : TellingDesktop(entries)
        , m_obstacle(std::move(obstacle)) {}

    Subscription observeSwitches(News::Hearer) override { return {}; }
    QString describe() const override {
        return QStringLiteral("none: no window system that can be asked was found");
    }
    QString obstacle() const override { return m_obstacle; }
    void askForSign() override {}

private:
    QString m_obstacle;
};

// Used when nothing counts the time since the last input: the user is never idle.
class NoIdleTime : public IdleTime {
public:
    IdleReading read() override { return std::chrono::nanoseconds::zero(); }
    QString describe() const override { return QStringLiteral("none: the user is never idle"); }
};

// Used where windows cannot be kept out of the task bar.
class NoTaskBar : public TaskBar {
public:
    void setListed(std::uint64_t, bool) override {}
    QString describe() const override { return QStringLiteral("task bar: none that can be asked"); }
};
