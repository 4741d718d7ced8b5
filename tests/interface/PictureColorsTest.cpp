// SPDX-License-Identifier: MIT
#include "interface/history/PictureColors.h"

#include "Classes/report/ReportNames.h"
#include "interface/labels/TKLabelColorList.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "tests/fakes/FakePlatform.h"

#include <QSet>

#include <cmath>
#include <gtest/gtest.h>

namespace {

using Kind = PictureColors::Kind;

QPalette light() {
    return {Qt::black, QColor(0xef, 0xef, 0xef)};
}

QPalette dark() {
    QPalette palette(QColor(0x2b, 0x2d, 0x30));
    palette.setColor(QPalette::WindowText, Qt::white);
    return palette;
}

QStringList names(int count) {
    QStringList names;
    for (int i = 0; i < count; ++i)
        names << QStringLiteral("Program %1").arg(i);
    return names;
}

// How a colour looks to somebody without one kind of cones (Machado and others, 2009), as CIE L*a*b*.
std::array<double, 3> seen(const QColor& color, const std::array<double, 9>& eye) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    const std::array light{linear(color.redF()), linear(color.greenF()), linear(color.blueF())};
    std::array<double, 3> rgb{};
    for (std::size_t i = 0; i < 3; ++i)
        rgb[i] = std::clamp(eye[3 * i] * light[0] + eye[3 * i + 1] * light[1] + eye[3 * i + 2] * light[2],
                            0.0, 1.0);
    const auto curved = [](double t) { return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16.0 / 116; };
    const double x = curved((0.4124 * rgb[0] + 0.3576 * rgb[1] + 0.1805 * rgb[2]) / 0.9505);
    const double y = curved(0.2126 * rgb[0] + 0.7152 * rgb[1] + 0.0722 * rgb[2]);
    const double z = curved((0.0193 * rgb[0] + 0.1192 * rgb[1] + 0.9505 * rgb[2]) / 1.089);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

const std::vector<std::pair<const char*, std::array<double, 9>>> kEyes{
    {"usual", {1, 0, 0, 0, 1, 0, 0, 0, 1}},
    {"protan", {0.152286, 1.052583, -0.204868, 0.114503, 0.786281, 0.099216, -0.003882, -0.048116, 1.051998}},
    {"deutan", {0.367322, 0.860646, -0.227968, 0.280085, 0.672501, 0.047413, -0.011820, 0.042940, 0.968881}},
    {"tritan",
     {1.255528, -0.076749, -0.178779, -0.078411, 0.930809, 0.147602, 0.004733, 0.691367, 0.303900}}};

double distance(const QColor& one, const QColor& other, const std::array<double, 9>& eye) {
    const auto a = seen(one, eye);
    const auto b = seen(other, eye);
    return std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]);
}

struct PictureColorsTest : testing::Test {
    const PropertyListDictionary& kept() { return *fakes.defaults.object(kHistoryColors).asDictionary(); }

    FakePlatform fakes;
    PictureColors colors{fakes.defaults,
                         [](const QString& project) { return project == QLatin1String("Meier") ? 3 : 0; }};
};

} // namespace

TEST_F(PictureColorsTest, whoeverWasSeenOnce_keepsItsColor) {
    const QColor mail = colors.color(Kind::Program, QStringLiteral("Mail"), light());
    colors.colors(Kind::Program, names(5), light());
    EXPECT_EQ(colors.color(Kind::Program, QStringLiteral("Mail"), light()), mail);
    const PictureColors next(fakes.defaults);
    EXPECT_EQ(next.color(Kind::Program, QStringLiteral("Mail"), light()), mail) << "after the next start";
}

TEST_F(PictureColorsTest, theFirstOnes_haveAColorEach) {
    const QList<QColor> found = colors.colors(Kind::Program, names(PictureColors::kSlots), light());
    QSet<QRgb> different;
    for (const QColor& color : found)
        different << color.rgb();
    EXPECT_EQ(different.size(), PictureColors::kSlots);
    EXPECT_EQ(found.front(), QColor(0x3f, 0x90, 0xda));
}

TEST_F(PictureColorsTest, programsAndProjects_takeNoColorsFromEachOther) {
    colors.colors(Kind::Program, names(3), light());
    EXPECT_EQ(colors.color(Kind::Project, QStringLiteral("Garden"), light()), QColor(0x3f, 0x90, 0xda));
}

