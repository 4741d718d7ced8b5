// SPDX-License-Identifier: MIT
#include "platform/foundation/ProcessExecutable.h"

#include <QFile>

bool hasOwnProcessNumbers() {
    static const bool hasThem = QFile::exists(kFlatpakNote);
    return hasThem;
}

QString executableOfProcess(std::int64_t processIdentifier) {
    if (processIdentifier <= 0 || hasOwnProcessNumbers())
        return {};
    QString path = QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(processIdentifier));
    // A program that was updated while it runs.
    if (path.endsWith(u" (deleted)"))
        path.chop(10);
    return path;
}
