// SPDX-License-Identifier: MIT
#pragma once

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

// Projects refer to these identities, a std::unordered_set<Identity>: whoever has their timers sees to it that the
// registry knows them.
inline const QString kTicklogKeepNamesNotification = QStringLiteral("kTicklogKeepNamesNotification");

// The registry from a node's class and name to its identity, so that a timer that is found again by name is still the
// one that projects refer to. Made once, handed to all nodes, and outlives them. Main thread only.
//
// A title may change at every tick, and each change would write the whole file. Changes therefore wait kJoiningDelay
// for others; saveData() writes at once and is called wherever the database is saved. What a crash loses in between is
// made up for by the database, whose identities win when it is read.
class TKUUIDManager {
public:
    static constexpr std::chrono::seconds kJoiningDelay{20};

    // Reads the file at `path`; missing or unreadable, the registry starts empty. An
    // unreadable file is set aside first.
    TKUUIDManager(QString path, RunLoop& runLoop, SystemLog& log);
    TKUUIDManager(const TKUUIDManager&) = delete;
    TKUUIDManager& operator=(const TKUUIDManager&) = delete;
    // Writes what is not written yet.
    ~TKUUIDManager();

    // The registry file for an application-support folder: "UUID.plist" joined to the folder's path without a
    // separator, so that it lies beside the folder. Existing registries are found by this name only.
    static QString savePath(const QString& applicationSupportFolder);

    // The key's identity; absent if it has none.
    std::optional<Identity> knownUUID(const QString& key) const;
    // The key's identity, made and entered now if it has none. This alone does not ask for the file to be written.
    Identity uuidForName(const QString& key);
    // Enters `identity` under `key`, in place of any other, asks for a write, and answers it.
    Identity setUUID(const Identity& identity, const QString& key);
    // Moves the identity of `oldKey` to `newKey`, in place of any other, and asks for a write, also when there was
    // nothing to move. Nothing happens when both keys are the same.
    void renameName(const QString& oldKey, const QString& newKey);
    // Drops the key's entry and asks for a write, if there is one.
    void forget(const QString& key);
    // The same, for every key of which that is true.
    void forgetNames(const std::function<bool(const QString& key)>& isUnwanted);
    // The entries of these identities.
    QHash<QString, Identity> namesOf(const std::unordered_set<Identity>& identities) const;
    // Drops every entry whose identity is not in `used`. Nothing happens when `used` is absent or has as many members
    // as the registry has entries, even if they are others.
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
    std::unique_ptr<RunLoopTimer> m_owedWrite;
};
