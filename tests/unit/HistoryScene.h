// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/History.h"
#include "Classes/record/TimeDatabase.h"
#include "tests/fakes/Day.h"
#include "tests/fakes/HistoryDiary.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cmath>
#include <gtest/gtest.h>

// A day with its account and its history on the disk. The writing thread is replaced by this one.
class Scene {
public:
    // Begins with the files of another scene, as they were when that one was killed.
    explicit Scene(const Scene* killed = nullptr, std::int64_t days = 0) {
        const QString folder = day.fakes.folders.applicationSupport;
        EXPECT_TRUE(QDir().mkpath(folder));
        if (killed) {
            for (const QFileInfo& file :
                 QDir(killed->day.fakes.folders.applicationSupport).entryInfoList(QDir::Files))
                EXPECT_TRUE(QFile::copy(file.filePath(), folder + u'/' + file.fileName()));
        }
        day.fakes.defaults.setObject(kMinutesUntilIdle, 1);
        if (days != 0)
            day.fakes.defaults.setObject(kHistoryDays, days);
    }

    void launch() {
        database.emplace(day.tracker, day.store, day.fakes.defaults, day.fakes.folders,
                         TimeDatabase::Hooks());
        database->loadMainStore();
        history.emplace(History::Services{.tracker = day.tracker,
                                          .database = *database,
                                          .trouble = day.trouble,
                                          .notifications = day.fakes.notifications,
                                          .defaults = day.fakes.defaults,
                                          .runLoop = day.fakes.runLoop,
                                          .clock = day.fakes.clock,
                                          .log = day.fakes.log},
                        [this](const std::function<void()>& work) {
                            ++writes;
                            if (isHanging)
                                held.push_back(work);
                            else
                                work();
                        });
        day.fakes.runLoop.runPending();
    }

    void save() {
        ASSERT_TRUE(database->saveSettingsToDiskAtURL());
        day.fakes.runLoop.runPending();
    }

    QString path() const { return History::pathIn(day.fakes.folders.applicationSupport); }

    std::string diary() {
        history->finish();
        return HistoryDiary::of(path());
    }

    Day day;
    std::optional<TimeDatabase> database;
    std::optional<History> history;
    int writes = 0;
    // A disk that does not answer, and the work that waits for it.
    bool isHanging = false;
    std::vector<std::function<void()>> held;
};

class HistoryTest : public testing::Test {
protected:
    HistoryTest() { scene.launch(); }

    // Killed and started again.
    std::unique_ptr<Scene> relaunched(const Scene& killed) {
        auto next = std::make_unique<Scene>(&killed);
        next->launch();
        return next;
    }

    Scene scene;
    Day& day = scene.day;
};
