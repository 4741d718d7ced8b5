// SPDX-License-Identifier: MIT
#pragma once

#include "platform/WindowElement.h"
#include "platform/foundation/time/Date.h"

#include <QString>

#include <optional>
#include <vector>

// A period to credit.
struct CountedPeriod {
    // Absent when nothing can be credited.
    std::optional<Instant> from;
    Instant to;
    // The whole title of the front window, cleaned; absent while the application in front has none.
    std::optional<QString> title;
};

// A period and whose it is.
struct NamedPeriod {
    std::optional<QString> appName;
    std::optional<WindowElement> window;
    // The window's title may name none.
    std::optional<QString> documentName;
    CountedPeriod period;
};

// An activity source tells this listener what is in front; the tracker is one. It outlives the source, or
// calls its teardown().
class ActivityListener {
public:
    virtual ~ActivityListener() = default;

    // Another application is in front.
    virtual void appDidChange() = 0;
    // Tells the application in front, its front window, and the document that the window's title names. They
    // get the time since the last credit: at once, or in the tick that has asked.
    virtual void mainWindowDidChangeToAppName(const std::optional<QString>& appName,
                                              const std::optional<WindowElement>& mainWindowName,
                                              const std::optional<QString>& documentName) = 0;
    // The window being credited has another title. Does nothing without a name. While the timer is stopped,
    // does nothing for any other window either: the source goes on looking then, but nothing is credited.
    virtual void renameWindowToName(const std::optional<QString>& newName, const WindowElement& window) = 0;
    // Called before the source looks at another application's windows. The time since the last tick is
    // credited to the application and the window that were in front.
    virtual void creditTimeBeforeSwitch() = 0;
    // Credits, to what is in front, what the ticks until then would have credited. Whether the user is away does not
    // change by this.
    virtual void creditMissedTicks(Instant until) = 0;
    // A period has passed, but not all of it is known: so far it would be this one's. It is credited later, by
    // creditPeriods().
    virtual void letWait(const NamedPeriod& soFar) = 0;
    // All that waits turns out to be these periods, which are in order of time. Others may have been credited
    // since.
    virtual void creditPeriods(const std::vector<NamedPeriod>& periods) = 0;
    // Whether the user is away; then the source tells no switch.
    virtual bool isIdle() const = 0;
};
