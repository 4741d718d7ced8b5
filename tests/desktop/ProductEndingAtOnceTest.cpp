// SPDX-License-Identifier: MIT
// The built program, told to end while a menu, a question about a large file, or the panel of an import is
// open.
#include "platform/foundation/propertylists/PropertyList.h"
#include "tests/Places.h"
#include "tests/desktop/harness/ProcessorTime.h"
#include "tests/desktop/harness/Product.h"

#include <QElapsedTimer>
#include <QFile>

#include <csignal>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Processor time, so that a busy machine gives the same; and it must not wait long for anything.
constexpr double kLongestEnd = 2;
constexpr int kLongestWaitMs = 20'000;
constexpr int kTimers = 499'000;

class EndingAtOnce : public testing::Test {
protected:
    void start() {
        ASSERT_TRUE(product.start());
        before = desk.probe().windows();
    }

    void press(const QStringList& keys) { ASSERT_TRUE(desk.run(u"xdotool"_s, QStringList(u"key"_s) + keys)); }

    QString largeFile() {
        QByteArray apps;
        for (int i = 0; i < kTimers; ++i)
            apps += "<key>Program " + QByteArray::number(i) + "</key><real>1</real>";
        desk.home().write(u"large.tkd"_s, "<plist version=\"1.0\"><dict>" + apps + "</dict></plist>");
        return desk.home().path() + u"/large.tkd"_s;
    }

    void askAboutLargeFile() {
        const auto second = desk.start(QStringLiteral(TICKLOG_BINARY_DIR "/ticklog"), {largeFile()});
        ASSERT_TRUE(second->waitUntilEnded());
        ASSERT_TRUE(waitFor([this] { return desk.probe().windows().size() > before.size(); }));
        question = desk.probe().windows().back();
        ASSERT_TRUE(waitFor([this] { return desk.probe().activeWindow() == question; }));
    }

    void expectEndAtOnce() {
        const double used = ProcessorTime::ofProcess(product.program().processIdentifier());
        const double ended = ProcessorTime::ofEnded();
        QElapsedTimer watch;
        watch.start();
        EXPECT_EQ(product.end(SIGTERM), 0);
        EXPECT_LT(watch.elapsed(), kLongestWaitMs);
        EXPECT_LT(ProcessorTime::ofEnded() - ended - used, kLongestEnd);
    }

    Desk desk{u"openbox"_s, Desk::Bus::Own};
    Product product{desk};
    std::vector<xcb_window_t> before;
    xcb_window_t question = 0;
};

TEST_F(EndingAtOnce, aMenuThatIsOpen_holdsNothingUp) {
    start();
    const std::size_t popups = desk.probe().popups();
    press({u"alt+f"_s});
    ASSERT_TRUE(waitFor([&] { return desk.probe().popups() > popups; }));
    expectEndAtOnce();
}

TEST_F(EndingAtOnce, aQuestionAboutALargeFile_holdsNothingUp) {
    start();
    askAboutLargeFile();
    expectEndAtOnce();
}

TEST_F(EndingAtOnce, theImportOfALargeFile_holdsNothingUp) {
    start();
    askAboutLargeFile();
    press({u"Tab"_s, u"space"_s});
    ASSERT_TRUE(waitFor([this] { return !desk.probe().isInWindowList(question); }));
    // The import's panel, which appears after half a second.
    ASSERT_TRUE(waitFor([this] { return desk.probe().windows().size() > before.size(); }));
    expectEndAtOnce();
    EXPECT_FALSE(QFile::exists(product.databasePath() + u".part"_s));
}

} // namespace
