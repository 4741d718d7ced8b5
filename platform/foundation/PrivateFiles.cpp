// SPDX-License-Identifier: MIT
#include "platform/foundation/PrivateFiles.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// More files of one second's making than anybody has.
constexpr int kMostOfOneName = 1000;

Failure systemFailure(const QString& path, int error) {
    return {error == ENOENT ? Failure::Kind::NotFound : Failure::Kind::CannotWrite,
            QStringLiteral("%1: %2").arg(path, qt_error_string(error))};
}

int renameToNew(const char* from, const char* to) {
    const int result = ::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE);
    // Not every file system can promise to overwrite nothing; a link can be made everywhere else.
    if (result != 0 && errno == EINVAL)
        return ::link(from, to) == 0 ? ::unlink(from) : -1;
    return result;
}

} // namespace

namespace PrivateFiles {

Outcome makeFolder(const QString& path) {
    const QFileInfo info(path);
    if (info.isDir())
        return Done{};
    if (const QString above = info.absolutePath(); above != info.absoluteFilePath()) {
        if (auto made = makeFolder(above); !made)
            return made;
    }
    if (::mkdir(QFile::encodeName(path).constData(), 0700) == 0 ||
        (errno == EEXIST && QFileInfo(path).isDir()))
        return Done{};
    return Failure{Failure::Kind::CannotWrite, QStringLiteral("%1: %2").arg(path, qt_error_string(errno))};
}

Result<QString> setAside(const QString& path) {
    const QByteArray from = QFile::encodeName(path);

    struct stat status {};

    if (::lstat(from.constData(), &status) != 0)
        return systemFailure(path, errno);
    const QString dated =
        path +
        QDateTime::fromSecsSinceEpoch(status.st_mtime).toString(QStringLiteral("'.damaged-'yyyyMMdd-HHmmss"));
    for (int i = 1; i <= kMostOfOneName; ++i) {
        const QString to = i == 1 ? dated : QStringLiteral("%1-%2").arg(dated).arg(i);
        if (renameToNew(from.constData(), QFile::encodeName(to).constData()) == 0)
            return to;
        if (errno != EEXIST)
            return systemFailure(path, errno);
    }
    return systemFailure(path, EEXIST);
}

} // namespace PrivateFiles
