// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/record/FileCalls.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/propertylists/PropertyListWriter.h"
#include "platform/foundation/values/Result.h"
#include "platform/foundation/values/SystemLog.h"

#include <QCryptographicHash>
#include <QSet>
#include <QString>

#include <functional>

// The database file on the disk, whatever it contains: a dictionary as a property list. It is written in
// place, so it stays the same file, with its links and permissions. To survive a crash or a full disk in the
// middle, the content is first written, whole and synced, to a sidecar next to it ("<name>.new"), which is
// removed once the store itself is synced. A sidecar that somebody else has put there is left alone. While
// the content is copied, the store's first byte is one that every reader refuses, so nobody reads half a
// save. docs/file-formats.md lists every state that a crash can leave and what follows from it. Main thread
// only.
class StoreFile {
public:
    // Both must outlive the store. Content larger than `sizeLimit` is not written, because it could not be
    // read again.
    explicit StoreFile(SystemLog& log, FileCalls& calls = FileCalls::system(),
                       qint64 sizeLimit = PropertyList::kSizeLimit)
        : m_log(log)
        , m_calls(calls)
        , m_sizeLimit(sizeLimit) {}

    // Called with a digest of the new content as soon as it is whole on the disk, before the store itself is
    // written.
    using Whole = std::function<void(const QByteArray& digest)>;

    // Replaces the content by what `content` sends to the sink. After a failure the next read() finds either
    // the last content that was written whole or this one. A store that read() could not read is set aside
    // first. The folder must exist. A link is followed.
    Outcome write(const QString& path, const std::function<void(PropertyListSink&)>& content,
                  const Whole& whole = {});
    // Reads the last content that was written whole, and finishes or clears away what a crash left behind.
    // NotFound when there is no store. A store that cannot be read stays where it is until a new one is
    // written in its place. Use PropertyList::readFile() for files of others, which must not be mended.
    Result<PropertyListValue> read(const QString& path);
    // The digest of what read() finds; empty when there is nothing. BLAKE2b, 20 bytes.
    QByteArray digest(const QString& path) const;
    // The content that was read is unusable. Like a store that cannot be read, it will be set aside before a
    // new one is written. Does nothing if there is no store.
    void refuse(const QString& path);

private:
    struct Paths;

    // Whether a file of that name exists and is ours, not one that somebody else has put there.
    bool isOurs(const QString& path, const Paths& paths) const;
    Outcome setAsideUnreadable(const Paths& paths);
    Outcome writeSidecar(const Paths& paths, const std::function<void(PropertyListSink&)>& content,
                         QCryptographicHash* hash);
    Outcome fillPart(const Paths& paths, const std::function<void(PropertyListSink&)>& content,
                     QCryptographicHash* hash);
    // The second half of a save: copies the sidecar into the store and removes the sidecar.
    Outcome putInPlace(const Paths& paths);
    Outcome replaceContent(int sidecar, int store, const QString& storePath);
    Outcome copyBehindFirstByte(int sidecar, int store, off_t size, const QString& storePath);
    Outcome syncFolder(const Paths& paths);
    Result<PropertyListValue> settle(const Paths& paths);
    // Keeps, under another name, a sidecar that was not used.
    void setAsideSidecar(const Paths& paths, const QString& why);

    SystemLog& m_log;
    FileCalls& m_calls;
    const qint64 m_sizeLimit;
    // Stores that exist and could not be read.
    QSet<QString> m_unreadable;
};
