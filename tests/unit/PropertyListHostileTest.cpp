// SPDX-License-Identifier: MIT
#include "platform/foundation/propertylists/PropertyListXml.h"
#include "platform/foundation/values/Identity.h"
#include "tests/unit/PropertyListSamples.h"

#include <QElapsedTimer>
#include <QFile>
#include <QStringConverter>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>

using namespace PropertyListSamples;

namespace {

// Binary files object by object, right or wrong.
class BinaryFile {
public:
    BinaryFile& object(const QByteArray& bytes) {
        m_offsets.push_back(std::uint64_t(m_bytes.size()));
        m_bytes += bytes;
        return *this;
    }

    QByteArray bytes(std::uint64_t top = 0, std::optional<std::uint64_t> count = {},
                     int referenceSize = 1) const {
        QByteArray bytes = m_bytes;
        const auto table = std::uint64_t(bytes.size());
        for (const std::uint64_t offset : m_offsets)
            bytes += number(offset);
        bytes += QByteArray(6, '\0') + char(8) + char(referenceSize);
        return bytes + number(count.value_or(m_offsets.size())) + number(top) + number(table);
    }

private:
    static QByteArray number(std::uint64_t value) {
        QByteArray bytes(8, '\0');
        qToBigEndian(quint64(value), bytes.data());
        return bytes;
    }

