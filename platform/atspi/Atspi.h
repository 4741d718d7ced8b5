// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusMessage>
#include <QString>

// Names of the accessibility bus, AT-SPI 2.
inline const QString kAtspiRegistry = QStringLiteral("org.a11y.atspi.Registry");
inline const QString kAtspiRegistryPath = QStringLiteral("/org/a11y/atspi/registry");
inline const QString kAtspiRootPath = QStringLiteral("/org/a11y/atspi/accessible/root");
inline const QString kAtspiAccessible = QStringLiteral("org.a11y.atspi.Accessible");
inline const QString kAtspiWindowEvent = QStringLiteral("org.a11y.atspi.Event.Window");
inline const QString kAtspiObjectEvent = QStringLiteral("org.a11y.atspi.Event.Object");

// Whether a message is the answer with an object's children. Check this first: the toolkit's readers end the
// process over a message of another form, and a program may send anything.
inline bool isListOfObjects(const QDBusMessage& answer) {
    return answer.type() == QDBusMessage::ReplyMessage && answer.signature() == QLatin1String("a(so)");
}
