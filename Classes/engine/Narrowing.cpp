// SPDX-License-Identifier: MIT
#include "Classes/engine/Narrowing.h"

bool Narrowing::setText(const QString& text) {
    if (m_text == text)
        return false;
    m_text = text;
    return true;
}

void Narrowing::giveUp() {
    m_survivors.reset();
    m_foundAt = m_changes;
}

void Narrowing::find(const Apps& apps) {
    const std::optional<QString> text = m_text && !m_text->isEmpty() ? m_text : std::nullopt;
    if (!text && !(m_limit > 0))
        return;
    m_survivors.emplace();
    for (const auto& app : apps)
        if (auto pruned = app->prunedObjectForSearchString(text, m_limit))
            m_survivors->push_back(std::move(pruned));
}
