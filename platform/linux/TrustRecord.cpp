// SPDX-License-Identifier: MIT
#include "platform/linux/TrustRecord.h"

#include <QFile>
#include <QSaveFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

// Many times what the most programs take.
constexpr qint64 kLongestFile = 1 << 20;

} // namespace

TrustRecord::TrustRecord(const QString& folder)
    : m_path(folder + QStringLiteral("/trusted-programs")) {}

Result<QStringList> TrustRecord::read() const {
    const auto unreadable = [this](const QString& why) {
        return Failure{Failure::Kind::Unreadable, m_path + QStringLiteral(": ") + why};
    };
    const int number =
        ::open(QFile::encodeName(m_path).constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (number < 0 && errno == ENOENT)
        return QStringList();
    QFile file;
    if (number < 0 || !file.open(number, QFile::ReadOnly, QFile::AutoCloseHandle))
        return unreadable(qt_error_string(errno));
    struct stat status {};

    if (::fstat(number, &status) != 0 || !S_ISREG(status.st_mode) || status.st_size > kLongestFile)
        return unreadable(QStringLiteral("not a record of programs"));
    const QByteArray text = file.readAll();
    if (file.error() != QFile::NoError)
        return unreadable(file.errorString());
    QStringList found;
    for (const QByteArray& line : text.split('\n'))
        if (line.startsWith('/'))
            found << QString::fromUtf8(line);
    return found;
}

QStringList TrustRecord::programs() const {
    const auto all = read();
    return all ? *all : QStringList();
}

Outcome TrustRecord::add(const QString& program) {
    auto all = read();
    if (!all)
        return all.failure();
    if (all->contains(program))
        return Done{};
    if (all->size() >= kMostPrograms)
        return Failure{Failure::Kind::Refused, QStringLiteral("too many programs are trusted already")};
    return write(*all << program);
}

Outcome TrustRecord::remove(const QString& program) {
    auto all = read();
    if (!all)
        return all.failure();
    if ((*all).removeAll(program) == 0)
        return Done{};
    if (!all->isEmpty())
        return write(*all);
    QFile file(m_path);
    if (file.remove())
        return Done{};
    return Failure{Failure::Kind::CannotWrite, m_path + QStringLiteral(": ") + file.errorString()};
}

Outcome TrustRecord::write(const QStringList& programs) {
    QSaveFile file(m_path);
    const QByteArray text = programs.join(u'\n').toUtf8() + '\n';
    if (file.open(QFile::WriteOnly) && file.write(text) == text.size() &&
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther) &&
        file.commit())
        return Done{};
    return Failure{Failure::Kind::CannotWrite, m_path + QStringLiteral(": ") + file.errorString()};
}