TEST_F(PictureColorsTest, aProjectWithALabel_hasItsColor) {
    EXPECT_EQ(colors.color(Kind::Project, QStringLiteral("Meier"), light()),
              TKLabelColorList::sharedColorList().colorForTag(3));
    EXPECT_NE(colors.color(Kind::Program, QStringLiteral("Meier"), light()),
              TKLabelColorList::sharedColorList().colorForTag(3));
}

TEST_F(PictureColorsTest, nobody_isGreyAndTakesNoColor) {
    for (const QString& name : {QString(), kNoProject})
        EXPECT_EQ(colors.color(Kind::Project, name, light()), PictureColors::nobody(light()));
    EXPECT_TRUE(fakes.defaults.object(kHistoryColors).isAbsent());
}

TEST_F(PictureColorsTest, anyTwo_areApartInEveryEye) {
    for (const QPalette& palette : {light(), dark()}) {
        const QList<QColor> found = colors.colors(Kind::Program, names(PictureColors::kSlots), palette);
        for (const auto& [eye, matrix] : kEyes)
            for (qsizetype i = 0; i < found.size(); ++i)
                for (qsizetype j = 0; j < i; ++j)
                    EXPECT_GT(distance(found[i], found[j], matrix), i < 8 ? 18 : 11)
                        << qPrintable(found[i].name()) << " and " << qPrintable(found[j].name()) << ", "
                        << eye;
    }
}

TEST_F(PictureColorsTest, everyOutline_standsOutFromTheWindow) {
    for (const QPalette& palette :
         {light(), dark(), QPalette(Qt::white, Qt::black), QPalette(Qt::black, Qt::white)}) {
        QList<QColor> fills = colors.colors(Kind::Program, names(PictureColors::kSlots), palette);
        fills << PictureColors::idle(palette) << PictureColors::other(palette)
              << PictureColors::nobody(palette);
        for (int tag = 1; tag < TKLabelColorList::kColors; ++tag)
            fills << TKLabelColorList::sharedColorList().colorForTag(tag);
        for (const QColor& fill : fills)
            EXPECT_GE(PictureColors::contrast(PictureColors::outline(fill, palette),
                                              palette.color(QPalette::Window)),
                      3)
                << qPrintable(fill.name());
    }
}

TEST_F(PictureColorsTest, aText_canBeReadOnEveryColor) {
    for (const QPalette& palette : {light(), dark()})
        for (const QColor& fill : colors.colors(Kind::Program, names(PictureColors::kSlots), palette))
            EXPECT_GE(PictureColors::contrast(PictureColors::textOn(fill), fill), 4.5)
                << qPrintable(fill.name());
}

TEST_F(PictureColorsTest, whatIsKept_tellsNoNames) {
    colors.color(Kind::Program, QStringLiteral("Secret Diary"), light());
    const QString text = QString::fromUtf8(PropertyList::xml(kept()));
    EXPECT_FALSE(text.contains(QStringLiteral("Secret")));
    EXPECT_EQ(kept().begin()->first.size(), 12) << "enough to tell a person's programs apart and no more";
}

TEST_F(PictureColorsTest, whatIsKept_hasAnEnd) {
    colors.color(Kind::Program, QStringLiteral("The first"), light());
    const QString first = kept().begin()->first;
    colors.colors(Kind::Program, names(int(PictureColors::kMostKept) + 50), light());
    EXPECT_EQ(kept().size(), PictureColors::kMostKept);
    EXPECT_FALSE(kept().contains(first));
}

TEST_F(PictureColorsTest, damagedSettings_countAsNotSeen) {
    colors.color(Kind::Program, QStringLiteral("Mail"), light());
    const QString key = kept().begin()->first;
    for (const PropertyListValue& damaged :
         {PropertyListValue(PropertyListDictionary{{key, 16}}),
          PropertyListValue(PropertyListDictionary{{key, -1}}),
          PropertyListValue(PropertyListDictionary{{key, QStringLiteral("blue")}}), PropertyListValue(7)}) {
        fakes.defaults.setObject(kHistoryColors, damaged);
        EXPECT_EQ(colors.color(Kind::Program, QStringLiteral("Mail"), light()), QColor(0x3f, 0x90, 0xda));
        EXPECT_EQ(kept().value(key), PropertyListValue(0));
    }
}

TEST_F(PictureColorsTest, newOnesTogether_areOneChangeOfTheSettings) {
    int changes = 0;
    const Subscription hearing =
        fakes.notifications.observe(kUserDefaultsDidChangeNotification, [&](const auto&) { ++changes; });
    colors.colors(Kind::Program, names(20), light());
    EXPECT_EQ(changes, 1);
    colors.colors(Kind::Program, names(20), light());
    EXPECT_EQ(changes, 1);
}
