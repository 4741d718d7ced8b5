// SPDX-License-Identifier: MIT
// Installing the extension into a real GNOME Shell, and removing it.
#include "platform/gnome/GnomeExtension.h"
#include "platform/gnome/GnomeShellVersion.h"
#include "tests/Places.h"
#include "tests/desktop/GnomeScene.h"
#include "tests/desktop/services/ServiceScript.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {

using State = ShellExtension::State;

const QString kSource = QStringLiteral(TICKLOG_SOURCE_DIR "/resources/gnome-extension");
const QString kLegacy = QStringLiteral("legacy");
const QString kModules = QStringLiteral("modules");
constexpr int kFirstWithModules = 45;
constexpr int kFirstThatTellsChoice = 46;

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

void putInto(const QString& folder, const QString& name, const QByteArray& content) {
    QDir().mkpath(folder);
    QFile file(folder + u'/' + name);
    if (!file.open(QFile::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
}

testing::AssertionResult becomes(GnomeExtension& extension, State state) {
    if (waitFor([&] { return extension.state() == state; }))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "it is " << int(extension.state()) << ", not " << int(state);
}

class GnomeExtensionTest : public testing::Test {
protected:
    std::unique_ptr<GnomeExtension> open() {
        return std::make_unique<GnomeExtension>(
            scene.bus, scene.runLoop, scene.log,
            GnomeExtension::Places{
                kSource, {scene.desk.home().dataFolder()}, QCoreApplication::applicationFilePath()});
    }

    QByteArray installed(const char* file) {
        return contentOf(scene.desk.extensionFolder() + u'/' + QLatin1String(file));
    }

    GnomeScene scene{{.isInstalled = false, .isEnabled = false}};
    std::unique_ptr<GnomeExtension> extension = open();
};

TEST_F(GnomeExtensionTest, installed_runsAfterTheNextLoginUntilItIsRemoved) {
    ASSERT_TRUE(becomes(*extension, State::Missing));
    EXPECT_TRUE(installed("extension.js").isEmpty()) << "nobody has asked for it";
    int changes = 0;
    const Subscription subscription = extension->observe([&] { ++changes; });
    ASSERT_TRUE(extension->install());
    ASSERT_TRUE(becomes(*extension, State::AwaitsLogin));
    EXPECT_EQ(changes, 1);

    scene.desk.kill();
    ASSERT_TRUE(becomes(*extension, State::Unknown));
    scene.desk.restart();
    ASSERT_TRUE(becomes(*extension, State::Off));
    EXPECT_EQ(scene.seen(), QStringLiteral("none: none"));
    extension->switchOn();
    ASSERT_TRUE(becomes(*extension, State::On));
    EXPECT_SEEN(scene, "Desktop: none");
    EXPECT_EQ(scene.desktop->obstacle(), QString());

    ASSERT_TRUE(extension->remove());
    ASSERT_TRUE(becomes(*extension, State::Off));
    EXPECT_TRUE(waitFor([&] { return !scene.desktop->obstacle().isEmpty(); }));
    EXPECT_TRUE(installed("metadata.json").isEmpty());
}

// The shell's own switch off, and with it all extensions of the user.
TEST_F(GnomeExtensionTest, allExtensionsOff_isSaidAndSwitchedOnTogetherWithOurs) {
    scene.desk.installExtension();
    scene.desk.kill();
    ASSERT_TRUE(becomes(*extension, State::Unknown));
    scene.desk.restart();
    ASSERT_TRUE(becomes(*extension, State::Off));
    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(scene.desk.switchAllExtensions(false));
        ASSERT_TRUE(becomes(*extension, State::AllOff));
        extension->switchOn();
        ASSERT_TRUE(becomes(*extension, State::On));
        EXPECT_SEEN(scene, "Desktop: none");
    }
    ASSERT_TRUE(scene.desk.disableExtension());
    EXPECT_TRUE(becomes(*extension, State::Off)) << "the others are on";
}

TEST_F(GnomeExtensionTest, whileTheScreenIsLocked_theExtensionIsNotTakenForSwitchedOff) {
    scene.desk.installExtension();
    scene.desk.kill();
    ASSERT_TRUE(becomes(*extension, State::Unknown));
    scene.desk.restart();
    ASSERT_TRUE(becomes(*extension, State::Off));
    extension->switchOn();
    ASSERT_TRUE(becomes(*extension, State::On));
    std::vector<State> states;
    const Subscription subscription = extension->observe([&] { states.push_back(extension->state()); });
    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(scene.desk.coverScreen(true));
        ASSERT_TRUE(becomes(*extension, State::Paused));
        ASSERT_TRUE(scene.desk.coverScreen(false));
        ASSERT_TRUE(becomes(*extension, State::On));
    }
    // Shells that do not tell whether it is switched on take it away before they say that the screen is
    // covered.
    if (GnomeDesk::shellVersion() < kFirstThatTellsChoice)
        std::erase(states, State::Off);
    EXPECT_EQ(states, (std::vector{State::Paused, State::On, State::Paused, State::On}));
}

