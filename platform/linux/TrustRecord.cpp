// SPDX-License-Identifier: MIT
#include "platform/linux/TrustRecord.h"

#include <QFile>
#include <QSaveFile>

namespace {

// Many times what the most programs take.
constexpr qint64 kLongestFile = 1 << 20;

} // namespace

TrustRecord::TrustRecord(const QString& folder)
    : m_path(folder + QStringLiteral("/trusted-programs")) {}

QStringList TrustRecord::programs() const {
    QFile file(m_path);
    if (!file.open(QFile::ReadOnly) || file.size() > kLongestFile)
        return {};
    QStringList found;
    for (const QByteArray& line : file.readAll().split('\n'))
        if (line.startsWith('/'))
            found << QString::fromUtf8(line);
    return found;
}

Outcome TrustRecord::add(const QString& program) {
    QStringList all = programs();
    if (all.contains(program))
        return Done{};
    if (all.size() >= kMostPrograms)
        return Failure{Failure::Kind::Refused, QStringLiteral("too many programs are trusted already")};
    return write(all << program);
}

Outcome TrustRecord::remove(const QString& program) {
    QStringList all = programs();
    if (all.removeAll(program) == 0)
        return Done{};
    if (!all.isEmpty())
        return write(all);
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
