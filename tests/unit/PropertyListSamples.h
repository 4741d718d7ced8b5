// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyList.h"

#include <bit>
#include <limits>
#include <random>

// Property lists to try things on.
namespace PropertyListSamples {

// A value of each kind, with its special cases.
inline PropertyListValue everyKind() {
    const Date moment =
        Date(std::chrono::sys_days(std::chrono::year(2026) / 11 / 20)) + std::chrono::hours(23);
    return PropertyListDictionary{
        {QStringLiteral("Text"),
         QStringLiteral("Mail <a&b> \"c\"\ttab\nline\rreturn ü € \U0001F600 \u0085\u2028")},
        {QStringLiteral("Empty text"), QString()},
        {QStringLiteral("Blank"), QStringLiteral(" ")},
        {QStringLiteral("One"), 1},
        {QStringLiteral("Minus one"), -1},
        {QStringLiteral("Large"), std::numeric_limits<std::int64_t>::max()},
        {QStringLiteral("Small"), std::numeric_limits<std::int64_t>::min()},
        {QStringLiteral("Byte"), 255},
        {QStringLiteral("Third"), 1.0 / 3},
        {QStringLiteral("Whole real"), 1.0},
        {QStringLiteral("Tiny"), std::numeric_limits<double>::denorm_min()},
        {QStringLiteral("Huge"), std::numeric_limits<double>::max()},
        {QStringLiteral("Yes"), true},
        {QStringLiteral("No"), false},
        {QStringLiteral("Date"), moment},
        {QStringLiteral("First day"),
         Date(std::chrono::sys_days(std::chrono::year(1) / 1 / 1)) + std::chrono::hours(19)},
        {QStringLiteral("Last day"), Date(std::chrono::sys_days(std::chrono::year(9999) / 12 / 31))},
        {QStringLiteral("Data"), QByteArray("\0\1\2\xff", 4)},
        {QStringLiteral("No data"), QByteArray()},
        {QStringLiteral("Array"), PropertyListArray{1, QStringLiteral("two"), PropertyListArray{}}},
        {QStringLiteral("Empty"), PropertyListDictionary{}},
        {QStringLiteral("Nested"),
         PropertyListDictionary{{QStringLiteral("Z"), 1}, {QStringLiteral("A"), PropertyListArray{true}}}},
        {QStringLiteral("<key> & more"), QStringLiteral("odd key")},
    };
}

// Values made up at random, all of which both forms can hold.
class Random {
public:
    explicit Random(unsigned seed)
        : m_engine(seed) {}

    PropertyListValue value(int depth = 0) {
        const int kind = below(depth < 5 ? 8 : 6);
        switch (kind) {
        case 0:
            return text();
        case 1:
            return std::int64_t(m_engine()) >> below(64);
        case 2:
            return real();
        case 3:
            return below(2) == 1;
        // Whole seconds, because XML keeps no others.
        case 4:
            return Date(std::chrono::seconds(std::int64_t(m_engine() % 250'000'000'000) - 62'135'596'800));
        case 5:
            return text().toUtf8();
        case 6:
            return array(depth);
        default:
            return dictionary(depth);
        }
    }

    PropertyListValue dictionary(int depth) {
        PropertyListDictionary dictionary;
        for (int i = below(24); i > 0; --i)
            dictionary.insert(text(), value(depth + 1));
        return dictionary;
    }

    int below(int limit) { return int(m_engine() % unsigned(limit)); }

private:
    PropertyListValue array(int depth) {
        PropertyListArray array;
        for (int i = below(8); i > 0; --i)
            array.push_back(value(depth + 1));
        return array;
    }

    double real() {
        for (;;) {
            const auto number = std::bit_cast<double>(std::uint64_t(m_engine()));
            if (number == number)
                return number;
        }
    }

    QString text() {
        static const QString kCharacters =
            QStringLiteral("abc XYZ09<>&\"'\t\n\r]-!?;äß€中ф\u2028\uFFFD\u007f\u0085");
        QString text;
        for (int i = below(40); i > 0; --i) {
            if (below(16) == 0)
                text += QStringLiteral("\U0001F600");
            else
                text += kCharacters.at(below(int(kCharacters.size())));
        }
        return text;
    }

    std::mt19937_64 m_engine;
};

// The seed of this run; printed, so that a failure can be repeated.
inline unsigned freshSeed() {
    return std::random_device()();
}

// What was read, or an absent value with the failure's text reported by the caller.
inline PropertyListValue readBack(const QByteArray& bytes) {
    const auto result = PropertyList::read(bytes);
    return result ? *result : PropertyListValue();
}

// The text of a failure, or "read".
inline std::string failureOf(const QByteArray& bytes) {
    const auto result = PropertyList::read(bytes);
    return result ? "read" : result.failure().text.toStdString();
}

// A whole document around `inner`.
inline QByteArray document(const QByteArray& inner) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + inner + "</plist>\n";
}

} // namespace PropertyListSamples
