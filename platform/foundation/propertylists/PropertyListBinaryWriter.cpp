// SPDX-License-Identifier: MIT
#include "platform/foundation/propertylists/PropertyListBinaryWriter.h"

#include "platform/foundation/propertylists/PropertyListBinary.h"
#include "platform/foundation/values/Assertions.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <limits>

using namespace PropertyListBinary;

namespace {

// How many bytes a number needs in this form.
unsigned bytesFor(std::uint64_t value) {
    return value <= 0xFF ? 1 : value <= 0xFFFF ? 2 : value <= 0xFFFFFFFF ? 4 : 8;
}

bool isAscii(const QString& text) {
    return std::ranges::all_of(text, [](QChar character) { return character.unicode() < 0x80; });
}

} // namespace

QByteArray PropertyListBinaryWriter::write(const PropertyListValue& value) {
    enter(value);
    m_referenceSize = bytesFor(m_objects.size());
    m_bytes.append(kHeader);
    m_offsets.reserve(m_objects.size());
    for (const Object& object : m_objects) {
        m_offsets.push_back(std::uint64_t(m_bytes.size()));
        writeObject(object);
    }
    writeEnd();
    return std::move(m_bytes);
}

// Numbers the value and everything in it. A container's references stand together, so their places are
// reserved before its contents are numbered.
std::uint32_t PropertyListBinaryWriter::enter(const PropertyListValue& value) {
    if (value.isAbsent())
        throw InternalInconsistency(QStringLiteral("platform/foundation/PropertyListBinaryWriter"), __LINE__,
                                    QStringLiteral("an absent value has no place in a property list"));
    if (const auto* text = value.asString())
        return enterText(*text, {&value, nullptr, 0});
    const auto number = std::uint32_t(m_objects.size());
    const std::size_t first = m_references.size();
    m_objects.push_back({&value, nullptr, first});
    if (const auto* array = value.asArray()) {
        m_references.resize(first + array->size());
        for (std::size_t i = 0; i < array->size(); ++i)
            m_references[first + i] = enter((*array)[i]);
    } else if (const auto* dictionary = value.asDictionary()) {
        m_references.resize(first + 2 * dictionary->size());
        std::size_t i = first;
        for (const auto& [key, entry] : *dictionary) {
            m_references[i] = enterText(key, {nullptr, &key, 0});
            m_references[i + dictionary->size()] = enter(entry);
            ++i;
        }
    }
    return number;
}

std::uint32_t PropertyListBinaryWriter::enterText(const QString& text, Object object) {
    if (const auto found = m_texts.constFind(text); found != m_texts.constEnd())
        return *found;
    const auto number = std::uint32_t(m_objects.size());
    m_texts.insert(text, number);
    m_objects.push_back(object);
    return number;
}

void PropertyListBinaryWriter::writeObject(const Object& object) {
    if (object.key)
        return writeText(*object.key);
    if (const auto* array = object.value->asArray()) {
        writeMarker(kArray, array->size());
        return writeReferences(object, array->size());
    }
    if (const auto* dictionary = object.value->asDictionary()) {
        writeMarker(kDictionary, dictionary->size());
        return writeReferences(object, 2 * dictionary->size());
    }
    writeValue(*object.value);
}

void PropertyListBinaryWriter::writeValue(const PropertyListValue& value) {
    if (const auto* text = value.asString()) {
        writeText(*text);
    } else if (const auto integer = value.asInteger()) {
        writeInteger(*integer);
    } else if (const auto real = value.asReal()) {
        m_bytes.append(char(kReal | 3));
        writeNumber(std::bit_cast<std::uint64_t>(*real), 8);
    } else if (const auto boolean = value.asBoolean()) {
        m_bytes.append(char(*boolean ? kTrue : kFalse));
    } else if (const auto date = value.asDate()) {
        m_bytes.append(char(kDate | 3));
        writeNumber(std::bit_cast<std::uint64_t>(secondsBetween(kReferenceDate, *date)), 8);
    } else if (const auto* data = value.asData()) {
        writeMarker(kData, std::uint64_t(data->size()));
        m_bytes.append(*data);
    }
}

void PropertyListBinaryWriter::writeText(const QString& text) {
    if (isAscii(text)) {
        writeMarker(kAscii, std::uint64_t(text.size()));
        m_bytes.append(text.toLatin1());
        return;
    }
    writeMarker(kUtf16, std::uint64_t(text.size()));
    const qsizetype end = m_bytes.size();
    m_bytes.resize(end + text.size() * 2);
    qToBigEndian<char16_t>(text.utf16(), text.size(), m_bytes.data() + end);
}

// Positive numbers are written as short as possible; negative ones need all 8 bytes.
void PropertyListBinaryWriter::writeInteger(std::int64_t value) {
    const unsigned size = value < 0 ? 8 : bytesFor(std::uint64_t(value));
    m_bytes.append(char(kInteger | unsigned(std::countr_zero(size))));
    writeNumber(std::uint64_t(value), size);
}

void PropertyListBinaryWriter::writeReferences(const Object& object, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        writeNumber(m_references[object.references + i], m_referenceSize);
}

void PropertyListBinaryWriter::writeMarker(unsigned kind, std::uint64_t size) {
    if (size < kSizeFollows) {
        m_bytes.append(char(kind | unsigned(size)));
        return;
    }
    m_bytes.append(char(kind | kSizeFollows));
    writeInteger(std::int64_t(size));
}

void PropertyListBinaryWriter::writeNumber(std::uint64_t value, unsigned size) {
    for (unsigned i = size; i-- > 0;)
        m_bytes.append(char(value >> (8 * i)));
}

void PropertyListBinaryWriter::writeEnd() {
    const auto table = std::uint64_t(m_bytes.size());
    const unsigned offsetSize = bytesFor(table);
    for (const std::uint64_t offset : m_offsets)
        writeNumber(offset, offsetSize);
    // Unused bytes, and the sort version.
    m_bytes.append(6, '\0');
    m_bytes.append(char(offsetSize));
    m_bytes.append(char(m_referenceSize));
    writeNumber(m_objects.size(), 8);
    writeNumber(0, 8);
    writeNumber(table, 8);
}
