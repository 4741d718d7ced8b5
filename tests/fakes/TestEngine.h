// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/common/AccountTrouble.h"
#include "Classes/engine/SystemIdleTime.h"
#include "Classes/engine/TimerControl.h"
#include "Classes/rules/TitleRules.h"
#include "Classes/store/TKUUIDManager.h"
#include "tests/fakes/FakePlatform.h"

// Shows nothing, and remembers what it was told.
class RecordingTimerDisplay : public TimerDisplay {
public:
    void showToggle(const QString& image, const QString& label) override {
        told << QStringLiteral("%1 %2").arg(image, label);
    }

    void showRecordingBadge(bool isRecording) override {
        told << (isRecording ? QStringLiteral("badge") : QStringLiteral("no badge"));
    }

    void updateMenuIconState() override { told << QStringLiteral("menu icon"); }

    void refreshTimeSum() override { ++timeSums; }

    void updateMenus() override { ++menus; }

    // In order: "ToolbarPause Pause", "badge", "no badge", "menu icon".
    QStringList told;
    // What every tick reports.
    int timeSums = 0;
    int menus = 0;
};

// The whole engine, real from the tracker down to the settings file, on fake desktop services.
struct TestEngine {
    // `tellsOfWaits`: the loop does, so ticks come when they are needed.
    explicit TestEngine(const TimeTracker::MakeActivator& makeActivator = {}, bool tellsOfWaits = false);
    ~TestEngine();

    FakePlatform fakes;
    TKUUIDManager registry{TKUUIDManager::savePath(fakes.folders.applicationSupport), fakes.runLoop,
                           fakes.log};
    AccountTrouble trouble;
    TimeStoreServices store{registry, fakes.notifications, fakes.runLoop, fakes.log, trouble};
    TitleRules titleRules;
    ActivityServices activity{fakes.frontApplication,
                              fakes.windowList,
                              fakes.accessibility,
                              fakes.runLoop,
                              fakes.clock,
                              fakes.log,
                              &titleRules};
    // The statuses with which the process would have ended.
    std::vector<int> exits;
    SystemIdleTime idleTime{fakes.idleTime, fakes.clock, fakes.log,
                            [this](int status) { exits.push_back(status); }};
    int trustChecks = 0;
    TrackerServices trackerServices{store,    activity,      fakes.defaults,
                                    idleTime, fakes.sandbox, [this] { ++trustChecks; }};
    TimeTracker tracker;
    RecordingTimerDisplay display;
    // How often the main store was written.
    int saves = 0;
    TimerControl control{tracker, trackerServices, display, [this] { ++saves; }};
};
