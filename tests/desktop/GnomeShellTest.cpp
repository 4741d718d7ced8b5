// SPDX-License-Identifier: MIT
// Ticklog and its extension of GNOME Shell: who gets reports, and what happens when either comes, goes or has
// another version.
#include "platform/gnome/GnomeShell.h"
#include "tests/Places.h"
#include "tests/desktop/GnomeScene.h"

#include <gtest/gtest.h>
#include <tuple>

namespace {

// Another connection to the scene's bus that tries to get reports.
class Stranger {
public:
    explicit Stranger(GnomeScene& scene)
        : m_bus(Bus::atAddress(scene.desk.bus().address()), scene.runLoop, scene.log)
        , m_signals(m_bus, {QString(), kTicklogShell, QString(), QString()},
                    [this](const QDBusMessage&) { ++heard; }) {}

    // The answer when it asks as Ticklog does, in words.
    QString ask() {
        std::optional<QDBusMessage> answer;
        m_bus.call(QDBusMessage::createMethodCall(kGnomeShell, kTicklogShellPath, kTicklogShell,
                                                  QStringLiteral("Follow")),
                   &m_context, [&](const QDBusMessage& message) { answer = message; });
        waitFor([&] { return answer.has_value(); });
        return answer ? answer->errorName() + answer->signature() : QStringLiteral("no answer");
    }

    // How many signals of the extension have reached it.
    int heard = 0;

private:
    Bus m_bus;
    BusSignal m_signals;
    QObject m_context;
};

const QString kRefusal = QStringLiteral("org.freedesktop.DBus.Error.AccessDenied") + QStringLiteral("s");

struct Editor {
    explicit Editor(GnomeScene& on)
        : scene(on)
        , client(on.desk, QStringLiteral("Editor")) {
        client.open(QStringLiteral("Page"));
        bringToFront();
    }

    void bringToFront() {
        waitFor([&] { return scene.desk.activate(QStringLiteral("Page")); });
        client.awaitFocus(0);
    }

    GnomeScene& scene;
    WaylandClient client;
};

TEST(GnomeShell, whoDoesNotBearTicklogsName_isToldNothing) {
    GnomeScene scene;
    Editor editor(scene);
    EXPECT_SEEN(scene, "Editor: Page");
    Stranger stranger(scene);
    EXPECT_EQ(stranger.ask(), kRefusal);
    editor.client.setTitle(0, QStringLiteral("Secret page"));
    EXPECT_SEEN(scene, "Editor: Secret page");
    // The bus keeps the order: with this answer, everything sent before has arrived.
    EXPECT_EQ(stranger.ask(), kRefusal);
    EXPECT_EQ(stranger.heard, 0);
    EXPECT_FALSE(scene.log.mentions(QStringLiteral("page"))) << "titles are private";
}

TEST(GnomeShell, whoBearsTheNameButIsAnotherProgram_isToldNothing) {
    GnomeScene scene({.executable = QStringLiteral("/usr/bin/ticklog")});
    const Editor editor(scene);
    EXPECT_TRUE(waitFor([&] { return scene.log.mentions(QStringLiteral("another Ticklog")); }));
    EXPECT_EQ(scene.seen(), QStringLiteral("none: none"));
    EXPECT_FALSE(scene.desktop->obstacle().isEmpty());
}

TEST(GnomeShell, anExtensionSwitchedOnAndOff_tellsOnlyWhileItIsOn) {
    GnomeScene scene({.isEnabled = false});
    const Editor editor(scene);
    EXPECT_TRUE(waitFor([&] { return scene.log.mentions(QStringLiteral("is not running")); }));
    EXPECT_EQ(scene.seen(), QStringLiteral("none: none"));
    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(scene.desk.enableExtension());
        EXPECT_SEEN(scene, "Editor: Page");
        EXPECT_EQ(scene.desktop->obstacle(), QString());
        ASSERT_TRUE(scene.desk.disableExtension());
        EXPECT_SEEN(scene, "Desktop: none");
        EXPECT_EQ(scene.titles(), QStringList());
    }
}

