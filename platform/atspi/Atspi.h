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

// Whether it is the answer with somebody's children. Whatever else a program says must not be read as one: the toolkit's
// readers end the process over it.
inline bool isListOfObjects(const QDBusMessage& answer) {
    return answer.type() == QDBusMessage::ReplyMessage && answer.signature() == QLatin1String("a(so)");
}
