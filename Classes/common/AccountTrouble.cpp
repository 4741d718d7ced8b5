// SPDX-License-Identifier: MIT
#include "Classes/common/AccountTrouble.h"

#include "platform/foundation/text/LocalizedStrings.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <sys/statvfs.h>
#include <unistd.h>

namespace {

bool isReadOnly(const QString& path) {
    return ::access(QFile::encodeName(path).constData(), W_OK) != 0 && errno != ENOENT;
}

// Bytes. With less room than this, nothing can be written.
constexpr qint64 kLeastRoom = 1024 * 1024;

// Whether the disk has no room for another copy of the file. False if the disk cannot be asked.
bool isFull(const QString& folder, qint64 size) {
    struct statvfs disk {};

    return ::statvfs(QFile::encodeName(folder).constData(), &disk) == 0 && disk.f_blocks > 0 &&
           qint64(disk.f_bavail) * qint64(disk.f_frsize) <= std::max(size, kLeastRoom);
}

} // namespace

void AccountTrouble::tell(Kind kind, const QString& sentence) {
    if (std::exchange(m_sentences[kind], sentence) != sentence)
        update();
}

void AccountTrouble::end(Kind kind) {
    if (m_sentences.erase(kind) > 0)
        update();
}

void AccountTrouble::acknowledge() {
    if (!canBeAcknowledged())
        return;
    m_sentences.erase(m_sentences.lower_bound(Kind::StoreExposed), m_sentences.end());
    update();
}

bool AccountTrouble::canBeAcknowledged() const {
    return m_sentences.lower_bound(Kind::StoreExposed) != m_sentences.end();
}

void AccountTrouble::update() {
    const ChangeAnnouncement announcement(*this, kAccountTroubleKey);
    QStringList lines;
    for (const auto& [kind, sentence] : m_sentences)
        lines << sentence;
    m_text = lines.join(u'\n');
}

QVariant AccountTrouble::valueForKey(ObservedKey key) const {
    return key == kAccountTroubleKey ? QVariant(m_text) : QVariant();
}

QString AccountTrouble::about(const QString& sentence, const QString& path) {
    return QString(sentence).replace(QLatin1String("%@"), QFileInfo(path).fileName());
}

QString AccountTrouble::unwritten(const QString& path) {
    const QFileInfo file(path);
    const QString folder = file.absolutePath();
    if (!QFileInfo(folder).isDir())
        return about(localized("“%@” cannot be saved: its folder is missing."), path);
    if (isReadOnly(folder) || isReadOnly(path))
        return about(localized("“%@” cannot be saved: its folder is read-only."), path);
    if (isFull(folder, file.size()))
        return about(localized("“%@” cannot be saved: the disk is full."), path);
    return about(localized("“%@” cannot be saved."), path);
}

QString AccountTrouble::leftOut(const QString& path) {
    return about(
        localized("Some entries of “%@” are damaged and were left out. The damaged file is kept beside it."),
        path);
}

QString AccountTrouble::setAside(const QString& path) {
    return about(localized("“%@” could not be read. It was set aside, and Ticklog has started without it."),
                 path);
}
