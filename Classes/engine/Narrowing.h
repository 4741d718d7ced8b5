// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreApp.h"

#include <algorithm>

// The rows that are left while a text is searched for, or while rows with little time are hidden; and whether
// they may be out of date.
class Narrowing {
public:
    using Apps = std::vector<std::shared_ptr<TimeStoreApp>>;

    // False when the same text was set last. The first call always answers true.
    bool setText(const QString& text);
    // Rows with less time than this are hidden. Seconds; 0 hides nothing.
    void setLimit(float seconds) { m_limit = seconds; }

    // The rows that are left may have changed: a timer has come, has another name, or has passed the limit.
    // Only counts this; does not search.
    void noteChange() { ++m_changes; }
    void noteTime(Seconds before, Seconds after) {
        if (before < m_limit && after >= m_limit)
            noteChange();
    }
    // How often noteChange() was called.
    std::uint64_t changes() const { return m_changes; }
    // Whether something has changed since find() looked for the survivors.
    bool isStale() const { return m_survivors && m_foundAt != m_changes; }

    // Everything survives until find() is called.
    void giveUp();
    void find(const Apps& apps);
    // The rows that are left; absent while nothing is narrowed.
    const std::optional<TimeStoreItem::Children>& survivors() const { return m_survivors; }
    // Takes out survivors that are no longer in the tree.
    template<class IsGone>
    void drop(const IsGone& isGone) {
        if (m_survivors)
            std::erase_if(*m_survivors, [&](const auto& item) { return isGone(*item); });
    }

private:
    // Absent until a text was searched for.
    std::optional<QString> m_text;
    float m_limit = 0;
    std::optional<TimeStoreItem::Children> m_survivors;
    std::uint64_t m_changes = 0;
    std::uint64_t m_foundAt = 0;
};
