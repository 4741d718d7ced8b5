// SPDX-License-Identifier: MIT
#include "platform/foundation/propertylists/PropertyListPlainReader.h"

#include "platform/foundation/propertylists/PropertyListXml.h"

#include <QStringDecoder>

#include <algorithm>
#include <cstring>

namespace {

// No element of a property list has a longer name.
constexpr qsizetype kLongestName = 7;

struct Entity {
    QByteArrayView name;
    char character;
};

constexpr std::array kEntities = {Entity{"&amp;", '&'},  Entity{"&lt;", '<'},    Entity{"&gt;", '>'},
                                  Entity{"&quot;", '"'}, Entity{"&apos;", '\''}, Entity{"&#13;", '\r'}};

enum class Sort : unsigned char { Ascii, Beyond, Ampersand, Unusual };

constexpr auto kSorts = [] {
    std::array<Sort, 256> sorts{};
    for (std::size_t byte = 0; byte < sorts.size(); ++byte)
        sorts[byte] = byte >= 0x80                                  ? Sort::Beyond
                      : byte == '&'                                 ? Sort::Ampersand
                      : byte >= ' ' || byte == '\t' || byte == '\n' ? Sort::Ascii
                                                                    : Sort::Unusual;
    // Only "]]>" is invalid, but nobody writes a bare ">".
    sorts['>'] = Sort::Unusual;
    return sorts;
}();

Sort sortOf(char byte) {
    return kSorts[static_cast<unsigned char>(byte)];
}

std::optional<QString> fromUtf8(QByteArrayView bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    QString text = decoder.decode(bytes);
    // XML forbids the last two, and a byte-order mark has a meaning at the beginning of a text.
    if (decoder.hasError() || text.contains(u'\uFEFF') || text.contains(u'\uFFFE') ||
        text.contains(u'\uFFFF'))
        return std::nullopt;
    return text;
}

bool unescape(QByteArrayView bytes, QByteArray& out) {
    out.resize(0);
    while (!bytes.isEmpty()) {
        const auto* const ampersand =
            static_cast<const char*>(std::memchr(bytes.data(), '&', std::size_t(bytes.size())));
        const qsizetype before = ampersand ? ampersand - bytes.data() : bytes.size();
        out.append(bytes.first(before));
        bytes = bytes.sliced(before);
        if (bytes.isEmpty())
            break;
        const auto known = std::ranges::find_if(
            kEntities, [&](const Entity& entity) { return bytes.startsWith(entity.name); });
        if (known == kEntities.end())
            return false;
        out.append(known->character);
        bytes = bytes.sliced(known->name.size());
    }
    return true;
}

} // namespace

PropertyListPlainReader::PropertyListPlainReader(QByteArrayView bytes, std::size_t mostValues)
    : m_at(bytes.data())
    , m_end(bytes.data() + bytes.size())
    , m_mostValues(mostValues) {}

std::optional<PropertyListValue> PropertyListPlainReader::read() {
    if (!QByteArrayView(m_at, m_end).startsWith(PropertyListXml::kHead))
        return std::nullopt;
    m_at += PropertyListXml::kHead.size();
    if (!readElements())
        return std::nullopt;
    return m_builder.take();
}

bool PropertyListPlainReader::readElements() {
    for (;;) {
        skipBlanks();
        const auto next = tag();
        if (!next)
            return false;
        if (next->name == "/plist")
            return !next->isEmpty && isAtEnd();
        if (!element(*next) || m_builder.count() > m_mostValues)
            return false;
    }
}

bool PropertyListPlainReader::element(Tag tag) {
    if (tag.name.startsWith('/'))
        return !tag.isEmpty && end(tag.name.sliced(1));
    if (tag.name == "key")
        return !tag.isEmpty && key();
    if (!admitValue())
        return false;
    const bool isDictionary = tag.name == "dict";
    return isDictionary || tag.name == "array" ? container(isDictionary, tag.isEmpty) : scalar(tag);
}

bool PropertyListPlainReader::end(QByteArrayView name) {
    if (m_levels.empty())
        return false;
    const Level level = m_levels.back();
    if (level.hasKey || name != (level.isDictionary ? QByteArrayView("dict") : QByteArrayView("array")))
        return false;
    m_levels.pop_back();
    if (level.isDictionary)
        m_builder.endDictionary();
    else
        m_builder.endArray();
    return true;
}

