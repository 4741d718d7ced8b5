// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListLimits.h"
#include "platform/foundation/propertylists/PropertyListValue.h"
#include "platform/foundation/values/Result.h"

#include <QByteArray>
#include <QString>

#include <functional>

// Property lists as bytes. Reading accepts the XML and the binary form, whoever wrote them. It refuses what
// is damaged, nested deeper than kDepthLimit, larger than kSizeLimit, or has more than kValueLimit values, in
// bounded time and memory. Nothing outside the bytes is ever read: entities and references to other files are
// refused or ignored.
namespace PropertyList {

// Accepts any bytes. The text of a failure names the line or offset of the damage.
Result<PropertyListValue> read(const QByteArray& bytes);
// The same for a file of at most `most` bytes; NotFound when there is none. Any thread.
Result<PropertyListValue> readFile(const QString& path, qint64 most = kSizeLimit);
// Called after each piece with how much of a file has been read, from 0 to 1; answering false ends the
// reading.
using Progress = std::function<bool(double)>;
// The same with progress.
Result<PropertyListValue> readFile(const QString& path, const Progress& progress);

// The XML form: UTF-8, keys in the dictionary's order. Characters that XML cannot hold become U+FFFD, so that
// the result can always be read. Reals keep every bit. Dates are cut to whole seconds, because other
// programs' readers refuse a whole file for a fraction.
QByteArray xml(const PropertyListValue& value);
// The binary form; equal texts are stored once. Reals and dates keep every bit.
QByteArray binary(const PropertyListValue& value);

// Writes the XML or the binary form to `path` through a temporary file that only the user can read (0600). On
// failure the old file stays; a file that would be too large to be read again is a failure.
Outcome writeXmlFile(const PropertyListValue& value, const QString& path, qint64 most = kSizeLimit);
Outcome writeBinaryFile(const PropertyListValue& value, const QString& path);

} // namespace PropertyList
