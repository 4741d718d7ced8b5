// SPDX-License-Identifier: MIT
// GNOME Shell before Ticklog's extension runs, and when it starts.
#include "app/StandInDesktop.h"

#include "platform/desktop/NoDesktop.h"
#include "platform/desktop/SilenceWatch.h"
#include "tests/Places.h"
#include "tests/desktop/CountedSigns.h"
#include "tests/desktop/GnomeScene.h"
#include "tests/desktop/RoundTrip.h"
#include "tests/desktop/services/ServiceScript.h"

#include <gtest/gtest.h>

namespace {

class StandInDesktopTest : public testing::Test {
protected:
    StandInDesktopTest() {
        m_scene.lookThrough(m_desktop);
        EXPECT_TRUE(m_scene.desk.letProgramsTell());
        EXPECT_TRUE(m_scene.desk.plugInKeyboard());
    }

    bool bringToFront(const char* title) { return m_scene.desk.bringToFront(QString::fromUtf8(title)); }

    GnomeScene m_scene{{.isEnabled = false}};
    AtspiFrontDesktop m_programs{m_scene.bus, m_scene.runLoop, m_scene.log, m_scene.entries};
    StandInDesktop m_desktop{*m_scene.desktop, m_programs, m_scene.runLoop, m_scene.entries};
};

TEST_F(StandInDesktopTest, programsThatTell_areSeenUntilTheExtensionRuns) {
    WaylandClient qt(m_scene.desk, QStringLiteral("Editor"));
    qt.open(QStringLiteral("Page"));
    WaylandClient gtk(m_scene.desk, QStringLiteral("Mailer"), WaylandClient::Kind::Gtk);
    gtk.open(QStringLiteral("Inbox"));
    // Before a window has been in front, it may still come to the front by itself.
    ASSERT_TRUE(bringToFront("Inbox"));
    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(bringToFront("Page"));
        EXPECT_SEEN(m_scene, "Editor: Page");
        ASSERT_TRUE(bringToFront("Inbox"));
        EXPECT_SEEN(m_scene, "Mailer: Inbox");
    }
    EXPECT_TRUE(m_desktop.obstacle().contains(QStringLiteral("only programs that tell")));
    EXPECT_TRUE(m_desktop.describe().contains(QStringLiteral("AT-SPI")));
    ASSERT_TRUE(m_scene.frontWindow());
    const auto number = m_scene.frontWindow()->number;
    m_scene.switches.clear();
    ASSERT_TRUE(m_scene.desk.enableExtension());
    EXPECT_TRUE(waitFor([this] { return m_desktop.obstacle().isEmpty(); }));
    EXPECT_SEEN(m_scene, "Mailer: Inbox");
    EXPECT_EQ(m_scene.switches, QStringList()) << "the same is in front";
    EXPECT_NE(m_scene.frontWindow()->number, number) << "as the shell counts";
    EXPECT_EQ(m_scene.titles(), QStringList({QStringLiteral("Inbox"), QStringLiteral("Page")}));
    EXPECT_FALSE(m_programs.isTelling());
    EXPECT_FALSE(m_desktop.describe().contains(QStringLiteral("AT-SPI")));
}

TEST_F(StandInDesktopTest, aProgramOfGtk4_isSeenToo) {
    const auto program = m_scene.desk.start(
        QStringLiteral("/usr/bin/python3"),
        {QStringLiteral("-B"), QStringLiteral(TICKLOG_SOURCE_DIR "/tests/desktop/clients/gtk4_client.py"),
         QStringLiteral("Painter"), QStringLiteral("Canvas")});
    ASSERT_TRUE(bringToFront("Canvas"));
    EXPECT_SEEN(m_scene, "Painter: Canvas");
}

// The shell has a program of its own that draws the frames of such windows, and tells of these.
TEST(StandInXServer, programsOnX11_areSeenAsTheyTellOfThemselves) {
    GnomeScene scene({.isEnabled = false}, WaylandDesk::XServer::Own);
    AtspiFrontDesktop programs(scene.bus, scene.runLoop, scene.log, scene.entries);
    StandInDesktop desktop(*scene.desktop, programs, scene.runLoop, scene.entries);
    scene.lookThrough(desktop);
    ASSERT_TRUE(scene.desk.letProgramsTell());
    ASSERT_TRUE(scene.desk.plugInKeyboard());
    const auto startOnX11 = [&](const char* client, const char* name, const char* title) {
        return scene.desk.start(
            QStringLiteral("/usr/bin/env"),
            {QStringLiteral("GDK_BACKEND=x11"), QStringLiteral("/usr/bin/python3"), QStringLiteral("-B"),
             QStringLiteral(TICKLOG_SOURCE_DIR "/tests/desktop/clients/") + QLatin1String(client),
             QLatin1String(name), QLatin1String(title)});
    };
    const auto painter = startOnX11("gtk4_client.py", "Painter", "Canvas");
    const auto terminal =
        scene.desk.start(QStringLiteral("xterm"), {QStringLiteral("-T"), QStringLiteral("Shell")});
    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(scene.desk.bringToFront(QStringLiteral("Canvas")));
        EXPECT_SEEN(scene, "Painter: Canvas");
        ASSERT_TRUE(scene.desk.bringToFront(QStringLiteral("Shell")));
        EXPECT_SEEN(scene, "Desktop: none");
    }
    EXPECT_TRUE(std::ranges::none_of(scene.switches, [](const QString& name) {
        return name.contains(QStringLiteral("frames"));
    })) << qPrintable(scene.switches.join(u' '));
}

