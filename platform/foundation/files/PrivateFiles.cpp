// SPDX-License-Identifier: MIT
#include "platform/foundation/files/PrivateFiles.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Nobody has more files with the same name from the same second.
constexpr int kMostOfOneName = 1000;

Failure systemFailure(const QString& path, int error) {
    return {error == ENOENT ? Failure::Kind::NotFound : Failure::Kind::CannotWrite,
            QStringLiteral("%1: %2").arg(path, qt_error_string(error))};
}

int renameToNew(const char* from, const char* to) {
    const int result = ::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE);
    // Not every file system can rename without overwriting; on the others a link does the same.
    if (result != 0 && errno == EINVAL)
        return ::link(from, to) == 0 ? ::unlink(from) : -1;
    return result;
}

bool isOfOthers(const struct stat& file, uid_t user) {
    return file.st_uid != user && file.st_uid != 0;
}

// Many users have a group of their own, with the same name.
bool isUsersOwnGroup(gid_t group, uid_t user) {
    const passwd* person = ::getpwuid(user);
    const QByteArray name = person && person->pw_gid == group ? person->pw_name : "";
    const struct group* found = ::getgrgid(group);
    return group == 0 || (found && !name.isEmpty() && name == found->gr_name);
}

bool mayBeWrittenByOthers(const struct stat& folder, uid_t user) {
    return isOfOthers(folder, user) || (folder.st_mode & S_IWOTH) ||
           ((folder.st_mode & S_IWGRP) && !isUsersOwnGroup(folder.st_gid, user));
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

bool belongsToOthers(const QString& folder, uid_t user) {
    const QByteArray name = QFile::encodeName(folder);
    struct stat link {};
    struct stat file {};

    return ::lstat(name.constData(), &link) == 0 &&
           (isOfOthers(link, user) || (::stat(name.constData(), &file) == 0 && isOfOthers(file, user)));
}

bool othersMayWrite(const QString& folder, uid_t user) {
    QString path = QFileInfo(folder).canonicalFilePath();
    struct stat status {};

    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return false;
    if (mayBeWrittenByOthers(status, user))
        return true;
    while (path != QLatin1String("/")) {
        path = QFileInfo(path).absolutePath();
        if (::stat(QFile::encodeName(path).constData(), &status) != 0)
            return false;
        // In a sticky folder nobody can exchange the files of others.
        if (isOfOthers(status, user) || (mayBeWrittenByOthers(status, user) && !(status.st_mode & S_ISVTX)))
            return true;
    }
    return false;
}

} // namespace PrivateFiles
