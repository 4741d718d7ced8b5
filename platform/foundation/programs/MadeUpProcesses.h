// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

#include <cstdint>

// Process numbers for programs that a desktop tells of without them: negative, one for each name, and never one twice in
// a run. Names may come from anybody and without end, so those that no window goes by are forgotten once there are many.
class MadeUpProcesses {
public:
    // So many names more than twice the windows are remembered: whoever comes back has the same number again.
    static constexpr std::size_t kSpare = 1000;

    std::int64_t of(const QString& name) {
        std::int64_t& process = m_processes[name];
        if (process == 0)
            process = --m_last;
        return process;
    }

    // To be told of all windows whenever some have come or gone. `nameOf` answers the name that one goes by.
    template<class Windows, class NameOf>
    void settle(const Windows& windows, NameOf nameOf) {
        if (count() <= 2 * std::size_t(windows.size()) + kSpare)
            return;
        QHash<QString, std::int64_t> kept;
        for (const auto& window : windows)
            if (const auto known = m_processes.constFind(nameOf(window)); known != m_processes.constEnd())
                kept.insert(known.key(), known.value());
        m_processes = std::move(kept);
    }

    std::size_t count() const { return std::size_t(m_processes.size()); }

private:
    QHash<QString, std::int64_t> m_processes;
    std::int64_t m_last = 0;
};
