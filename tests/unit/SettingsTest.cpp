// SPDX-License-Identifier: MIT
#include "Classes/common/Settings.h"
#include "tests/fakes/Announcements.h"
#include "tests/fakes/FakePlatform.h"

#include <QDateTime>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(Settings, aFreshInstallation_readsTheRegisteredDefaults) {
    FakePlatform fakes;
    EXPECT_EQ(fakes.defaults.integerForKey(u"minutesUntilIdle"_s), 15);
    EXPECT_TRUE(fakes.defaults.boolForKey(u"enableIdleDetection"_s));
    EXPECT_FALSE(fakes.defaults.boolForKey(u"includeIdleInSumofTimes"_s));
    EXPECT_TRUE(fakes.defaults.boolForKey(u"includeSelfInSumofTimes"_s));
    EXPECT_FALSE(fakes.defaults.boolForKey(u"saveTimerPeriodically"_s));
    EXPECT_EQ(fakes.defaults.integerForKey(u"periodicFormatType"_s), 2);
    EXPECT_EQ(fakes.defaults.integerForKey(u"periodicDaysOfWeek"_s), 16);
    EXPECT_EQ(fakes.defaults.object(u"periodicSaveDirectory"_s).toString(), fakes.folders.applicationSupport);
    EXPECT_EQ(fakes.defaults.integerForKey(u"kTKPrefAppType"_s), 1);
    EXPECT_TRUE(fakes.defaults.boolForKey(u"kTKPrefShowMenuItem"_s));
}

TEST(Settings, theTable_isRegisteredInItsOrder) {
    QStringList keys;
    for (const auto& [key, value] : registeredDefaults(u"/data"_s))
        keys << key;
    EXPECT_EQ(str(keys.join(u' ')),
              "minutesUntilIdle enableIdleDetection includeIdleInSumofTimes includeSelfInSumofTimes "
              "periodicSaveTime saveTimerPeriodically periodicFormatType periodicDaysOfWeek "
              "periodicSaveDirectory kTKPrefAppType kTKPrefShowMenuItem kTKListShortTitles "
              "kTKListProjectTimes kTKListIcons kTKListShareBars");
}

TEST(Settings, theTimeOfTheArchive_isSevenInTheEveningOnTheFirstDayOfAll) {
    const auto date = registeredDefaults({}).value(kPeriodicSaveTime).asDate();
    ASSERT_TRUE(date);
    const auto time = QDateTime::fromMSecsSinceEpoch(date->time_since_epoch().count() / 1000);
    EXPECT_EQ(time.time(), QTime(19, 0));
    EXPECT_EQ(time.date(), QDate(1, 1, 1));
}

TEST(Settings, keysWithoutADefault_readAsNothing) {
    FakePlatform fakes;
    for (const QString& key :
         {u"startTicklogOnNextLaunch"_s, u"kTKWasTimerRunning"_s, u"includeSecondsWhenCopyingTime"_s,
          u"MainStorePath"_s, u"Ruleset"_s, u"topLevelExpandedUUIDs"_s}) {
        EXPECT_TRUE(fakes.defaults.object(key).isAbsent()) << str(key);
        EXPECT_FALSE(fakes.defaults.boolForKey(key)) << str(key);
        EXPECT_EQ(fakes.defaults.integerForKey(key), 0) << str(key);
    }
}

TEST(Settings, aValueOfTheUsers_replacesTheDefaultUntilItIsRemoved) {
    FakePlatform fakes;
    fakes.defaults.setObject(kMinutesUntilIdle, 5);
    EXPECT_EQ(fakes.defaults.integerForKey(kMinutesUntilIdle), 5);
    fakes.defaults.removeObject(kMinutesUntilIdle);
    EXPECT_EQ(fakes.defaults.integerForKey(kMinutesUntilIdle), 15);
}

TEST(Settings, theNames_areThoseOfTheFile) {
    EXPECT_EQ(str(kStartTicklogOnNextLaunch), "startTicklogOnNextLaunch");
    EXPECT_EQ(str(kTKWasTimerRunning), "kTKWasTimerRunning");
    EXPECT_EQ(str(kIncludeSecondsWhenCopyingTime), "includeSecondsWhenCopyingTime");
    EXPECT_EQ(str(kTopLevelExpandedUUIDs), "topLevelExpandedUUIDs");
    EXPECT_EQ(str(kMainStorePath), "MainStorePath");
}

} // namespace
