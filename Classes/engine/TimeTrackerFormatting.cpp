// SPDX-License-Identifier: MIT
// How durations and dates are written.
#include "Classes/common/Settings.h"
#include "Classes/engine/TimeTracker.h"
#include "platform/foundation/text/DurationText.h"
#include "platform/foundation/text/LocalizedStrings.h"
#include "platform/foundation/time/DateStyles.h"

QString TimeTracker::timeStringForDouble(Seconds seconds) {
    return durationText(seconds);
}

QString TimeTracker::humanTimeStringForDouble(Seconds seconds) const {
    return durationInWords(seconds, m_services.defaults.boolForKey(kIncludeSecondsWhenCopyingTime));
}

QString TimeTracker::lastResetDateDisplayString() const {
    return localized("Database file (reset %@):")
        .replace(QLatin1String("%@"), mediumDateShortTime(m_lastResetDate));
}
