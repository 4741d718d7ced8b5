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
// The old identity and the new one: one entry.
using FrozenIdentities = std::map<Identity, Identity>;

// A frozen timer has become one again with what went on in its place. The object is a FrozenIdentities: from the
// identities that are no more, the frozen ones among them, to those of the timers that there were before.
inline const QString kTicklogUnbranchNodeNotification = QStringLiteral("kTicklogUnbranchNodeNotification");

// A timer that was frozen: what it was before, and which identities it and its windows have got. Enough to undo that, and
// to do it again so that whatever was said of the timers meanwhile is still said of the same ones.
class FrozenTimer {
public:
    // A timer and the one it became. Absent for a timer that had no identity.
    struct Pair {
        std::optional<Identity> before;
        Identity after;
    };

    // Of a timer that is not frozen and about to be. With `again`, it is the one that was frozen then.
    explicit FrozenTimer(const TimeStoreNode& timer, const FrozenTimer* again = nullptr);

    // The identity of a frozen timer in place of the one it has had. To be asked for the timer itself first, then for each
    // of its windows.
    Identity replace(const std::optional<Identity>& identity);

    // What stood in the timer's place, by its key in the registry, when the two were joined. It comes back under the
    // same identity when the timer is frozen again.
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
    // Those of the first time that were not yet asked for.
    std::vector<Pair> m_known;
    std::map<QString, Identity> m_successors;
};
