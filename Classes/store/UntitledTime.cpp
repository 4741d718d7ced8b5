// SPDX-License-Identifier: MIT
#include "Classes/store/UntitledTime.h"

#include "platform/foundation/text/DurationText.h"

#include <algorithm>

Seconds UntitledTime::activeTime() const {
    Seconds time = m_application->activeTime();
    for (const auto& window : m_application->windows())
        time -= window->activeTime();
    return std::max(time, 0.0);
}

QString UntitledTime::activeTimeString() const {
    return durationText(activeTime());
}

std::shared_ptr<TimeStoreItem>
UntitledTime::prunedObjectForSearchString(const std::optional<QString>& searchString, float cutoffTime) {
    const bool isWanted = !searchString || m_application->matches(*searchString);
    const bool isBelowCutoff = cutoffTime > 0 && Seconds(cutoffTime) > activeTime();
    return isWanted && !isBelowCutoff ? shared_from_this() : nullptr;
}

Seconds UntitledTime::activeTimeForSearchString(const QString& searchString) const {
    return m_application->matches(searchString) ? activeTime() : 0;
}
