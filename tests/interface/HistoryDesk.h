// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/common/Settings.h"
#include "Classes/history/History.h"
#include "interface/preferences/TKSetupController.h"
#include "tests/interface/Desk.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

// A person who keeps a history and changes its settings. Work for other threads is done at once here.
struct HistoryDesk : Desk {
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

    History history{{.tracker = controller.tracker(),
                     .database = controller.database(),
                     .trouble = controller.trouble(),
                     .notifications = fakes.notifications,
                     .defaults = fakes.defaults,
                     .runLoop = fakes.runLoop,
                     .clock = fakes.clock,
                     .log = fakes.log},
                    [](const std::function<void()>& work) { work(); }};
    TKSetupController setup{controller, fakes.platform, alerts, {}, &history};
};
