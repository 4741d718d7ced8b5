// SPDX-License-Identifier: MIT
#include "Classes/common/Settings.h"

#include "platform/foundation/time/LocalTime.h"

namespace {

// 19:00 on the calendar's default day; only the time of day counts. Local time, as a person means it.
Date sevenInTheEvening() {
    return dateOf(QDateTime(QDate(1, 1, 1), QTime(19, 0)));
}

} // namespace

PropertyListDictionary registeredDefaults(const QString& applicationSupportFolder) {
    // Bit 4 of the weekdays.
    constexpr int kOneWeekday = 1 << 4;
    constexpr int kBothFormats = 2;
    return {
        {kMinutesUntilIdle, 15},
        {kEnableIdleDetection, true},
        {kIncludeIdleInSumofTimes, false},
        {kIncludeSelfInSumofTimes, true},
        {kPeriodicSaveTime, sevenInTheEvening()},
        {kSaveTimerPeriodically, false},
        {kPeriodicFormatType, kBothFormats},
        {kPeriodicDaysOfWeek, kOneWeekday},
        {kPeriodicSaveDirectory, applicationSupportFolder},
        {kTKPrefAppType, 1},
        {kTKPrefShowMenuItem, true},
        {kListShortTitles, true},
        {kListProjectTimes, true},
        {kListIcons, true},
        {kListShareBars, true},
    };
}
