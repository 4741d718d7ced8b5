// SPDX-License-Identifier: MIT
#include "platform/foundation/propertylists/PropertyListPlainReader.h"
#include "platform/foundation/propertylists/PropertyListXml.h"
#include "platform/foundation/propertylists/PropertyListXmlReader.h"
#include "tests/unit/PropertyListSamples.h"

#include <gtest/gtest.h>

using namespace PropertyListSamples;

namespace {

std::optional<PropertyListValue> plainly(const QByteArray& bytes) {
    return PropertyListPlainReader(bytes).read();
}

// A document in the usual form, around `inner`.
QByteArray customary(const QByteArray& inner) {
    return PropertyListXml::kHead.toByteArray() + inner + PropertyListXml::kFoot.toByteArray();
}

// "given up", "the same" as the full reader, or what is wrong.
std::string besideTheFullReader(const QByteArray& bytes) {
    const auto plain = plainly(bytes);
    if (!plain)
        return "given up";
    const auto full = PropertyListXmlReader(bytes).read();
    if (!full)
        return "read what is damaged: " + full.failure().text.toStdString();
    // Compared as bytes, because NaN equals nothing.
    return PropertyList::xml(*plain) == PropertyList::xml(*full) ? "the same" : "read something else";
}

TEST(PropertyListPlainReader, whatOurWriterWrites_isReadAtOnce) {
    const PropertyListValue value = everyKind();
    const auto read = plainly(PropertyList::xml(value));
    ASSERT_TRUE(read);
    EXPECT_EQ(*read, value);
}

TEST(PropertyListPlainReader, randomValues_areReadAsTheFullReaderReadsThem) {
    const unsigned seed = freshSeed();
    Random random(seed);
    for (int i = 0; i < 200; ++i)
        ASSERT_EQ(besideTheFullReader(PropertyList::xml(random.dictionary(0))), "the same")
            << "seed " << seed << ", value " << i;
}

TEST(PropertyListPlainReader, aFileCutAnywhere_isLeftToTheFullReader) {
    const QByteArray whole = PropertyList::xml(everyKind());
    const qsizetype end = whole.lastIndexOf("</plist>") + 8;
    for (qsizetype size = 0; size < end; ++size)
        ASSERT_FALSE(plainly(whole.first(size))) << size;
}

TEST(PropertyListPlainReader, aFileWithAnyByteChanged_isNeverReadOtherwiseThanByTheFullReader) {
    QByteArray bytes = PropertyList::xml(everyKind());
    int read = 0;
    for (qsizetype at = PropertyListXml::kHead.size(); at < bytes.size(); ++at) {
        const char kept = bytes[at];
        for (const char changed : QByteArray("\0\r&<>/ x9\x80\xEF\xFF", 12)) {
            bytes[at] = changed;
            const std::string verdict = besideTheFullReader(bytes);
            read += verdict == "the same";
            ASSERT_TRUE(verdict == "the same" || verdict == "given up")
                << verdict << ": byte " << at << " as " << int(changed);
        }
        bytes[at] = kept;
    }
    EXPECT_GT(read, 1000);
}

TEST(PropertyListPlainReader, blanksAndEmptyElements_areReadWhereverTheyMayStand) {
    EXPECT_EQ(besideTheFullReader(customary("\t\n <dict>\n<key></key> <string/>\n\t<key>a</key><array/>"
                                            "<key>b</key><dict/><key>c</key><true></true></dict>\n\n ")),
              "the same");
    EXPECT_EQ(besideTheFullReader(customary("<string>&lt;&amp;&gt;&quot;&apos;&#13;ü\U0001F600</string>")),
              "the same");
    EXPECT_EQ(besideTheFullReader(customary("<real> 1.5 </real>")), "the same");
}

class UnusualXml : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(PropertyListPlainReader, UnusualXml,
                         testing::Values("<string><!-- remark -->text</string>",
                                         "<!-- remark --><string>text</string>",
                                         "<string><![CDATA[text]]></string>", "<string a=\"b\">text</string>",
                                         "<string >text</string>", "<string>te\r\nxt</string>",
                                         "<string>&#65;</string>", "<string>\xEF\xBB\xBFtext</string>"));

TEST_P(UnusualXml, isLeftToTheFullReader_whichReadsIt) {
    const QByteArray bytes = customary(GetParam());
    EXPECT_FALSE(plainly(bytes));
    EXPECT_EQ(failureOf(bytes), "read");
}

class DamagedXml : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(
    PropertyListPlainReader, DamagedXml,
    testing::Values("", "text", "<string>a</string><string>b</string>", "<string>a", "<string>a</real>",
                    "<real>x</real>", "<real/>", "<widget>a</widget>", "<string>&unknown;</string>",
                    "<string>&amp</string>", "<string>a]]>b</string>", "<string>\x01</string>",
                    "<string>\xFF</string>", "<string>\xED\xA0\x80</string>", "<string>\xEF\xBF\xBF</string>",
                    "<string>\xC0\x80</string>", "<string>\xC3</string>", "<key>a</key>",
                    "<array><key>a</key></array>", "<dict><string>a</string></dict>",
                    "<dict><key>a</key></dict>", "<dict><key>a</key><key>b</key><true/></dict>",
                    "<array></dict>", "</array>", "<array>", "<array><string>a</array></string>",
                    "<array/>text", "<dict><key/></dict>", "<true>a</true>", "<></>", "</string/>",
                    "<plist><true/></plist>", "<plist>", "<true/></plist><true/>"));

TEST_P(DamagedXml, isLeftToTheFullReader_whichSaysWhatIsWrong) {
    const QByteArray bytes = customary(GetParam());
    EXPECT_FALSE(plainly(bytes));
    EXPECT_NE(failureOf(bytes), "read");
}

TEST(PropertyListPlainReader, levelsBeyondTheLimit_areLeftToTheFullReader) {
    const auto nested = [](int depth) {
        return customary(QByteArray("<array>").repeated(depth) + QByteArray("</array>").repeated(depth));
    };
    EXPECT_EQ(besideTheFullReader(nested(PropertyList::kDepthLimit)), "the same");
    EXPECT_FALSE(plainly(nested(PropertyList::kDepthLimit + 1)));
}

TEST(PropertyListPlainReader, anotherHead_isLeftToTheFullReader) {
    const QByteArray text = "<string>text</string>";
    EXPECT_FALSE(plainly(document(text)));
    EXPECT_FALSE(plainly("\xEF\xBB\xBF" + customary(text)));
    EXPECT_FALSE(plainly(QByteArray()));
    EXPECT_TRUE(plainly(customary(text)));
}

} // namespace
