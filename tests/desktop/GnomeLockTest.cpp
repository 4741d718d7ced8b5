// SPDX-License-Identifier: MIT
// A real GNOME Shell that covers the screen and meanwhile disables its extensions.
#include "platform/linux/DesktopScreenLock.h"
#include "platform/linux/LockAwareFrontApplication.h"
#include "tests/desktop/GnomeScene.h"

#include <gtest/gtest.h>

namespace {

TEST(GnomeLock, aScreenThatIsCovered_isTheScreenSaversUntilItIsUncovered) {
    GnomeScene scene;
    Bus systemBus(Bus::atAddress(QStringLiteral("unix:path=/nowhere")), scene.runLoop, scene.log);
    OwnSession session(systemBus, scene.log, QString());
    DesktopScreenLock lock(session, scene.bus, scene.runLoop);
    LockAwareFrontApplication front(*scene.desktop, lock);
    const auto inFront = [&] { return front.activeApplication().value_or(ApplicationRecord()).name; };
    WaylandClient editor(scene.desk, QStringLiteral("Editor"));
    editor.open(QStringLiteral("Page"));
    ASSERT_TRUE(scene.desk.bringToFront(QStringLiteral("Page")));
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(waitFor([&] { return inFront() == QStringLiteral("Editor"); })) << qPrintable(inFront());
        ASSERT_TRUE(scene.desk.coverScreen(true));
        EXPECT_TRUE(waitFor([&] { return inFront() == kScreenSaverName; })) << qPrintable(inFront());
        EXPECT_TRUE(waitFor([&] { return !scene.desktop->obstacle().isEmpty(); })) << "the extension is off";
        ASSERT_TRUE(scene.desk.coverScreen(false));
    }
}

} // namespace
