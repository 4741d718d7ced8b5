// SPDX-License-Identifier: MIT
#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/propertylists/PropertyListText.h"
#include "platform/foundation/propertylists/PropertyListWriter.h"
#include "platform/foundation/propertylists/PropertyListXml.h"
#include "platform/foundation/values/Assertions.h"

#include <QByteArrayView>

#include <algorithm>
#include <array>
#include <cstring>

namespace {

// How much is passed on at a time: large enough that calls cost little, small enough to stay in the cache.
constexpr std::size_t kChunk = 64 * 1024;
// The most bytes for one UTF-16 unit: an escape such as "&amp;".
constexpr qsizetype kMostBytesPerUnit = 5;
// Text is written in pieces of this many units; each fits into a chunk whatever it contains.
constexpr qsizetype kTextPiece = 4096;

constexpr QByteArrayView kReplacement = "\xEF\xBF\xBD";

void require(bool condition, const QString& what) {
    if (!condition)
        throw InternalInconsistency(QStringLiteral("platform/foundation/PropertyListXmlWriter"), __LINE__,
                                    what);
}

char* put(char* out, QByteArrayView bytes) {
    std::memcpy(out, bytes.data(), std::size_t(bytes.size()));
    return out + bytes.size();
}

// An ASCII character that cannot be written as it is.
char* putSpecial(char* out, char16_t unit) {
    switch (unit) {
    case u'&':
        return put(out, "&amp;");
    case u'<':
        return put(out, "&lt;");
    case u'>':
        return put(out, "&gt;");
    // Readers turn a bare one into a line feed.
    case u'\r':
        return put(out, "&#13;");
    default:
        return put(out, kReplacement);
    }
}

// ASCII characters that are written as they are. A table, because most of the output passes through here.
constexpr auto kPlain = [] {
    std::array<bool, 128> plain{};
    for (char16_t unit = 0; unit < plain.size(); ++unit)
        plain[unit] =
            (unit >= 0x20 && unit != u'&' && unit != u'<' && unit != u'>') || unit == u'\t' || unit == u'\n';
    return plain;
}();

char* putTwoOrThree(char* out, char16_t unit) {
    if (unit < 0x800) {
        *out++ = char(0xC0 | (unit >> 6));
    } else {
        *out++ = char(0xE0 | (unit >> 12));
        *out++ = char(0x80 | ((unit >> 6) & 0x3F));
    }
    *out++ = char(0x80 | (unit & 0x3F));
    return out;
}

char* putFour(char* out, char32_t codePoint) {
    *out++ = char(0xF0 | (codePoint >> 18));
    *out++ = char(0x80 | ((codePoint >> 12) & 0x3F));
    *out++ = char(0x80 | ((codePoint >> 6) & 0x3F));
    *out++ = char(0x80 | (codePoint & 0x3F));
    return out;
}

// Writes `text` as UTF-8 that XML can hold. It must not begin or end within a surrogate pair.
char* putText(char* out, QStringView text) {
    const char16_t* at = text.utf16();
    const char16_t* const end = at + text.size();
    while (at != end) {
        const char16_t unit = *at++;
        if (unit < 0x80 && kPlain[unit]) {
            *out++ = char(unit);
        } else if (unit < 0x80) {
            out = putSpecial(out, unit);
        } else if (!QChar::isSurrogate(unit)) {
            out = unit >= 0xFFFE ? put(out, kReplacement) : putTwoOrThree(out, unit);
        } else if (QChar::isHighSurrogate(unit) && at != end && QChar::isLowSurrogate(*at)) {
            out = putFour(out, QChar::surrogateToUcs4(unit, *at++));
        } else {
            out = put(out, kReplacement);
        }
    }
    return out;
}

} // namespace

PropertyListXmlWriter::PropertyListXmlWriter(Output output)
    : m_output(std::move(output))
    , m_buffer(std::make_unique_for_overwrite<char[]>(kChunk))
    , m_end(m_buffer.get()) {
    append(PropertyListXml::kHead);
}

void PropertyListXmlWriter::beginDictionary() {
    enter("<dict>\n");
}

void PropertyListXmlWriter::endDictionary() {
    leave("</dict>\n");
}

void PropertyListXmlWriter::beginArray() {
    enter("<array>\n");
}

void PropertyListXmlWriter::endArray() {
    leave("</array>\n");
}

void PropertyListXmlWriter::key(const QString& text) {
    line("<key>");
    appendText(text);
    append("</key>\n");
}

void PropertyListXmlWriter::string(const QString& text) {
    line("<string>");
    appendText(text);
    append("</string>\n");
}

void PropertyListXmlWriter::real(double value) {
    line("<real>");
    makeRoom(PropertyListText::kLongestText);
    m_end = PropertyListText::write(m_end, value);
    append("</real>\n");
}

void PropertyListXmlWriter::integer(std::int64_t value) {
    line("<integer>");
    makeRoom(PropertyListText::kLongestText);
    m_end = PropertyListText::write(m_end, value);
    append("</integer>\n");
}

void PropertyListXmlWriter::boolean(bool value) {
    line(value ? QByteArrayView("<true/>\n") : QByteArrayView("<false/>\n"));
}

void PropertyListXmlWriter::date(Date value) {
    line("<date>");
    makeRoom(PropertyListText::kLongestText);
    m_end = PropertyListText::write(m_end, value);
    append("</date>\n");
}

void PropertyListXmlWriter::data(const QByteArray& bytes) {
    line("<data>");
    append(bytes.toBase64());
    append("</data>\n");
}

void PropertyListXmlWriter::finish() {
    require(m_depth == 0, QStringLiteral("a dictionary or an array has not ended"));
    append(PropertyListXml::kFoot);
    flush();
}

void PropertyListXmlWriter::enter(QByteArrayView tag) {
    require(m_depth < PropertyList::kDepthLimit, QStringLiteral("nested too deep to be read again"));
    line(tag);
    ++m_depth;
}

void PropertyListXmlWriter::leave(QByteArrayView tag) {
    require(m_depth > 0, QStringLiteral("no dictionary or array to end"));
    --m_depth;
    line(tag);
}

void PropertyListXmlWriter::line(QByteArrayView tag) {
    makeRoom(std::size_t(m_depth));
    m_end = std::fill_n(m_end, m_depth, '\t');
    append(tag);
}

void PropertyListXmlWriter::append(QByteArrayView bytes) {
    while (!bytes.isEmpty()) {
        makeRoom(std::min(std::size_t(bytes.size()), kChunk));
        const qsizetype count = std::min(bytes.size(), qsizetype(kChunk));
        m_end = put(m_end, bytes.first(count));
        bytes = bytes.sliced(count);
    }
}

void PropertyListXmlWriter::appendText(QStringView text) {
    while (!text.isEmpty()) {
        qsizetype count = std::min(text.size(), kTextPiece);
        if (count < text.size() && text.at(count - 1).isHighSurrogate())
            --count;
        makeRoom(std::size_t(count * kMostBytesPerUnit));
        m_end = putText(m_end, text.first(count));
        text = text.sliced(count);
    }
}

void PropertyListXmlWriter::makeRoom(std::size_t count) {
    if (m_buffer.get() + kChunk - m_end < std::ptrdiff_t(count))
        flush();
}

void PropertyListXmlWriter::flush() {
    if (m_end != m_buffer.get())
        m_output(m_buffer.get(), std::size_t(m_end - m_buffer.get()));
    m_end = m_buffer.get();
}
