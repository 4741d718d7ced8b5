// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FrontApplication.h"
#include "platform/IdleTime.h"
#include "platform/SignsOfLife.h"
#include "platform/TaskBar.h"
#include "platform/WindowList.h"

// Where no window system can be asked: nothing is in front, and nothing is credited.
class NoDesktop : public FrontApplication, public WindowList, public SignsOfLife {
public:
    // `obstacle` says why, to the user.
    explicit NoDesktop(QString obstacle)
        : m_obstacle(std::move(obstacle)) {}

    const std::optional<ApplicationRecord>& activeApplication() const override { return m_none; }
    bool installSwitchHandler(std::function<void()>) override { return false; }
    QString bundleName(const QString&) const override { return {}; }
    QString describe() const override {
        return QStringLiteral("none: no window system that can be asked was found");
    }
    QString obstacle() const override { return m_obstacle; }
    std::span<const WindowListEntry> onScreenWindows() const override { return {}; }
    void setHeardHandler(std::function<void()>) override {}
    void askForSign() override {}

private:
    const std::optional<ApplicationRecord> m_none;
    QString m_obstacle;
};

// Where nobody counts the time since the last input: the user is never idle.
class NoIdleTime : public IdleTime {
public:
    IdleReading read() override { return {IdleReading::State::Read, std::int64_t(0)}; }
    QString describe() const override { return QStringLiteral("none: the user is never idle"); }
};

// Where a window cannot be kept out of the task bar.
class NoTaskBar : public TaskBar {
public:
    void setListed(std::uint64_t, bool) override {}
    QString describe() const override { return QStringLiteral("task bar: none that can be asked"); }
};
