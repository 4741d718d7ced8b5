// SPDX-License-Identifier: MIT
#include "platform/foundation/propertylists/PropertyListText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

// The text without blanks around it, as ASCII with a zero at the end; absent if it has other characters.
// Nobody writes numbers with more digits than this.
class Ascii {
public:
    explicit Ascii(QStringView text) {
        text = text.trimmed();
        if (text.isEmpty() || text.size() >= qsizetype(m_characters.size()))
            return;
        for (const QChar character : text) {
            if (character.unicode() > 0x7E) {
                m_size = 0;
                return;
            }
            m_characters[m_size++] = char(character.unicode());
        }
    }

    const char* begin() const { return m_characters.data(); }

    const char* end() const { return m_characters.data() + m_size; }

    bool isEmpty() const { return m_size == 0; }

    QByteArrayView view() const { return QByteArrayView(begin(), end()); }

private:
    std::array<char, 512> m_characters{};
    std::size_t m_size = 0;
};

// Infinity or zero: from_chars does not say which.
double outOfRange(const char* text) {
    static const locale_t kPlain = newlocale(LC_ALL_MASK, "C", nullptr);
    return strtod_l(text, nullptr, kPlain);
}

// A fixed number of digits; fewer are allowed in the first field.
std::optional<int> digits(const char*& at, const char* end, int least, int most) {
    int value = 0;
    int count = 0;
    for (; at != end && *at >= '0' && *at <= '9' && count < most; ++at, ++count)
        value = value * 10 + (*at - '0');
    return count >= least ? std::optional(value) : std::nullopt;
}

bool skip(const char*& at, const char* end, char expected) {
    if (at == end || *at != expected)
        return false;
    ++at;
    return true;
}

// The microseconds in the digits after the point; further digits are cut off.
std::optional<std::chrono::microseconds> fraction(const char*& at, const char* end) {
    if (!skip(at, end, '.'))
        return std::chrono::microseconds(0);
    const char* const first = at;
    int microseconds = 0;
    int weight = 100000;
    for (; at != end && *at >= '0' && *at <= '9'; ++at, weight /= 10)
        microseconds += weight * (*at - '0');
    return at == first ? std::nullopt : std::optional(std::chrono::microseconds(microseconds));
}

std::optional<Date> calendarDate(const char*& at, const char* end) {
    // Some programs write small years without leading zeros.
    const auto year = digits(at, end, 1, 4);
    if (!year || *year == 0 || !skip(at, end, '-'))
        return std::nullopt;
    const auto month = digits(at, end, 2, 2);
    if (!month || !skip(at, end, '-'))
        return std::nullopt;
    const auto day = digits(at, end, 2, 2);
    if (!day || !skip(at, end, 'T'))
        return std::nullopt;
    const auto date = std::chrono::year(*year) / *month / *day;
    return date.ok() ? std::optional(Date(std::chrono::sys_days(date))) : std::nullopt;
}

std::optional<std::chrono::microseconds> timeOfDay(const char*& at, const char* end) {
    const auto hours = digits(at, end, 2, 2);
    if (!hours || *hours > 23 || !skip(at, end, ':'))
        return std::nullopt;
    const auto minutes = digits(at, end, 2, 2);
    if (!minutes || *minutes > 59 || !skip(at, end, ':'))
        return std::nullopt;
    const auto seconds = digits(at, end, 2, 2);
    // A leap second counts as the first second of the next minute.
    if (!seconds || *seconds > 60)
        return std::nullopt;
    const auto rest = fraction(at, end);
    if (!rest)
        return std::nullopt;
    return std::chrono::hours(*hours) + std::chrono::minutes(*minutes) + std::chrono::seconds(*seconds) +
           *rest;
}

char* writeDigits(char* out, unsigned value, int count) {
    for (int i = count - 1; i >= 0; --i, value /= 10)
        out[i] = char('0' + value % 10);
    return out + count;
}

} // namespace