TEST_F(StandInDesktopTest, aProgramThatTellsNothing_leavesTheDesktopInFront) {
    WaylandClient qt(m_scene.desk, QStringLiteral("Editor"));
    qt.open(QStringLiteral("Page"));
    ASSERT_TRUE(bringToFront("Page"));
    EXPECT_SEEN(m_scene, "Editor: Page");
    const auto terminal = m_scene.desk.start(QStringLiteral("foot"), {QStringLiteral("--title=Shell")});
    ASSERT_TRUE(bringToFront("Shell"));
    EXPECT_SEEN(m_scene, "Desktop: none");
    ASSERT_TRUE(m_scene.desk.enableExtension());
    EXPECT_SEEN(m_scene, "foot: Shell");
}

TEST_F(StandInDesktopTest, anExtensionThatIsSwitchedOff_isStoodInForAgain) {
    WaylandClient qt(m_scene.desk, QStringLiteral("Editor"));
    qt.open(QStringLiteral("Page"));
    ASSERT_TRUE(bringToFront("Page"));
    ASSERT_TRUE(m_scene.desk.enableExtension());
    EXPECT_TRUE(waitFor([this] { return m_desktop.obstacle().isEmpty(); }));
    EXPECT_SEEN(m_scene, "Editor: Page");
    ASSERT_TRUE(m_scene.desk.disableExtension());
    EXPECT_TRUE(waitFor([this] { return m_scene.front() == QStringLiteral("Desktop"); })) << "at first";
    EXPECT_SEEN(m_scene, "Editor: Page");
    EXPECT_TRUE(m_programs.isTelling());
}

TEST_F(StandInDesktopTest, aShellThatHangs_isNoticedAndNobodyIsCreditedForIt) {
    WaylandClient qt(m_scene.desk, QStringLiteral("Editor"));
    qt.open(QStringLiteral("Page"));
    ASSERT_TRUE(bringToFront("Page"));
    EXPECT_SEEN(m_scene, "Editor: Page");
    NoIdleTime somebodyIsThere;
    CountedSigns signs(m_desktop);
    const SilenceWatch watch({m_desktop, m_desktop, signs, somebodyIsThere}, m_scene.runLoop, m_scene.log,
                             [] { return true; }, {std::chrono::milliseconds(300), std::chrono::seconds(3)});
    const auto front = [&] { return watch.activeApplication().value_or(ApplicationRecord()).name; };
    ASSERT_TRUE(waitFor([&] { return signs.asked >= 2; }));
    EXPECT_EQ(front(), QStringLiteral("Editor")) << "it has nothing to tell, and answers";
    m_scene.desk.pause();
    EXPECT_TRUE(waitFor([&] { return front() == kDesktopName; }));
    m_scene.desk.resume();
    EXPECT_TRUE(waitFor([&] { return front() == QStringLiteral("Editor"); }));
}

// A scripted shell without the extension, on a bus of its own.
struct ScriptedShell {
    // `programsBus` is the bus on which programs describe themselves; empty for the shell's own.
    ScriptedShell(const QString& version, const QString& programsBus)
        : shell(home, QStringLiteral("gnome_shell.py"), {daemon.address(), version})
        , otherBus(Bus::atAddress(programsBus.isEmpty() ? daemon.address() : programsBus), sight.runLoop,
                   sight.log) {
        sight.lookThrough(desktop);
    }

    TemporaryHome home;
    SessionBus daemon{home.environment(), home.runtimeFolder()};
    ServiceScript shell;
    Sight sight{home.dataFolder()};
    Bus bus{Bus::atAddress(daemon.address()), sight.runLoop, sight.log};
    Bus otherBus;
    BusName name{bus, kTicklogName, sight.log};
    GnomeShellDesktop extension{bus, name, sight.log, sight.entries};
    AtspiFrontDesktop programs{otherBus, sight.runLoop, sight.log, sight.entries};
    StandInDesktop desktop{extension, programs, sight.runLoop, sight.entries};
};

TEST(StandIn, whereNeitherTells_nobodyIsCreditedAndItIsSaidWhy) {
    ScriptedShell session(QStringLiteral("43.9"), QStringLiteral("unix:path=/nowhere"));
    EXPECT_TRUE(waitFor([&] { return session.sight.log.mentions(QStringLiteral("AT-SPI")); }));
    EXPECT_TRUE(roundTrip(session.otherBus)) << "that there is no bus is told by now";
    EXPECT_EQ(session.sight.seen(), QStringLiteral("none: none"));
    EXPECT_TRUE(session.desktop.obstacle().endsWith(QStringLiteral("no window’s time is counted.")));
}

TEST(StandIn, aVersionThatWasNotTested_isNamedWhileProgramsTell) {
    ScriptedShell session(QStringLiteral("45.2"), QString());
    EXPECT_TRUE(waitFor([&] {
        return session.desktop.obstacle().contains(QStringLiteral("GNOME Shell 45.2")) &&
               session.desktop.obstacle().contains(QStringLiteral("only programs that tell"));
    })) << qPrintable(session.desktop.obstacle());
}

} // namespace
