// SPDX-License-Identifier: MIT
#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QHashFunctions>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace {

// Up to this size, searching one by one is faster than hashing.
constexpr std::size_t kIndexedFrom = 16;

} // namespace

PropertyListValue::PropertyListValue(PropertyListArray array)
    : m_value(std::make_shared<const PropertyListArray>(std::move(array))) {}

PropertyListValue::PropertyListValue(PropertyListDictionary dictionary)
    : m_value(std::make_shared<const PropertyListDictionary>(std::move(dictionary))) {}

const PropertyListArray* PropertyListValue::asArray() const {
    const auto* array = std::get_if<std::shared_ptr<const PropertyListArray>>(&m_value);
    return array ? array->get() : nullptr;
}

const PropertyListDictionary* PropertyListValue::asDictionary() const {
    const auto* dictionary = std::get_if<std::shared_ptr<const PropertyListDictionary>>(&m_value);
    return dictionary ? dictionary->get() : nullptr;
}

std::optional<Date> PropertyListValue::asDate() const {
    const Date* date = std::get_if<Date>(&m_value);
    return date ? std::optional(*date) : std::nullopt;
}

std::optional<std::int64_t> PropertyListValue::asInteger() const {
    const std::int64_t* integer = std::get_if<std::int64_t>(&m_value);
    return integer ? std::optional(*integer) : std::nullopt;
}

std::optional<double> PropertyListValue::asReal() const {
    const double* real = std::get_if<double>(&m_value);
    return real ? std::optional(*real) : std::nullopt;
}

std::optional<bool> PropertyListValue::asBoolean() const {
    const bool* boolean = std::get_if<bool>(&m_value);
    return boolean ? std::optional(*boolean) : std::nullopt;
}

std::optional<double> PropertyListValue::number() const {
    if (const auto boolean = asBoolean())
        return *boolean ? 1.0 : 0.0;
    if (const auto integer = asInteger())
        return double(*integer);
    if (const auto real = asReal(); real && std::isfinite(*real))
        return real;
    return std::nullopt;
}

std::int64_t PropertyListValue::toInteger() const {
    if (const auto integer = asInteger())
        return *integer;
    const double value = number().value_or(0);
    // 2^63 is the first double that does not fit into a 64-bit integer.
    constexpr double kLimit = 9223372036854775808.0;
    if (value >= kLimit)
        return std::numeric_limits<std::int64_t>::max();
    if (value < -kLimit)
        return std::numeric_limits<std::int64_t>::min();
    return std::int64_t(value);
}

bool PropertyListValue::toBool() const {
    return number().value_or(0) != 0;
}

QString PropertyListValue::toString() const {
    const QString* text = asString();
    return text ? *text : QString();
}

bool operator==(const PropertyListValue& a, const PropertyListValue& b) {
    if (a.m_value.index() != b.m_value.index())
        return false;
    if (const auto* array = a.asArray())
        return array == b.asArray() || *array == *b.asArray();
    if (const auto* dictionary = a.asDictionary())
        return dictionary == b.asDictionary() || *dictionary == *b.asDictionary();
    return a.m_value == b.m_value;
}

PropertyListDictionary::PropertyListDictionary(std::initializer_list<Entry> entries) {
    reserve(entries.size());
    for (const Entry& entry : entries)
        insert(entry.first, entry.second);
}

void PropertyListDictionary::insert(QString key, PropertyListValue value) {
    if (value.isAbsent())
        return;
    if (const auto index = indexOf(key)) {
        m_entries[*index].second = std::move(value);
        return;
    }
    m_entries.emplace_back(std::move(key), std::move(value));
    if (2 * m_entries.size() <= m_slots.size())
        m_slots[slotOf(m_entries.back().first)] = std::uint32_t(m_entries.size() - 1);
    else
        rebuildIndex();
}

const PropertyListValue& PropertyListDictionary::value(const QString& key) const {
    static const PropertyListValue kAbsent;
    const auto index = indexOf(key);
    return index ? m_entries[*index].second : kAbsent;
}

void PropertyListDictionary::remove(const QString& key) {
    const auto index = indexOf(key);
    if (!index)
        return;
    m_entries.erase(m_entries.begin() + std::ptrdiff_t(*index));
    rebuildIndex();
}

std::optional<std::size_t> PropertyListDictionary::indexOf(const QString& key) const {
    if (!m_slots.empty()) {
        const std::uint32_t entry = m_slots[slotOf(key)];
        return entry == kNoEntry ? std::nullopt : std::optional<std::size_t>(entry);
    }
    const auto found = std::ranges::find(m_entries, key, &Entry::first);
    return found == m_entries.end() ? std::nullopt : std::optional(std::size_t(found - m_entries.begin()));
}

std::size_t PropertyListDictionary::slotOf(const QString& key) const {
    std::size_t slot = qHash(key, QHashSeed::globalSeed()) & (m_slots.size() - 1);
    while (m_slots[slot] != kNoEntry && m_entries[m_slots[slot]].first != key)
        slot = (slot + 1) & (m_slots.size() - 1);
    return slot;
}

void PropertyListDictionary::rebuildIndex() {
    m_slots.clear();
    if (m_entries.size() <= kIndexedFrom)
        return;
    m_slots.resize(std::bit_ceil(3 * m_entries.size()), kNoEntry);
    for (std::size_t i = 0; i < m_entries.size(); ++i)
        m_slots[slotOf(m_entries[i].first)] = std::uint32_t(i);
}

bool operator==(const PropertyListDictionary& a, const PropertyListDictionary& b) {
    return a.size() == b.size() && std::ranges::all_of(a, [&](const PropertyListDictionary::Entry& entry) {
               return b.value(entry.first) == entry.second;
           });
}
