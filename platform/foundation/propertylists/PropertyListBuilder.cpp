// SPDX-License-Identifier: MIT
#include "platform/foundation/propertylists/PropertyListWriter.h"
#include "platform/foundation/values/Assertions.h"

namespace {

// Pieces that do not nest are a mistake in this program: nothing read from a file can cause it.
void require(bool condition, const QString& what) {
    if (!condition)
        throw InternalInconsistency(QStringLiteral("platform/foundation/PropertyListWriter"), __LINE__, what);
}

} // namespace

void PropertyListSink::value(const PropertyListValue& value) {
    require(!value.isAbsent(), QStringLiteral("an absent value has no place in a property list"));
    if (const auto* text = value.asString()) {
        string(*text);
    } else if (const auto whole = value.asInteger()) {
        integer(*whole);
    } else if (const auto number = value.asReal()) {
        real(*number);
    } else if (const auto truth = value.asBoolean()) {
        boolean(*truth);
    } else if (const auto instant = value.asDate()) {
        date(*instant);
    } else if (const auto* bytes = value.asData()) {
        data(*bytes);
    } else if (const auto* array = value.asArray()) {
        beginArray();
        for (const PropertyListValue& element : *array)
            this->value(element);
        endArray();
    } else {
        beginDictionary();
        for (const auto& [name, entry] : *value.asDictionary()) {
            key(name);
            this->value(entry);
        }
        endDictionary();
    }
}

void PropertyListBuilder::beginDictionary() {
    m_levels.push_back({true, {}, {}, {}});
}

void PropertyListBuilder::endDictionary() {
    require(!m_levels.empty() && m_levels.back().isDictionary, QStringLiteral("no dictionary to end"));
    PropertyListValue ended(std::move(m_levels.back().dictionary));
    m_levels.pop_back();
    put(std::move(ended));
}

void PropertyListBuilder::beginArray() {
    m_levels.push_back({false, {}, {}, {}});
}

void PropertyListBuilder::endArray() {
    require(!m_levels.empty() && !m_levels.back().isDictionary, QStringLiteral("no array to end"));
    PropertyListValue ended(std::move(m_levels.back().array));
    m_levels.pop_back();
    put(std::move(ended));
}

void PropertyListBuilder::key(const QString& text) {
    require(!m_levels.empty() && m_levels.back().isDictionary, QStringLiteral("a key outside a dictionary"));
    m_levels.back().key = text;
}

void PropertyListBuilder::string(const QString& text) {
    put(text);
}

void PropertyListBuilder::real(double value) {
    put(value);
}

void PropertyListBuilder::integer(std::int64_t value) {
    put(value);
}

void PropertyListBuilder::boolean(bool value) {
    put(value);
}

void PropertyListBuilder::date(Date value) {
    put(value);
}

void PropertyListBuilder::data(const QByteArray& bytes) {
    put(bytes);
}

PropertyListValue PropertyListBuilder::take() {
    return std::exchange(m_result, {});
}

void PropertyListBuilder::put(PropertyListValue value) {
    ++m_count;
    if (m_levels.empty())
        m_result = std::move(value);
    else if (m_levels.back().isDictionary)
        m_levels.back().dictionary.insert(std::move(m_levels.back().key), std::move(value));
    else
        m_levels.back().array.push_back(std::move(value));
}