TEST_F(GnomeExtensionTest, oneThatIsOff_isSaidToBeSoWhenTheScreenIsUnlocked) {
    scene.desk.installExtension();
    scene.desk.kill();
    ASSERT_TRUE(becomes(*extension, State::Unknown));
    scene.desk.restart();
    ASSERT_TRUE(becomes(*extension, State::Off));
    ASSERT_TRUE(scene.desk.coverScreen(true));
    // As at a start meanwhile.
    extension = open();
    ASSERT_TRUE(becomes(*extension, State::Paused));
    ASSERT_TRUE(scene.desk.coverScreen(false));
    EXPECT_TRUE(becomes(*extension, State::Off));
}

TEST_F(GnomeExtensionTest, aCopyOfAnEarlierVersion_isRenewed) {
    ASSERT_TRUE(becomes(*extension, State::Missing));
    ASSERT_TRUE(extension->install());
    const QByteArray service = installed("service.js");
    putInto(scene.desk.extensionFolder(), QStringLiteral("executable"), "/somewhere/else\n");
    putInto(scene.desk.extensionFolder(), QStringLiteral("service.js"), "// Of long ago.\n");
    extension = open();
    EXPECT_EQ(QFile::decodeName(installed("executable").trimmed()), QCoreApplication::applicationFilePath())
        << "it decides whether we are told";
    EXPECT_TRUE(waitFor([&] { return installed("service.js") == service; }));
}

TEST_F(GnomeExtensionTest, aCopyForShellsOfAnotherAge_isReplacedAndRunsAfterTheNextLogin) {
    const QString folder = scene.desk.extensionFolder();
    const bool isLegacy = GnomeDesk::shellVersion() < kFirstWithModules;
    const QString other = kSource + u'/' + (isLegacy ? kModules : kLegacy);
    for (const char* name : {"extension.js", "metadata.json"})
        putInto(folder, QLatin1String(name), contentOf(other + u'/' + QLatin1String(name)));
    scene.desk.kill();
    ASSERT_TRUE(becomes(*extension, State::Unknown));
    extension.reset();
    scene.desk.restart();
    ASSERT_TRUE(scene.desk.enableExtension()) << "the shell knows it, and that it is not for it";

    extension = open();
    ASSERT_TRUE(becomes(*extension, State::AwaitsLogin));
    scene.desk.kill();
    ASSERT_TRUE(becomes(*extension, State::Unknown));
    scene.desk.restart();
    ASSERT_TRUE(becomes(*extension, State::On));
    EXPECT_SEEN(scene, "Desktop: none");
}

// A shell of any version, on a bus of its own.
struct ShellOfVersion {
    // `state` is the number that the shell gives for the extension's state; empty if it knows no extension.
    explicit ShellOfVersion(const QString& version, const QString& state = {})
        : shell(home, QStringLiteral("gnome_shell.py"),
                QStringList{daemon.address(), version} +
                    (state.isEmpty() ? QStringList() : QStringList{state})) {}

    QString folderBelow(const QString& dataFolder) const {
        return dataFolder + QStringLiteral("/gnome-shell/extensions/ticklog@ticklog.org");
    }

