// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusArgument>
#include <QDBusMessage>

// The map from names to values in argument `index` of a message whose arguments have this `signature`. Empty
// for any other message: the toolkit's readers end the process over a value of an unexpected kind, and
// anybody may send one.
inline QVariantMap mapIn(const QDBusMessage& message, const char* signature, int index) {
    return message.signature() == QLatin1String(signature)
               ? qdbus_cast<QVariantMap>(message.arguments().value(index))
               : QVariantMap();
}
