// SPDX-License-Identifier: MIT
#include "interface/outline/TKAppDisplayFormatter.h"

#include "Classes/store/TimeStoreNode.h"

QString TKAppDisplayFormatter::stringForObjectValue(const PropertyListDictionary& record) {
    const QString name = record.value(kRecordName).toString();
    const QString* original = record.value(kFormattedOriginal).asString();
    return original ? name + QStringLiteral(" \u2013 ") + *original : name;
}

PropertyListValue TKAppDisplayFormatter::stringForObjectValue(const PropertyListValue& value) {
    const PropertyListDictionary* record = value.asDictionary();
    return record ? PropertyListValue(stringForObjectValue(*record)) : value;
}

qsizetype TKAppDisplayFormatter::dimmedLength(const PropertyListDictionary& record) {
    return stringForObjectValue(record).size() - editingStringForObjectValue(record).size();
}

QString TKAppDisplayFormatter::editingStringForObjectValue(const PropertyListDictionary& record) {
    return record.value(kRecordName).toString();
}

PropertyListValue TKAppDisplayFormatter::editingStringForObjectValue(const PropertyListValue& value) {
    const PropertyListDictionary* record = value.asDictionary();
    return record ? PropertyListValue(editingStringForObjectValue(*record)) : value;
}

PropertyListDictionary TKAppDisplayFormatter::objectValueForString(const QString& text) {
    return {{kRecordName, text}};
}
