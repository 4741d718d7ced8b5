// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

// How many requests of other programs may be under way at a time, whichever way they come in: each may put questions to the
// user, and a program that asks on and on would bury everything under them. Main thread only.
class Admission {
public:
    static constexpr int kMost = 4;

    // A place among those that are under way, for as long as a copy lives. May outlive the admission.
    using Ticket = std::shared_ptr<const int>;

    // Null while all places are taken.
    Ticket admit() const {
        if (*m_taken >= kMost)
            return nullptr;
        ++*m_taken;
        return {m_taken.get(), [taken = m_taken](const int*) { --*taken; }};
    }

private:
    std::shared_ptr<int> m_taken = std::make_shared<int>(0);
};
