// SPDX-License-Identifier: MIT
#include "app/AccountLock.h"

#include "platform/foundation/files/PrivateFiles.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

AccountLock::AccountLock(const QString& folder, uid_t user) {
    // If this fails, writing the account will report it.
    static_cast<void>(PrivateFiles::makeFolder(folder));
    const QByteArray path = QFile::encodeName(folder + QStringLiteral("/.lock"));
    m_file =
        ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, S_IRUSR | S_IWUSR);
    struct stat status {};
    const bool isOurs = m_file >= 0 && ::fstat(m_file, &status) == 0 && S_ISREG(status.st_mode) &&
                        (status.st_uid == user || status.st_uid == 0);
    m_isTaken = isOurs && ::flock(m_file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

AccountLock::~AccountLock() {
    if (m_file >= 0)
        ::close(m_file);
}
