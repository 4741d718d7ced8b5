// SPDX-License-Identifier: MIT
#include "platform/foundation/text/LocalizedStrings.h"

#include <QCoreApplication>

#include <array>
#include <cstring>
#include <utility>

namespace {

// English has the same plural for two, none and many; other languages have texts of their own for these keys.
constexpr std::array<std::pair<const char*, const char*>, 4> kEnglish{{
    {"%ld hour-2", "%ld hours"},
    {"%ld minute-2", "%ld minutes"},
    {"%ld second-2", "%ld seconds"},
    {"%ld second-0", "%ld seconds"},
}};

} // namespace

QString localized(const char* key) {
    const QString translated = QCoreApplication::translate("Ticklog", key);
    if (translated != QLatin1String(key))
        return translated;
    for (const auto& [known, english] : kEnglish)
        if (std::strcmp(known, key) == 0)
            return QLatin1String(english);
    return translated;
}
