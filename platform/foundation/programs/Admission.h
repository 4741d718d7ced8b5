// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

// Limits how many requests of other programs may be under way, by whatever way they come. Each request may
// ask the user questions, and a program that sends many would bury everything under them. Main thread only.
class Admission {
public:
    static constexpr int kMost = 4;

    // One of the places, taken for as long as a copy lives. May outlive the admission.
    using Ticket = std::shared_ptr<const int>;

    // Null when all places are taken.
    Ticket admit() const {
        if (*m_taken >= kMost)
            return nullptr;
        ++*m_taken;
        return {m_taken.get(), [taken = m_taken](const int*) { --*taken; }};
    }

private:
    std::shared_ptr<int> m_taken = std::make_shared<int>(0);
};
