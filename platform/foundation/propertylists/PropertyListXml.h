// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QAnyStringView>
#include <QByteArrayView>
#include <QString>

// What the writer and both readers of the XML form agree on.
namespace PropertyListXml {

// How property lists customarily begin and end.
inline constexpr QByteArrayView kHead = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                        "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                                        "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                                        "<plist version=\"1.0\">\n";
inline constexpr QByteArrayView kFoot = "</plist>\n";

// An element that holds text alone. `parse` answers an absent value for a text that is no such thing.
struct Scalar {
    QLatin1String name;
    PropertyListValue (*parse)(const QString& text);
};

// The kind of value that an element called `name` holds; null when there is none.
const Scalar* scalar(QAnyStringView name);

} // namespace PropertyListXml
