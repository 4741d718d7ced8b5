// SPDX-License-Identifier: MIT
#include "Classes/record/StoreFile.h"

#include "platform/foundation/files/PrivateFiles.h"
#include "platform/foundation/propertylists/PropertyList.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t kPrivate = S_IRUSR | S_IWUSR;
// The first byte of a store that is being copied. No form of a property list begins with it.
constexpr char kUnfinished = '#';
constexpr int kMostLinks = 40;
// Fast, and nobody can construct other content with the same digest.
constexpr auto kDigest = QCryptographicHash::Blake2b_160;

Failure systemFailure(const QString& path, int error) {
    const auto kind = error == ENOENT ? Failure::Kind::NotFound : Failure::Kind::CannotWrite;
    return {kind, QStringLiteral("%1: %2").arg(path, qt_error_string(error))};
}

// Closes the file at the end of the scope.
class OpenFile {
public:
    explicit OpenFile(int descriptor)
        : m_descriptor(descriptor) {}

    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    ~OpenFile() {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }

    explicit operator bool() const { return m_descriptor >= 0; }

    int descriptor() const { return m_descriptor; }

private:
    int m_descriptor;
};

// Calls `step(done)`, which answers how many more bytes it has done, until `count` bytes are done. On failure
// answers false with the reason in errno.
template<class Step>
bool complete(std::size_t count, Step&& step) {
    for (std::size_t done = 0; done < count;) {
        const ssize_t more = step(done);
        if (more > 0) {
            done += std::size_t(more);
        } else if (more == 0) {
            errno = EIO;
            return false;
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}

// The file that a link finally leads to, whether it exists or not: the sidecar must lie there.
QString followed(QString path) {
    for (int i = 0; i < kMostLinks && QFileInfo(path).isSymLink(); ++i)
        path = QFileInfo(path).symLinkTarget();
    return path;
}

// A database must be a dictionary.
Result<PropertyListValue> readDictionary(const QString& path) {
    auto read = PropertyList::readFile(path);
    if (read && !read->asDictionary())
        return Failure{Failure::Kind::Damaged, QStringLiteral("%1: not a dictionary").arg(path)};
    return read;
}

// Absent when there is no such file.
std::optional<timespec> writtenAt(const QString& path) {
    struct stat status {};

    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    return status.st_mtim;
}

bool isLater(const std::optional<timespec>& a, const std::optional<timespec>& b) {
    return a && b && std::pair(a->tv_sec, a->tv_nsec) > std::pair(b->tv_sec, b->tv_nsec);
}

} // namespace

struct StoreFile::Paths {
    explicit Paths(const QString& path)
        : store(followed(path))
        , sidecar(store + QStringLiteral(".new"))
        , part(store + QStringLiteral(".part"))
        , folder(QFileInfo(store).absolutePath()) {}

    QString store;
    // Whole and synced content. A file gets this name only when it is complete.
    QString sidecar;
    // Content that is still being written; useless after a crash.
    QString part;
    QString folder;
};

Outcome StoreFile::write(const QString& path, const std::function<void(PropertyListSink&)>& content,
                         const Whole& whole) {
    const Paths paths(path);
    if (auto aside = setAsideUnreadable(paths); !aside)
        return aside;
    // Check now whether the store can be written to: otherwise there would be a sidecar that is used in its
    // place for ever.
    if (const QFileInfo info(paths.store); info.exists() && (!info.isFile() || !info.isWritable()))
        return Failure{Failure::Kind::CannotWrite,
                       QStringLiteral("%1: cannot be written to").arg(paths.store)};
    QCryptographicHash hash(kDigest);
    if (auto written = writeSidecar(paths, content, whole ? &hash : nullptr); !written)
        return written;
    if (whole)
        whole(hash.result());
    auto placed = putInPlace(paths);
    if (!placed)
        return Failure{
            placed.failure().kind,
            QStringLiteral("%1 (the new content is kept in %2)").arg(placed.failure().text, paths.sidecar)};
    return placed;
}

bool StoreFile::isOurs(const QString& path, const Paths& paths) const {
    struct stat file {};
    struct stat folder {};

    if (m_calls.status(QFile::encodeName(path).constData(), file) != 0 ||
        ::stat(QFile::encodeName(paths.folder).constData(), &folder) != 0)
        return false;
    // Who owns the folder can exchange any file in it; and on some disks all files belong to the folder's
    // owner.
    const bool hasRight = file.st_uid == ::geteuid() || file.st_uid == folder.st_uid;
    return S_ISREG(file.st_mode) && file.st_nlink == 1 && hasRight;
}

Outcome StoreFile::setAsideUnreadable(const Paths& paths) {
    if (!m_unreadable.contains(paths.store))
        return Done{};
    for (const QString& file : {paths.store, paths.sidecar}) {
        if (file == paths.sidecar && !isOurs(file, paths))
            continue;
        const auto aside = PrivateFiles::setAside(file);
        if (aside)
            m_log.log(QStringLiteral("What could not be read was set aside as %1").arg(*aside));
        else if (aside.failure().kind != Failure::Kind::NotFound)
            return aside.failure();
    }
    m_unreadable.remove(paths.store);
    return Done{};
}

Outcome StoreFile::writeSidecar(const Paths& paths, const std::function<void(PropertyListSink&)>& content,
                                QCryptographicHash* hash) {
    const QByteArray part = QFile::encodeName(paths.part);
    if (auto filled = fillPart(paths, content, hash); !filled) {
        m_calls.remove(part.constData());
        return filled;
    }
    if (m_calls.rename(part.constData(), QFile::encodeName(paths.sidecar).constData()) != 0) {
        const int error = errno;
        m_calls.remove(part.constData());
        return systemFailure(paths.sidecar, error);
    }
    return syncFolder(paths);
}

Outcome StoreFile::fillPart(const Paths& paths, const std::function<void(PropertyListSink&)>& content,
                            QCryptographicHash* hash) {
    const QByteArray name = QFile::encodeName(paths.part);
    // Left by an earlier crash and useless. If somebody else has put it there, nothing may be written into
    // it.
    m_calls.remove(name.constData());
    const OpenFile part(
        m_calls.open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, kPrivate));
    if (!part)
        return systemFailure(paths.part, errno);
    int error = 0;
    qint64 size = 0;
    PropertyListXmlWriter writer([&](const char* bytes, std::size_t count) {
        size += qint64(count);
        if (hash)
            hash->addData(QByteArrayView(bytes, qsizetype(count)));
        if (error == 0 && size > m_sizeLimit)
            error = EFBIG;
        const auto step = [&](std::size_t done) {
            return m_calls.write(part.descriptor(), bytes + done, count - done);
        };
        if (error == 0 && !complete(count, step))
            error = errno;
    });
    content(writer);
    writer.finish();
    if (error == 0 && m_calls.sync(part.descriptor()) != 0)
        error = errno;
    return error == 0 ? Outcome(Done{}) : systemFailure(paths.part, error);
}

