// SPDX-License-Identifier: MIT
#include "Classes/StoreFile.h"

#include "platform/foundation/PropertyList.h"

Outcome StoreFile::write(const QString& path, const std::function<void(PropertyListSink&)>& content) {
    PropertyListBuilder builder;
    content(builder);
    return PropertyList::writeXmlFile(builder.take(), path);
}

Result<PropertyListValue> StoreFile::read(const QString& path) {
    Result<PropertyListValue> file = PropertyList::readFile(path);
    if (!file && file.failure().kind != Failure::Kind::NotFound)
        m_log.log(QStringLiteral("The main store cannot be read: ") + file.failure().text);
    return file;
}