bool PropertyListPlainReader::key() {
    if (m_levels.empty() || !m_levels.back().isDictionary || m_levels.back().hasKey)
        return false;
    const auto bytes = textUntilEnd("key");
    if (!bytes)
        return false;
    m_levels.back().hasKey = true;
    const auto slot =
        bytes->isEmpty() ? 0 : std::size_t(bytes->size() * 7 + bytes->front() * 3 + bytes->back());
    SharedKey& shared = m_keys[slot % m_keys.size()];
    if (shared.text.isNull() || shared.bytes != *bytes) {
        const auto text = decoded(*bytes);
        if (!text)
            return false;
        shared = {*bytes, *text};
    }
    m_builder.key(shared.text);
    return true;
}

bool PropertyListPlainReader::admitValue() {
    if (m_levels.empty())
        return !std::exchange(m_hasValue, true);
    return !m_levels.back().isDictionary || std::exchange(m_levels.back().hasKey, false);
}

bool PropertyListPlainReader::container(bool isDictionary, bool isEmpty) {
    if (m_levels.size() == PropertyList::kDepthLimit)
        return false;
    m_levels.push_back({isDictionary, false});
    if (isDictionary)
        m_builder.beginDictionary();
    else
        m_builder.beginArray();
    return !isEmpty || end(isDictionary ? QByteArrayView("dict") : QByteArrayView("array"));
}

bool PropertyListPlainReader::scalar(Tag tag) {
    const PropertyListXml::Scalar* known = PropertyListXml::scalar(QLatin1String(tag.name));
    if (!known)
        return false;
    const auto bytes = tag.isEmpty ? QByteArrayView("") : textUntilEnd(tag.name);
    if (!bytes)
        return false;
    const auto text = decoded(*bytes);
    if (!text)
        return false;
    const PropertyListValue value = known->parse(*text);
    if (value.isAbsent())
        return false;
    m_builder.value(value);
    return true;
}

bool PropertyListPlainReader::isAtEnd() {
    skipBlanks();
    return m_at == m_end && m_levels.empty() && m_hasValue;
}

void PropertyListPlainReader::skipBlanks() {
    while (m_at != m_end && (*m_at == '\t' || *m_at == '\n' || *m_at == ' '))
        ++m_at;
}

std::optional<PropertyListPlainReader::Tag> PropertyListPlainReader::tag() {
    if (m_at == m_end || *m_at != '<')
        return std::nullopt;
    ++m_at;
    const char* const last = m_at + std::min<qsizetype>(m_end - m_at, kLongestName + 2);
    const char* const closing = std::find(m_at, last, '>');
    if (closing == last || closing == m_at)
        return std::nullopt;
    QByteArrayView name(m_at, closing);
    m_at = closing + 1;
    const bool isEmpty = name.endsWith('/');
    return Tag{isEmpty ? name.chopped(1) : name, isEmpty};
}

std::optional<QByteArrayView> PropertyListPlainReader::textUntilEnd(QByteArrayView name) {
    const auto* const closing = static_cast<const char*>(std::memchr(m_at, '<', std::size_t(m_end - m_at)));
    if (!closing)
        return std::nullopt;
    const QByteArrayView rest(closing + 1, m_end);
    const qsizetype size = name.size();
    if (rest.size() < size + 2 || rest[0] != '/' || rest.sliced(1, size) != name || rest[size + 1] != '>')
        return std::nullopt;
    const QByteArrayView text(m_at, closing);
    m_at = closing + size + 3;
    return text;
}

std::optional<QString> PropertyListPlainReader::decoded(QByteArrayView bytes) {
    Sort most = Sort::Ascii;
    for (const char byte : bytes)
        most = std::max(most, sortOf(byte));
    if (most == Sort::Unusual)
        return std::nullopt;
    if (most == Sort::Ampersand) {
        if (!unescape(bytes, m_unescaped))
            return std::nullopt;
        return fromUtf8(m_unescaped);
    }
    return most == Sort::Ascii ? QString::fromLatin1(bytes) : fromUtf8(bytes);
}
