// SPDX-License-Identifier: MIT
#include "platform/foundation/files/Folders.h"
#include "platform/linux/LinuxOwnProgram.h"
#include "platform/linux/LinuxSandbox.h"
#include "platform/linux/SandboxedLoginItems.h"
#include "platform/linux/SandboxedProgram.h"
#include "tests/desktop/harness/TemporaryHome.h"

#include <QFile>

#include <gtest/gtest.h>

#include <pwd.h>
#include <unistd.h>

namespace {

class FoldersTest : public testing::Test {
protected:
    FoldersTest() {
        for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME"})
            qunsetenv(variable);
        qputenv("HOME", m_home.path().toUtf8());
    }

    TemporaryHome m_home;
};

TEST_F(FoldersTest, withAHomeAlone_theUsualPlacesAreUsed) {
    const Folders folders = Folders::forUser();
    EXPECT_EQ(folders.applicationSupport, m_home.path() + QStringLiteral("/.local/share/Ticklog"));
    EXPECT_EQ(folders.settingsFile, m_home.path() + QStringLiteral("/.config/org.ticklog.Ticklog.plist"));
    EXPECT_EQ(folders.documents, m_home.path() + QStringLiteral("/Documents"));
}

TEST_F(FoldersTest, theBaseDirectories_areFollowed) {
    qputenv("XDG_DATA_HOME", "/data/");
    qputenv("XDG_CONFIG_HOME", m_home.configurationFolder().toUtf8());
    m_home.write(QStringLiteral("config/user-dirs.dirs"), "XDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n");
    const Folders folders = Folders::forUser();
    EXPECT_EQ(folders.applicationSupport, QStringLiteral("/data/Ticklog"));
    EXPECT_EQ(folders.settingsFile,
              m_home.configurationFolder() + QStringLiteral("/org.ticklog.Ticklog.plist"));
    EXPECT_EQ(folders.documents, m_home.path() + QStringLiteral("/Dokumente"));
}

TEST_F(FoldersTest, relativeBaseDirectories_countAsUnset) {
    qputenv("XDG_DATA_HOME", "data");
    EXPECT_EQ(Folders::forUser().applicationSupport, m_home.path() + QStringLiteral("/.local/share/Ticklog"));
}

TEST_F(FoldersTest, withoutAHome_thePasswordFilesServes) {
    const QString home = QFile::decodeName(::getpwuid(::getuid())->pw_dir);
    for (const char* none : {"", "home", "./"}) {
        qputenv("HOME", none);
        EXPECT_EQ(Folders::forUser().applicationSupport, home + QStringLiteral("/.local/share/Ticklog"));
        EXPECT_EQ(Folders::forUser().settingsFile,
                  home + QStringLiteral("/.config/org.ticklog.Ticklog.plist"));
        EXPECT_TRUE(Folders::ensureHome());
        EXPECT_EQ(qEnvironmentVariable("HOME"), home);
    }
}

TEST_F(FoldersTest, withAHome_itStaysAsItIs) {
    EXPECT_TRUE(Folders::ensureHome());
    EXPECT_EQ(qEnvironmentVariable("HOME"), m_home.path());
}

TEST(LinuxSandbox, flatpaksNote_tellsOfTheSandbox) {
    const TemporaryHome home;
    const QString note = home.path() + QStringLiteral("/.flatpak-info");
    EXPECT_FALSE(LinuxSandbox(note, QString(), QStringLiteral("/usr/bin/ticklog")).isSandboxed());
    home.write(QStringLiteral(".flatpak-info"), "[Application]\n");
    EXPECT_TRUE(LinuxSandbox(note, QString(), QStringLiteral("/usr/bin/ticklog")).isSandboxed());
}

TEST(LinuxSandbox, aProgramInTheSnap_isSandboxedAndOneThatASnapStartedIsNot) {
    const QString none = QStringLiteral("/nowhere/.flatpak-info");
    const QString snap = QStringLiteral("/snap/ticklog/7");
    EXPECT_TRUE(LinuxSandbox(none, snap, QStringLiteral("/snap/ticklog/7/bin/ticklog")).isSandboxed());
    EXPECT_FALSE(LinuxSandbox(none, snap, QStringLiteral("/usr/bin/ticklog")).isSandboxed());
    EXPECT_FALSE(LinuxSandbox(none, QString(), QStringLiteral("/usr/bin/ticklog")).isSandboxed());
}

TEST(SandboxedLoginItems, nothingIsStartedAtLogin_andWhoWantsItIsTold) {
    SandboxedLoginItems items;
    const Outcome wanted = items.setEnabled(QStringLiteral("org.ticklog.TicklogLaunchHelper"), true);
    ASSERT_FALSE(wanted);
    EXPECT_TRUE(wanted.failure().text.contains(QStringLiteral("sandbox")));
    EXPECT_TRUE(items.setEnabled(QStringLiteral("org.ticklog.TicklogLaunchHelper"), false));
    EXPECT_TRUE(items.items().empty());
}

TEST(SandboxedProgram, startedAnew_goesOnInsteadOfEndingForGood) {
    const LinuxOwnProgram program(QStringLiteral("/bin/true"));
    SandboxedProgram sandboxed(program);
    EXPECT_EQ(sandboxed.executable(), QStringLiteral("/bin/true"));
    EXPECT_FALSE(sandboxed.relaunch());
}

} // namespace
