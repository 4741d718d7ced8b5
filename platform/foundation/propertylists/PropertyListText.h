// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QByteArray>
#include <QStringView>

#include <optional>

// Numbers, dates and data as the XML form writes them, in any locale.
namespace PropertyListText {

// Dates that can be written with a year of four digits.
inline constexpr Date kEarliestDate = Date(std::chrono::sys_days(std::chrono::year(1) / 1 / 1));
inline constexpr Date kLatestDate =
    Date(std::chrono::sys_days(std::chrono::year(10000) / 1 / 1)) - std::chrono::seconds(1);

// Each is absent if `text` has another form; blanks around it are allowed. Decimal or hexadecimal ("0x1F"),
// with or without a sign. A number that 64 bits cannot hold becomes the nearest real.
std::optional<PropertyListValue> integer(QStringView text);
// Also "nan", "inf" and "infinity", upper or lower case. A number beyond the range of doubles becomes
// infinite or zero.
std::optional<double> real(QStringView text);
// "2026-11-20T23:00:00Z", years 1 to 9999, with or without a fraction of a second.
std::optional<Date> date(QStringView text);
// Base64 on any number of lines.
std::optional<QByteArray> data(QStringView text);

// The longest text that the functions below write.
inline constexpr std::size_t kLongestText = 32;

// Each writes at most kLongestText characters and answers where they end.
char* write(char* out, std::int64_t value);
// The shortest text that is read back to the same bits.
char* write(char* out, double value);
// Whole seconds, rounded down, because other programs' readers refuse a file with a fraction. Dates that need
// more than four digits for the year are moved to the nearest one that does not.
char* write(char* out, Date value);

} // namespace PropertyListText
