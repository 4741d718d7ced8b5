// SPDX-License-Identifier: MIT
#include "platform/foundation/propertylists/PropertyListWriter.h"
#include "platform/foundation/values/Assertions.h"
#include "tests/unit/PropertyListSamples.h"

#include <QLocale>
#include <QStringEncoder>

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>

using namespace PropertyListSamples;

namespace {

PropertyListValue readValue(const QByteArray& element) {
    return readBack(document(element));
}

std::string textOf(const PropertyListValue& value) {
    return PropertyList::xml(value).toStdString();
}

TEST(PropertyListXml, everyKind_comesBackAsItWas) {
    const PropertyListValue value = everyKind();
    const QByteArray bytes = PropertyList::xml(value);
    EXPECT_EQ(failureOf(bytes), "read");
    EXPECT_EQ(readBack(bytes), value);
}

TEST(PropertyListXml, aValue_isWrittenTheCustomaryWay) {
    const PropertyListValue value = PropertyListDictionary{
        {QStringLiteral("Version"), QStringLiteral("1.5")},
        {QStringLiteral("Apps"),
         PropertyListArray{PropertyListDictionary{{QStringLiteral("ActiveTime"), 12.5}}}},
        {QStringLiteral("LastResetDate"),
         Date(std::chrono::sys_days(std::chrono::year(2026) / 11 / 20)) + std::chrono::hours(23)},
        {QStringLiteral("UUID"), QByteArray("\x01\x02\x03\x04\x05\x06\x07\x08")},
        {QStringLiteral("Branched"), true},
    };
    EXPECT_EQ(textOf(value), R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
	<key>Version</key>
	<string>1.5</string>
	<key>Apps</key>
	<array>
		<dict>
			<key>ActiveTime</key>
			<real>12.5</real>
		</dict>
	</array>
	<key>LastResetDate</key>
	<date>2026-11-20T23:00:00Z</date>
	<key>UUID</key>
	<data>AQIDBAUGBwg=</data>
	<key>Branched</key>
	<true/>
</dict>
</plist>
)");
}

TEST(PropertyListXml, keys_keepTheOrderInWhichTheyWereEntered) {
    PropertyListDictionary dictionary;
    for (int i = 0; i < 100; ++i)
        dictionary.insert(QString::number(i * 37 % 100), i);
    const PropertyListValue read = readBack(PropertyList::xml(dictionary));
    ASSERT_NE(read.asDictionary(), nullptr);
    int expected = 0;
    for (const auto& [key, value] : *read.asDictionary())
        EXPECT_EQ(value.toInteger(), expected++) << key.toStdString();
    EXPECT_EQ(expected, 100);
}

TEST(PropertyListXml, aKeyThatReturns_keepsItsPlaceAndTakesTheLastValue) {
    const PropertyListValue value =
        readValue("<dict><key>a</key><integer>1</integer><key>b</key><integer>2</integer>"
                  "<key>a</key><integer>3</integer></dict>");
    ASSERT_NE(value.asDictionary(), nullptr);
    EXPECT_EQ(value.asDictionary()->size(), 2u);
    EXPECT_EQ(value.asDictionary()->begin()->second.toInteger(), 3);
}

TEST(PropertyListXml, charactersThatXmlCannotHold_becomeReplacements) {
    const QChar lone(0xD800);
    const QString text = QStringLiteral("a\u0001b\uFFFEc\uFFFF") + lone + u'd' + QChar(0xDC00) + QChar(u'\0');
    const PropertyListValue read = readBack(PropertyList::xml(text));
    EXPECT_EQ(read.toString(), QStringLiteral("a\uFFFDb\uFFFDc\uFFFD\uFFFDd\uFFFD\uFFFD"));
}

TEST(PropertyListXml, longTexts_areCutNowhere) {
    // A pair of surrogates on every boundary of the writer's pieces.
    for (const int lead : {0, 1, 4095, 4096, 65535, 65536}) {
        QString text(lead, u'<');
        for (int i = 0; i < 5000; ++i)
            text += QStringLiteral("\U0001F600");
        EXPECT_EQ(readBack(PropertyList::xml(text)).toString(), text) << lead;
    }
    const QByteArray data(1'000'000, 'x');
    EXPECT_EQ(*readBack(PropertyList::xml(data)).asData(), data);
}

TEST(PropertyListXml, reals_comeBackToTheLastBit) {
    for (const double number :
         {0.1, -0.0, 5e-324, 1e300, 16777217.3, 712345678.987654, std::numeric_limits<double>::infinity(),
          -std::numeric_limits<double>::infinity()}) {
        const auto read = readBack(PropertyList::xml(number)).asReal();
        ASSERT_TRUE(read) << number;
        EXPECT_EQ(std::bit_cast<std::uint64_t>(*read), std::bit_cast<std::uint64_t>(number)) << number;
    }
    const PropertyListValue nan = readBack(PropertyList::xml(std::numeric_limits<double>::quiet_NaN()));
    ASSERT_TRUE(nan.asReal());
    EXPECT_TRUE(std::isnan(*nan.asReal()));
    EXPECT_FALSE(nan.number());
    EXPECT_FALSE(readValue("<real>inf</real>").number());
}

TEST(PropertyListXml, realsOfOtherWriters_areUnderstood) {
    const std::pair<const char*, double> kRows[] = {
        {"1", 1},        {" 2.5\n", 2.5}, {"+3", 3},   {"-4e2", -400}, {"1E-3", 0.001},
        {"0.000000", 0}, {"1e-999", 0},   {".5", 0.5}, {"7.", 7},
    };
    for (const auto& [text, number] : kRows) {
        const auto read = readValue(QByteArray("<real>") + text + "</real>").asReal();
        ASSERT_TRUE(read) << text;
        EXPECT_EQ(*read, number) << text;
    }
    for (const char* infinite : {"inf", "+infinity", "INF", "Infinity", "1e999"})
        EXPECT_EQ(readValue(QByteArray("<real>") + infinite + "</real>").asReal(),
                  std::numeric_limits<double>::infinity())
            << infinite;
}

TEST(PropertyListXml, integersOfOtherWriters_areUnderstood) {
    const std::pair<const char*, std::int64_t> kRows[] = {
        {"0", 0},      {"-5", -5},
        {"+7", 7},     {" 12 ", 12},
        {"0x1F", 31},  {"-0x10", -16},
        {"007", 7},    {"-9223372036854775808", INT64_MIN},
        {"0XfF", 255}, {"9223372036854775807", INT64_MAX},
    };
    for (const auto& [text, number] : kRows)
        EXPECT_EQ(readValue(QByteArray("<integer>") + text + "</integer>").asInteger(), number) << text;
}

TEST(PropertyListXml, anIntegerBeyond64Bits_becomesTheNearestReal) {
    EXPECT_EQ(readValue("<integer>18446744073709551615</integer>").asReal(), 18446744073709551615.0);
    EXPECT_EQ(readValue("<integer>-9223372036854775809</integer>").asReal(), -9223372036854775809.0);
    EXPECT_EQ(readValue("<integer>0x10000000000000000</integer>").asReal(), 0x1p64);
    EXPECT_EQ(readValue("<integer>18446744073709551615</integer>").toInteger(), INT64_MAX);
}

TEST(PropertyListXml, datesOfOtherWriters_areUnderstood) {
    const auto day = [](int year, unsigned month, unsigned dayOfMonth) {
        return Date(std::chrono::sys_days(std::chrono::year(year) / int(month) / int(dayOfMonth)));
    };
    using namespace std::chrono_literals;
    const std::pair<const char*, Date> kRows[] = {
        {"2026-11-20T23:00:00Z", day(2026, 11, 20) + 23h},
        {"2026-11-20T23:00:00.25Z", day(2026, 11, 20) + 23h + 250ms},
        {"2026-11-20T23:00:00.1234567Z", day(2026, 11, 20) + 23h + 123456us},
        {"0001-01-01T19:00:00Z", day(1, 1, 1) + 19h},
        {"1-01-01T19:00:00Z", day(1, 1, 1) + 19h},
        {"9999-12-31T23:59:59Z", day(9999, 12, 31) + 24h - 1s},
        {"2024-02-29T00:00:00Z", day(2024, 2, 29)},
        {"2016-12-31T23:59:60Z", day(2017, 1, 1)},
        {"\n 1969-12-31T23:59:59Z ", day(1970, 1, 1) - 1s},
    };
    for (const auto& [text, date] : kRows)
        EXPECT_EQ(readValue(QByteArray("<date>") + text + "</date>").asDate(), date) << text;
}

TEST(PropertyListXml, aDateWithAFraction_isWrittenInWholeSeconds) {
    const Date date = Date(std::chrono::seconds(-1)) + std::chrono::microseconds(999'999);
    EXPECT_EQ(readBack(PropertyList::xml(date)).asDate(), Date(std::chrono::seconds(-1)));
}

TEST(PropertyListXml, aDateThatFourDigitsCannotTell_isMovedToTheNearest) {
    EXPECT_NE(textOf(Date::min()).find("<date>0001-01-01T00:00:00Z"), std::string::npos);
    EXPECT_NE(textOf(Date::max()).find("<date>9999-12-31T23:59:59Z"), std::string::npos);
}

TEST(PropertyListXml, whatCannotBeParsed_isDamageThatNamesItsLine) {
    const std::pair<const char*, const char*> kRows[] = {
        {"\n\n<date>garbage</date>", "line 4: what stands in <date> is none"},
        {"<date>2026-11-20</date>", "line 2: what stands in <date> is none"},
        {"<date>2026-02-29T00:00:00Z</date>", "line 2: what stands in <date> is none"},
        {"<date>2026-01-01T24:00:00Z</date>", "line 2: what stands in <date> is none"},
        {"<date>0000-01-01T00:00:00Z</date>", "line 2: what stands in <date> is none"},
        {"<date/>", "line 2: what stands in <date> is none"},
        {"<integer>1.5</integer>", "line 2: what stands in <integer> is none"},
        {"<integer></integer>", "line 2: what stands in <integer> is none"},
        {"<integer>--1</integer>", "line 2: what stands in <integer> is none"},
        {"<integer>0x</integer>", "line 2: what stands in <integer> is none"},
        {"<real>1,5</real>", "line 2: what stands in <real> is none"},
        {"<real>+-1</real>", "line 2: what stands in <real> is none"},
        {"<real>nan(1)</real>", "line 2: what stands in <real> is none"},
        {"<true>no</true>", "line 2: what stands in <true> is none"},
        {"<data>a*b=</data>", "line 2: what stands in <data> is none"},
        {"<null/>", "line 2: <null> is no kind of value"},
        {"<string>a<b/></string>", "line 2: <b> inside of text"},
        {"<dict><string>a</string></dict>", "line 2: <string> without a key"},
        {"<dict><key>a</key></dict>", "line 2: a key without a value"},
        {"<dict><key>a</key><key>b</key></dict>", "line 2: a key where none belongs"},
        {"<array><key>a</key></array>", "line 2: a key where none belongs"},
        {"<true/><true/>", "line 2: more than one value"},
        {"<plist/>", "line 2: a property list inside the property list"},
        {"<array>text</array>", "line 2: text between the elements"},
        {"", "line 3: the property list is empty"},
    };
    for (const auto& [inner, failure] : kRows)
        EXPECT_EQ(failureOf(document(inner)), failure);
}

TEST(PropertyListXml, commentsAndCharacterData_areTakenInStride) {
    const PropertyListValue value =
        readBack("<!-- <!DOCTYPE a [ --><?x <!DOCTYPE [ ?><plist><!-- b --><array><?y?>"
                 "<string>a<!-- c --><![CDATA[<b>&]]>&#65;&lt;</string></array></plist>");
    ASSERT_NE(value.asArray(), nullptr);
    EXPECT_EQ(value.asArray()->front().toString(), QStringLiteral("a<b>&A<"));
}

TEST(PropertyListXml, aValueWithoutThePlistElement_isRead) {
    EXPECT_EQ(readBack("<array><true/></array>"), PropertyListValue(PropertyListArray{true}));
}

TEST(PropertyListXml, otherEncodings_areRead) {
    const QString text = QStringLiteral("<plist><string>zwölf</string></plist>");
    const auto encoded = [&](QStringConverter::Encoding encoding) {
        QStringEncoder encoder(encoding, QStringConverter::Flag::WriteBom);
        return QByteArray(encoder(text));
    };
    for (const auto encoding : {QStringConverter::Utf8, QStringConverter::Utf16LE, QStringConverter::Utf16BE})
        EXPECT_EQ(readBack(encoded(encoding)).toString(), QStringLiteral("zwölf")) << int(encoding);
    const QByteArray latin = "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" + text.toLatin1();
    EXPECT_EQ(readBack(latin).toString(), QStringLiteral("zwölf"));
    EXPECT_EQ(failureOf("<?xml version=\"1.0\" encoding=\"UTF-7\"?><plist/>"),
              "line 1: the encoding UTF-7 is not known");
}

TEST(PropertyListXml, theLocale_doesNotMatter) {
    const QByteArray expected = PropertyList::xml(everyKind());
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    // If this locale is installed, the C library writes decimal commas.
    const std::string old = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "de_DE.UTF-8");
    EXPECT_EQ(PropertyList::xml(everyKind()), expected);
    EXPECT_EQ(readBack(expected), everyKind());
    EXPECT_EQ(readValue("<real>1.5</real>").asReal(), 1.5);
    std::setlocale(LC_ALL, old.c_str());
    QLocale::setDefault(before);
}

TEST(PropertyListXml, randomValues_comeBackAsTheyWere) {
    const unsigned seed = freshSeed();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    RecordProperty("seed", int(seed));
    Random random(seed);
    for (int i = 0; i < 200; ++i) {
        const PropertyListValue value = random.dictionary(0);
        const QByteArray bytes = PropertyList::xml(value);
        ASSERT_EQ(failureOf(bytes), "read");
        ASSERT_EQ(readBack(bytes), value) << bytes.toStdString();
        ASSERT_EQ(PropertyList::xml(readBack(bytes)), bytes);
    }
}

TEST(PropertyListXml, piecesThatDoNotNest_areABrokenContract) {
    const auto discard = [](const char*, std::size_t) {};
    EXPECT_THROW(PropertyListXmlWriter(discard).endArray(), InternalInconsistency);
    EXPECT_THROW(PropertyListXmlWriter(discard).value({}), InternalInconsistency);
    PropertyListXmlWriter unfinished(discard);
    unfinished.beginArray();
    EXPECT_THROW(unfinished.finish(), InternalInconsistency);
    PropertyListXmlWriter deep(discard);
    for (int i = 0; i < PropertyList::kDepthLimit; ++i)
        deep.beginArray();
    EXPECT_THROW(deep.beginArray(), InternalInconsistency);
}

TEST(PropertyListXml, theBuilder_makesTheValueThatThePiecesSpell) {
    PropertyListBuilder builder;
    builder.value(everyKind());
    EXPECT_EQ(builder.take(), everyKind());
    EXPECT_TRUE(builder.take().isAbsent());
    builder.beginArray();
    EXPECT_TRUE(builder.take().isAbsent());
    EXPECT_THROW(builder.endDictionary(), InternalInconsistency);
    EXPECT_THROW(builder.key(QStringLiteral("a")), InternalInconsistency);
}

} // namespace
