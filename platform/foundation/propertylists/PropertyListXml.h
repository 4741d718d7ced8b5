// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QAnyStringView>
#include <QByteArrayView>
#include <QString>

// What the writer and both readers of the XML form agree on.
namespace PropertyListXml {

// The usual beginning and end of a property list.
inline constexpr QByteArrayView kHead = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                        "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                                        "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                                        "<plist version=\"1.0\">\n";
inline constexpr QByteArrayView kFoot = "</plist>\n";

// An element that holds only text. `parse` answers an absent value if the text has the wrong form.
struct Scalar {
    QLatin1String name;
    PropertyListValue (*parse)(const QString& text);
};

// The element called `name`; null if there is none.
const Scalar* scalar(QAnyStringView name);

} // namespace PropertyListXml
