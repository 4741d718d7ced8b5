// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreApp.h"

#include <algorithm>

// What is left of the tree while a text is searched for or rows with little time are hidden, and whether it may be another by
// now.
class Narrowing {
public:
    using Apps = std::vector<std::shared_ptr<TimeStoreApp>>;

    // False when the same text was asked for last. The first one is always another.
    bool setText(const QString& text);
    // Seconds; 0 hides nothing.
    void setLimit(float seconds) { m_limit = seconds; }

    // Others may survive from now on: one has come, is called otherwise or has passed the limit. Nothing is searched for that.
    void noteChange() { ++m_changes; }
    void noteTime(Seconds before, Seconds after) {
        if (before < m_limit && after >= m_limit)
            noteChange();
    }
    // How often that was.
    std::uint64_t changes() const { return m_changes; }
    // Whether it was since the survivors were found.
    bool isStale() const { return m_survivors && m_foundAt != m_changes; }

    // Everything survives until find() is called.
    void giveUp();
    void find(const Apps& apps);
    // Absent while everything survives.
    const std::optional<TimeStoreItem::Children>& survivors() const { return m_survivors; }
    // Those that are no more.
    template<class IsGone>
    void drop(const IsGone& isGone) {
        if (m_survivors)
            std::erase_if(*m_survivors, [&](const auto& item) { return isGone(*item); });
    }

private:
    // Absent until a search was asked for.
    std::optional<QString> m_text;
    float m_limit = 0;
    std::optional<TimeStoreItem::Children> m_survivors;
    std::uint64_t m_changes = 0;
    std::uint64_t m_foundAt = 0;
};
