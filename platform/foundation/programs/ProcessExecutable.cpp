// SPDX-License-Identifier: MIT
#include "platform/foundation/programs/ProcessExecutable.h"

#include <QFile>

bool isInFlatpak() {
    static const bool isThere = QFile::exists(kFlatpakNote);
    return isThere;
}

QString executableOfProcess(std::int64_t processIdentifier) {
    if (processIdentifier <= 0 || isInFlatpak())
        return {};
    QString path = QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(processIdentifier));
    // The program was updated while it runs.
    if (path.endsWith(u" (deleted)"))
        path.chop(10);
    return path;
}
