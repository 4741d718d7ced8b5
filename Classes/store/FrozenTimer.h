// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/values/Identity.h"

#include <QString>

#include <map>
#include <optional>
#include <span>
#include <vector>

class TimeStoreNode;

// A timer was frozen. The object is a FrozenIdentities.
inline const QString kTicklogBranchNodeNotification = QStringLiteral("kTicklogBranchNodeNotification");
// Old identity to new identity, one entry.
using FrozenIdentities = std::map<Identity, Identity>;

// A freezing was undone: the frozen timer was joined with the one that went on in its place. The object is a
// FrozenIdentities: it maps identities that no longer exist, including the frozen ones, to those of the
// original timers.
inline const QString kTicklogUnbranchNodeNotification = QStringLiteral("kTicklogUnbranchNodeNotification");

// A timer that was frozen: its original identities and the new ones, for it and for its windows. Enough to
// undo the freezing, and to redo it under the same identities, so that projects and later undo steps still
// mean the same timers.
class FrozenTimer {
public:
    // An original identity and the one that replaced it. Absent for a timer without an identity.
    struct Pair {
        std::optional<Identity> before;
        Identity after;
    };

    // For a timer that is about to be frozen. `again` is its first freezing, when that is being redone.
    explicit FrozenTimer(const TimeStoreNode& timer, const FrozenTimer* again = nullptr);

    // Answers the identity that replaces `identity`. Call it first for the timer itself, then for each of its
    // windows.
    Identity replace(const std::optional<Identity>& identity);

    // Records which identity went on in the timer's place, by its registry key, when the two were joined. If
    // the freezing is redone, the successor gets that identity back.
    void remember(const QString& key, const Identity& successor) {
        m_successors.insert_or_assign(key, successor);
    }

    const QString& name() const { return m_name; }
    const std::optional<QString>& renamedName() const { return m_renamedName; }
    bool isApp() const { return m_isApp; }
    const Pair& own() const { return m_pairs.front(); }
    std::span<const Pair> windows() const { return std::span(m_pairs).subspan(1); }
    const std::map<QString, Identity>& successors() const { return m_successors; }

private:
    QString m_name;
    std::optional<QString> m_renamedName;
    bool m_isApp;
    std::vector<Pair> m_pairs;
    // Identities of the first freezing that were not asked for yet.
    std::vector<Pair> m_known;
    std::map<QString, Identity> m_successors;
};
