// SPDX-License-Identifier: MIT
// Installing the extension into a real GNOME Shell, and taking it out again.
#include "platform/gnome/GnomeExtension.h"
#include "tests/desktop/GnomeScene.h"

#include <QCoreApplication>
#include <QFile>

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

} // namespace
