// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusArgument>
#include <QDBusMessage>

// The map of names to values that is argument `index` of a message with arguments of this `signature`. Empty for every
// other message: the toolkit's readers end the process over a value that is not of the kind they expect, and anybody may
// send one.
inline QVariantMap mapIn(const QDBusMessage& message, const char* signature, int index) {
    return message.signature() == QLatin1String(signature)
               ? qdbus_cast<QVariantMap>(message.arguments().value(index))
               : QVariantMap();
}
