// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/TimeTracker.h"
#include "Classes/store/AccountEntries.h"

#include <QRandomGenerator>

#include <algorithm>
#include <cmath>

// An account after long use, always the same for the same sizes. A tenth of the applications have half of the
// windows, like browsers and terminals; titles have 8 to 200 characters with a median of 45 (log-normal).
class SampleAccount {
public:
    SampleAccount(int applications, int windows)
        : m_applications(applications)
        , m_windows(windows) {}

    // The records as the database holds them.
    PropertyListArray entries() {
        PropertyListArray entries;
        const int busy = std::max(1, m_applications / 10);
        for (int i = 0; i < m_applications; ++i) {
            const bool isBusy = i < busy;
            const int group = isBusy ? busy : m_applications - busy;
            const int share = isBusy && m_applications > 1 ? m_windows / 2 : m_windows - m_windows / 2;
            const int count = m_applications == 1 ? m_windows : share / std::max(1, group);
            PropertyListArray windows;
            windows.reserve(std::size_t(count));
            for (int j = 0; j < count; ++j)
                windows.push_back(record(title(j)));
            entries.push_back(PropertyListDictionary{{kEntryApp, record(QStringLiteral("Program %1").arg(i))},
                                                     {kEntryWindows, std::move(windows)}});
        }
        return entries;
    }

private:
    PropertyListDictionary record(const QString& name) {
        return {{kRecordName, name},
                {kRecordActiveTime, m_random.generateDouble() * 20'000},
                {kRecordUUID, Identity::brandNew().bytes()},
                {kRecordBranched, false}};
    }

    QString title(int number) {
        // Two uniform numbers make one normally distributed one.
        const double normal = std::sqrt(-2 * std::log(1 - m_random.generateDouble())) *
                              std::cos(2 * M_PI * m_random.generateDouble());
        const int length = std::clamp(int(45 * std::exp(0.5 * normal)), 8, 200);
        QString text = QStringLiteral("Document %1 ").arg(number);
        while (text.size() < length)
            text += QChar(u'a' + m_random.bounded(26));
        return text;
    }

    int m_applications;
    int m_windows;
    QRandomGenerator m_random{20261120};
};
