// SPDX-License-Identifier: MIT
#include "interface/labels/TKLabelColorList.h"

#include "platform/foundation/text/LocalizedStrings.h"

namespace {

constexpr std::array<const char*, TKLabelColorList::kColors> kNames = {
    QT_TRANSLATE_NOOP("Ticklog", "No Label"), QT_TRANSLATE_NOOP("Ticklog", "Red"),
    QT_TRANSLATE_NOOP("Ticklog", "Orange"),   QT_TRANSLATE_NOOP("Ticklog", "Yellow"),
    QT_TRANSLATE_NOOP("Ticklog", "Green"),    QT_TRANSLATE_NOOP("Ticklog", "Blue"),
    QT_TRANSLATE_NOOP("Ticklog", "Purple")};

} // namespace

const TKLabelColorList& TKLabelColorList::sharedColorList() {
    static const TKLabelColorList kShared;
    return kShared;
}

TKLabelColorList::TKLabelColorList()
    : m_colorList{QColor::fromRgbF(0.0F, 0.0F, 0.0F, 0.0F), QColor::fromRgbF(1.0F, 0.25F, 0.25F),
                  QColor::fromRgbF(1.0F, 0.75F, 0.0F),      QColor::fromRgbF(0.95F, 0.95F, 0.0F),
                  QColor::fromRgbF(0.15F, 0.9F, 0.15F),     QColor::fromRgbF(0.35F, 0.35F, 1.0F),
                  QColor::fromRgbF(0.85F, 0.5F, 0.85F)} {}

QColor TKLabelColorList::colorForTag(int tag) const {
    // As unsigned numbers, negative tags are beyond the end.
    const auto place = unsigned(tag);
    return m_colorList[place < m_colorList.size() ? place : 0];
}

QString TKLabelColorList::nameForTag(int tag) {
    const auto place = unsigned(tag);
    return localized(kNames[place < kNames.size() ? place : 0]);
}
