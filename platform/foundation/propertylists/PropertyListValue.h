// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/time/Date.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

class PropertyListValue;
class PropertyListDictionary;

using PropertyListArray = std::vector<PropertyListValue>;

// A value as property lists know it: text, integer, real, boolean, date, data, array or dictionary.
// Default-made it is none of them, which stands for "absent". Arrays and dictionaries are immutable once
// wrapped and shared between copies, so copying any value is cheap.
class PropertyListValue {
public:
    PropertyListValue() = default;

    PropertyListValue(QString text)
        : m_value(std::move(text)) {}

    PropertyListValue(bool value)
        : m_value(value) {}

    PropertyListValue(int value)
        : m_value(std::int64_t(value)) {}

    PropertyListValue(std::int64_t value)
        : m_value(value) {}

    PropertyListValue(double value)
        : m_value(value) {}

    PropertyListValue(Date value)
        : m_value(value) {}

    PropertyListValue(QByteArray data)
        : m_value(std::move(data)) {}

    PropertyListValue(PropertyListArray array);
    PropertyListValue(PropertyListDictionary dictionary);
    // Pointers would turn into booleans.
    PropertyListValue(const char*) = delete;
    PropertyListValue(const char16_t*) = delete;

    bool isAbsent() const { return std::holds_alternative<std::monostate>(m_value); }

    // Each answers null or absent when the value is of another type.
    const QString* asString() const { return std::get_if<QString>(&m_value); }

    const QByteArray* asData() const { return std::get_if<QByteArray>(&m_value); }

    const PropertyListArray* asArray() const;
    const PropertyListDictionary* asDictionary() const;
    std::optional<Date> asDate() const;
    std::optional<std::int64_t> asInteger() const;
    std::optional<double> asReal() const;
    std::optional<bool> asBoolean() const;

    // An integer, a real or a boolean, as a number; absent for anything else, and for a real that is not
    // finite.
    std::optional<double> number() const;
    // The same as a whole number, cut off and kept within range; 0 for anything else.
    std::int64_t toInteger() const;
    // Whether a number differs from zero; false for anything else.
    bool toBool() const;
    // The text, or an empty one.
    QString toString() const;

    friend bool operator==(const PropertyListValue& a, const PropertyListValue& b);

private:
    std::variant<std::monostate, QString, std::int64_t, double, bool, Date, QByteArray,
                 std::shared_ptr<const PropertyListArray>, std::shared_ptr<const PropertyListDictionary>>
        m_value;
};

// Text keys with values, in the order in which the keys were first entered.
class PropertyListDictionary {
public:
    using Entry = std::pair<QString, PropertyListValue>;

    PropertyListDictionary() = default;
    PropertyListDictionary(std::initializer_list<Entry> entries);

    // Enters `value`, or replaces what stands under `key`, which then keeps its place. An absent value is not
    // entered.
    void insert(QString key, PropertyListValue value);
    // The value under `key`, or an absent one. Valid until the dictionary changes.
    const PropertyListValue& value(const QString& key) const;

    bool contains(const QString& key) const { return !value(key).isAbsent(); }

    // Linear in the size.
    void remove(const QString& key);

    void reserve(std::size_t count) { m_entries.reserve(count); }

    std::size_t size() const { return m_entries.size(); }

    bool isEmpty() const { return m_entries.empty(); }

    auto begin() const { return m_entries.begin(); }

    auto end() const { return m_entries.end(); }

    // Equal whatever the order.
    friend bool operator==(const PropertyListDictionary& a, const PropertyListDictionary& b);

private:
    std::optional<std::size_t> indexOf(const QString& key) const;
    // The slot where a key stands, or would.
    std::size_t slotOf(const QString& key) const;
    void rebuildIndex();

    std::vector<Entry> m_entries;
    // Only of dictionaries that are too large to walk: by the key's hash, where an entry stands, or kNoEntry; never more than
    // half full. A file may be one dictionary of millions, so the keys are not held once more.
    static constexpr std::uint32_t kNoEntry = UINT32_MAX;
    std::vector<std::uint32_t> m_slots;
};
