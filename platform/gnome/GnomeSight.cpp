// SPDX-License-Identifier: MIT
#include "platform/gnome/GnomeSight.h"

#include "platform/foundation/text/CleanText.h"

#include <QDBusArgument>

std::optional<GnomeSight::Versions> GnomeSight::versionsOf(const QDBusMessage& message) {
    if (!message.signature().startsWith(QLatin1String("uu")))
        return std::nullopt;
    return Versions{message.arguments()[0].toUInt(), message.arguments()[1].toUInt()};
}

std::optional<GnomeSight> GnomeSight::read(const QDBusMessage& message) {
    if (message.signature() != QLatin1String("uuua(uisssi)"))
        return std::nullopt;
    GnomeSight sight;
    sight.focused = message.arguments()[2].toUInt();
    const auto windows = message.arguments()[3].value<QDBusArgument>();
    windows.beginArray();
    while (!windows.atEnd()) {
        Window window;
        windows.beginStructure();
        windows >> window.number >> window.process >> window.title >> window.applicationId >>
            window.windowClass >> window.layer;
        windows.endStructure();
        window.title = cleanText(window.title);
        window.applicationId = cleanText(window.applicationId);
        window.windowClass = cleanText(window.windowClass);
        sight.windows.push_back(std::move(window));
    }
    windows.endArray();
    return sight;
}
