// SPDX-License-Identifier: MIT
#include "interface/export/FileExtension.h"

#include "interface/shell/Alerts.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QFileInfo>

std::optional<QString> withExtension(Alerts& alerts, const QString& path, const QString& suffix) {
    if (path.endsWith(suffix, Qt::CaseInsensitive))
        return path;
    const QString whole = path + suffix;
    if (QFileInfo::exists(whole) &&
        alerts.ask({.message = localized("Replacing a file"),
                    .informativeText = localized("A file with this name already exists.") + u'\n' + whole,
                    .defaultButton = localized("Cancel"),
                    .alternateButton = localized("Replace"),
                    .otherButton = {}}) == Alerts::Default)
        return std::nullopt;
    return whole;
}