TEST(GnomeShell, aShellWithoutTheExtension_tellsNothing) {
    GnomeScene scene({.isInstalled = false});
    const Editor editor(scene);
    EXPECT_TRUE(waitFor([&] { return scene.log.mentions(QStringLiteral("is not running")); }));
    EXPECT_EQ(scene.seen(), QStringLiteral("none: none"));
}

TEST(GnomeShell, aNewerExtensionThatIsUnderstood_isUsed) {
    GnomeScene scene({.version = 2});
    const Editor editor(scene);
    EXPECT_SEEN(scene, "Editor: Page");
    EXPECT_TRUE(scene.log.mentions(QStringLiteral("speaks version 2")));
}

TEST(GnomeShell, aNewerExtensionThatIsNotUnderstood_isNotBelieved) {
    GnomeScene scene({.version = 2, .oldestVersion = 2});
    const Editor editor(scene);
    EXPECT_TRUE(waitFor([&] { return scene.log.mentions(QStringLiteral("does not understand")); }));
    EXPECT_EQ(scene.seen(), QStringLiteral("none: none"));
}

TEST(GnomeShell, programsOfEveryKit_areSeenWithTheirTitlesAndProcesses) {
    GnomeScene scene({}, WaylandDesk::XServer::Own);
    using Kind = WaylandClient::Kind;
    WaylandClient qt(scene.desk, QStringLiteral("Editor"));
    WaylandClient gtk(scene.desk, QStringLiteral("Mailer"), Kind::Gtk);
    WaylandClient x(scene.desk, QStringLiteral("Oldtimer"), Kind::QtOnX11);
    qt.open(QStringLiteral("Page"));
    gtk.open(QStringLiteral("Inbox"));
    x.open(QStringLiteral("Log"));
    const auto gtk4 = scene.desk.start(
        QStringLiteral("/usr/bin/python3"),
        {QStringLiteral("-B"), QStringLiteral(TICKLOG_SOURCE_DIR "/tests/desktop/clients/gtk4_client.py"),
         QStringLiteral("Painter"), QStringLiteral("Canvas")});
    const std::vector<std::tuple<QString, QString, std::int64_t>> programs{
        {QStringLiteral("Editor"), QStringLiteral("Page"), qt.processIdentifier()},
        {QStringLiteral("Mailer"), QStringLiteral("Inbox"), gtk.processIdentifier()},
        {QStringLiteral("Oldtimer"), QStringLiteral("Log"), x.processIdentifier()},
        {QStringLiteral("Painter"), QStringLiteral("Canvas"), gtk4->processIdentifier()}};
    // A window takes the focus when it is finally shown.
    for (const auto& [program, title, process] : programs)
        ASSERT_TRUE(scene.desk.activate(title)) << qPrintable(title);
    for (int round = 0; round < 2; ++round) {
        for (const auto& [program, title, process] : programs) {
            ASSERT_TRUE(scene.desk.bringToFront(title)) << qPrintable(title);
            const QString wanted = program + QStringLiteral(": ") + title;
            EXPECT_EQ(scene.seenAfterWaitingFor(wanted), wanted);
            EXPECT_EQ(scene.frontProcess(), process) << qPrintable(program);
        }
    }
    x.setTitle(0, QStringLiteral("Neu: ünï € 漢"));
    ASSERT_TRUE(scene.desk.bringToFront(QStringLiteral("Neu: ünï € 漢")));
    EXPECT_SEEN(scene, "Oldtimer: Neu: ünï € 漢");
}

TEST(GnomeShell, aShellThatIsKilled_tellsNothingUntilItIsBack) {
    GnomeScene scene;
    {
        const Editor editor(scene);
        EXPECT_SEEN(scene, "Editor: Page");
        scene.desk.kill();
        EXPECT_SEEN(scene, "Desktop: none");
        EXPECT_EQ(scene.titles(), QStringList());
    }
    scene.desk.restart();
    const Editor editor(scene);
    EXPECT_SEEN(scene, "Editor: Page");
}

} // namespace
