// SPDX-License-Identifier: MIT
// The engine on a real X desktop, compared with a stopwatch: how far the account may be from the truth.
#include "tests/desktop/Account.h"
#include "tests/desktop/harness/LiveEngine.h"
#include "tests/desktop/harness/Packaged.h"
#include "tests/desktop/harness/XClient.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>
#include <random>

namespace {

using namespace std::chrono_literals;

class AccountTruthUnder : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override { SKIP_WHERE_NOT_PACKAGED(QString::fromLatin1(GetParam())); }
};

INSTANTIATE_TEST_SUITE_P(X11, AccountTruthUnder,
                         testing::Values("openbox", "icewm", "metacity", "xfwm4", "kwin_x11", "muffin",
                                         "mutter"),
                         [](const auto& instance) { return std::string(instance.param); });

TEST_P(AccountTruthUnder, quickSwitches_addUpToTheWallTimeAndGoToWhomTheyBelong) {
    constexpr int kSwitches = 100;
    Desk desk(QString::fromLatin1(GetParam()), Desk::Bus::Own);
    std::vector<std::unique_ptr<XClient>> programs;
    std::vector<xcb_window_t> windows;
    const std::vector<QByteArray> names = {"Writer", "Mailer", "Painter"};
    for (const QByteArray& name : names) {
        programs.push_back(std::make_unique<XClient>(desk));
        windows.push_back(programs.back()->open({.title = name + " window", .className = name}));
    }
    // A window manager may take a while to give the first windows the focus; until then nobody gets the time.
    ASSERT_TRUE(waitFor([&] { return std::ranges::count(windows, desk.probe().activeWindow()) > 0; }));
    X11LiveEngine engine(desk);
    const unsigned seed = std::random_device()();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    std::vector<double> truth(names.size());
    std::vector<int> switches(names.size());

    // A busy machine may pause between two of these lines.
    const Instant beforeStart = engine.clock().instant();
    engine.timer().startTimer();
    const Instant afterStart = engine.clock().instant();
    std::optional<std::size_t> inFront;
    QElapsedTimer watch;
    for (int i = 0; i < kSwitches; ++i) {
        const std::size_t next = (inFront.value_or(0) + 1 + random() % (names.size() - 1)) % names.size();
        programs[next]->activate(windows[next]);
        ASSERT_TRUE(waitFor([&] { return desk.probe().activeWindow() == windows[next]; }));
        if (inFront)
            truth[*inFront] += double(watch.nsecsElapsed()) / 1e9;
        watch.start();
        inFront = next;
        ++switches[next];
        const qint64 staysFor = 20 + random() % 100;
        ASSERT_TRUE(waitFor([&] { return watch.hasExpired(staysFor); }));
    }
    const Instant beforeEnd = engine.clock().instant();
    engine.timer().computeTime();
    const Instant afterEnd = engine.clock().instant();
    truth[*inFront] += double(watch.nsecsElapsed()) / 1e9;

    EXPECT_GE(sumOf(engine.tracker()), secondsBetween(afterStart, beforeEnd) * 0.999);
    EXPECT_LE(sumOf(engine.tracker()), secondsBetween(beforeStart, afterEnd) * 1.001);
    for (std::size_t i = 0; i < names.size(); ++i)
        EXPECT_NEAR(timeOf(engine.tracker(), QString::fromLatin1(names[i])), truth[i], switches[i] * 0.15)
            << names[i].constData();
}

// The server gives each terminal the window id of the one before.
TEST(AccountTruth, eightTerminalsOpenedAndClosedInTurn_areEightRows) {
    Desk desk;
    X11LiveEngine engine(desk);
    engine.timer().startTimer();
    QStringList expected;
    for (int i = 1; i <= 8; ++i) {
        expected << QStringLiteral("report-%1").arg(i);
        const auto terminal =
            desk.start(QStringLiteral("xterm"),
                       {QStringLiteral("-T"), expected.last(), QStringLiteral("-e"), QStringLiteral("cat")});
        ASSERT_TRUE(waitFor([&] {
            const auto* window = engine.tracker().activeStoreWindow();
            return window && window->name() == expected.last() && window->activeTime() > 0.2;
        })) << qPrintable(expected.last());
        terminal->kill();
        ASSERT_TRUE(waitFor([&] { return engine.tracker().activeStoreApp()->name() == kDesktopName; }));
    }
    QStringList rows;
    for (const auto& app : engine.tracker().fullTimeSet())
        for (const auto& window : app->windows())
            rows << window->name();
    EXPECT_EQ(rows, expected);
}

TEST(AccountTruth, nothingInFront_isCreditedToTheDesktop) {
    Desk desk;
    XClient program(desk);
    const xcb_window_t window = program.open({.title = "Letter", .className = "Writer"});
    X11LiveEngine engine(desk);
    engine.timer().startTimer();
    program.activate(window);
    ASSERT_TRUE(waitFor([&] { return timeOf(engine.tracker(), QStringLiteral("Writer")) > 0.2; }));
    program.destroy(window);
    ASSERT_TRUE(waitFor([&] { return timeOf(engine.tracker(), QStringLiteral("Desktop")) > 0; }));
    const Seconds writing = timeOf(engine.tracker(), QStringLiteral("Writer"));
    ASSERT_TRUE(waitFor([&] { return timeOf(engine.tracker(), QStringLiteral("Desktop")) > 0.3; }));
    EXPECT_EQ(timeOf(engine.tracker(), QStringLiteral("Writer")), writing);
}

TEST(AccountTruth, inputAfterALongAbsence_endsTheIdleTimeWithinTwoTicks) {
    Desk desk;
    XClient program(desk);
    const xcb_window_t window = program.open({.title = "Letter", .className = "Writer"});
    X11LiveEngine engine(desk);
    // The screen saver's own counter cannot be moved, so zero minutes make the shortest absence.
    engine.defaults().setObject(QStringLiteral("minutesUntilIdle"), 0);
    program.activate(window);
    engine.timer().startTimer();
    ASSERT_TRUE(waitFor([&] { return timeOf(engine.tracker(), QStringLiteral("Idle")) > 0.2; }));
    engine.defaults().setObject(QStringLiteral("minutesUntilIdle"), 1);
    ASSERT_TRUE(desk.run(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("shift")}));
    const Seconds idle = timeOf(engine.tracker(), QStringLiteral("Idle"));
    ASSERT_TRUE(waitFor([&] { return timeOf(engine.tracker(), QStringLiteral("Writer")) > 0.3; }));
    EXPECT_NEAR(timeOf(engine.tracker(), QStringLiteral("Idle")), idle, 0.25);
}

} // namespace
