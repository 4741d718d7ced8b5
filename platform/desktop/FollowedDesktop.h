// SPDX-License-Identifier: MIT
#pragma once

#include "platform/desktop/EmptyMoment.h"
#include "platform/desktop/FirstMoments.h"
#include "platform/desktop/TellingDesktop.h"

// A desktop that reports each window by itself, and which of them is active. A back end keeps the windows;
// this numbers them, decides what is in front, and shows it when something has changed. Main thread only.
class FollowedDesktop : public TellingDesktop {
protected:
    struct Front {
        // 0 if it is the desktop itself.
        std::int64_t window = 0;
        ApplicationRecord application;
        // The window that may say in its first moment that this is another program; 0 if all is said.
        std::int64_t undecided = 0;
        std::chrono::milliseconds moment = FirstMoments::kLength;
    };

    static Front desktopInFront() { return {.window = 0, .application = nothingInFront()}; }

    // `askAgain` asks the desktop what is in front. All arguments outlive the desktop.
    FollowedDesktop(DesktopEntries& entries, RunLoop& runLoop, const std::function<void()>& askAgain)
        : TellingDesktop(entries)
        , m_emptyMoment(runLoop, askAgain)
        , m_firstMoments(runLoop, askAgain) {}

    // The windows to be listed, front to back.
    virtual std::vector<WindowListEntry> listed() const = 0;

    // A new number for a window, never used before in this process.
    std::int64_t newNumber() { return ++m_lastNumber; }
    // listed() answers something else than before, which is shown by the next settleFront().
    void noteChange() { m_isStale = true; }
    // The desktop says that this is in front; absent if it says that nothing is. That is believed after a
    // moment, if no answer is missing, which `isAnswerOwed` says.
    void settleFront(const std::optional<Front>& front, bool isAnswerOwed);
    // Something is in front of which too little is known to show it.
    void awaitFront() { m_emptyMoment.end(); }
    // There is no desktop any more.
    void forgetFront();

private:
    void bringToFront(const Front& front, bool isAnswerOwed);
    void showAnew(const std::optional<ApplicationRecord>& front, bool isUndecided);

    // The moment in which nothing is in front and nobody has been told.
    EmptyMoment m_emptyMoment;
    FirstMoments m_firstMoments;
    // The window in front when this was last shown.
    std::int64_t m_frontWindow = 0;
    std::int64_t m_lastNumber = 0;
    bool m_isStale = false;
};
