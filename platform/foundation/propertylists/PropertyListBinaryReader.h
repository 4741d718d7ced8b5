// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListValue.h"
#include "platform/foundation/values/Result.h"

#include <QByteArray>

#include <cstdint>
#include <vector>

// Reads the binary form: a table of objects that refer to each other by number. No number in it is trusted
// before it has been checked against the size of the file. Use it once.
//
// Objects may be shared. Shared objects stay shared in memory, but code that walks the value meets them as
// often as they are referred to, so a few bytes could stand for gigabytes. Therefore the reader adds up the
// cost of the value in memory and in its written form, and refuses it beyond a budget that grows with the
// file.
class PropertyListBinaryReader {
public:
    static bool recognises(const QByteArray& bytes) { return bytes.startsWith("bplist0"); }

    // `bytes` must outlive the reader.
    explicit PropertyListBinaryReader(const QByteArray& bytes);

    // As PropertyList::read.
    Result<PropertyListValue> read();

private:
    enum class Progress : unsigned char { Untouched, BeingRead, Read };

    struct Object {
        PropertyListValue value;
        // Its cost when everything in it is written out.
        std::uint64_t expanded = 0;
        // Its length in the XML form, without digits and indentation.
        std::uint64_t written = 0;
        // Levels of containers in it, including itself.
        int height = 0;
        Progress progress = Progress::Untouched;
    };

    // Why reading ends here; read() catches it.
    struct Damage {
        std::uint64_t offset;
        QString what;
    };

    // The bytes of one object in the file.
    struct Span {
        std::uint64_t at;
        std::uint64_t count;
    };

    void readTrailer();
    const Object& object(std::uint64_t number, int depth);
    PropertyListValue valueAt(std::uint64_t offset, int depth, Object& object);
    PropertyListValue textAt(std::uint64_t offset, bool isAscii, Object& object);
    PropertyListValue integerAt(std::uint64_t offset, unsigned sizeExponent) const;
    PropertyListValue realAt(std::uint64_t offset, unsigned sizeExponent) const;
    PropertyListValue dateAt(std::uint64_t offset) const;
    PropertyListValue array(Span references, int depth, Object& object);
    PropertyListValue dictionary(Span references, int depth, Object& object);
    // Where the contents of the object at `offset` lie. Its low four bits, or the integer behind it, give
    // their number.
    Span contents(std::uint64_t offset, unsigned unitSize) const;
    // The object that the reference at `offset` means; adds its cost to that of its holder.
    const Object& referred(std::uint64_t offset, int depth, Object& holder);

    static void grow(Object& object, std::uint64_t size);
    void requireRoom(const Object& object, std::uint64_t offset) const;
    void require(bool condition, std::uint64_t offset, const char16_t* what) const;
    // A big-endian number of `size` bytes; of more than 8 bytes, the last 8. Checks that it lies within the
    // file.
    std::uint64_t number(std::uint64_t offset, unsigned size) const;

    const char* at(Span span) const { return m_bytes.constData() + span.at; }

    const QByteArray& m_bytes;
    const std::uint64_t m_budget;
    unsigned m_offsetSize = 0;
    unsigned m_referenceSize = 0;
    std::uint64_t m_topObject = 0;
    std::uint64_t m_tableOffset = 0;
    std::vector<Object> m_objects;
};
