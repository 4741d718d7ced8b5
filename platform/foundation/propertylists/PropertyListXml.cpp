// SPDX-License-Identifier: MIT
#include "platform/foundation/propertylists/PropertyListXml.h"

#include "platform/foundation/propertylists/PropertyListText.h"

#include <algorithm>
#include <array>

namespace {

template<class T>
PropertyListValue valueOrAbsent(const std::optional<T>& parsed) {
    return parsed ? PropertyListValue(*parsed) : PropertyListValue();
}

template<bool kValue>
PropertyListValue boolean(const QString& text) {
    return text.trimmed().isEmpty() ? PropertyListValue(kValue) : PropertyListValue();
}

// The frequent ones first.
constexpr std::array kScalars = {
    PropertyListXml::Scalar{QLatin1String("string"),
                            [](const QString& text) { return PropertyListValue(text); }},
    PropertyListXml::Scalar{QLatin1String("real"),
                            [](const QString& text) { return valueOrAbsent(PropertyListText::real(text)); }},
    PropertyListXml::Scalar{QLatin1String("data"),
                            [](const QString& text) { return valueOrAbsent(PropertyListText::data(text)); }},
    PropertyListXml::Scalar{
        QLatin1String("integer"),
        [](const QString& text) { return valueOrAbsent(PropertyListText::integer(text)); }},
    PropertyListXml::Scalar{QLatin1String("true"), boolean<true>},
    PropertyListXml::Scalar{QLatin1String("false"), boolean<false>},
    PropertyListXml::Scalar{QLatin1String("date"),
                            [](const QString& text) { return valueOrAbsent(PropertyListText::date(text)); }},
};

} // namespace

namespace PropertyListXml {

const Scalar* scalar(QAnyStringView name) {
    const auto known = std::ranges::find_if(kScalars, [&](const Scalar& kind) { return kind.name == name; });
    return known == kScalars.end() ? nullptr : &*known;
}

} // namespace PropertyListXml
