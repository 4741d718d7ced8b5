// SPDX-License-Identifier: MIT
// Installing the extension into a real GNOME Shell, and taking it out again.
#include "platform/gnome/GnomeExtension.h"
#include "platform/gnome/GnomeShellVersion.h"
#include "tests/Places.h"
#include "tests/desktop/GnomeScene.h"
#include "tests/desktop/services/ServiceScript.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {

using State = ShellExtension::State;

class GnomeExtensionTest : public testing::Test {
protected:
    testing::AssertionResult becomes(State state) {
        if (waitFor([&] { return extension.state() == state; }))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << "it is " << int(extension.state()) << ", not " << int(state);
    }

    bool isThere(const char* file) {
        return QFile::exists(scene.desk.extensionFolder() + u'/' + QLatin1String(file));
    }

    GnomeScene scene{{.isInstalled = false, .isEnabled = false}};
    GnomeExtension extension{scene.bus,
                             scene.runLoop,
                             {QStringLiteral(TICKLOG_SOURCE_DIR "/resources/gnome-extension"),
                              {scene.desk.home().dataFolder()},
                              QCoreApplication::applicationFilePath()}};
};

TEST_F(GnomeExtensionTest, installed_runsAfterTheNextLoginUntilItIsRemoved) {
    ASSERT_TRUE(becomes(State::Missing));
    EXPECT_TRUE(extension.renew());
    EXPECT_FALSE(isThere("extension.js")) << "nobody has asked for it";
    int changes = 0;
    extension.observe([&] { ++changes; });
    ASSERT_TRUE(extension.install());
    ASSERT_TRUE(becomes(State::AwaitsLogin));
    EXPECT_EQ(changes, 1);

    scene.desk.kill();
    ASSERT_TRUE(becomes(State::Unknown));
    scene.desk.restart();
    ASSERT_TRUE(becomes(State::Off));
    EXPECT_EQ(scene.seen(), QStringLiteral("none: none"));
    extension.switchOn();
    ASSERT_TRUE(becomes(State::On));
    EXPECT_SEEN(scene, "Desktop: none");
    EXPECT_EQ(scene.desktop->obstacle(), QString());

    ASSERT_TRUE(extension.remove());
    ASSERT_TRUE(becomes(State::Off));
    EXPECT_TRUE(waitFor([&] { return !scene.desktop->obstacle().isEmpty(); }));
    EXPECT_FALSE(isThere("metadata.json"));
}

TEST_F(GnomeExtensionTest, aCopyOfAnEarlierVersion_isRenewed) {
    ASSERT_TRUE(extension.install());
    const QString path = scene.desk.extensionFolder() + QStringLiteral("/executable");
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("/somewhere/else\n");
    file.close();
    ASSERT_TRUE(extension.renew());
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    EXPECT_EQ(QFile::decodeName(file.readAll().trimmed()), QCoreApplication::applicationFilePath());
}

// A shell of any version on a bus of its own, and what is made of it.
struct ShellOfVersion {
    explicit ShellOfVersion(const QString& version)
        : shell(home, QStringLiteral("gnome_shell.py"), {daemon.address(), version}) {}

    TemporaryHome home;
    SessionBus daemon{home.environment(), home.runtimeFolder()};
    ServiceScript shell;
    Sight sight{home.dataFolder()};
    Bus bus{Bus::atAddress(daemon.address()), sight.runLoop, sight.log};
    GnomeExtension extension{
        bus,
        sight.runLoop,
        {QStringLiteral(TICKLOG_SOURCE_DIR "/resources/gnome-extension"), {home.dataFolder()}, {}}};
    BusName name{bus, kTicklogName, sight.log};
    GnomeShellDesktop desktop{bus, name, sight.log, sight.entries};
};

TEST(GnomeVersions, aVersionThatWasNotTested_isToldInsteadOfAnOffer) {
    ShellOfVersion newer(QStringLiteral("45.2"));
    EXPECT_TRUE(waitFor([&] { return newer.extension.state() == State::Refused; }));
    EXPECT_TRUE(
        waitFor([&] { return newer.desktop.obstacle().contains(QStringLiteral("GNOME Shell 45.2")); }));
    EXPECT_FALSE(newer.desktop.activeApplication());
}

TEST(GnomeVersions, aVersionThatWasTested_isOfferedTheExtension) {
    ShellOfVersion tested(QStringLiteral("43.9"));
    EXPECT_TRUE(waitFor([&] { return tested.extension.state() == State::Missing; }));
    EXPECT_TRUE(tested.desktop.obstacle().contains(QStringLiteral("is not running")));
}

TEST(GnomeVersions, theMetadata_nameTheTestedVersions) {
    QFile file(QStringLiteral(TICKLOG_SOURCE_DIR "/resources/gnome-extension/metadata.json"));
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    const QJsonObject metadata = QJsonDocument::fromJson(file.readAll()).object();
    QStringList named;
    for (const auto& version : metadata.value(QStringLiteral("shell-version")).toArray())
        named << version.toString();
    EXPECT_EQ(named, GnomeShellVersion::tested());
}

} // namespace
