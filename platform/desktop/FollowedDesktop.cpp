// SPDX-License-Identifier: MIT
#include "platform/desktop/FollowedDesktop.h"

void FollowedDesktop::settleFront(const std::optional<Front>& front, bool isAnswerOwed) {
    if (front)
        bringToFront(*front, isAnswerOwed);
    else if (activeApplication() != nothingInFront() && m_emptyMoment.isOver(isAnswerOwed))
        bringToFront(desktopInFront(), false);
    if (m_isStale)
        showAnew(activeApplication(), isUndecided());
}

void FollowedDesktop::forgetFront() {
    m_emptyMoment.end();
    m_frontWindow = 0;
}

void FollowedDesktop::bringToFront(const Front& front, bool isAnswerOwed) {
    m_emptyMoment.end();
    // Windows that were there before Ticklog have said what they had to say.
    if (!activeApplication())
        m_firstMoments.skip(m_lastNumber);
    const bool mayTurnOut =
        front.undecided && m_firstMoments.include(front.undecided, front.moment, isAnswerOwed);
    m_isStale |= std::exchange(m_frontWindow, front.window) != front.window ||
                 activeApplication() != front.application || isUndecided() != mayTurnOut;
    if (m_isStale)
        showAnew(front.application, mayTurnOut);
}

void FollowedDesktop::showAnew(const std::optional<ApplicationRecord>& front, bool isUndecided) {
    m_isStale = false;
    show(listed(), m_frontWindow, front, isUndecided);
}
