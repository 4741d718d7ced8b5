// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxSandbox.h"

#include "platform/foundation/programs/ProcessExecutable.h"

#include <QCoreApplication>
#include <QFileInfo>

LinuxSandbox::LinuxSandbox(const QString& flatpakNote, const QString& snap, const QString& program)
    : m_isSandboxed(QFileInfo::exists(flatpakNote) || (!snap.isEmpty() && program.startsWith(snap + u'/'))) {}

LinuxSandbox LinuxSandbox::ofThisProcess() {
    return LinuxSandbox(kFlatpakNote, qEnvironmentVariable("SNAP"), QCoreApplication::applicationFilePath());
}
