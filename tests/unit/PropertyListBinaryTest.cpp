// SPDX-License-Identifier: MIT
#include "platform/foundation/values/Assertions.h"
#include "tests/unit/PropertyListSamples.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace PropertyListSamples;

namespace {

// A file with one object of these bytes.
PropertyListValue readObject(const QByteArray& object) {
    QByteArray bytes = "bplist00" + object;
    const auto table = char(bytes.size());
    bytes += char(8);
    bytes += QByteArray(6, '\0') + char(1) + char(1);
    bytes += QByteArray(7, '\0') + char(1) + QByteArray(8, '\0') + QByteArray(7, '\0') + table;
    return readBack(bytes);
}

TEST(PropertyListBinary, everyKind_comesBackAsItWas) {
    const PropertyListValue value = everyKind();
    const QByteArray bytes = PropertyList::binary(value);
    EXPECT_EQ(failureOf(bytes), "read");
    EXPECT_EQ(readBack(bytes), value);
    EXPECT_EQ(PropertyList::xml(readBack(bytes)), PropertyList::xml(value));
}

TEST(PropertyListBinary, aFractionOfASecond_isKept) {
    const Date date = Date(std::chrono::microseconds(1'795'129'200'123'456));
    EXPECT_EQ(readBack(PropertyList::binary(date)).asDate(), date);
}

TEST(PropertyListBinary, equalTexts_areStoredOnce) {
    const QString title(1000, u'x');
    const PropertyListValue value = PropertyListArray(100, PropertyListValue(title));
    const QByteArray bytes = PropertyList::binary(value);
    EXPECT_LT(bytes.size(), 4000);
    EXPECT_EQ(readBack(bytes), value);
}

TEST(PropertyListBinary, manyObjects_needWiderReferences) {
    for (const int count : {14, 15, 254, 255, 256, 65534, 65536}) {
        PropertyListArray array;
        for (int i = 0; i < count; ++i)
            array.emplace_back(i * 7);
        const PropertyListValue value(array);
        EXPECT_EQ(readBack(PropertyList::binary(value)), value) << count;
    }
}

TEST(PropertyListBinary, integersOfEverySize_areUnderstood) {
    EXPECT_EQ(readObject("\x10\xFF").asInteger(), 255);
    EXPECT_EQ(readObject("\x11\xFF\xFE").asInteger(), 0xFFFE);
    EXPECT_EQ(readObject("\x12\xFF\xFF\xFF\xFF").asInteger(), 0xFFFFFFFF);
    EXPECT_EQ(readObject("\x13" + QByteArray(8, '\xFF')).asInteger(), -1);
    EXPECT_EQ(readObject("\x14" + QByteArray(16, '\xFF')).asInteger(), -1);
    EXPECT_EQ(readObject("\x14" + QByteArray(15, '\0') + '\x05').asInteger(), 5);
    EXPECT_EQ(readObject("\x14" + QByteArray(8, '\0') + QByteArray(8, '\xFF')).asReal(),
              18446744073709551615.0);
    EXPECT_EQ(readObject("\x14" + QByteArray(7, '\0') + '\x01' + QByteArray(8, '\0')).asReal(), 0x1p64);
    EXPECT_TRUE(readObject("\x15" + QByteArray(32, '\0')).isAbsent());
}

TEST(PropertyListBinary, kindsOfOtherPrograms_areMappedToTheNearest) {
    EXPECT_EQ(readObject(QByteArray("\x22\x3F\x80\0\0", 5)).asReal(), 1.0);
    // Kinds of the binary form that are not used: identifiers and empty sets.
    EXPECT_EQ(readObject("\x80\x2A").asInteger(), 42);
    EXPECT_EQ(readObject(QByteArray("\x82\x01\0\0", 4)).asInteger(), 65536);
    EXPECT_EQ(readObject("\xC0"), PropertyListValue(PropertyListArray{}));
    EXPECT_EQ(readObject("\xB0"), PropertyListValue(PropertyListArray{}));
}

TEST(PropertyListBinary, aListOfLoneSurrogates_isKept) {
    const QString text = QChar(0xD800) + QStringLiteral("a");
    EXPECT_EQ(readBack(PropertyList::binary(text)).toString(), text);
}

TEST(PropertyListBinary, anAbsentValue_isABrokenContract) {
    EXPECT_THROW(PropertyList::binary(PropertyListArray{PropertyListValue()}), InternalInconsistency);
}

TEST(PropertyListBinary, randomValues_comeBackAsTheyWere) {
    const unsigned seed = freshSeed();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    Random random(seed);
    for (int i = 0; i < 200; ++i) {
        const PropertyListValue value = random.dictionary(0);
        const QByteArray bytes = PropertyList::binary(value);
        ASSERT_EQ(failureOf(bytes), "read");
        ASSERT_EQ(PropertyList::xml(readBack(bytes)), PropertyList::xml(value));
    }
}

TEST(PropertyListBinary, filesOfBothForms_areReadTheSame) {
    const QTemporaryDir folder;
    const QString xml = folder.filePath(QStringLiteral("a.plist"));
    const QString binary = folder.filePath(QStringLiteral("b.plist"));
    ASSERT_TRUE(PropertyList::writeXmlFile(everyKind(), xml));
    ASSERT_TRUE(PropertyList::writeBinaryFile(everyKind(), binary));
    for (const QString& path : {xml, binary}) {
        const auto read = PropertyList::readFile(path);
        ASSERT_TRUE(read);
        EXPECT_EQ(*read, everyKind());
        EXPECT_EQ(QFileInfo(path).permissions() & ~(QFile::ReadUser | QFile::WriteUser),
                  QFile::ReadOwner | QFile::WriteOwner);
    }
}

TEST(PropertyListBinary, aFileThatCannotBeWritten_staysWhatItWas) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.plist"));
    ASSERT_TRUE(PropertyList::writeXmlFile(1, path));
    EXPECT_THROW(static_cast<void>(PropertyList::writeXmlFile(PropertyListArray{PropertyListValue()}, path)),
                 InternalInconsistency);
    EXPECT_EQ(PropertyList::readFile(path)->toInteger(), 1);
    const auto elsewhere = PropertyList::writeXmlFile(1, folder.filePath(QStringLiteral("none/a.plist")));
    ASSERT_FALSE(elsewhere);
    EXPECT_EQ(elsewhere.failure().kind, Failure::Kind::CannotWrite);
}

} // namespace
