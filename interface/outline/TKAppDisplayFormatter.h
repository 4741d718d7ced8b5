// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListValue.h"

// Converts a timer's name record to the text that is shown or edited, and a text back to a record.
class TKAppDisplayFormatter {
public:
    // The name; after a dash the original name, if the user has renamed the timer.
    static QString stringForObjectValue(const PropertyListDictionary& record);
    // The same of any value; what is no record is returned as it is.
    static PropertyListValue stringForObjectValue(const PropertyListValue& value);
    // How many characters at the end of that text belong to the original name and are dimmed.
    static qsizetype dimmedLength(const PropertyListDictionary& record);
    // The name alone.
    static QString editingStringForObjectValue(const PropertyListDictionary& record);
    // The same of any value; what is no record is returned as it is.
    static PropertyListValue editingStringForObjectValue(const PropertyListValue& value);
    // A record of that name alone. Never fails: every text is a name.
    static PropertyListDictionary objectValueForString(const QString& text);
};
