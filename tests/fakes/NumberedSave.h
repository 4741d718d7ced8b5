// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/propertylists/PropertyListWriter.h"

#include <functional>

// What save number `number` writes: about `length` characters, so filled that no mixture of two saves passes for one.
inline std::function<void(PropertyListSink&)> numberedSave(int number, qsizetype length) {
    return [number, length](PropertyListSink& sink) {
        sink.beginDictionary();
        sink.key(QStringLiteral("Save"));
        sink.integer(number);
        sink.key(QStringLiteral("Length"));
        sink.integer(length);
        sink.key(QStringLiteral("Filling"));
        sink.string(QString(length, QChar(u'a' + number % 26)));
        sink.endDictionary();
    };
}

inline QByteArray numberedSaveBytes(int number, qsizetype length) {
    PropertyListBuilder builder;
    numberedSave(number, length)(builder);
    return PropertyList::xml(builder.take());
}

// The number of the save that this is, or -2 when it is none as it was written.
inline int numberOfSave(const PropertyListValue& content) {
    const PropertyListDictionary* entries = content.asDictionary();
    if (!entries)
        return -2;
    const auto number = int(entries->value(QStringLiteral("Save")).toInteger());
    const auto length = qsizetype(entries->value(QStringLiteral("Length")).toInteger());
    return PropertyList::xml(content) == numberedSaveBytes(number, length) ? number : -2;
}
