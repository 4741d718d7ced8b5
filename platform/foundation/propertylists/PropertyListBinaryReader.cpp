// SPDX-License-Identifier: MIT
#include "platform/foundation/propertylists/PropertyListBinaryReader.h"

#include "platform/foundation/propertylists/PropertyListBinary.h"
#include "platform/foundation/propertylists/PropertyListLimits.h"
#include "platform/foundation/propertylists/PropertyListText.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

using namespace PropertyListBinary;

namespace {

// The budget: a small file may cost this much, a larger one this many times its size, and none more than the
// limit. A timer's record takes 70 bytes of a file that stores each text once, and costs about 900 by the
// measure below.
constexpr std::uint64_t kBudgetBase = 1024 * 1024;
constexpr std::uint64_t kBudgetPerByte = 24;
// The most timers in a database cost 430 MB.
constexpr std::uint64_t kBudgetLimit = 460 * 1024 * 1024;
// For its length in the XML form, because a file above 256 MB could not be read again. The measure leaves out
// digits and indentation.
constexpr std::uint64_t kWrittenLimit = 200 * 1024 * 1024;
constexpr std::uint64_t kWrittenValue = 24;
// The least cost of a value, in memory or in the XML form, whichever is more.
constexpr std::uint64_t kExpandedValue = sizeof(PropertyListValue);
// A dictionary may be a timer's record, from which the timer is made.
constexpr std::uint64_t kExpandedDictionary = 512;
// Base64 and line breaks.
constexpr std::uint64_t kExpandedByte = 2;

// A number too large for a signed integer becomes the nearest real.
PropertyListValue integerFrom(std::uint64_t value) {
    constexpr std::uint64_t kLargest = std::numeric_limits<std::int64_t>::max();
    return value <= kLargest ? PropertyListValue(std::int64_t(value)) : PropertyListValue(double(value));
}

// In UTF-8, with "&amp;" and similar.
std::uint64_t expandedSize(const QString& text) {
    std::uint64_t size = 0;
    for (const QChar character : text) {
        const char16_t unit = character.unicode();
        if (unit == u'&' || unit == u'<' || unit == u'>')
            size += 5;
        else
            size += unit < 0x80 ? 1 : unit < 0x800 ? 2 : 3;
    }
    return size;
}

std::uint64_t budgetFor(const QByteArray& bytes) {
    return std::min(kBudgetBase + kBudgetPerByte * std::uint64_t(bytes.size()), kBudgetLimit);
}

} // namespace

PropertyListBinaryReader::PropertyListBinaryReader(const QByteArray& bytes)
    : m_bytes(bytes)
    , m_budget(budgetFor(bytes)) {}

Result<PropertyListValue> PropertyListBinaryReader::read() {
    try {
        readTrailer();
        return object(m_topObject, 0).value;
    } catch (const Damage& damage) {
        return Failure{Failure::Kind::Damaged,
                       QStringLiteral("offset %1: %2").arg(damage.offset).arg(damage.what)};
    }
}

void PropertyListBinaryReader::readTrailer() {
    const auto size = std::uint64_t(m_bytes.size());
    require(size >= kHeader.size() + kTrailerSize, size, u"cut off");
    const std::uint64_t trailer = size - kTrailerSize;
    m_offsetSize = unsigned(number(trailer + 6, 1));
    m_referenceSize = unsigned(number(trailer + 7, 1));
    const std::uint64_t count = number(trailer + 8, 8);
    m_topObject = number(trailer + 16, 8);
    m_tableOffset = number(trailer + 24, 8);
    require(m_offsetSize >= 1 && m_offsetSize <= 8 && m_referenceSize >= 1 && m_referenceSize <= 8, trailer,
            u"no such size of references");
    require(m_tableOffset >= std::uint64_t(kHeader.size()) && m_tableOffset <= trailer, trailer,
            u"the table of objects lies outside of the file");
    require(count >= 1 && count <= (trailer - m_tableOffset) / m_offsetSize, trailer,
            u"more objects than the file can hold");
    require(count <= m_budget / sizeof(Object) && count <= PropertyList::kValueLimit, trailer,
            u"too many objects");
    m_objects.resize(count);
}

