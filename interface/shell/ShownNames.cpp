// SPDX-License-Identifier: MIT
#include "interface/shell/ShownNames.h"

#include "Classes/engine/Stretch.h"
#include "Classes/history/Amendment.h"
#include "Classes/rules/TitleRules.h"
#include "platform/FrontApplication.h"
#include "platform/foundation/text/LocalizedStrings.h"

namespace {

struct Name {
    const QString& recorded;
    const char* shown;
};

const Name kNames[] = {{kIdleName, QT_TRANSLATE_NOOP("Ticklog", "Idle")},
                       {kDesktopName, QT_TRANSLATE_NOOP("Ticklog", "Desktop")},
                       {kPrivateName, QT_TRANSLATE_NOOP("Ticklog", "Private")},
                       {kByHandName, QT_TRANSLATE_NOOP("Ticklog", "By Hand")}};

} // namespace

QString ShownNames::of(const QString& recorded) {
    for (const Name& name : kNames)
        if (recorded == name.recorded)
            return localized(name.shown);
    return recorded;
}

QString ShownNames::recorded(const QString& shown) {
    for (const Name& name : kNames)
        if (shown == localized(name.shown))
            return name.recorded;
    return shown;
}
