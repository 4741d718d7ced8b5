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
// What lists show: titles without the program's name at their end, times and what is left in the sidebar, icons
// of programs, bars behind times.
inline const QString kListShortTitles = QStringLiteral("kTKListShortTitles");
inline const QString kListProjectTimes = QStringLiteral("kTKListProjectTimes");
inline const QString kListIcons = QStringLiteral("kTKListIcons");
inline const QString kListShareBars = QStringLiteral("kTKListShareBars");

// The path of the main store. A later launch reads that file if it exists.
inline const QString kMainStorePath = QStringLiteral("MainStorePath");
// The recorded path of a main store that a launch did not find. What lies at the default place was counted
// meanwhile and belongs to that store.
inline const QString kMeanwhileOf = QStringLiteral("kTKMeanwhileOf");
// The state (size and time) of that main store's file just before the time counted meanwhile was added to it.
inline const QString kMeanwhileNotYetIn = QStringLiteral("kTKMeanwhileNotYetIn");
// The next launch starts the timer.
inline const QString kStartTicklogOnNextLaunch = QStringLiteral("startTicklogOnNextLaunch");
// Whether the timer ran after it was last started or stopped.
inline const QString kTKWasTimerRunning = QStringLiteral("kTKWasTimerRunning");
// Whether durations in words include seconds; otherwise minutes are rounded.
inline const QString kIncludeSecondsWhenCopyingTime = QStringLiteral("includeSecondsWhenCopyingTime");
// The user has been told that closing the window only minimises it where the tray has no icon.
inline const QString kTKSaidThatClosingMinimizes = QStringLiteral("kTKSaidThatClosingMinimizes");
// For how many days the history is kept. 0 means for ever; below 0 no history is kept and there is no file.
inline const QString kHistoryDays = QStringLiteral("kTKHistoryDays");
// The hour of the clock at which a day of the history begins, from 0 to 23.
inline const QString kHistoryDayBegins = QStringLiteral("kTKHistoryDayBegins");
// Whether the main window shows the history rather than the timers.
inline const QString kHistoryShown = QStringLiteral("kTKHistoryShown");
// The kind of range that the history shows: 0 day, 1 week, 2 month, 3 year.
inline const QString kHistoryRange = QStringLiteral("kTKHistoryRange");
// Whether the history goes by projects rather than by programs.
inline const QString kHistoryByProject = QStringLiteral("kTKHistoryByProject");
// Whether Ticklog asks what an absence was, and from how many minutes on.
inline const QString kAskAfterAbsence = QStringLiteral("kTKAskAfterAbsence");
inline const QString kAskAfterMinutes = QStringLiteral("kTKAskAfterMinutes");
// Of time sheets: the name on them, and by its place in its menu how times are rounded and written.
inline const QString kSheetName = QStringLiteral("kTKSheetName");
inline const QString kSheetRounding = QStringLiteral("kTKSheetRounding");
inline const QString kSheetRoundingUp = QStringLiteral("kTKSheetRoundingUp");
inline const QString kSheetRoundingByDay = QStringLiteral("kTKSheetRoundingByDay");
inline const QString kSheetDecimal = QStringLiteral("kTKSheetDecimal");
// The main window as it was left: its frame (data of the toolkit); the sidebar's width in pixels and whether it is
// hidden; of the timers the width of the column of times, by which column rows are sorted, counted from 0, and whether
// the last comes first; the columns of the history (data of the toolkit).
inline const QString kWindowFrame = QStringLiteral("kTKWindowFrame");
inline const QString kSidebarWidth = QStringLiteral("kTKSidebarWidth");
inline const QString kSidebarHidden = QStringLiteral("kTKSidebarHidden");
inline const QString kTimesWidth = QStringLiteral("kTKTimesWidth");
inline const QString kTimersSorting = QStringLiteral("kTKTimersSorting");
inline const QString kTimersSortedDown = QStringLiteral("kTKTimersSortedDown");
inline const QString kHistoryColumns = QStringLiteral("kTKHistoryColumns");
// Which rows were open under "All Timers" when Ticklog ended, whether they are in a project or not.
inline const QString kOpenTimers = QStringLiteral("kTKOpenTimers");
// The user has seen the page of the first start.
inline const QString kWelcomed = QStringLiteral("kTKWelcomed");
// Whether each title of a window gets a row of its own, in all applications.
inline const QString kRowForEachTitle = QStringLiteral("kTKRowForEachTitle");
// Which rows are expanded under "All Timers": a list of identities.
inline const QString kTopLevelExpandedUUIDs = QStringLiteral("topLevelExpandedUUIDs");

// The table of registered defaults. `applicationSupportFolder` is where archives go until the user chooses.
PropertyListDictionary registeredDefaults(const QString& applicationSupportFolder);
