// SPDX-License-Identifier: MIT
#include "platform/x11/X11IdleTime.h"

#include "tests/desktop/X11Scene.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

class X11IdleTimeTest : public testing::Test {
protected:
    X11Scene scene{QStringLiteral("openbox"), VirtualDisplay::Number::Kept};
    X11IdleTime idleTime{scene.desktop->connection()};

    // Milliseconds; -1 when nothing is told.
    std::int64_t idle() {
        const IdleReading reading = idleTime.read();
        return reading.idle ? *reading.idle / std::chrono::milliseconds(1) : -1;
    }
};

TEST_F(X11IdleTimeTest, withoutInput_theTimeCounts) {
    const std::int64_t before = idle();
    EXPECT_GE(before, 0);
    EXPECT_TRUE(waitFor([&] { return idle() >= before + 1500; }));
}

TEST_F(X11IdleTimeTest, aKey_beginsTheCountAnew) {
    ASSERT_TRUE(waitFor([&] { return idle() >= 2500; }));
    ASSERT_TRUE(scene.desk.run(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("shift")}));
    EXPECT_TRUE(waitFor([&] { return idle() < 2000; }));
}

TEST_F(X11IdleTimeTest, aSwitchOfWindows_isNoInput) {
    XClient client(scene.desk);
    const xcb_window_t first = client.open({.title = "First"});
    const xcb_window_t second = client.open({.title = "Second"});
    ASSERT_TRUE(waitFor([&] { return idle() >= 1200; }));
    client.activate(first);
    EXPECT_SEEN(scene, "Client: First");
    client.activate(second);
    EXPECT_SEEN(scene, "Client: Second");
    EXPECT_GE(idle(), 1200);
}

TEST_F(X11IdleTimeTest, aReading_isOneRoundTrip) {
    const quint64 before = scene.desktop->roundTrips();
    EXPECT_GE(idle(), 0);
    EXPECT_EQ(scene.desktop->roundTrips() - before, 1U);
}

TEST_F(X11IdleTimeTest, eventsThatArriveWhileItAsks_areNotForgotten) {
    XClient client(scene.desk);
    const xcb_window_t window = client.open({.title = "Old"});
    client.activate(window);
    EXPECT_SEEN(scene, "Client: Old");
    X11IdleTime asking(scene.desktop->connection());
    // Through the same connection and without a turn of the loop, so that news arrives while it waits.
    X11Connection& connection = scene.desktop->connection();
    for (int i = 0; i < 20; ++i) {
        const QByteArray title = "New " + QByteArray::number(i);
        xcb_change_property(connection.xcb(), XCB_PROP_MODE_REPLACE, window,
                            connection.atom(X11Atom::NetWmName), connection.atom(X11Atom::Utf8String), 8,
                            quint32(title.size()), title.constData());
        asking.read();
        EXPECT_TRUE(waitFor([&] { return scene.frontTitle() == QString::fromLatin1(title); }));
    }
}

TEST_F(X11IdleTimeTest, inputAfterAPause_isToldAndNoOther) {
    X11IdleTime told(scene.desktop->connection(), 1000ms);
    int inputs = 0;
    const Subscription subscription = told.observeInput([&] { ++inputs; });
    ASSERT_TRUE(waitFor([&] { return told.tellsOfInput(); }));
    for (int round = 1; round <= 2; ++round) {
        ASSERT_TRUE(waitFor([&] { return idle() >= 1500; }));
        EXPECT_EQ(inputs, round - 1);
        ASSERT_TRUE(
            scene.desk.run(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("shift")}));
        EXPECT_TRUE(waitFor([&] { return inputs == round; }));
        ASSERT_TRUE(
            scene.desk.run(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("shift")}));
        // A round trip: what the server had to tell has been told.
        idle();
        QCoreApplication::processEvents();
        EXPECT_EQ(inputs, round);
    }
}

TEST_F(X11IdleTimeTest, aServerThatIsBack_tellsOfInputAgain) {
    int inputs = 0;
    const Subscription subscription = idleTime.observeInput([&] { ++inputs; });
    ASSERT_TRUE(waitFor([&] { return idleTime.tellsOfInput(); }));
    scene.desk.killDisplay();
    ASSERT_TRUE(waitFor([&] { return !idleTime.tellsOfInput(); }));
    EXPECT_EQ(inputs, 1) << "somebody may be there: it must be asked";
    scene.desk.restartDisplay();
    EXPECT_TRUE(waitFor([&] { return idleTime.tellsOfInput(); }));
}

TEST_F(X11IdleTimeTest, aServerThatDied_answersNothing) {
    EXPECT_GE(idle(), 0);
    scene.desk.killDisplay();
    ASSERT_TRUE(waitFor([&] { return !scene.desktop->connection().isAlive(); }));
    EXPECT_EQ(idleTime.read().lack, IdleReading::Lack::NoAnswer);
    scene.desk.restartDisplay();
    EXPECT_TRUE(waitFor([&] { return idle() >= 0; }));
}

} // namespace