const PropertyListBinaryReader::Object& PropertyListBinaryReader::object(std::uint64_t index, int depth) {
    require(index < m_objects.size(), m_tableOffset, u"a reference to an object that is not there");
    Object& object = m_objects[index];
    const std::uint64_t entry = m_tableOffset + index * m_offsetSize;
    require(object.progress != Progress::BeingRead, entry, u"an object that holds itself");
    if (object.progress == Progress::Read)
        return object;
    object.progress = Progress::BeingRead;
    const std::uint64_t offset = number(entry, m_offsetSize);
    require(offset >= std::uint64_t(kHeader.size()) && offset < m_tableOffset, entry,
            u"an object outside of the file");
    object.expanded = kExpandedValue;
    object.written = kWrittenValue;
    object.value = valueAt(offset, depth, object);
    requireRoom(object, offset);
    require(object.height <= PropertyList::kDepthLimit, offset, u"nested too deep");
    object.progress = Progress::Read;
    return object;
}

PropertyListValue PropertyListBinaryReader::valueAt(std::uint64_t offset, int depth, Object& object) {
    const auto marker = unsigned(number(offset, 1));
    switch (marker & 0xF0) {
    case kSingle:
        require(marker == kFalse || marker == kTrue, offset, u"an unknown kind of object");
        return marker == kTrue;
    case kInteger:
        return integerAt(offset + 1, marker & 0x0F);
    case kReal:
        return realAt(offset + 1, marker & 0x0F);
    case kDate:
        require(marker == (kDate | 3), offset, u"an unknown kind of date");
        return dateAt(offset + 1);
    case kData: {
        const Span span = contents(offset, 1);
        grow(object, span.count * kExpandedByte);
        return QByteArray(at(span), qsizetype(span.count));
    }
    case kAscii:
    case kUtf16:
        return textAt(offset, (marker & 0xF0) == kAscii, object);
    // An identifier of an archived object: only its number matters here.
    case kUid: {
        const unsigned size = (marker & 0x0F) + 1;
        require(size <= 8, offset, u"an identifier of more than 64 bits");
        return integerFrom(number(offset + 1, size));
    }
    case kArray:
    case kOrderedSet:
    case kSet:
        return array(contents(offset, m_referenceSize), depth + 1, object);
    case kDictionary:
        return dictionary(contents(offset, 2 * m_referenceSize), depth + 1, object);
    default:
        require(false, offset, u"an unknown kind of object");
    }
    return {};
}

PropertyListValue PropertyListBinaryReader::textAt(std::uint64_t offset, bool isAscii, Object& object) {
    const Span span = contents(offset, isAscii ? 1 : 2);
    QString text;
    if (isAscii) {
        text = QString::fromLatin1(at(span), qsizetype(span.count));
    } else {
        text = QString(qsizetype(span.count), Qt::Uninitialized);
        qFromBigEndian<char16_t>(at(span), qsizetype(span.count), text.data());
    }
    grow(object, expandedSize(text));
    return text;
}

PropertyListValue PropertyListBinaryReader::integerAt(std::uint64_t offset, unsigned sizeExponent) const {
    require(sizeExponent <= 4, offset, u"an integer of more than 128 bits");
    const unsigned size = 1U << sizeExponent;
    const std::uint64_t low = number(offset, size);
    // Integers below 8 bytes are unsigned; those of 8 and 16 bytes are signed.
    if (size < 8)
        return integerFrom(low);
    if (size == 8)
        return std::int64_t(low);
    const std::uint64_t high = number(offset, 8);
    if (high == 0)
        return integerFrom(low);
    if (high == ~std::uint64_t(0) && (low >> 63) != 0)
        return std::int64_t(low);
    return double(std::int64_t(high)) * 0x1p64 + double(low);
}

PropertyListValue PropertyListBinaryReader::realAt(std::uint64_t offset, unsigned sizeExponent) const {
    require(sizeExponent == 2 || sizeExponent == 3, offset, u"a real of an unknown size");
    if (sizeExponent == 2)
        return double(std::bit_cast<float>(std::uint32_t(number(offset, 4))));
    return std::bit_cast<double>(number(offset, 8));
}

