// SPDX-License-Identifier: MIT
#include "platform/linux/TrustRecord.h"

#include <QFile>
#include <QSaveFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

// Many times the size of the longest list.
constexpr qint64 kLongestFile = 1 << 20;

} // namespace

TrustRecord::TrustRecord(const QString& folder)
    : m_path(folder + QStringLiteral("/trusted-programs")) {}

Result<QByteArrayList> TrustRecord::read() const {
    const auto unreadable = [this](const QString& why) {
        return Failure{Failure::Kind::Unreadable, m_path + QStringLiteral(": ") + why};
    };
    const int number =
        ::open(QFile::encodeName(m_path).constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (number < 0 && errno == ENOENT)
        return QByteArrayList();
    QFile file;
    if (number < 0 || !file.open(number, QFile::ReadOnly, QFile::AutoCloseHandle))
        return unreadable(qt_error_string(errno));
    struct stat status {};

    if (::fstat(number, &status) != 0 || !S_ISREG(status.st_mode) || status.st_size > kLongestFile)
        return unreadable(QStringLiteral("not a record of programs"));
    const QByteArray text = file.readAll();
    if (file.error() != QFile::NoError)
        return unreadable(file.errorString());
    QByteArrayList lines = text.split('\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

QStringList TrustRecord::programsIn(const QByteArrayList& lines) {
    QStringList programs;
    for (const QByteArray& line : lines)
        if (const QString program = QString::fromUtf8(line); line.startsWith('/') && program.toUtf8() == line)
            programs << program;
    return programs;
}

QStringList TrustRecord::programs() const {
    const auto lines = read();
    return lines ? programsIn(*lines) : QStringList();
}

Outcome TrustRecord::add(const QString& program) {
    auto lines = read();
    if (!lines)
        return lines.failure();
    const QStringList programs = programsIn(*lines);
    if (programs.contains(program))
        return Done{};
    if (programs.size() >= kMostPrograms)
        return Failure{Failure::Kind::Refused, QStringLiteral("too many programs are trusted already")};
    return write(*lines << program.toUtf8());
}

Outcome TrustRecord::remove(const QString& program) {
    auto lines = read();
    if (!lines)
        return lines.failure();
    if ((*lines).removeAll(program.toUtf8()) == 0)
        return Done{};
    if (!lines->isEmpty())
        return write(*lines);
    QFile file(m_path);
    if (file.remove())
        return Done{};
    return Failure{Failure::Kind::CannotWrite, m_path + QStringLiteral(": ") + file.errorString()};
}

Outcome TrustRecord::write(const QByteArrayList& lines) {
    QSaveFile file(m_path);
    const QByteArray text = lines.join('\n') + '\n';
    if (file.open(QFile::WriteOnly) && file.write(text) == text.size() &&
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther) &&
        file.commit())
        return Done{};
    return Failure{Failure::Kind::CannotWrite, m_path + QStringLiteral(": ") + file.errorString()};
}
