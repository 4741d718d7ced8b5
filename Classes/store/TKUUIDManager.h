// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/observing/Listeners.h"
#include "platform/foundation/time/RunLoop.h"
#include "platform/foundation/values/Identity.h"
#include "platform/foundation/values/SystemLog.h"

#include <QHash>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_set>

// Projects refer to these identities (a std::unordered_set<Identity>): whoever owns their timers enters them
// in the registry.
inline const QString kTicklogKeepNamesNotification = QStringLiteral("kTicklogKeepNamesNotification");

// Maps a node's class and name to its identity, so that a timer that is found again by its name is still the
// one that projects refer to. Made once, given to all nodes, and outlives them. Main thread only.
//
// A title may change at every tick, and each change would write the whole file. So changes wait for
// kJoiningDelay and are written together; saveData() writes at once and is called whenever the database is
// saved. If a crash loses some changes, reading the database restores them: its identities win over the
// registry's.
class TKUUIDManager {
public:
    static constexpr std::chrono::seconds kJoiningDelay{20};

    // Reads the file at `path`. If it is missing or cannot be read, the registry starts empty; a file that
    // cannot be read is set aside first.
    TKUUIDManager(QString path, RunLoop& runLoop, SystemLog& log);
    TKUUIDManager(const TKUUIDManager&) = delete;
    TKUUIDManager& operator=(const TKUUIDManager&) = delete;
    // Writes changes that still wait.
    ~TKUUIDManager();

    // The path of the registry file: the application-support folder's path followed by "UUID.plist" without a
    // separator, so that the file lies beside the folder. Existing registries are found only under this name.
    static QString savePath(const QString& applicationSupportFolder);

    // The key's identity; absent if it has none.
    std::optional<Identity> knownUUID(const QString& key) const;
    // The key's identity; made and entered if it has none. This alone does not cause a write.
    Identity uuidForName(const QString& key);
    // Enters `identity` under `key`, replacing any other, asks for a write, and answers the identity.
    Identity setUUID(const Identity& identity, const QString& key);
    // Moves the identity of `oldKey` to `newKey`, replacing any other, and asks for a write even when there
    // was nothing to move. Does nothing when both keys are equal.
    void renameName(const QString& oldKey, const QString& newKey);
    // Drops the key's entry and asks for a write, if there is one.
    void forget(const QString& key);
    // The same for every entry for which `isUnwanted` answers true.
    void forgetNames(const std::function<bool(const QString& key, const Identity& identity)>& isUnwanted);
    // The entries of these identities, by key.
    QHash<QString, Identity> namesOf(const std::unordered_set<Identity>& identities) const;
    // While the subscription lives, setUUIDSet() also leaves the entries for which `isNeeded` answers true.
    using IsNeeded = std::function<bool(const Identity& identity)>;
    Subscription keep(IsNeeded isNeeded) { return m_keepers->add(std::move(isNeeded)); }
    // Removes every entry whose identity is not in `used`. Does nothing when `used` is absent, or has as many
    // members as the registry has entries, even if they are different ones.
    void setUUIDSet(const std::optional<std::unordered_set<Identity>>& used);

    // Writes the file now if a write is owed. A failure is logged and the write stays owed.
    void saveData();

    qsizetype count() const { return m_namesToUUIDs.size(); }

private:
    void load();
    void startEmpty(const QString& why);
    void requestSave();
    void write();

    QString m_path;
    RunLoop& m_runLoop;
    SystemLog& m_log;
    QHash<QString, Identity> m_namesToUUIDs;
    const QExplicitlySharedDataPointer<Listeners<IsNeeded>> m_keepers{new Listeners<IsNeeded>};
    std::unique_ptr<RunLoopTimer> m_owedWrite;
};