PropertyListValue PropertyListBinaryReader::dateAt(std::uint64_t offset) const {
    const double seconds = std::bit_cast<double>(number(offset, 8));
    const double earliest = secondsBetween(kReferenceDate, PropertyListText::kEarliestDate);
    const double latest = secondsBetween(kReferenceDate, PropertyListText::kLatestDate);
    // Written such that NaN fails too.
    require(seconds >= earliest && seconds < latest + 1, offset, u"a date outside of the years 1 to 9999");
    return kReferenceDate + std::chrono::microseconds(std::llround(seconds * 1e6));
}

PropertyListValue PropertyListBinaryReader::array(Span references, int depth, Object& object) {
    PropertyListArray array;
    array.reserve(references.count);
    for (std::uint64_t i = 0; i < references.count; ++i)
        array.push_back(referred(references.at + i * m_referenceSize, depth, object).value);
    return array;
}

PropertyListValue PropertyListBinaryReader::dictionary(Span references, int depth, Object& object) {
    PropertyListDictionary dictionary;
    object.expanded += kExpandedDictionary;
    dictionary.reserve(references.count);
    for (std::uint64_t i = 0; i < references.count; ++i) {
        const std::uint64_t key = references.at + i * m_referenceSize;
        const PropertyListValue& name = referred(key, depth, object).value;
        require(name.asString() != nullptr, key, u"a key that is no text");
        dictionary.insert(*name.asString(),
                          referred(key + references.count * m_referenceSize, depth, object).value);
    }
    return dictionary;
}

PropertyListBinaryReader::Span PropertyListBinaryReader::contents(std::uint64_t offset,
                                                                  unsigned unitSize) const {
    const auto marker = unsigned(number(offset, 1));
    Span span{offset + 1, marker & 0x0F};
    if (span.count == kSizeFollows) {
        const auto sizeMarker = unsigned(number(span.at, 1));
        require((sizeMarker & 0xF0) == kInteger && (sizeMarker & 0x0F) <= 3, span.at,
                u"a size that is no integer");
        const unsigned size = 1U << (sizeMarker & 0x0F);
        span = {span.at + 1 + size, number(span.at + 1, size)};
    }
    require(span.at <= m_tableOffset && span.count <= (m_tableOffset - span.at) / unitSize, offset,
            u"an object that goes on beyond the file");
    return span;
}

const PropertyListBinaryReader::Object& PropertyListBinaryReader::referred(std::uint64_t offset, int depth,
                                                                           Object& holder) {
    // The call stack is as deep as the nesting; objects met again have been measured already.
    require(depth <= PropertyList::kDepthLimit, offset, u"nested too deep");
    const Object& found = object(number(offset, m_referenceSize), depth);
    holder.height = std::max(holder.height, found.height + 1);
    holder.expanded += found.expanded;
    holder.written += found.written;
    requireRoom(holder, offset);
    return found;
}

void PropertyListBinaryReader::requireRoom(const Object& object, std::uint64_t offset) const {
    require(object.expanded <= m_budget, offset,
            m_budget < kBudgetLimit ? u"far larger than its file when it is written out"
                                    : u"more than 500,000 timers need");
    require(object.written <= kWrittenLimit, offset, u"larger than 200 MB when it is written out");
}

void PropertyListBinaryReader::grow(Object& object, std::uint64_t size) {
    object.expanded += size;
    object.written += size;
}

void PropertyListBinaryReader::require(bool condition, std::uint64_t offset, const char16_t* what) const {
    if (!condition)
        throw Damage{offset, QString::fromUtf16(what)};
}

std::uint64_t PropertyListBinaryReader::number(std::uint64_t offset, unsigned size) const {
    const auto total = std::uint64_t(m_bytes.size());
    require(offset <= total && size <= total - offset, offset, u"cut off");
    std::uint64_t value = 0;
    for (unsigned i = 0; i < size; ++i)
        value = value << 8 | static_cast<unsigned char>(m_bytes[qsizetype(offset + i)]);
    return value;
}