namespace PropertyListText {

std::optional<PropertyListValue> integer(QStringView text) {
    const Ascii ascii(text);
    const char* at = ascii.begin();
    const bool negative = skip(at, ascii.end(), '-');
    if (!negative)
        skip(at, ascii.end(), '+');
    const bool hexadecimal = ascii.end() - at > 2 && at[0] == '0' && (at[1] == 'x' || at[1] == 'X');
    if (hexadecimal)
        at += 2;
    std::uint64_t magnitude = 0;
    const auto [end, error] = std::from_chars(at, ascii.end(), magnitude, hexadecimal ? 16 : 10);
    if (end != ascii.end() || end == at)
        return std::nullopt;
    constexpr std::uint64_t kLargest = std::numeric_limits<std::int64_t>::max();
    if (error == std::errc() && magnitude <= kLargest + (negative ? 1 : 0))
        return PropertyListValue(std::int64_t(negative ? 0 - magnitude : magnitude));
    double value = 0;
    std::from_chars(at, ascii.end(), value,
                    hexadecimal ? std::chars_format::hex : std::chars_format::general);
    return PropertyListValue(negative ? -value : value);
}

std::optional<double> real(QStringView text) {
    const Ascii ascii(text);
    const char* at = ascii.begin();
    const bool signedPlus = skip(at, ascii.end(), '+');
    // Two signs are not allowed, and "nan(…)" has no known meaning.
    if (ascii.isEmpty() || (signedPlus && at != ascii.end() && *at == '-') || ascii.view().contains('('))
        return std::nullopt;
    double value = 0;
    const auto [end, error] = std::from_chars(at, ascii.end(), value);
    if (end != ascii.end() || end == at)
        return std::nullopt;
    if (error == std::errc::result_out_of_range)
        return outOfRange(at);
    return value;
}

std::optional<Date> date(QStringView text) {
    const Ascii ascii(text);
    const char* at = ascii.begin();
    const auto day = calendarDate(at, ascii.end());
    if (!day)
        return std::nullopt;
    const auto time = timeOfDay(at, ascii.end());
    if (!time || !skip(at, ascii.end(), 'Z') || at != ascii.end())
        return std::nullopt;
    return *day + *time;
}

std::optional<QByteArray> data(QStringView text) {
    QByteArray base64;
    base64.reserve(text.size());
    for (const QChar character : text) {
        if (character.unicode() > 0x7E)
            return std::nullopt;
        if (!character.isSpace())
            base64.append(char(character.unicode()));
    }
    const auto decoded =
        QByteArray::fromBase64Encoding(std::move(base64), QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? std::optional(decoded.decoded) : std::nullopt;
}

char* write(char* out, std::int64_t value) {
    return std::to_chars(out, out + kLongestText, value).ptr;
}

char* write(char* out, double value) {
    // Some readers do not understand the sign of a NaN.
    if (std::isnan(value))
        return std::copy_n("nan", 3, out);
    return std::to_chars(out, out + kLongestText, value).ptr;
}

char* write(char* out, Date value) {
    const auto seconds =
        std::chrono::floor<std::chrono::seconds>(std::clamp(value, kEarliestDate, kLatestDate));
    const auto day = std::chrono::floor<std::chrono::days>(seconds);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss time(seconds - day);
    out = writeDigits(out, unsigned(int(date.year())), 4);
    *out++ = '-';
    out = writeDigits(out, unsigned(date.month()), 2);
    *out++ = '-';
    out = writeDigits(out, unsigned(date.day()), 2);
    *out++ = 'T';
    out = writeDigits(out, unsigned(time.hours().count()), 2);
    *out++ = ':';
    out = writeDigits(out, unsigned(time.minutes().count()), 2);
    *out++ = ':';
    out = writeDigits(out, unsigned(time.seconds().count()), 2);
    *out++ = 'Z';
    return out;
}

} // namespace PropertyListText