Outcome StoreFile::putInPlace(const Paths& paths) {
    const QByteArray sidecarPath = QFile::encodeName(paths.sidecar);
    {
        const OpenFile sidecar(m_calls.open(sidecarPath.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW, 0));
        if (!sidecar)
            return systemFailure(paths.sidecar, errno);
        const OpenFile store(m_calls.open(QFile::encodeName(paths.store).constData(),
                                          O_RDWR | O_CREAT | O_CLOEXEC | O_NOCTTY, kPrivate));
        if (!store)
            return systemFailure(paths.store, errno);
        if (auto replaced = replaceContent(sidecar.descriptor(), store.descriptor(), paths.store); !replaced)
            return replaced;
    }
    // The folder must know a new store before its sidecar is removed.
    if (auto synced = syncFolder(paths); !synced)
        return synced;
    // If the sidecar cannot be removed, it has the same content as the store, and the next launch removes it.
    if (m_calls.remove(sidecarPath.constData()) == 0)
        static_cast<void>(syncFolder(paths));
    return Done{};
}

Outcome StoreFile::replaceContent(int sidecar, int store, const QString& storePath) {
    struct stat status {};

    char first = 0;
    if (::fstat(sidecar, &status) != 0 || ::pread(sidecar, &first, 1, 0) != 1)
        return systemFailure(storePath, errno);
    const auto putFirst = [&](char byte) {
        return complete(1, [&](std::size_t) { return m_calls.pwrite(store, &byte, 1, 0); }) &&
               m_calls.sync(store) == 0;
    };
    // A disk that is full must be noticed while the store is untouched. Where room cannot be reserved, the
    // sidecar saves what then goes wrong.
    if (m_calls.allocate(store, status.st_size) != 0 && errno != EOPNOTSUPP && errno != ENOSYS &&
        errno != EINVAL)
        return systemFailure(storePath, errno);
    if (!putFirst(kUnfinished))
        return systemFailure(storePath, errno);
    if (auto copied = copyBehindFirstByte(sidecar, store, status.st_size, storePath); !copied)
        return copied;
    if (m_calls.truncate(store, status.st_size) != 0 || m_calls.sync(store) != 0 || !putFirst(first))
        return systemFailure(storePath, errno);
    return Done{};
}

