// SPDX-License-Identifier: MIT
#include "app/DesktopChooser.h"

#include "platform/linux/ActivationService.h"
#include "platform/linux/LinuxSandbox.h"
#include "tests/Places.h"
#include "tests/desktop/Sight.h"
#include "tests/desktop/harness/Desk.h"
#include "tests/desktop/harness/GnomeDesk.h"

#include <gtest/gtest.h>

namespace {

// The variables that name a desktop.
const char* const kNames[] = {"DISPLAY", "WAYLAND_DISPLAY", "XDG_SESSION_TYPE", "XDG_CURRENT_DESKTOP",
                              "XDG_RUNTIME_DIR"};

// What is chosen by a process with this environment.
class Choice {
public:
    // `sandbox` is the file that a sandbox puts there.
    explicit Choice(const QProcessEnvironment& environment, const QString& sandbox = {})
        : m_adoption(environment)
        , m_sessionBus(Bus::atAddress(environment.value(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"))),
                       ground.runLoop, ground.log)
        , m_sandbox(sandbox, QString(), QString()) {}

    // From the log: what was refused, up to the reason.
    QStringList refused() const {
        QStringList names;
        for (const QString& line : ground.log.lines.filter(QStringLiteral(" is not used: ")))
            names << line.section(QStringLiteral(" is not used: "), 0, 0);
        return names;
    }

    QString reason(const QString& name) const {
        return ground.log.lines.filter(name + QStringLiteral(" is not used: "))
            .value(0)
            .section(QStringLiteral(" is not used: "), 1);
    }

    QString desktop() { return chooser.desktop().describe(); }
    QString idleTime() { return chooser.idleTime().describe(); }
    QString obstacle() { return chooser.desktop().obstacle(); }

private:
    // Takes this environment for this process.
    struct Adoption {
        explicit Adoption(const QProcessEnvironment& environment) {
            for (const char* name : kNames) {
                const QString key = QString::fromLatin1(name);
                if (environment.contains(key))
                    qputenv(name, environment.value(key).toLocal8Bit());
                else
                    qunsetenv(name);
            }
        }
    };

    Adoption m_adoption;

public:
    Sight ground{QStringLiteral("/nowhere")};

private:
    Bus m_sessionBus;
    Bus m_systemBus{Bus::atAddress(QStringLiteral("unix:path=/nowhere")), ground.runLoop, ground.log};
    BusName m_name{m_sessionBus, kTicklogName, ground.log};
    OwnSession m_session{m_systemBus, ground.log, QString()};
    LinuxSandbox m_sandbox;

public:
    DesktopChooser chooser{{ground.runLoop, ground.log, ground.entries, ground.clock, m_sessionBus, m_name,
                            m_systemBus, m_session, m_sandbox}};
};

const QString kPlasma = QStringLiteral("The Plasma desktop");
const QString kWlroots = QStringLiteral("The wlroots desktop");
const QString kGnome = QStringLiteral("The GNOME desktop");
const QString kX11 = QStringLiteral("The X11 desktop");
const QString kIdleByWayland = QStringLiteral("The idle time by Wayland");
const QString kIdleByGnome = QStringLiteral("The idle time by GNOME");
const QString kIdleByLogind = QStringLiteral("The idle time by logind");

TEST(DesktopChooserTest, sway_isAskedAfterPlasmaWasNotThere) {
    const SwayDesk desk;
    Choice choice(desk.environment());
    EXPECT_EQ(choice.refused(), QStringList(kPlasma));
    EXPECT_EQ(choice.reason(kPlasma),
              QStringLiteral("the compositor does not offer Plasma's window management"));
    EXPECT_TRUE(choice.desktop().contains(QStringLiteral("wlr-foreign-toplevel")))
        << qPrintable(choice.desktop());
    EXPECT_TRUE(choice.idleTime().startsWith(QStringLiteral("Wayland: "))) << qPrintable(choice.idleTime());
    EXPECT_EQ(choice.obstacle(), QString());
    EXPECT_EQ(choice.chooser.shellExtension(), nullptr);
}

TEST(DesktopChooserTest, kwin_isAskedFirst) {
    const KWinDesk desk;
    Choice choice(desk.environment());
    EXPECT_EQ(choice.refused(), QStringList());
    EXPECT_TRUE(choice.desktop().startsWith(QStringLiteral("Plasma: "))) << qPrintable(choice.desktop());
}

TEST(DesktopChooserTest, aKWinThatTellsOnlyInstalledPrograms_isSeenAsFarAsProgramsTell) {
    const KWinDesk desk(KWinDesk::Windows::ForThoseThatAsk);
    Choice choice(desk.environment());
    EXPECT_EQ(choice.refused(), QStringList({kPlasma, kWlroots, kGnome}));
    EXPECT_EQ(choice.reason(kGnome), QStringLiteral("this is not GNOME"));
    EXPECT_TRUE(choice.obstacle().contains(QStringLiteral("Install Ticklog")));
    EXPECT_TRUE(waitFor([&] { return choice.desktop().contains(QStringLiteral("AT-SPI")); }));
    EXPECT_TRUE(
        waitFor([&] { return choice.obstacle().contains(QStringLiteral("only programs that tell")); }));
    EXPECT_TRUE(choice.obstacle().contains(QStringLiteral("Install Ticklog")))
        << "it still says how to get more";
    EXPECT_TRUE(choice.idleTime().startsWith(QStringLiteral("Wayland: "))) << "that it tells all the same";
}

TEST(DesktopChooserTest, gnome_isAskedLastAndBringsItsExtension) {
    const GnomeDesk desk({.isInstalled = false});
    Choice choice(desk.environment());
    EXPECT_EQ(choice.refused(), QStringList({kPlasma, kWlroots, kIdleByWayland}));
    EXPECT_TRUE(choice.desktop().startsWith(QStringLiteral("GNOME Shell: ")));
    EXPECT_TRUE(choice.idleTime().startsWith(QStringLiteral("GNOME: ")));
    ASSERT_NE(choice.chooser.shellExtension(), nullptr);
    EXPECT_TRUE(
        waitFor([&] { return choice.chooser.shellExtension()->state() == ShellExtension::State::Missing; }));
}

TEST(DesktopChooserTest, gnomeFromWithinASandbox_isRefusedWithItsReason) {
    const GnomeDesk desk({.isInstalled = false});
    Choice choice(desk.environment(), QStringLiteral("/dev/null"));
    EXPECT_TRUE(choice.refused().contains(kGnome));
    EXPECT_TRUE(choice.obstacle().contains(QStringLiteral("sandbox"))) << qPrintable(choice.obstacle());
    EXPECT_EQ(choice.chooser.shellExtension(), nullptr);
}

TEST(DesktopChooserTest, aCompositorThatTellsNothing_isSeenAsFarAsProgramsTell) {
    Desk desk(QStringLiteral("openbox"), Desk::Bus::Own);
    Program compositor(QStringLiteral(TICKLOG_BINARY_DIR "/odd-compositor"),
                       {QStringLiteral("wayland-mute"), QStringLiteral("mute")}, desk.environment(),
                       Program::Output::Read);
    ASSERT_EQ(compositor.readLine(), QByteArray("ok"));
    QProcessEnvironment environment = desk.environment();
    environment.insert(QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("wayland-mute"));
    Choice choice(environment);
    EXPECT_EQ(choice.refused(), QStringList({kPlasma, kWlroots, kGnome}));
    EXPECT_TRUE(choice.idleTime().startsWith(QStringLiteral("Wayland: ")));
    EXPECT_TRUE(waitFor([&] { return choice.desktop().contains(QStringLiteral("AT-SPI")); }));
    EXPECT_TRUE(
        waitFor([&] { return choice.obstacle().contains(QStringLiteral("sees only programs that tell")); }));
}

TEST(DesktopChooserTest, aKWinThatTellsOnlyInstalledPrograms_isNotSeenFromWithinASandbox) {
    const KWinDesk desk(KWinDesk::Windows::ForThoseThatAsk);
    Choice choice(desk.environment(), QStringLiteral("/dev/null"));
    EXPECT_TRUE(choice.obstacle().contains(QStringLiteral("Install Ticklog")));
    EXPECT_EQ(choice.desktop(), NoDesktop(choice.ground.entries, {}).describe());
}

TEST(DesktopChooserTest, aDesktopNamedAfterGnomeWithoutItsShell_isNotToldOfIt) {
    Desk desk(QStringLiteral("openbox"), Desk::Bus::Own);
    Program compositor(QStringLiteral(TICKLOG_BINARY_DIR "/odd-compositor"),
                       {QStringLiteral("wayland-mute"), QStringLiteral("mute")}, desk.environment(),
                       Program::Output::Read);
    ASSERT_EQ(compositor.readLine(), QByteArray("ok"));
    QProcessEnvironment environment = desk.environment();
    environment.insert(QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("wayland-mute"));
    environment.insert(QStringLiteral("XDG_CURRENT_DESKTOP"), QStringLiteral("Budgie:GNOME"));
    Choice choice(environment);
    EXPECT_EQ(choice.reason(kGnome), QStringLiteral("there is no GNOME Shell on the session bus"));
    EXPECT_EQ(choice.chooser.shellExtension(), nullptr);
    EXPECT_TRUE(
        waitFor([&] { return choice.obstacle().contains(QStringLiteral("sees only programs that tell")); }));
}

TEST(DesktopChooserTest, aCompositorThatTellsNothingWithoutABus_creditsNobody) {
    const Desk desk;
    Program compositor(QStringLiteral(TICKLOG_BINARY_DIR "/odd-compositor"),
                       {QStringLiteral("wayland-mute"), QStringLiteral("mute")}, desk.environment(),
                       Program::Output::Read);
    ASSERT_EQ(compositor.readLine(), QByteArray("ok"));
    QProcessEnvironment environment = desk.environment();
    environment.insert(QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("wayland-mute"));
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("unix:path=/nowhere"));
    Choice choice(environment);
    EXPECT_EQ(choice.desktop(), NoDesktop(choice.ground.entries, {}).describe());
    EXPECT_TRUE(choice.obstacle().contains(QStringLiteral("no time can be counted")));
}

TEST(DesktopChooserTest, x11_isAskedWithItsOwnIdleTime) {
    const Desk desk;
    Choice choice(desk.environment());
    EXPECT_EQ(choice.refused(), QStringList());
    EXPECT_TRUE(choice.desktop().startsWith(QStringLiteral("X11: ")));
    EXPECT_TRUE(choice.idleTime().startsWith(QStringLiteral("X11: ")));
}

TEST(DesktopChooserTest, aWaylandDisplayThatIsGone_givesWayToTheXServer) {
    const Desk desk;
    QProcessEnvironment environment = desk.environment();
    environment.insert(QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("wayland-gone"));
    Choice choice(environment);
    EXPECT_EQ(choice.refused(), QStringList(QStringLiteral("Wayland")));
    EXPECT_EQ(choice.reason(QStringLiteral("Wayland")),
              QStringLiteral("the Wayland display wayland-gone cannot be reached"));
    EXPECT_TRUE(choice.desktop().startsWith(QStringLiteral("X11: ")));
}

TEST(DesktopChooserTest, anXServerBesideACompositor_isNotAskedWhereTheCompositorIsKnown) {
    const SwayDesk desk(WaylandDesk::XServer::Own);
    ASSERT_FALSE(desk.xDisplay().isEmpty());
    Choice choice(desk.environment());
    EXPECT_TRUE(choice.desktop().contains(QStringLiteral("wlr-foreign-toplevel")));
    EXPECT_FALSE(choice.refused().contains(kX11));
}

TEST(DesktopChooserTest, anXServerBesideACompositorThatIsNotKnown_isRefusedWithWhatCanBeDone) {
    const SwayDesk desk(WaylandDesk::XServer::Own);
    QProcessEnvironment environment = desk.environment();
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment.remove(QStringLiteral("XDG_SESSION_TYPE"));
    Choice choice(environment);
    EXPECT_TRUE(choice.refused().contains(kX11));
    EXPECT_TRUE(choice.obstacle().contains(QStringLiteral("desktop’s menu")))
        << qPrintable(choice.obstacle());
    EXPECT_FALSE(choice.chooser.desktop().activeApplication());
}

TEST(DesktopChooserTest, nothingAtAll_endsWithTheOnesThatKnowNothing) {
    Choice choice(QProcessEnvironment{});
    EXPECT_EQ(choice.refused(), QStringList({kX11, kIdleByWayland, kIdleByGnome, kIdleByLogind}));
    EXPECT_EQ(choice.desktop(), NoDesktop(choice.ground.entries, {}).describe());
    EXPECT_EQ(choice.idleTime(), NoIdleTime().describe());
    EXPECT_EQ(choice.obstacle(),
              QStringLiteral("There is no window system that tells which window is in front."));
}

TEST(DesktopChooserTest, eachCandidate_isUsedOnceAndOnlyUpToTheFirstThatWorks) {
    RecordingLog log;
    std::vector<Failure> refusals;
    QStringList used;
    const auto candidate = [&](const QString& name, bool works) {
        return Candidate<int>{name, [&used, name, works]() -> Result<int> {
                                  used << name;
                                  if (works)
                                      return int(used.size());
                                  return Failure{Failure::Kind::NotFound, QStringLiteral("it is not there")};
                              }};
    };
    const auto chosen =
        firstThatWorks<int>({candidate(QStringLiteral("One"), false), candidate(QStringLiteral("Two"), true),
                             candidate(QStringLiteral("Three"), true)},
                            log, refusals);
    EXPECT_EQ(chosen, 2);
    EXPECT_EQ(used, QStringList({QStringLiteral("One"), QStringLiteral("Two")}));
    EXPECT_EQ(log.lines, QStringList(QStringLiteral("One is not used: it is not there")));
    EXPECT_EQ(refusals.size(), 1U);
}

} // namespace
