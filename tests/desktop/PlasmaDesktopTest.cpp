// SPDX-License-Identifier: MIT
#include "tests/Places.h"
#include "tests/desktop/WaylandScene.h"

#include <QCoreApplication>
#include <QFile>

#include <gtest/gtest.h>

namespace {

// The desktop entry that is installed for a program at `executable`.
QByteArray installedEntry(const QString& executable) {
    QFile shipped(QStringLiteral(TICKLOG_SOURCE_DIR "/resources/org.ticklog.Ticklog.desktop"));
    if (!shipped.open(QFile::ReadOnly))
        qFatal("the desktop entry is not there");
    return shipped.readAll().replace("Exec=ticklog", QString(u"Exec=" + executable).toUtf8());
}

constexpr char kMenu[] = "<Menu><Name>Applications</Name><DefaultAppDirs/><DefaultDirectoryDirs/"
                         "><Include><All/></Include></Menu>\n";

Result<std::unique_ptr<PlasmaDesktop>> openOn(const WaylandDesk& desk, Sight& sight) {
    return PlasmaDesktop::open(desk.display().toLocal8Bit(), sight.runLoop, sight.log, sight.entries);
}

TEST(PlasmaDesktopPermission, withoutADesktopEntry_isRefusedWithWhatCanBeDone) {
    const KWinDesk desk(KWinDesk::Windows::ForThoseThatAsk);
    Sight sight(QStringLiteral("/nowhere"));
    const auto opened = openOn(desk, sight);
    ASSERT_FALSE(opened);
    EXPECT_EQ(opened.failure().kind, Failure::Kind::Refused);
    EXPECT_TRUE(opened.failure().text.contains(QStringLiteral("Install Ticklog")));
}

TEST(PlasmaDesktopPermission, theInstalledDesktopEntry_opensTheWindows) {
    KWinDesk desk(KWinDesk::Windows::ForThoseThatAsk);
    desk.kill();
    desk.home().write(QStringLiteral("data/applications/org.ticklog.Ticklog.desktop"),
                      installedEntry(QCoreApplication::applicationFilePath()));
    // KWin looks for entries in the desktop's menu, which comes with Plasma.
    desk.home().write(QStringLiteral("config/menus/applications.menu"), kMenu);
    desk.restart();
    Sight sight(QStringLiteral("/nowhere"));
    const auto opened = openOn(desk, sight);
    EXPECT_TRUE(opened) << qPrintable(opened.failure().text);
}

} // namespace
