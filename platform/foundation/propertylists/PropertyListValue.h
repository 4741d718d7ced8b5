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

// A value of a property list: text, integer, real, boolean, date, data, array or dictionary. Made without
// arguments it is none of them, which means "absent". Arrays and dictionaries cannot change once they are
// wrapped, and copies share them, so copying is cheap.
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
    // Deleted, because pointers would turn into booleans.
    PropertyListValue(const char*) = delete;
    PropertyListValue(const char16_t*) = delete;

    bool isAbsent() const { return std::holds_alternative<std::monostate>(m_value); }

    // Each answers null or absent if the value is of another type.
    const QString* asString() const { return std::get_if<QString>(&m_value); }

    const QByteArray* asData() const { return std::get_if<QByteArray>(&m_value); }

    const PropertyListArray* asArray() const;
    const PropertyListDictionary* asDictionary() const;
    std::optional<Date> asDate() const;
    std::optional<std::int64_t> asInteger() const;
    std::optional<double> asReal() const;
    std::optional<bool> asBoolean() const;

    // The number of an integer, a real or a boolean; absent for anything else, and for a real that is not
    // finite.
    std::optional<double> number() const;
    // The same as an integer: rounded towards zero and kept within range; 0 for anything else.
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

// Values by key, in the order in which the keys were first added.
class PropertyListDictionary {
public:
    using Entry = std::pair<QString, PropertyListValue>;

    PropertyListDictionary() = default;
    PropertyListDictionary(std::initializer_list<Entry> entries);

    // Adds `value`, or replaces the one under `key`, which keeps its place. An absent value is not added.
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

    // Equal in any order.
    friend bool operator==(const PropertyListDictionary& a, const PropertyListDictionary& b);

private:
    std::optional<std::size_t> indexOf(const QString& key) const;
    // The slot of a key, or the free slot for it.
    std::size_t slotOf(const QString& key) const;
    void rebuildIndex();

    std::vector<Entry> m_entries;
    // For dictionaries too large to be searched one by one: by the key's hash, the position of an entry or
    // kNoEntry; at most half full. Keys are not copied here, because a file may be one dictionary with
    // millions of them.
    static constexpr std::uint32_t kNoEntry = UINT32_MAX;
    std::vector<std::uint32_t> m_slots;
};
