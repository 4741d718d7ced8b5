// SPDX-License-Identifier: MIT
#include "Classes/common/ShownNames.h"

#include "platform/foundation/text/LocalizedStrings.h"

namespace {

// As the record has them.
constexpr const char* kNames[] = {
    QT_TRANSLATE_NOOP("Ticklog", "Idle"), QT_TRANSLATE_NOOP("Ticklog", "Desktop"),
    QT_TRANSLATE_NOOP("Ticklog", "Private"), QT_TRANSLATE_NOOP("Ticklog", "By Hand")};

} // namespace

QString ShownNames::of(const QString& recorded) {
    for (const char* name : kNames)
        if (recorded == QLatin1String(name))
            return localized(name);
    return recorded;
}

QString ShownNames::recorded(const QString& shown) {
    for (const char* name : kNames)
        if (shown == localized(name))
            return QLatin1String(name);
    return shown;
}

bool ShownNames::contains(const QString& recorded, const QString& search) {
    return recorded.contains(search, Qt::CaseInsensitive) ||
           of(recorded).contains(search, Qt::CaseInsensitive);
}
