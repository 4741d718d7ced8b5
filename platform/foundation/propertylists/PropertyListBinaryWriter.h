// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QByteArray>
#include <QHash>

#include <cstdint>
#include <vector>

// Writes the binary form, in time that grows only with its size. Use it once.
class PropertyListBinaryWriter {
public:
    // `value` must outlive the writer.
    QByteArray write(const PropertyListValue& value);

private:
    // An object of the file: a value, or a dictionary's key.
    struct Object {
        const PropertyListValue* value = nullptr;
        const QString* key = nullptr;
        // Where a container's references begin among all references.
        std::size_t references = 0;
    };

    std::uint32_t enter(const PropertyListValue& value);
    std::uint32_t enterText(const QString& text, Object object);
    void writeObject(const Object& object);
    void writeValue(const PropertyListValue& value);
    void writeText(const QString& text);
    void writeInteger(std::int64_t value);
    void writeReferences(const Object& object, std::size_t count);
    void writeMarker(unsigned kind, std::uint64_t size);
    void writeNumber(std::uint64_t value, unsigned size);
    void writeEnd();

    std::vector<Object> m_objects;
    std::vector<std::uint32_t> m_references;
    QHash<QString, std::uint32_t> m_texts;
    unsigned m_referenceSize = 1;
    std::vector<std::uint64_t> m_offsets;
    QByteArray m_bytes;
};
