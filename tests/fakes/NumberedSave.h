// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/propertylists/PropertyListWriter.h"

#include <functional>

// The content of save `number`: about `length` characters, such that no mixture of two saves looks like one.
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

// The number of the save with this content; -2 if it is not exactly one save.
inline int numberOfSave(const PropertyListValue& content) {
    const PropertyListDictionary* entries = content.asDictionary();
    if (!entries)
        return -2;
    const auto number = int(entries->value(QStringLiteral("Save")).toInteger());
    const auto length = qsizetype(entries->value(QStringLiteral("Length")).toInteger());
    return PropertyList::xml(content) == numberedSaveBytes(number, length) ? number : -2;
}
