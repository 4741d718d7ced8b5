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

// The database file on the disk, whatever it holds: a dictionary as a property list. It is written in place:
// it stays the same file, with its links and its permissions. So that a crash or a full disk in the middle
// loses nothing, the content first goes, whole and synced, to a sidecar next to it ("<name>.new"), which is
// removed once the store is synced too. A sidecar that somebody else has put there is left alone. Nobody reads half a save: while it is copied, the store's first byte
// is one that no reader accepts. docs/file-formats.md tells every state that a crash can leave behind, and
// what comes of it. Main thread only.
class StoreFile {
public:
    // Both must outlive the store. What would be larger than `sizeLimit` is not written: nobody could read it again.
    explicit StoreFile(SystemLog& log, FileCalls& calls = FileCalls::system(),
                       qint64 sizeLimit = PropertyList::kSizeLimit)
        : m_log(log)
        , m_calls(calls)
        , m_sizeLimit(sizeLimit) {}

    // Told a digest of the new content as soon as that is whole on the disk, ahead of the store.
    using Whole = std::function<void(const QByteArray& digest)>;

    // Replaces the content by what `content` sends to the sink. After a failure the next read() finds the
    // last content that was written whole, or this one. A store that read() could not read is set aside
    // first. The folder must exist. A link is followed.
    Outcome write(const QString& path, const std::function<void(PropertyListSink&)>& content,
                  const Whole& whole = {});
    // Reads the last content that was written whole, and finishes or clears away what a crash left behind.
    // NotFound when there is none. A store that cannot be read stays where it is until something is to be
    // written in its place. For files that are not ours to mend there is PropertyList::readFile.
    Result<PropertyListValue> read(const QString& path);
    // The digest of what read() finds; empty when there is nothing. BLAKE2b, 20 bytes.
    QByteArray digest(const QString& path) const;
    // What was read there is not what it should be: like a store that cannot be read, it is set aside before
    // something is written in its place. Nothing happens to a store that is not there.
    void refuse(const QString& path);

private:
    struct Paths;

    // Whether a file of that name is there and none that others have put in our way.
    bool isOurs(const QString& path, const Paths& paths) const;
    Outcome setAsideUnreadable(const Paths& paths);
    Outcome writeSidecar(const Paths& paths, const std::function<void(PropertyListSink&)>& content,
                         QCryptographicHash* hash);
    Outcome fillPart(const Paths& paths, const std::function<void(PropertyListSink&)>& content,
                     QCryptographicHash* hash);
    // The second half of a save: the store becomes what the sidecar is, and the sidecar goes.
    Outcome putInPlace(const Paths& paths);
    Outcome replaceContent(int sidecar, int store, const QString& storePath);
    Outcome copyBehindFirstByte(int sidecar, int store, off_t size, const QString& storePath);
    Outcome syncFolder(const Paths& paths);
    Result<PropertyListValue> settle(const Paths& paths);
    // Keeps a sidecar that did not win.
    void setAsideSidecar(const Paths& paths, const QString& why);

    SystemLog& m_log;
    FileCalls& m_calls;
    const qint64 m_sizeLimit;
    // Stores that are there and could not be read.
    QSet<QString> m_unreadable;
};
