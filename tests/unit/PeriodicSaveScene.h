// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/Engine.h"
#include "Classes/record/PeriodicSave.h"
#include "Classes/record/TimeDatabase.h"
#include "Classes/store/AccountEntries.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "tests/fakes/Announcements.h"
#include "tests/fakes/FakePlatform.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#include <ctime>
#include <gtest/gtest.h>

// Weekdays as the setting has them.
inline constexpr int kEveryDay = 0x7F;
inline constexpr int kThursday = 1 << 4;

// The scheduled archive of an account with one timer, and a clock that is turned by hand.
class PeriodicSaveTest : public testing::Test {
protected:
    explicit PeriodicSaveTest(const char* zone = "UTC") {
        qputenv("TZ", zone);
        tzset();
        fakes.defaults.registerDefaults(registeredDefaults(fakes.folders.applicationSupport));
        QDir().mkpath(archive());
        fakes.defaults.setObject(kPeriodicSaveDirectory, archive());
        addMail();
    }
    ~PeriodicSaveTest() override {
        qunsetenv("TZ");
        tzset();
    }

    void addMail() {
        engine.tracker().setArrayRepresentation(
            {PropertyListDictionary{{kEntryApp, PropertyListDictionary{{kRecordName, QStringLiteral("Mail")},
                                                                       {kRecordActiveTime, 60.5}}},
                                    {kEntryWindows, PropertyListArray()}}});
    }

    QString archive() { return fakes.home.filePath(QStringLiteral("archive")); }

    // The names of the files in a folder.
    static std::string files(const QString& folder) {
        return str(QDir(folder).entryList(QDir::Files, QDir::Name).join(u' '));
    }

    void archiveNow() {
        save.doPeriodicSave();
        fakes.runLoop.runPending();
    }

    bool isCleared() { return engine.tracker().fullTimeSet().empty(); }

    // "2026-01-05T14:30:00" in the zone of the test.
    void setClock(const char* local) {
        const auto time = QDateTime::fromString(QLatin1String(local), Qt::ISODate);
        fakes.clock.setWall(Date(std::chrono::milliseconds(time.toMSecsSinceEpoch())));
    }

    std::string firing() {
        const auto next = save.nextFiring();
        return next ? str(QDateTime::fromMSecsSinceEpoch(qint64(secondsBetween(Date(), *next) * 1000))
                              .toString(QStringLiteral("yyyy-MM-dd hh:mm")))
                    : "none";
    }

    void turnOn(int weekdays = kEveryDay) {
        fakes.defaults.setObject(kSaveTimerPeriodically, true);
        fakes.defaults.setObject(kPeriodicDaysOfWeek, weekdays);
        save.updatedSaveTimerPeriodically();
    }

    FakePlatform fakes;
    Engine engine{fakes.platform, {}};
    TimeDatabase database{engine.tracker(),
                          engine.services().store,
                          fakes.defaults,
                          fakes.folders,
                          {.projects =
                               [] {
                                   return PropertyListArray{PropertyListDictionary{
                                       {QStringLiteral("Label"), QStringLiteral("Home")}}};
                               },
                           .setProjects = {},
                           .computeTime = [] {},
                           .timersReplaced = {}}};
    int cleared = 0;
    // While the folder of the archives does not answer, what waits for it.
    bool isFolderSlow = false;
    std::vector<std::function<void()>> waiting;
    BackgroundMove::Background background = [this](auto work) {
        isFolderSlow ? waiting.push_back(std::move(work)) : work();
    };
    std::optional<PeriodicSave> running{std::in_place,           engine.tracker(), database,
                                        engine.services().store, fakes.defaults,   fakes.clock,
                                        [this] { ++cleared; },   background};
    PeriodicSave& save = *running;
};
