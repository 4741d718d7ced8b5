// SPDX-License-Identifier: MIT
#include "tests/unit/PropertyListSamples.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

using namespace PropertyListSamples;

namespace {

// Another program that reads and writes both forms.
class PropertyListInterop : public testing::Test {
protected:
    // Runs a script with the path of a file; answers what it prints.
    QByteArray python(const char* script, const QString& path) {
        QProcess process;
        process.start(QStringLiteral("/usr/bin/python3"),
                      {QStringLiteral("-c"), QLatin1String(script), path});
        EXPECT_TRUE(process.waitForFinished(60000));
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        return process.readAllStandardOutput();
    }

    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    QTemporaryDir m_folder;
};

constexpr const char* kDescribe = R"(
import plistlib, sys
with open(sys.argv[1], "rb") as file:
    value = plistlib.load(file)
for key in value:
    print(key.replace("\n", " "), repr(value[key]), sep=": ")
)";

constexpr const char* kMake = R"(
import plistlib, sys, datetime
value = {
    "Text": "Mail <a&b> \u00fc \U0001F600\ttab",
    "Zero": 0, "Minus": -5, "Large": 2**63 - 1, "Unsigned": 2**64 - 1,
    "Real": 0.1, "Minus zero": -0.0, "Infinite": float("inf"), "Nan": float("nan"),
    "Yes": True, "No": False,
    "Date": datetime.datetime(2026, 11, 20, 23, 0, 0), "First": datetime.datetime(1, 1, 1, 19),
    "Data": bytes(range(200)),
    "Array": [1, [], {}, "two"],
    "Records": [{"Name": "Inbox", "ActiveTime": 1.5, "UUID": b"12345678", "Branched": True}] * 50,
}
with open(sys.argv[1], "wb") as file:
    plistlib.dump(value, file, fmt=plistlib.FMT_%1, sort_keys=False)
)";

TEST_F(PropertyListInterop, whatWeWrite_isReadByOthersTheSameInBothForms) {
    ASSERT_TRUE(PropertyList::writeXmlFile(everyKind(), path("xml")));
    ASSERT_TRUE(PropertyList::writeBinaryFile(everyKind(), path("binary")));
    const QByteArray fromXml = python(kDescribe, path("xml"));
    EXPECT_EQ(fromXml, python(kDescribe, path("binary")));
    const QByteArrayList lines = fromXml.trimmed().split('\n');
    EXPECT_EQ(lines.size(), qsizetype(everyKind().asDictionary()->size()));
    for (const char* line : {
             "One: 1",
             "Small: -9223372036854775808",
             "Third: 0.3333333333333333",
             "Whole real: 1.0",
             "Tiny: 5e-324",
             "Yes: True",
             "Date: datetime.datetime(2026, 11, 20, 23, 0)",
             "First day: datetime.datetime(1, 1, 1, 19, 0)",
             "Data: b'\\x00\\x01\\x02\\xff'",
             "Array: [1, 'two', []]",
             "Nested: {'Z': 1, 'A': [True]}",
             "<key> & more: 'odd key'",
         })
        EXPECT_TRUE(lines.contains(line)) << line << " in " << fromXml.toStdString();
}

TEST_F(PropertyListInterop, numbersThatAreNone_areReadByOthers) {
    const PropertyListValue value = PropertyListDictionary{
        {QStringLiteral("Infinite"), std::numeric_limits<double>::infinity()},
        {QStringLiteral("Minus"), -std::numeric_limits<double>::infinity()},
        {QStringLiteral("Nan"), std::numeric_limits<double>::quiet_NaN()},
        {QStringLiteral("Zero"), -0.0},
        {QStringLiteral("Moment"), Date(std::chrono::milliseconds(1'795'129'200'500))},
    };
    ASSERT_TRUE(PropertyList::writeXmlFile(value, path("xml")));
    EXPECT_EQ(python(kDescribe, path("xml")).toStdString(),
              "Infinite: inf\nMinus: -inf\nNan: nan\nZero: -0.0\n"
              "Moment: datetime.datetime(2026, 11, 19, 23, 0)\n");
}

TEST_F(PropertyListInterop, whatOthersWrite_isReadInBothForms) {
    for (const char* form : {"XML", "BINARY"}) {
        SCOPED_TRACE(form);
        python(QByteArray(kMake).replace("%1", form).constData(), path("made"));
        const auto result = PropertyList::readFile(path("made"));
        ASSERT_TRUE(result) << result.failure().text.toStdString();
        const PropertyListDictionary& read = *result->asDictionary();
        EXPECT_EQ(read.begin()->first, QStringLiteral("Text"));
        EXPECT_EQ(read.begin()->second.toString(), QStringLiteral("Mail <a&b> ü \U0001F600\ttab"));
        EXPECT_EQ(read.value(QStringLiteral("Minus")).asInteger(), -5);
        EXPECT_EQ(read.value(QStringLiteral("Large")).asInteger(), INT64_MAX);
        EXPECT_EQ(read.value(QStringLiteral("Unsigned")).asReal(), 18446744073709551615.0);
        EXPECT_EQ(read.value(QStringLiteral("Real")).asReal(), 0.1);
        EXPECT_TRUE(std::signbit(*read.value(QStringLiteral("Minus zero")).asReal()));
        EXPECT_FALSE(read.value(QStringLiteral("Nan")).number());
        EXPECT_EQ(read.value(QStringLiteral("Yes")).asBoolean(), true);
        EXPECT_EQ(read.value(QStringLiteral("First")).asDate(),
                  Date(std::chrono::sys_days(std::chrono::year(1) / 1 / 1)) + std::chrono::hours(19));
        EXPECT_EQ(read.value(QStringLiteral("Data")).asData()->size(), 200);
        EXPECT_EQ(read.value(QStringLiteral("Records")).asArray()->size(), 50u);
        const auto& record = *read.value(QStringLiteral("Records")).asArray()->back().asDictionary();
        EXPECT_EQ(*record.value(QStringLiteral("UUID")).asData(), QByteArray("12345678"));
    }
}

} // namespace