Outcome StoreFile::copyBehindFirstByte(int sidecar, int store, off_t size, const QString& storePath) {
    off_t offset = 1;
    while (offset < size) {
        const ssize_t copied = m_calls.copyRange(sidecar, store, offset, std::size_t(size - offset));
        if (copied > 0)
            offset += copied;
        else if (copied == 0 || errno != EINTR)
            break;
    }
    // Some file systems cannot copy by themselves. Whatever went wrong, writing in pieces shows whether it
    // works.
    std::array<char, 64 * 1024> buffer;
    while (offset < size) {
        const ssize_t count =
            ::pread(sidecar, buffer.data(), std::min(buffer.size(), std::size_t(size - offset)), offset);
        if (count <= 0)
            return systemFailure(storePath, count == 0 ? EIO : errno);
        const auto step = [&](std::size_t done) {
            return m_calls.pwrite(store, buffer.data() + done, std::size_t(count) - done,
                                  offset + off_t(done));
        };
        if (!complete(std::size_t(count), step))
            return systemFailure(storePath, errno);
        offset += count;
    }
    return Done{};
}

Outcome StoreFile::syncFolder(const Paths& paths) {
    const OpenFile folder(
        m_calls.open(QFile::encodeName(paths.folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0));
    // Some file systems cannot sync folders.
    if (!folder || (m_calls.sync(folder.descriptor()) != 0 && errno != EINVAL))
        return systemFailure(paths.folder, errno);
    return Done{};
}

Result<PropertyListValue> StoreFile::read(const QString& path) {
    const Paths paths(path);
    m_calls.remove(QFile::encodeName(paths.part).constData());
    m_unreadable.remove(paths.store);
    const bool hasSidecar = isOurs(paths.sidecar, paths);
    if (!hasSidecar && (QFileInfo::exists(paths.sidecar) || QFileInfo(paths.sidecar).isSymLink()))
        m_log.log(QStringLiteral("%1 is none of ours and is left alone").arg(paths.sidecar));
    auto result = hasSidecar ? settle(paths) : readDictionary(paths.store);
    if (!result && result.failure().kind != Failure::Kind::NotFound) {
        m_unreadable.insert(paths.store);
        m_log.log(QStringLiteral("The store cannot be read: %1").arg(result.failure().text));
    }
    return result;
}

QByteArray StoreFile::digest(const QString& path) const {
    const Paths paths(path);
    QFile file(isOurs(paths.sidecar, paths) ? paths.sidecar : paths.store);
    QCryptographicHash hash(kDigest);
    return file.open(QFile::ReadOnly) && hash.addData(&file) ? hash.result() : QByteArray("");
}

void StoreFile::refuse(const QString& path) {
    m_unreadable.insert(Paths(path).store);
}

// There is a sidecar, so a save was interrupted.
Result<PropertyListValue> StoreFile::settle(const Paths& paths) {
    auto sidecar = readDictionary(paths.sidecar);
    auto store = readDictionary(paths.store);
    if (!sidecar) {
        if (!store)
            return Failure{Failure::Kind::Damaged,
                           QStringLiteral("%1; %2").arg(store.failure().text, sidecar.failure().text)};
        setAsideSidecar(paths, QStringLiteral("it cannot be read"));
        return store;
    }
    // A whole store is either older than the sidecar; or was completed and has the same content; or somebody
    // has put it there since, and then it is used.
    if (store && isLater(writtenAt(paths.store), writtenAt(paths.sidecar)) &&
        PropertyList::xml(*store) != PropertyList::xml(*sidecar)) {
        setAsideSidecar(paths, QStringLiteral("the store was changed after it"));
        return store;
    }
    if (const auto placed = putInPlace(paths); placed)
        m_log.log(QStringLiteral("A save that was interrupted has been finished: %1").arg(paths.store));
    else
        m_log.log(QStringLiteral("A save that was interrupted could not be finished: %1")
                      .arg(placed.failure().text));
    return sidecar;
}

void StoreFile::setAsideSidecar(const Paths& paths, const QString& why) {
    const auto aside = PrivateFiles::setAside(paths.sidecar);
    m_log.log(aside ? QStringLiteral("A save that was interrupted was set aside as %1: %2").arg(*aside, why)
                    : QStringLiteral("A save that was interrupted stays: %1").arg(aside.failure().text));
}
