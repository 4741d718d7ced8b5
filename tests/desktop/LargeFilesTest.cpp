// SPDX-License-Identifier: MIT
// What the largest files cost the built program. Measures the processor's time, so that a busy machine gives
// the same.
#include "platform/foundation/propertylists/PropertyListXml.h"
#include "tests/desktop/harness/ProcessorTime.h"
#include "tests/desktop/harness/Product.h"

#include <QFile>

#include <csignal>
#include <gtest/gtest.h>

namespace {

constexpr double kLongestStart = 8;
// The timers are written twice, and what the window remembers is looked for among all of them.
constexpr double kLongestEnd = 3;
// For a machine that is busy.
constexpr std::chrono::minutes kLongestWait{2};
constexpr int kMostMegabytes = 700;
constexpr qsizetype kLarge = 50'000'000;

const QString kStore = QStringLiteral("data/Ticklog/Primary Database.tkd");
const QString kRegistry = QStringLiteral("data/TicklogUUID.plist");
const QString kProjects = QStringLiteral("Documents/Ticklog Projects");
const QString kSettings = QStringLiteral("config/org.ticklog.Ticklog.plist");

const QByteArray kRecordEnd = "</string><key>ActiveTime</key><real>12.5</real><key>UUID</key>"
                              "<data>AQIDBAUGBwg=</data><key>Branched</key><false/></dict>\n";

QByteArray numbered(int i) {
    return QByteArray::number(i).rightJustified(8, '0');
}

QByteArray list(const QByteArray& begin, const QByteArray& end, const std::function<QByteArray(int)>& element,
                qsizetype size = kLarge) {
    QByteArray bytes = PropertyListXml::kHead.toByteArray() + begin;
    bytes.reserve(size + 1000);
    for (int i = 0; bytes.size() < size; ++i)
        bytes += element(i);
    return bytes + end + "</plist>\n";
}

QByteArray store(const std::function<QByteArray(int)>& window) {
    return list("<dict><key>Version</key><string>1.5</string><key>Apps</key><array><dict><key>App</key><dict>"
                "<key>Name</key><string>Mail</string></dict><key>Windows</key><array>",
                "</array></dict></array></dict>", window);
}

struct Large {
    const char* name;
    const QString& path;
    std::function<QByteArray()> content;
};

void PrintTo(const Large& large, std::ostream* stream) {
    *stream << large.name;
}

const std::vector<Large> kFiles = {
    {"anHonestStore", kStore,
     []() -> QByteArray {
         return store([](int i) -> QByteArray {
             return "<dict><key>Name</key><string>A letter to somebody, with a title of " + numbered(i) +
                    QByteArray(60, ' ') + kRecordEnd;
         });
     }},
    {"aStoreOfTooManyTimers", kStore,
     []() -> QByteArray {
         return store([](int i) -> QByteArray {
             return "<dict><key>Name</key><string>" + numbered(i) + "</string></dict>";
         });
     }},
    {"theOldestFormWithTooManyTimers", kStore,
     []() -> QByteArray {
         return list("<dict>", "</dict>",
                     [](int i) -> QByteArray { return "<key>" + numbered(i) + "</key><real>1</real>"; });
     }},
    {"theOldestFormWithAlmostTooManyTimers", kStore,
     []() -> QByteArray {
         return list(
             "<dict>", "</dict>",
             [](int i) -> QByteArray { return "<key>" + numbered(i) + "</key><real>1</real>"; },
             499'000 * 33);
     }},
    {"aNameAsLargeAsTheFile", kStore,
     []() -> QByteArray {
         return store([](int) -> QByteArray {
             return "<dict><key>Name</key><string>" + QByteArray(kLarge / 2, 'W') + kRecordEnd;
         });
     }},
    {"nothingButEmptyTables", kStore,
     []() -> QByteArray {
         return list("<array>", "</array>", [](int) -> QByteArray { return QByteArray("<dict/>"); });
     }},
    {"theRegistry", kRegistry,
     []() -> QByteArray {
         return list("<dict>", "</dict>", [](int i) -> QByteArray {
             return "<key>TimeStoreWindow" + numbered(i) + "</key><data>AQIDBAUGBwg=</data>\n";
         });
     }},
    {"aProjectOfManyMembers", kProjects,
     []() -> QByteArray {
         return list("<array><dict><key>Label</key><string>" + QByteArray(10'000'000, 'W') +
                         "</string><key>Subtree</key><array>",
                     "</array></dict></array>",
                     [](int i) -> QByteArray { return "<data>" + numbered(i).toBase64() + "</data>\n"; });
     }},
    {"manyProjects", kProjects,
     []() -> QByteArray {
         return list("<array>", "</array>", [](int i) -> QByteArray {
             return "<dict><key>Label</key><string>" + numbered(i) + QByteArray(5000, 'W') +
                    "</string><key>Subtree</key><array/></dict>";
         });
     }},
    {"theSettings", kSettings,
     []() -> QByteArray {
         return list(
             "<dict><key>periodicSaveDirectory</key><string>" + QByteArray(5'000'000, 'W') +
                 "</string><key>Ruleset</key><dict>",
             "</dict></dict>",
             [](int i) -> QByteArray {
                 return "<key>" + numbered(i) + "</key><dict><key>Categories</key><string>" +
                        QByteArray("a,").repeated(100) + numbered(i) + "</string></dict>";
             },
             30'000'000);
     }},
};

class LargeFiles : public testing::TestWithParam<Large> {
protected:
    int mostMegabytes() {
        QFile status(QStringLiteral("/proc/%1/status").arg(product.program().processIdentifier()));
        EXPECT_TRUE(status.open(QFile::ReadOnly));
        for (const QByteArray& line : status.readAll().split('\n'))
            if (line.startsWith("VmHWM:"))
                return line.mid(6).simplified().split(' ').first().toInt() / 1024;
        return 0;
    }

    Desk desk;
    Product product{desk};
};

TEST_P(LargeFiles, inAnyPlace_costNoMoreThanAStartAndAnEndMay) {
    desk.home().write(GetParam().path, GetParam().content());
    product.launch(desk.environment());
    ASSERT_TRUE(waitFor([this] { return product.hasWindow(); }, kLongestWait));
    const double start = ProcessorTime::ofProcess(product.program().processIdentifier());
    EXPECT_LT(start, kLongestStart);
    EXPECT_LT(mostMegabytes(), kMostMegabytes);
    const double before = ProcessorTime::ofEnded();
    EXPECT_EQ(product.end(SIGTERM), 0);
    const double end = ProcessorTime::ofEnded() - before - start;
    EXPECT_LT(end, kLongestEnd);
    RecordProperty("start", std::to_string(start));
    RecordProperty("end", std::to_string(end));
}

INSTANTIATE_TEST_SUITE_P(Product, LargeFiles, testing::ValuesIn(kFiles),
                         [](const auto& each) { return std::string(each.param.name); });

} // namespace
