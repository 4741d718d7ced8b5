// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListValue.h"
#include "platform/foundation/values/Result.h"

#include <QByteArray>

#include <cstdint>
#include <vector>

// Reads the binary form of a property list: a table of objects that refer to each other by number. Every
// number in it is taken for a lie until it has been checked against the size of the file. Used once.
//
// Objects may be shared. What is shared stays shared in memory, but whoever walks the value sees it as often
// as it is referred to, and so a few bytes could stand for gigabytes: what is made of the value, and what is
// written of that, is added up, and refused beyond a budget that grows with the file.
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
        // What it takes up when everything in it is written out.
        std::uint64_t expanded = 0;
        // How long it is in the XML form, but for digits and indentation.
        std::uint64_t written = 0;
        // Levels of containers in it, itself included.
        int height = 0;
        Progress progress = Progress::Untouched;
    };

    // Why reading ends here; caught by read().
    struct Damage {
        std::uint64_t offset;
        QString what;
    };

    // A stretch of the file: the bytes of one object.
    struct Span {
        std::uint64_t at;
        std::uint64_t count;
    };

    void readTrailer();
    const Object& object(std::uint64_t number, int depth);
    PropertyListValue valueAt(std::uint64_t offset, int depth, Object& object);
    PropertyListValue integerAt(std::uint64_t offset, unsigned sizeExponent) const;
    PropertyListValue realAt(std::uint64_t offset, unsigned sizeExponent) const;
    PropertyListValue dateAt(std::uint64_t offset) const;
    PropertyListValue array(Span references, int depth, Object& object);
    PropertyListValue dictionary(Span references, int depth, Object& object);
    // Where the contents of the object at `offset` lie, whose low four bits or following integer tell their
    // number.
    Span contents(std::uint64_t offset, unsigned unitSize) const;
    // What the reference at `offset` leads to; enters its measure into that of its holder.
    const Object& referred(std::uint64_t offset, int depth, Object& holder);

    static void grow(Object& object, std::uint64_t size);
    void requireRoom(const Object& object, std::uint64_t offset) const;
    void require(bool condition, std::uint64_t offset, const char16_t* what) const;
    // A big-endian number of `size` bytes (the last 8 of them, when there are more). Checks its bounds.
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
