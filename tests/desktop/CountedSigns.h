// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SignsOfLife.h"

// Counts how often a desktop is asked for a sign of life. Who asks again has had an answer to the question
// before.
class CountedSigns : public SignsOfLife {
public:
    explicit CountedSigns(SignsOfLife& signs)
        : m_signs(signs) {}

    Subscription observeSigns(News::Hearer hearer) override {
        return m_signs.observeSigns(std::move(hearer));
    }
    void askForSign() override {
        ++asked;
        m_signs.askForSign();
    }

    int asked = 0;

private:
    SignsOfLife& m_signs;
};
