// SPDX-License-Identifier: MIT
#include "interface/history/PictureColors.h"

#include "Classes/report/ReportNames.h"
#include "interface/labels/TKLabelColorList.h"
#include "interface/shell/Contrast.h"

#include <QCryptographicHash>

#include <algorithm>
#include <array>

namespace {

// Matthew Petroff's ten, without the two greys ("Accessible Color Sequences for Data Visualization", 2021); then a
// second tone of each for those who come later. Any two are apart in the eyes of the colour-blind too.
constexpr std::array<QRgb, PictureColors::kSlots> kOnLight{
    0x3f90da, 0xffa90e, 0xbd1f01, 0x832db6, 0xa96b59, 0xe76300, 0xb9ac70, 0x92dadd,
    0x234f78, 0xffd07a, 0x6e1201, 0x341249, 0x53342c, 0xed8d45, 0xddd6b9, 0x557e80};
// The same hues, of which each is so much lighter that it stands out from a dark ground and is no more alike
// than above: lightening blue and purple by as much would make them one colour to many.
constexpr std::array<QRgb, PictureColors::kSlots> kOnDark{
    0x73aee4, 0xffb124, 0xc9472f, 0x9953c3, 0xb17868, 0xed883d, 0xcac092, 0xcdeeef,
    0x285c8c, 0xffe2ad, 0xebbab0, 0x6b2595, 0x674136, 0x863900, 0xa89d66, 0x598587};
constexpr QRgb kGrey = 0x94a4a2;
constexpr QRgb kDarkGrey = 0x717581;
constexpr double kOutlineContrast = 3;

QColor mixed(const QColor& one, const QColor& other, double ofOther) {
    const auto part = [&](float a, float b) { return a + (b - a) * float(ofOther); };
    const QColor exact = QColor::fromRgbF(part(one.redF(), other.redF()), part(one.greenF(), other.greenF()),
                                          part(one.blueF(), other.blueF()));
    // As it is painted.
    return QColor::fromRgb(exact.rgb());
}

// 65,536 are enough to tell a person's programs apart; each stands for many of the world's.
QString keyOf(PictureColors::Kind kind, const QString& name) {
    const QByteArray digest = QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha256).first(2);
    return (kind == PictureColors::Kind::Program ? QStringLiteral("program ") : QStringLiteral("project ")) +
           QString::fromLatin1(digest.toHex());
}

bool isNobody(const QString& name) {
    return name.isEmpty() || name == kNoProject;
}

std::optional<int> slotIn(const PropertyListDictionary& kept, const QString& key) {
    const auto slot = kept.value(key).asInteger();
    if (!slot || *slot < 0 || *slot >= PictureColors::kSlots)
        return std::nullopt;
    return int(*slot);
}

} // namespace

PictureColors::PictureColors(UserDefaults& settings, std::function<int(const QString&)> labelOf)
    : m_settings(settings)
    , m_labelOf(std::move(labelOf)) {}

QList<QColor> PictureColors::colors(Kind kind, const QStringList& names, const QPalette& palette) const {
    const QList<int> slots_ = slotsOf(kind, names);
    const auto& table = isDark(palette) ? kOnDark : kOnLight;
    QList<QColor> colors;
    for (qsizetype i = 0; i < names.size(); ++i) {
        const int label = kind == Kind::Project && m_labelOf ? m_labelOf(names[i]) : 0;
        const QColor labelled = TKLabelColorList::sharedColorList().colorForTag(label);
        colors << (isNobody(names[i])      ? nobody(palette)
                   : labelled.alpha() != 0 ? labelled
                                           : QColor::fromRgb(table[std::size_t(slots_[i])]));
    }
    return colors;
}

QList<int> PictureColors::slotsOf(Kind kind, const QStringList& names) const {
    const PropertyListValue& setting = m_settings.object(kHistoryColors);
    PropertyListDictionary kept = setting.asDictionary() ? *setting.asDictionary() : PropertyListDictionary();
    const QString prefix = keyOf(kind, {}).section(u' ', 0, 0);
    std::array<int, kSlots> users{};
    for (const auto& [key, slot] : kept)
        if (const auto known = slotIn(kept, key); known && key.startsWith(prefix))
            ++users[std::size_t(*known)];
    QList<int> slots_;
    bool isNew = false;
    for (const QString& name : names) {
        const QString key = keyOf(kind, name);
        auto slot = isNobody(name) ? 0 : slotIn(kept, key);
        if (!slot) {
            slot = int(std::ranges::min_element(users) - users.begin());
            ++users[std::size_t(*slot)];
            kept.insert(key, *slot);
            isNew = true;
        }
        slots_ << *slot;
    }
    if (isNew) {
        PropertyListDictionary newest;
        const std::size_t tooMany = kept.size() - std::min(kept.size(), kMostKept);
        for (auto entry = kept.begin() + std::ptrdiff_t(tooMany); entry != kept.end(); ++entry)
            newest.insert(entry->first, entry->second);
        m_settings.setObject(kHistoryColors, std::move(newest));
    }
    return slots_;
}

QColor PictureColors::idle(const QPalette& palette) {
    return mixed(palette.color(QPalette::Window), QColor::fromRgb(kGrey), 0.4);
}

QColor PictureColors::other(const QPalette& palette) {
    const QColor grey = QColor::fromRgb(kDarkGrey);
    return isDark(palette) ? mixed(grey, Qt::white, 0.25) : grey;
}

QColor PictureColors::nobody(const QPalette& palette) {
    return mixed(QColor::fromRgb(kGrey), palette.color(QPalette::Window), 0.25);
}

QColor PictureColors::outline(const QColor& fill, const QPalette& palette) {
    const QColor ground = palette.color(QPalette::Window);
    const QColor towards = Contrast::luminance(ground) > 0.18 ? Qt::black : Qt::white;
    // Even fills that need none have one, so that neighbours of a like colour are apart.
    for (double part = 0.25; part < 1; part += 0.05)
        if (const QColor line = mixed(fill, towards, part); contrast(line, ground) >= kOutlineContrast)
            return line;
    return towards;
}

QColor PictureColors::textOn(const QColor& fill) {
    return contrast(fill, Qt::black) >= contrast(fill, Qt::white) ? Qt::black : Qt::white;
}

double PictureColors::contrast(const QColor& one, const QColor& other) {
    return Contrast::of(one, other);
}

bool PictureColors::isDark(const QPalette& palette) {
    return Contrast::luminance(palette.color(QPalette::Window)) <
           Contrast::luminance(palette.color(QPalette::WindowText));
}
