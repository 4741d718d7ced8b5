// SPDX-License-Identifier: MIT
#include "platform/linux/FreedesktopFileViewer.h"

#include <QFileInfo>
#include <QProcess>
#include <QUrl>

#include <sys/stat.h>

FreedesktopFileViewer::FolderOpener FreedesktopFileViewer::xdgOpen() {
    return [](const QString& folder) {
        QProcess opener;
        opener.setProgram(QStringLiteral("xdg-open"));
        opener.setArguments({folder});
        // This process creates private files; the file manager must not inherit that.
        opener.setChildProcessModifier([] { ::umask(S_IWGRP | S_IWOTH); });
        return opener.startDetached();
    };
}

FreedesktopFileViewer::FreedesktopFileViewer(Bus& sessionBus, SystemLog& log, FolderOpener openFolder)
    : m_fileManager(sessionBus, QStringLiteral("org.freedesktop.FileManager1"))
    , m_log(log)
    , m_openFolder(std::move(openFolder)) {}

void FreedesktopFileViewer::reveal(const QString& path) {
    const QStringList files{QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded())};
    // Whether it runs now does not matter: the bus starts the file manager.
    m_fileManager.call(QStringLiteral("/org/freedesktop/FileManager1"), m_fileManager.name(),
                       QStringLiteral("ShowItems"), {files, QString()},
                       [this, path](const QDBusMessage& reply) {
                           if (reply.type() == QDBusMessage::ReplyMessage)
                               return;
                           if (!m_openFolder(QFileInfo(path).absolutePath()))
                               m_log.log(QStringLiteral("No file manager shows files here"));
                       });
}
