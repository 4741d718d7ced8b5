// SPDX-License-Identifier: MIT
#include "app/AccountLock.h"

#include "platform/foundation/PrivateFiles.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

AccountLock::AccountLock(const QString& folder) {
    // That it fails is noticed when the account is written.
    static_cast<void>(PrivateFiles::makeFolder(folder));
    const QByteArray path = QFile::encodeName(folder + QStringLiteral("/.lock"));
    m_file = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    m_isTaken = m_file >= 0 && ::flock(m_file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

AccountLock::~AccountLock() {
    if (m_file >= 0)
        ::close(m_file);
}
