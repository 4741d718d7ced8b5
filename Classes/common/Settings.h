// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QString>

// The user's settings by key. Those of the first group have registered defaults.
inline const QString kMinutesUntilIdle = QStringLiteral("minutesUntilIdle");
inline const QString kEnableIdleDetection = QStringLiteral("enableIdleDetection");
inline const QString kIncludeIdleInSumofTimes = QStringLiteral("includeIdleInSumofTimes");
inline const QString kIncludeSelfInSumofTimes = QStringLiteral("includeSelfInSumofTimes");
inline const QString kPeriodicSaveTime = QStringLiteral("periodicSaveTime");
inline const QString kSaveTimerPeriodically = QStringLiteral("saveTimerPeriodically");
inline const QString kPeriodicFormatType = QStringLiteral("periodicFormatType");
inline const QString kPeriodicDaysOfWeek = QStringLiteral("periodicDaysOfWeek");
inline const QString kPeriodicSaveDirectory = QStringLiteral("periodicSaveDirectory");
inline const QString kTKPrefAppType = QStringLiteral("kTKPrefAppType");
inline const QString kTKPrefShowMenuItem = QStringLiteral("kTKPrefShowMenuItem");

// The path of the main store; a later launch begins there when a file is there.
inline const QString kMainStorePath = QStringLiteral("MainStorePath");
// The main store, at its recorded place, that could not be found at a launch: what lies at the default place was counted
// meanwhile and belongs to it.
inline const QString kMeanwhileOf = QStringLiteral("kTKMeanwhileOf");
// What that main store's file was like when the time counted meanwhile was about to be added to it.
inline const QString kMeanwhileNotYetIn = QStringLiteral("kTKMeanwhileNotYetIn");
// The next launch starts the timer.
inline const QString kStartTicklogOnNextLaunch = QStringLiteral("startTicklogOnNextLaunch");
// The timer ran when it was last started or stopped.
inline const QString kTKWasTimerRunning = QStringLiteral("kTKWasTimerRunning");
// Whether durations in words include seconds; otherwise minutes are rounded.
inline const QString kIncludeSecondsWhenCopyingTime = QStringLiteral("includeSecondsWhenCopyingTime");
// The user has been told that closing the window minimises it where there is no icon in the tray.
inline const QString kTKSaidThatClosingMinimizes = QStringLiteral("kTKSaidThatClosingMinimizes");
// For how many days the history is kept: 0 for ever, below 0 not at all, and then there is no file.
inline const QString kHistoryDays = QStringLiteral("kTKHistoryDays");
// The hour of the clock at which a day of the history begins, from 0 to 23.
inline const QString kHistoryDayBegins = QStringLiteral("kTKHistoryDayBegins");
// The rows shown expanded among all timers: a list of identities.
inline const QString kTopLevelExpandedUUIDs = QStringLiteral("topLevelExpandedUUIDs");

// The table of registered defaults. `applicationSupportFolder` is where archives go until the user chooses.
PropertyListDictionary registeredDefaults(const QString& applicationSupportFolder);
