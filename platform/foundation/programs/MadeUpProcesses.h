// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

#include <cstdint>

// Process numbers for programs that the desktop reports without one: negative, one for each name, never the
// same twice in a run. Anybody can make up names without end, so names without a window are forgotten when
// there are many.
class MadeUpProcesses {
public:
    // Names are forgotten when there are this many more than twice the windows; until then a program that
    // comes back gets the same number.
    static constexpr std::size_t kSpare = 1000;

    std::int64_t of(const QString& name) {
        std::int64_t& process = m_processes[name];
        if (process == 0)
            process = --m_last;
        return process;
    }

    // Call it with all windows when some have come or gone. `nameOf` answers the name that a window uses.
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
