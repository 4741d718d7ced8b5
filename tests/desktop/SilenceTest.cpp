// SPDX-License-Identifier: MIT
// Desktops that fall silent, and desktops that merely have no news.
#include "platform/desktop/SilenceWatch.h"

#include "platform/desktop/NoDesktop.h"
#include "platform/x11/X11IdleTime.h"
#include "tests/desktop/CountedSigns.h"
#include "tests/desktop/GnomeScene.h"
#include "tests/desktop/X11Scene.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

// Short for a test, but long for a busy machine.
const SilenceWatch::Limits kLimits{300ms, 3s};

// A watch over a scene, as if somebody were always at work.
struct Watched {
    explicit Watched(Sight& sight)
        : signs(sight.signsOfLife())
        , watch(
              {sight.frontApplication(), sight.windowList(), signs, idleTime}, sight.runLoop, sight.log,
              [] { return true; }, kLimits) {}

    QString front() const { return watch.activeApplication() ? watch.activeApplication()->name : QString(); }

    NoIdleTime idleTime;
    CountedSigns signs;
    SilenceWatch watch;
};

TEST(SilentXServer, aServerThatHangs_isNoticedAndOneThatHasNothingToTellIsNot) {
    X11Scene scene;
    XClient editor(scene.desk);
    editor.activate(editor.open({.title = "Page", .className = "Editor"}));
    EXPECT_SEEN(scene, "Editor: Page");
    Watched watched(scene);
    int switches = 0;
    const Subscription subscription = watched.watch.observeSwitches([&] { ++switches; });
    ASSERT_TRUE(waitFor([&] { return watched.signs.asked >= 2; }));
    EXPECT_EQ(watched.front(), QStringLiteral("Editor"));
    EXPECT_EQ(switches, 0);

    scene.desk.display().pause();
    ASSERT_TRUE(waitFor([&] { return watched.front() == kDesktopName; }));
    EXPECT_FALSE(watched.watch.obstacle().isEmpty());
    EXPECT_TRUE(watched.watch.onScreenWindows().empty());
    EXPECT_EQ(switches, 1);

    scene.desk.display().resume();
    ASSERT_TRUE(waitFor([&] { return watched.front() == QStringLiteral("Editor"); }));
    EXPECT_EQ(watched.watch.obstacle(), QString());
    EXPECT_EQ(watched.watch.onScreenWindows().size(), 1U);
    EXPECT_EQ(switches, 2);
}

TEST(SilentExtension, anExtensionThatTellsOfNoChanges_isAskedAndAnswers) {
    GnomeScene scene({.tellsOfChanges = false});
    WaylandClient editor(scene.desk, QStringLiteral("Editor"));
    EXPECT_TRUE(waitFor([&] { return scene.front() == kDesktopName; }));
    editor.open(QStringLiteral("Page"));
    ASSERT_TRUE(scene.desk.bringToFront(QStringLiteral("Page")));
    EXPECT_EQ(scene.front(), kDesktopName) << "nobody has told of it";
    const Watched watched(scene);
    EXPECT_TRUE(waitFor([&] { return watched.front() == QStringLiteral("Editor"); }));
}

TEST(SilentXServer, aServerThatHangs_letsTheIdleTimeWaitHalfASecondAtMost) {
    X11Scene scene;
    X11IdleTime idleTime(scene.desktop->connection());
    EXPECT_TRUE(idleTime.read().idle);
    scene.desk.display().pause();
    EXPECT_EQ(idleTime.read().lack, IdleReading::Lack::NoAnswer);
    scene.desk.display().resume();
    EXPECT_TRUE(idleTime.read().idle);
}

} // namespace
