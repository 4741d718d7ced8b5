// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListLimits.h"
#include "platform/foundation/propertylists/PropertyListValue.h"
#include "platform/foundation/values/Result.h"

#include <QByteArray>
#include <QString>

#include <functional>

// Property lists as bytes. Reading takes the XML and the binary form, whoever wrote them, and refuses what is
// damaged, nested deeper than kDepthLimit, larger than kSizeLimit or of more than kValueLimit values, in bounded time and
// memory. Nothing outside the bytes is ever read: entities and references to other files are refused or ignored.
namespace PropertyList {

// REQUIRES: nothing of the bytes. The text of a failure names the line or offset of the damage.
Result<PropertyListValue> read(const QByteArray& bytes);
// The same for a file of no more bytes than `most`; NotFound when there is none. Any thread.
Result<PropertyListValue> readFile(const QString& path, qint64 most = kSizeLimit);
// Told from 0 to 1 how much of a file has been read, after every piece of it; false gives the rest up.
using Progress = std::function<bool(double)>;
// The same, told.
Result<PropertyListValue> readFile(const QString& path, const Progress& progress);

// The XML form, UTF-8, keys in the dictionary's order. Characters that XML cannot hold become U+FFFD, so that
// what was written can always be read. Reals come back to the last bit. Dates are cut off to whole seconds:
// other programs' readers refuse a whole file for a fraction.
QByteArray xml(const PropertyListValue& value);
// The binary form; equal texts are stored once. Reals and dates come back as they were.
QByteArray binary(const PropertyListValue& value);

// Writes the XML or the binary form to `path` through a temporary file, readable by the user alone (0600). On
// failure, and where it would be larger than what is read, what stood there stays.
Outcome writeXmlFile(const PropertyListValue& value, const QString& path, qint64 most = kSizeLimit);
Outcome writeBinaryFile(const PropertyListValue& value, const QString& path);

} // namespace PropertyList
