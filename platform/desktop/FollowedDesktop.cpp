// SPDX-License-Identifier: MIT
#include "platform/desktop/FollowedDesktop.h"

void FollowedDesktop::settleFront(const std::optional<Front>& front, bool isAnswerOwed) {
    if (front)
        bringToFront(*front);
    else if (activeApplication() != nothingInFront() && m_emptyMoment.isOver(isAnswerOwed))
        bringToFront(desktopInFront());
    if (m_isStale)
        showAnew(activeApplication());
}

void FollowedDesktop::forgetFront() {
    m_emptyMoment.end();
    m_frontWindow = 0;
}

void FollowedDesktop::bringToFront(const Front& front) {
    m_emptyMoment.end();
    m_isStale |= std::exchange(m_frontWindow, front.window) != front.window ||
                 activeApplication() != front.application;
    if (m_isStale)
        showAnew(front.application);
}

void FollowedDesktop::showAnew(const std::optional<ApplicationRecord>& front) {
    m_isStale = false;
    show(listed(), m_frontWindow, front);
}
