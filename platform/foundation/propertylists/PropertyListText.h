// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QByteArray>
#include <QStringView>

#include <optional>

// Numbers, dates and data as the XML form of property lists spells them, whatever the locale.
namespace PropertyListText {

// Dates that can be written down with four digits for the year.
inline constexpr Date kEarliestDate = Date(std::chrono::sys_days(std::chrono::year(1) / 1 / 1));
inline constexpr Date kLatestDate =
    Date(std::chrono::sys_days(std::chrono::year(10000) / 1 / 1)) - std::chrono::seconds(1);

// Each is absent when `text` is no such thing; blanks around it do not matter.
// Decimal or hexadecimal ("0x1F"), with or without a sign. What 64 bits cannot hold becomes the nearest real.
std::optional<PropertyListValue> integer(QStringView text);
// Also "nan", "inf" and "infinity" in any case. Beyond the range of doubles it is infinite or zero.
std::optional<double> real(QStringView text);
// "2026-11-20T23:00:00Z", from the year 1 to 9999, with or without a fraction of the second.
std::optional<Date> date(QStringView text);
// Base64 in any number of lines.
std::optional<QByteArray> data(QStringView text);

// The longest of the texts below.
inline constexpr std::size_t kLongestText = 32;

// Each writes at most kLongestText characters and answers where they end.
char* write(char* out, std::int64_t value);
// The shortest text that reads back to the same bits.
char* write(char* out, double value);
// Whole seconds, cut off downward: other programs' readers refuse a file with a fraction in it. Dates that
// four digits for the year cannot tell are moved to the nearest that they can.
char* write(char* out, Date value);

} // namespace PropertyListText