    TemporaryHome home;
    QString systemFolder = home.path() + QStringLiteral("/system");
    SessionBus daemon{home.environment(), home.runtimeFolder()};
    ServiceScript shell;
    Sight sight{home.dataFolder()};
    Bus bus{Bus::atAddress(daemon.address()), sight.runLoop, sight.log};
    GnomeExtension extension{bus, sight.runLoop, sight.log, {kSource, {home.dataFolder(), systemFolder}, {}}};
    BusName name{bus, kTicklogName, sight.log};
    GnomeShellDesktop desktop{bus, name, sight.log, sight.entries};
};

TEST(GnomeVersions, aVersionThatWasNotTested_isToldInsteadOfAnOffer) {
    ShellOfVersion newer(QStringLiteral("45.2"));
    EXPECT_TRUE(becomes(newer.extension, State::Refused));
    EXPECT_TRUE(
        waitFor([&] { return newer.desktop.obstacle().contains(QStringLiteral("GNOME Shell 45.2")); }));
    EXPECT_FALSE(newer.desktop.activeApplication());
}

TEST(GnomeVersions, aVersionThatWasTested_isOfferedTheExtension) {
    ShellOfVersion tested(QStringLiteral("43.9"));
    EXPECT_TRUE(becomes(tested.extension, State::Missing));
    EXPECT_TRUE(tested.desktop.obstacle().contains(QStringLiteral("is not running")));
}

TEST(GnomeVersions, eachVersion_getsTheFormThatItReads) {
    const QList<QPair<QString, QString>> forms{{QStringLiteral("43.9"), kLegacy},
                                               {QStringLiteral("48.7"), kModules},
                                               {QStringLiteral("50.alpha"), kModules}};
    for (const auto& [version, form] : forms) {
        ShellOfVersion tested(version);
        ASSERT_TRUE(becomes(tested.extension, State::Missing)) << qPrintable(version);
        ASSERT_TRUE(tested.extension.install());
        EXPECT_TRUE(becomes(tested.extension, State::AwaitsLogin)) << qPrintable(version);
        const QString folder = tested.folderBelow(tested.home.dataFolder());
        for (const char* name : {"extension.js", "metadata.json"})
            EXPECT_EQ(contentOf(folder + u'/' + QLatin1String(name)),
                      contentOf(kSource + u'/' + form + u'/' + QLatin1String(name)));
        EXPECT_EQ(QDir(folder).entryList(QDir::Files),
                  QStringList({QStringLiteral("executable"), QStringLiteral("extension.js"),
                               QStringLiteral("metadata.json"), QStringLiteral("service.js"),
                               QStringLiteral("windows.js")}));
    }
}

TEST(GnomeVersions, oneThatThePackageBringsForAnotherVersion_isNoHindrance) {
    ShellOfVersion newer(QStringLiteral("48.7"), QStringLiteral("4"));
    putInto(newer.folderBelow(newer.systemFolder), QStringLiteral("metadata.json"),
            contentOf(kSource + QStringLiteral("/legacy/metadata.json")));
    EXPECT_TRUE(becomes(newer.extension, State::Missing)) << "the user can have one that fits";
    ASSERT_TRUE(newer.extension.install());
    EXPECT_TRUE(becomes(newer.extension, State::AwaitsLogin));
}

TEST(GnomeVersions, aShellThatHasNotSaidWhichItIs_getsNothing) {
    TemporaryHome home;
    const SessionBus daemon(home.environment(), home.runtimeFolder());
    Sight sight(home.dataFolder());
    Bus bus(Bus::atAddress(daemon.address()), sight.runLoop, sight.log);
    GnomeExtension extension(bus, sight.runLoop, sight.log, {kSource, {home.dataFolder()}, {}});
    EXPECT_FALSE(extension.install());
    EXPECT_FALSE(QFile::exists(home.dataFolder() + QStringLiteral("/gnome-shell")));
}

TEST(GnomeVersions, theMetadata_nameTheTestedVersions) {
    QStringList named;
    for (const QString& form : {kLegacy, kModules}) {
        const QJsonObject metadata =
            QJsonDocument::fromJson(contentOf(kSource + u'/' + form + QStringLiteral("/metadata.json")))
                .object();
        for (const auto& version : metadata.value(QStringLiteral("shell-version")).toArray()) {
            named << version.toString();
            EXPECT_EQ(version.toString().toInt() < kFirstWithModules, form == kLegacy);
        }
    }
    EXPECT_EQ(named, GnomeShellVersion::tested());
}

} // namespace
