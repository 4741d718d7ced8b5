// SPDX-License-Identifier: MIT
#include "Classes/exchange/PasteboardTypes.h"

#include "platform/foundation/propertylists/PropertyList.h"

#include <limits>

QByteArray timerPasteboardData(const std::vector<Identity>& timers) {
    PropertyListArray list;
    list.reserve(timers.size());
    for (const Identity& timer : timers)
        list.emplace_back(timer.bytes());
    return PropertyList::binary(std::move(list));
}

namespace {

// An account with the most timers takes a third of this.
constexpr qsizetype kMostBytes = 16 * 1024 * 1024;

// Reads bytes that another program may have put there.
Result<PropertyListValue> readPasteboard(const QByteArray& bytes) {
    if (bytes.size() > kMostBytes)
        return Failure{Failure::Kind::Refused, QStringLiteral("too much on the pasteboard")};
    return PropertyList::read(bytes);
}

} // namespace

std::optional<std::vector<Identity>> timersFromPasteboard(const QByteArray& bytes) {
    const auto value = readPasteboard(bytes);
    const PropertyListArray* list = value ? value->asArray() : nullptr;
    if (!list)
        return std::nullopt;
    std::vector<Identity> timers;
    for (const PropertyListValue& element : *list)
        if (const QByteArray* data = element.asData())
            if (const auto timer = Identity::fromBytes(*data))
                timers.push_back(*timer);
    return timers;
}

QByteArray projectPasteboardData(int row) {
    return PropertyList::binary(row);
}

std::optional<int> projectRowFromPasteboard(const QByteArray& bytes) {
    const auto value = readPasteboard(bytes);
    const auto row = value ? value->asInteger() : std::nullopt;
    if (!row || *row < 0 || *row > std::numeric_limits<int>::max())
        return std::nullopt;
    return int(*row);
}
