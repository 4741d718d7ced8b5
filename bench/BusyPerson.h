// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryBatch.h"

#include <cmath>
#include <random>

// The history of a busy person, always the same for the same first day: 1,500 stretches a day on 250 days a
// year, from eight in the morning. A stretch lasts 18 seconds on average (exponential, half a second at
// least). 30,000 titles of 55 characters belong to 40 programs; 200 of them are met on a day, the first ones
// more often than the last (geometric).
class BusyPerson {
public:
    static constexpr int kStretches = 1500;
    static constexpr int kDaysAYear = 250;
    static constexpr int kTitles = 30'000;
    static constexpr int kPrograms = 40;

    // Milliseconds since 1970: a midnight in UTC.
    explicit BusyPerson(std::int64_t firstDay)
        : m_firstDay(firstDay) {}

    HistoryBatch day(int number) {
        HistoryBatch batch;
        std::vector<int> titles;
        for (int i = 0; i < 200; ++i)
            titles.push_back(int(m_random() % kTitles));
        std::int64_t at = m_firstDay + number * std::int64_t(365) / kDaysAYear * kDay + 8 * kHour;
        std::exponential_distribution<double> length(1.0 / 18'000);
        std::geometric_distribution<int> which(0.02);
        for (int i = 0; i < kStretches; ++i) {
            const std::int64_t time = std::min(kHour - at % kHour, 500 + std::int64_t(length(m_random)));
            const int title = titles[std::size_t(which(m_random) % 200)];
            batch.rows[++m_serial] = {
                .start = at,
                .length = time,
                .offset = 60,
                .program = QStringLiteral("Program %1").arg(title % kPrograms),
                .title = QStringLiteral("The title of a window as long as they are, number %1").arg(title),
                .timer = {},
                .presence = RowPresence::Work};
            at += time;
        }
        batch.settledBefore = m_serial + 1;
        return batch;
    }

private:
    static constexpr std::int64_t kHour = 3'600'000;
    static constexpr std::int64_t kDay = 24 * kHour;

    const std::int64_t m_firstDay;
    std::mt19937 m_random{7};
    std::uint64_t m_serial = 0;
};
