// SPDX-License-Identifier: MIT
#include "Classes/WholeFile.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// What is written between two tellings of the progress.
constexpr qsizetype kPiece = 1024 * 1024;

class OpenFile {
public:
    OpenFile(FileCalls& calls, const QByteArray& path)
        : m_calls(calls)
        , m_path(path) {
        // Without waiting, so that nobody hangs on a pipe that no one reads.
        constexpr int kFlags = O_WRONLY | O_CLOEXEC | O_NONBLOCK;
        m_file = m_calls.open(path.constData(), kFlags | O_CREAT | O_EXCL, 0600);
        m_isNew = m_file >= 0;
        // Exclusively, a link that leads nowhere exists, though its file does not.
        if (m_file < 0 && errno == EEXIST)
            m_file = m_calls.open(path.constData(), kFlags | O_CREAT, 0600);
    }

    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    ~OpenFile() {
        if (m_file >= 0)
            ::close(m_file);
        // Half a file is worth nothing to anybody.
        if (m_isNew && !m_isWhole)
            m_calls.remove(m_path.constData());
    }

    // 0, or the error.
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
        // Some file systems have nothing to sync.
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

} // namespace

namespace WholeFile {

Outcome write(QByteArrayView bytes, const QString& path, const Progress& progress, FileCalls& calls) {
    const QByteArray name = QFile::encodeName(path);
    OpenFile file(calls, name);
    const int error = file.fill(bytes, progress);
    if (error != 0)
        return Failure{Failure::Kind::CannotWrite,
                       QStringLiteral("%1: %2").arg(path, qt_error_string(error))};
    return Done{};
}

bool isSame(const QString& a, const QString& b) {
    std::error_code isMissing;
    return std::filesystem::equivalent(QFile::encodeName(a).toStdString(), QFile::encodeName(b).toStdString(),
                                       isMissing);
}

} // namespace WholeFile