    QByteArray m_bytes = "bplist00";
    std::vector<std::uint64_t> m_offsets;
};

long peakKilobytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

TEST(PropertyListHostile, anXmlFileCutAnywhere_isDamaged) {
    const QByteArray whole = PropertyList::xml(everyKind());
    const qsizetype end = whole.lastIndexOf("</plist>") + 8;
    for (qsizetype size = 0; size < end; ++size) {
        const auto result = PropertyList::read(whole.first(size));
        ASSERT_FALSE(result) << size;
        ASSERT_EQ(result.failure().kind, Failure::Kind::Damaged) << size;
    }
    EXPECT_EQ(failureOf(whole.first(end)), "read");
}

TEST(PropertyListHostile, aBinaryFileCutAnywhere_isDamaged) {
    const QByteArray whole = PropertyList::binary(everyKind());
    for (qsizetype size = 0; size < whole.size(); ++size) {
        const auto result = PropertyList::read(whole.first(size));
        ASSERT_FALSE(result) << size;
        ASSERT_EQ(result.failure().kind, Failure::Kind::Damaged) << size;
    }
}

TEST(PropertyListHostile, aBinaryFileWithAnyByteChanged_isReadOrRefusedInPeace) {
    const QByteArray whole = PropertyList::binary(everyKind());
    int refused = 0;
    for (qsizetype i = 0; i < whole.size(); ++i) {
        for (const int value : {0x00, 0x0F, 0x55, 0x7F, 0x80, 0xD1, 0xFF}) {
            QByteArray changed = whole;
            changed[i] = char(value);
            refused += PropertyList::read(changed) ? 0 : 1;
        }
    }
    EXPECT_GT(refused, 100);
}

TEST(PropertyListHostile, anXmlFileOfAMillionLevels_isRefusedAtTheLimit) {
    const QByteArray deep = QByteArray("<array>").repeated(1'000'000);
    EXPECT_EQ(failureOf("<plist>" + deep), "line 1: nested deeper than 128 levels");
    const QByteArray dictionaries = QByteArray("<dict><key>a</key>").repeated(1'000'000);
    EXPECT_EQ(failureOf("<plist>" + dictionaries), "line 1: nested deeper than 128 levels");
}

TEST(PropertyListHostile, theDeepestThatMayBeWritten_canBeRead) {
    PropertyListValue value = 1;
    for (int i = 0; i < PropertyList::kDepthLimit; ++i)
        value = PropertyListArray{value};
    EXPECT_EQ(readBack(PropertyList::xml(value)), value);
    EXPECT_EQ(readBack(PropertyList::binary(value)), value);
    EXPECT_FALSE(PropertyList::read(PropertyList::binary(PropertyListArray{value})));
}

TEST(PropertyListHostile, aBinaryFileOfAHundredThousandLevels_isRefused) {
    BinaryFile file;
    for (unsigned i = 0; i < 100'000; ++i) {
        QByteArray array("\xA1\0\0\0\0", 5);
        qToBigEndian(quint32(i + 1), array.data() + 1);
        file.object(array);
    }
    file.object("\x09");
    EXPECT_NE(failureOf(file.bytes(0, {}, 4)).find("nested too deep"), std::string::npos);
}

TEST(PropertyListHostile, sharedObjectsThatAreTooDeepWhenPutTogether_areRefused) {
    // The chain is read from its middle first, where its depth is still allowed.
    BinaryFile file;
    file.object("\xA2\x51\x02");
    for (int i = 1; i < 200; ++i)
        file.object(QByteArray("\xA1") + char(i + 1));
    file.object("\x09");
    EXPECT_NE(failureOf(file.bytes()).find("nested too deep"), std::string::npos);
}

TEST(PropertyListHostile, entities_areRefusedBeforeTheyGrow) {
    QByteArray laughs = "<!DOCTYPE plist [<!ENTITY a \"ha\">";
    for (char name = 'b'; name <= 'p'; ++name)
        laughs += QByteArray("<!ENTITY ") + name + " \"" +
                  QByteArray("&" + QByteArray(1, char(name - 1)) + ";").repeated(10) + "\">";
    const QByteArray body = "]><plist><string>&p;</string></plist>";
    const std::string expected = "line 1: a document type with declarations of its own is refused";
    EXPECT_EQ(failureOf(laughs + body), expected);
    EXPECT_EQ(
        failureOf("<?xml version=\"1.0\"?><!-- --><!DOCTYPE plist SYSTEM \">\" [<!ENTITY a \"b\">" + body),
        expected);
    EXPECT_EQ(failureOf("<!DOCTYPE plist [<!ENTITY % a \"b\"> %a;]><plist><true/></plist>"), expected);
    // In UTF-16, a zero is between the characters.
    QByteArray wide("\xFF\xFE", 2);
    for (const char character : QByteArray(laughs + body))
        wide += QByteArray(1, character) + '\0';
    EXPECT_EQ(failureOf(wide), expected);
}

TEST(PropertyListHostile, anExternalEntity_isNeverOpened) {
    EXPECT_NE(failureOf("<!DOCTYPE plist [<!ENTITY x SYSTEM "
                        "\"file:///etc/passwd\">]><plist><string>&x;</string></plist>"),
              "read");
    EXPECT_NE(failureOf(document("<string>&x;</string>")), "read");
    EXPECT_EQ(failureOf("<!DOCTYPE plist SYSTEM \"file:///etc/passwd\"><plist><true/></plist>"), "read");
}

TEST(PropertyListHostile, textThatIsNoUtf8_isDamaged) {
    EXPECT_NE(failureOf(document("<string>\xff\xfe\x80</string>")), "read");
    EXPECT_NE(failureOf(document("<string>a\x01</string>")), "read");
    EXPECT_NE(failureOf(document("<string>&#1;</string>")), "read");
}

TEST(PropertyListHostile, whatFollowsTheDocument_isDamaged) {
    EXPECT_NE(failureOf(document("<true/>") + "<plist/>"), "read");
    EXPECT_NE(failureOf(document("<true/>") + "x"), "read");
}

TEST(PropertyListHostile, aBombOfSharedReferences_isRefused) {
    // Each object holds the next one ten times, nine levels deep.
    BinaryFile file;
    for (int i = 0; i < 9; ++i)
        file.object(QByteArray("\xAA") + QByteArray(10, char(i + 1)));
    file.object("\x51z");
    const long before = peakKilobytes();
    QElapsedTimer timer;
    timer.start();
    EXPECT_NE(failureOf(file.bytes()).find("far larger than its file"), std::string::npos);
    EXPECT_LT(peakKilobytes() - before, 64 * 1024);
    EXPECT_LT(timer.elapsed(), 5000);
}

TEST(PropertyListHostile, aLongTextThatIsReferredToVeryOften_isRefused) {
    BinaryFile file;
    file.object(QByteArray("\xAF\x12\x00\x01\x00\x00", 6) + QByteArray(65536, '\1'));
    file.object(QByteArray("\x5F\x12\x00\x01\x00\x00", 6) + QByteArray(65536, 'x'));
    EXPECT_NE(failureOf(file.bytes()).find("far larger than its file"), std::string::npos);
}

// One timer's record that an application refers to as often as there is room.
TEST(PropertyListHostile, aTimerThatIsReferredToThousandsOfTimes_isRefused) {
    BinaryFile file;
    file.object(QByteArray("\xAF\x11\x13\x88", 4) + QByteArray(5000, '\1'));
    file.object(QByteArray("\xD1\x02\x03", 3));
    file.object("\x54Name");
    file.object("\x51z");
    EXPECT_NE(failureOf(file.bytes()).find("far larger than its file"), std::string::npos);
}

TEST(PropertyListHostile, anHonestBinaryStore_isWithinItsBudget) {
    PropertyListArray windows;
    for (int window = 0; window < 20'000; ++window)
        windows.emplace_back(PropertyListDictionary{
            {QStringLiteral("Name"), QStringLiteral("%1").arg(window)},
            {QStringLiteral("ActiveTime"), 60.0},
            {QStringLiteral("UUID"), Identity::brandNew().bytes()},
            {QStringLiteral("Branched"), false},
        });
    EXPECT_EQ(failureOf(PropertyList::binary(windows)), "read");
}

// Half a million timers, as many as a database may have.
TEST(PropertyListHostile, theLargestHonestBinaryStore_isWithinItsBudget) {
    const PropertyListValue identity = Identity::brandNew().bytes();
    PropertyListArray applications;
    for (int application = 0; application < 5000; ++application) {
        PropertyListArray windows;
        for (int window = 0; window < 99; ++window)
            windows.emplace_back(PropertyListDictionary{
                {QStringLiteral("Name"),
                 QStringLiteral("Title %1 of application %2").arg(window).arg(application)},
                {QStringLiteral("ActiveTime"), application + window / 100.0},
                {QStringLiteral("UUID"), identity},
                {QStringLiteral("Branched"), false},
            });
        applications.emplace_back(PropertyListDictionary{
            {QStringLiteral("App"),
             PropertyListDictionary{{QStringLiteral("Name"), QStringLiteral("Program %1").arg(application)}}},
            {QStringLiteral("Windows"), windows}});
    }
    EXPECT_EQ(failureOf(PropertyList::binary(applications)), "read");
}

TEST(PropertyListHostile, aTagOfVeryManyAttributes_isRefusedAtOnce) {
    QByteArray attributes;
    for (int attribute = 0; attribute < 100'000; ++attribute)
        attributes += " a" + QByteArray::number(attribute) + "='>'";
    const QString text =
        QString::fromLatin1("<?xml version=\"1.0\"?><plist><true" + attributes + "/></plist>");
    QElapsedTimer timer;
    timer.start();
    for (const QByteArray& bytes :
         {text.toUtf8(),
          QByteArray(QStringEncoder(QStringEncoder::Utf16, QStringEncoder::Flag::WriteBom)(text)),
          QByteArray(QStringEncoder(QStringEncoder::Utf16BE)(text)),
          QByteArray("<!--<a b='-->" + text.toUtf8()), QByteArray("<![CDATA[<]]>" + text.toUtf8())})
        EXPECT_EQ(failureOf(bytes), "line 1: a tag of more than 8 attributes is refused");
    EXPECT_LT(timer.elapsed(), 5000);
}

TEST(PropertyListHostile, aWideEncodingThatIsOnlyDeclared_isRefused) {
    EXPECT_EQ(failureOf("<?xml version=\"1.0\" encoding=\"UTF-16\"?><plist><true/></plist>"),
              "line 1: the encoding UTF-16 is not known");
}

TEST(PropertyListHostile, anEndThatIsEmptyToo_isRefusedByEachReader) {
    EXPECT_NE(failureOf(PropertyListXml::kHead.toByteArray() + "<true/></plist/>"), "read");
}

TEST(PropertyListHostile, objectsThatHoldThemselves_areRefused) {
    EXPECT_NE(failureOf(BinaryFile().object(QByteArray("\xA1\0", 2)).bytes()).find("holds itself"),
              std::string::npos);
    EXPECT_NE(
        failureOf(
            BinaryFile().object("\xA1\x01").object(QByteArray("\xD1\x02\x00", 3)).object("\x51k").bytes())
            .find("holds itself"),
        std::string::npos);
}

TEST(PropertyListHostile, countsThatTheFileCannotHold_areRefused) {
    const BinaryFile file = BinaryFile().object("\x09");
    EXPECT_NE(failureOf(file.bytes(0, std::uint64_t(1) << 62)), "read");
    EXPECT_NE(failureOf(file.bytes(0, 2)), "read");
    EXPECT_NE(failureOf(file.bytes(1)), "read");
    EXPECT_NE(failureOf(file.bytes(~std::uint64_t(0))), "read");
    for (const char kind : {'\x4F', '\x5F', '\x6F', '\xAF', '\xCF', '\xDF'}) {
        const QByteArray huge = QByteArray(1, kind) + QByteArray("\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF", 9);
        EXPECT_NE(failureOf(BinaryFile().object(huge).bytes()), "read") << int(kind);
    }
}

TEST(PropertyListHostile, kindsThatMeanNothingHere_areRefusedByName) {
    for (const QByteArray& object :
         {QByteArray("\x00", 1), QByteArray("\x0F"), QByteArray("\x0C\x51"), QByteArray("\x70"),
          QByteArray("\x90"), QByteArray("\xE0"), QByteArray("\xF0")})
        EXPECT_EQ(failureOf(BinaryFile().object(object).bytes()), "offset 8: an unknown kind of object");
    EXPECT_NE(failureOf(BinaryFile().object(QByteArray("\xD1\x01\x01", 3)).object("\x10\x05").bytes())
                  .find("a key that is no text"),
              std::string::npos);
}

TEST(PropertyListHostile, aBinaryDateThatIsNone_isRefused) {
    for (const std::uint64_t bits : {0x7FF8000000000000u, 0x7FF0000000000000u, 0x7FEFFFFFFFFFFFFFu}) {
        QByteArray object(9, '\x33');
        qToBigEndian(quint64(bits), object.data() + 1);
        EXPECT_NE(failureOf(BinaryFile().object(object).bytes()), "read");
    }
}

TEST(PropertyListHostile, whatIsNoFile_isNotWaitedFor) {
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(PropertyList::readFile(pipe).failure().kind, Failure::Kind::Unreadable);
    EXPECT_EQ(PropertyList::readFile(folder.path()).failure().kind, Failure::Kind::Unreadable);
    EXPECT_EQ(PropertyList::readFile(folder.filePath(QStringLiteral("none"))).failure().kind,
              Failure::Kind::NotFound);
}

TEST(PropertyListHostile, aFileBeyondTheSizeLimit_isRefusedUnread) {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("large")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(PropertyList::kSizeLimit + 1));
    EXPECT_EQ(PropertyList::readFile(file.fileName()).failure().kind, Failure::Kind::Refused);
}

} // namespace
