// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListValue.h"

// Turns a timer's name record into the text that is shown and edited, and a text back into a record.
class TKAppDisplayFormatter {
public:
    // The name, and behind a dash the name that the user replaced by it.
    static QString stringForObjectValue(const PropertyListDictionary& record);
    // The same of any value; what is no record is returned as it is.
    static PropertyListValue stringForObjectValue(const PropertyListValue& value);
    // How many characters of that text stand behind the name, to be shown dimmed.
    static qsizetype dimmedLength(const PropertyListDictionary& record);
    // The name alone.
    static QString editingStringForObjectValue(const PropertyListDictionary& record);
    // The same of any value; what is no record is returned as it is.
    static PropertyListValue editingStringForObjectValue(const PropertyListValue& value);
    // A record of that name alone; there is no text that is none.
    static PropertyListDictionary objectValueForString(const QString& text);
};
