// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/common/Settings.h"
#include "Classes/history/History.h"
#include "interface/preferences/TKSetupController.h"
#include "tests/interface/Desk.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

// A person who keeps a history and changes its settings. Work for other threads is done at once here, unless the disk is
// slow: then it waits for diskIsFast().
struct HistoryDesk : Desk {
    void diskIsSlow() { isSlow = true; }
    void diskIsFast() {
        isSlow = false;
        for (const auto& work : std::exchange(waiting, {}))
            work();
        settle();
    }

    template<class Control>
    Control& control(const char* name) {
        auto* found = setup.prefWindow().findChild<Control*>(QLatin1String(name));
        return found ? *found : throw std::invalid_argument(name);
    }

    void press(const char* name) {
        auto& button = control<QAbstractButton>(name);
        if (!button.isEnabled())
            throw std::logic_error(std::string("cannot be pressed: ") + name);
        button.click();
        settle();
    }

    UserDefaults& defaults() { return fakes.defaults; }

    // Somebody works in a window, and the history has it.
    void work(const char* application, const char* title, double time) {
        front(application, title);
        controller.timer().startTimer();
        seconds(time);
        controller.timer().stopTimer();
        history.finish();
    }

    bool isSlow = false;
    std::vector<std::function<void()>> waiting;
    History history{{.tracker = controller.tracker(),
                     .database = controller.database(),
                     .trouble = controller.trouble(),
                     .notifications = fakes.notifications,
                     .defaults = fakes.defaults,
                     .runLoop = fakes.runLoop,
                     .clock = fakes.clock,
                     .log = fakes.log},
                    [this](const std::function<void()>& work) {
                        if (isSlow)
                            waiting.push_back(work);
                        else
                            work();
                    }};
    TKSetupController setup{controller, fakes.platform, alerts, {}, &history};
};
