// SPDX-License-Identifier: MIT
#include "Classes/record/WholeFile.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// How much is written between two reports of the progress.
constexpr qsizetype kPiece = 1024 * 1024;

enum class Existing { IsReplaced, IsLeftAlone };

class OpenFile {
public:
    OpenFile(FileCalls& calls, const QByteArray& path, Existing existing)
        : m_calls(calls)
        , m_path(path) {
        // Non-blocking, because opening a pipe would hang until somebody reads from it.
        constexpr int kFlags = O_WRONLY | O_CLOEXEC | O_NONBLOCK;
        m_file = m_calls.open(path.constData(), kFlags | O_CREAT | O_EXCL, 0600);
        m_isNew = m_file >= 0;
        // With O_EXCL, a link that leads nowhere counts as existing although its file is missing: open it
        // without.
        if (m_file < 0 && errno == EEXIST && existing == Existing::IsReplaced)
            m_file = m_calls.open(path.constData(), kFlags | O_CREAT, 0600);
    }

    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    ~OpenFile() {
        if (m_file >= 0)
            ::close(m_file);
        // Half a file is useless.
        if (m_isNew && !m_isWhole)
            m_calls.remove(m_path.constData());
    }

    // Answers 0 or the error number.
    int fill(QByteArrayView bytes, const WholeFile::Progress& progress) {
        if (m_file < 0)
            return errno;
        struct stat status {};
        if (::fstat(m_file, &status) != 0)
            return errno;
        if (!S_ISREG(status.st_mode))
            return EINVAL;
        if (m_calls.allocate(m_file, bytes.size()) != 0 &&
            (errno == ENOSPC || errno == EDQUOT || errno == EFBIG))
            return errno;
        for (qsizetype at = 0; at < bytes.size();) {
            const ssize_t written =
                m_calls.write(m_file, bytes.data() + at, std::size_t(std::min(kPiece, bytes.size() - at)));
            if (written < 0 && errno == EINTR)
                continue;
            if (written <= 0)
                return written < 0 ? errno : ENOSPC;
            at += written;
            if (progress)
                progress(double(at) / double(bytes.size()));
        }
        if (m_calls.truncate(m_file, bytes.size()) != 0)
            return errno;
        // Some file systems cannot sync.
        if (m_calls.sync(m_file) != 0 && errno != EINVAL && errno != ENOTSUP)
            return errno;
        m_isWhole = true;
        return 0;
    }

private:
    FileCalls& m_calls;
    const QByteArray& m_path;
    int m_file;
    bool m_isNew;
    bool m_isWhole = false;
};

Outcome writeAt(const QString& path, QByteArrayView bytes, Existing existing,
                const WholeFile::Progress& progress, FileCalls& calls) {
    const QByteArray name = QFile::encodeName(path);
    OpenFile file(calls, name, existing);
    const int error = file.fill(bytes, progress);
    if (error == 0)
        return Done{};
    const auto kind = error == EEXIST ? Failure::Kind::AlreadyExists : Failure::Kind::CannotWrite;
    return Failure{kind, QStringLiteral("%1: %2").arg(path, qt_error_string(error))};
}

} // namespace

namespace WholeFile {

Outcome write(QByteArrayView bytes, const QString& path, const Progress& progress, FileCalls& calls) {
    return writeAt(path, bytes, Existing::IsReplaced, progress, calls);
}

Result<QString> writeBeside(QByteArrayView bytes, const QString& path, FileCalls& calls) {
    for (int n = 1;; ++n) {
        const QString name = nthName(path, n);
        const Outcome written = writeAt(name, bytes, Existing::IsLeftAlone, {}, calls);
        if (written)
            return name;
        if (written.failure().kind != Failure::Kind::AlreadyExists)
            return written.failure();
    }
}

QString nthName(const QString& path, int n) {
    if (n == 1)
        return path;
    const QString suffix = QFileInfo(path).suffix();
    const QString ending = suffix.isEmpty() ? QString() : u'.' + suffix;
    return QStringLiteral("%1 %2%3").arg(path.chopped(ending.size())).arg(n).arg(ending);
}

QString freeName(const QString& path) {
    for (int n = 1;; ++n) {
        const QFileInfo file(nthName(path, n));
        if (!file.exists() && !file.isSymLink())
            return file.filePath();
    }
}

bool isSame(const QString& a, const QString& b) {
    std::error_code isMissing;
    return std::filesystem::equivalent(QFile::encodeName(a).toStdString(), QFile::encodeName(b).toStdString(),
                                       isMissing);
}

} // namespace WholeFile
