// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxServiceManagement.h"
#include "platform/foundation/time/QtRunLoop.h"
#include "platform/linux/TrustRecord.h"
#include "tests/Places.h"
#include "tests/desktop/harness/SystemBus.h"
#include "tests/desktop/services/ServiceScript.h"
#include "tests/fakes/RecordingLog.h"

#include <QDBusConnectionInterface>
#include <QFile>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString kHelper = u"org.ticklog.TKAXTrusted"_s;

class LinuxServiceManagementTest : public testing::Test {
protected:
    void makeInstaller(const QByteArray& lines) {
        m_home.write(u"installer"_s, "#!/bin/sh\n" + lines);
        ASSERT_EQ(::chmod(QFile::encodeName(m_places.installer).constData(), 0755), 0);
    }

    // Whether the service is installed afterwards; absent while a person is being asked.
    std::optional<bool> install() {
        m_services.emplace(m_bus, m_log, m_places);
        const auto authorization = m_services->requestRight();
        std::optional<bool> installed;
        m_services->installService(kHelper, *authorization,
                                   [&](bool isInstalled) { installed = isInstalled; });
        EXPECT_TRUE(waitFor([&] { return installed.has_value(); }));
        return installed;
    }

    // The result of asking the helper to trust a program: "done", or "refused" or "failed" with the reason.
    QString ask(Bus& bus) {
        LinuxServiceManagement services(bus, m_log, m_places);
        QString outcome;
        std::unique_ptr<TKAuthXPC> connection =
            services.connectToHelper(kHelper, [&](const Failure& failure) {
                // Handlers may destroy the connection.
                connection.reset();
                outcome =
                    (failure.kind == Failure::Kind::Refused ? u"refused: "_s : u"failed: "_s) + failure.text;
            });
        connection->authorize(u"/usr/bin/env"_s, [&] {
            connection.reset();
            outcome = u"done"_s;
        });
        EXPECT_EQ(outcome, QString()) << "never before the loop turns";
        EXPECT_TRUE(waitFor([&] { return !outcome.isEmpty(); }));
        return outcome;
    }

    TemporaryHome m_home;
    RecordingLog m_log;
    QtRunLoop m_runLoop{m_log};
    SystemBus m_systemBus{m_home, 60'000};
    ServiceScript m_polkit{m_home, u"polkit.py"_s, {m_systemBus.address()}};
    Bus m_bus{Bus::atAddress(m_systemBus.address()), m_runLoop, m_log};
    Bus m_noBus{Bus::atAddress(u"unix:path=/nowhere/bus"_s), m_runLoop, m_log};
    LinuxServiceManagement::Places m_places{
        .serviceFolders = {m_home.path() + u"/local"_s, m_home.path() + u"/installed"_s},
        .installer = m_home.path() + u"/installer"_s,
        // Asks nobody.
        .asRoot = {u"/usr/bin/env"_s}};
    std::optional<LinuxServiceManagement> m_services;
};

TEST_F(LinuxServiceManagementTest, aServiceThatIsInstalled_isNotInstalledAgain) {
    makeInstaller("touch \"$(dirname \"$0\")/ran\"\n");
    m_places.serviceFolders = {m_home.path() + u"/local"_s, m_systemBus.serviceFolder()};
    EXPECT_EQ(install(), true);
    EXPECT_FALSE(QFile::exists(m_home.path() + u"/ran"_s));
    const auto job = m_services->findService(kHelper);
    ASSERT_TRUE(job);
    EXPECT_EQ(job->name, kHelper);
    EXPECT_TRUE(job->program.startsWith(QStringLiteral(TICKLOG_BINARY_DIR "/TKAXTrusted")))
        << qPrintable(job->program);
    EXPECT_FALSE(m_services->findService(u"org.example.Other"_s));
}

TEST_F(LinuxServiceManagementTest, aServiceThatIsMissing_isInstalledByTheInstallerBesideTheProgram) {
    makeInstaller("touch \"$(dirname \"$0\")/ran\"\n");
    EXPECT_EQ(install(), true);
    EXPECT_TRUE(QFile::exists(m_home.path() + u"/ran"_s));
}

TEST_F(LinuxServiceManagementTest, anInstallerThatFails_isLoggedWithWhatItSaid) {
    makeInstaller("echo 'Not authorized' >&2; exit 126\n");
    EXPECT_EQ(install(), false);
    EXPECT_TRUE(m_log.mentions(u"The helper was not installed: Not authorized"_s));
}

TEST_F(LinuxServiceManagementTest, withoutAnInstaller_nothingIsInstalled) {
    EXPECT_EQ(install(), false);
    EXPECT_TRUE(m_log.mentions(u"is not installed"_s));
    makeInstaller("exit 0\n");
    m_places.asRoot = {u"/nowhere/pkexec"_s};
    EXPECT_EQ(install(), false);
}

TEST_F(LinuxServiceManagementTest, withoutASystemBus_theRightCannotBeHad) {
    EXPECT_EQ(LinuxServiceManagement(m_noBus, m_log, m_places).requestRight(), nullptr);
    EXPECT_NE(LinuxServiceManagement(m_bus, m_log, m_places).requestRight(), nullptr);
}

TEST_F(LinuxServiceManagementTest, aSubmittedService_isStarted) {
    LinuxServiceManagement services(m_bus, m_log, m_places);
    services.startService({kHelper, {}}, *services.requestRight());
    const auto isServed = [this] {
        return m_bus.connection().interface()->isServiceRegistered(kHelper).value();
    };
    EXPECT_TRUE(waitFor(isServed));
}

TEST_F(LinuxServiceManagementTest, theHelper_answersWhenItHasTrustedTheProgram) {
    m_polkit.ask("allow");
    EXPECT_EQ(ask(m_bus), u"done"_s);
    EXPECT_EQ(TrustRecord(m_systemBus.recordFolder()).programs(), QStringList{u"/usr/bin/env"_s});
    EXPECT_TRUE(m_polkit.ask("asked").endsWith(u" 1"_s)) << "a person may be asked";
}

TEST_F(LinuxServiceManagementTest, aHelperThatSaysNo_hasBeenReached) {
    m_polkit.ask("deny");
    EXPECT_EQ(ask(m_bus), u"refused: This was not authorized."_s);
}

TEST_F(LinuxServiceManagementTest, aHelperThatIsNotThere_cannotBeReached) {
    ASSERT_TRUE(QFile::remove(m_systemBus.serviceFolder() + u"/org.ticklog.TKAXTrusted.service"_s));
    EXPECT_TRUE(waitFor([this] { return ask(m_bus).startsWith(u"failed: "_s); }));
    EXPECT_EQ(ask(m_noBus), u"failed: no message bus"_s);
}

TEST_F(LinuxServiceManagementTest, theInstallerOfTheProgram_installsAndRemovesWhatWasBuilt) {
    const QString prefix = m_home.path() + u"/opt"_s;
    const QString root = m_home.path() + u"/root"_s;
    Program install(u"cmake"_s, {u"--install"_s, QStringLiteral(TICKLOG_BINARY_DIR), u"--prefix"_s, prefix},
                    m_home.environment());
    ASSERT_TRUE(install.waitUntilEnded());
    ASSERT_EQ(install.exitStatus(), 0);
    QProcessEnvironment environment = m_home.environment();
    environment.insert(u"DESTDIR"_s, root);
    const QString installer = prefix + u"/libexec/ticklog/install-helper"_s;
    const auto files = [&] {
        Program find(u"find"_s, {root, u"-type"_s, u"f"_s, u"-printf"_s, u"/%P %m\\n"_s}, environment,
                     Program::Output::Read);
        QStringList found;
        while (const auto line = find.readLine())
            found << QString::fromUtf8(*line);
        found.sort();
        return found;
    };
    Program place(installer, {}, environment);
    ASSERT_TRUE(place.waitUntilEnded());
    EXPECT_EQ(place.exitStatus(), 0);
    EXPECT_EQ(files(),
              (QStringList{u"/etc/dbus-1/system.d/org.ticklog.TKAXTrusted.conf 644"_s,
                           u"/etc/systemd/system/ticklog-trust.service 644"_s,
                           u"/etc/systemd/user-environment-generators/60-ticklog 755"_s,
                           u"/usr/local/libexec/ticklog/TKAXTrusted 755"_s,
                           u"/usr/local/share/dbus-1/system-services/org.ticklog.TKAXTrusted.service 644"_s,
                           u"/usr/share/polkit-1/actions/org.ticklog.TKAXTrusted.policy 644"_s}));
    m_places.serviceFolders = {root + u"/usr/local/share/dbus-1/system-services"_s};
    const auto job = LinuxServiceManagement(m_bus, m_log, m_places).findService(kHelper);
    ASSERT_TRUE(job);
    EXPECT_EQ(job->program, u"/usr/local/libexec/ticklog/TKAXTrusted"_s);
    Program removal(installer, {u"--remove"_s}, environment);
    ASSERT_TRUE(removal.waitUntilEnded());
    EXPECT_EQ(removal.exitStatus(), 0);
    EXPECT_EQ(files(), QStringList());
}

// The installer on a machine of its own.
struct InstallHelperTest : testing::Test {
    InstallHelperTest() {
        for (const char* file :
             {"libexec/ticklog/TKAXTrusted", "share/dbus-1/system.d/org.ticklog.TKAXTrusted.conf",
              "share/polkit-1/actions/org.ticklog.TKAXTrusted.policy",
              "lib/systemd/system/ticklog-trust.service",
              "lib/systemd/user-environment-generators/60-ticklog",
              "share/dbus-1/system-services/org.ticklog.TKAXTrusted.service"})
            home.write(u"opt/"_s + QLatin1String(file), "new\n");
        const QString installer = home.path() + u"/opt/libexec/ticklog/install-helper"_s;
        EXPECT_TRUE(
            QFile::copy(QStringLiteral(TICKLOG_SOURCE_DIR "/resources/system/install-helper"), installer));
        EXPECT_TRUE(QDir().mkpath(target));
    }

    int install(const QStringList& arguments = {}) {
        QProcessEnvironment environment = home.environment();
        environment.insert(u"DESTDIR"_s, root);
        Program program(u"sh"_s,
                        QStringList{home.path() + u"/opt/libexec/ticklog/install-helper"_s} + arguments,
                        environment);
        EXPECT_TRUE(program.waitUntilEnded());
        return program.exitStatus().value_or(-1);
    }

    static void permit(const QString& path, mode_t mode) {
        ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0);
    }

    static QByteArray contentOf(const QString& path) {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("none");
    }

    TemporaryHome home;
    QString root = home.path() + u"/root"_s;
    QString target = root + u"/usr/local/libexec/ticklog"_s;
};

TEST_F(InstallHelperTest, whatSomebodyHasPutInTheWay_isNeverWrittenThrough) {
    home.write(u"victim"_s, "mine\n");
    for (const char* name : {"TKAXTrusted.new", "TKAXTrusted"})
        ASSERT_TRUE(QFile::link(home.path() + u"/victim"_s, target + u'/' + QLatin1String(name)));
    EXPECT_EQ(install(), 0);
    EXPECT_EQ(contentOf(home.path() + u"/victim"_s), "mine\n");
    EXPECT_EQ(contentOf(target + u"/TKAXTrusted"_s), "new\n");
    EXPECT_FALSE(QFileInfo(target + u"/TKAXTrusted"_s).isSymLink());
    EXPECT_EQ(QDir(target).entryList(QDir::Files | QDir::Hidden),
              (QStringList{u"TKAXTrusted"_s, u"TKAXTrusted.new"_s}))
        << "nothing of ours stays behind";
}

TEST_F(InstallHelperTest, aLinkThatOthersMayTurn_isNoWayToIt) {
    const QString elsewhere = home.path() + u"/elsewhere"_s;
    ASSERT_TRUE(QDir().mkpath(elsewhere));
    ASSERT_TRUE(QDir().rmdir(target));
    permit(root + u"/usr/local/libexec"_s, 01777);
    ASSERT_TRUE(QFile::link(elsewhere, target));
    // A file of another user; only root can make one.
    const bool isOthers = ::lchown(QFile::encodeName(target).constData(), 65534, 65534) == 0;
    EXPECT_EQ(install() != 0, isOthers);
    permit(root + u"/usr/local/libexec"_s, 0777);
    EXPECT_NE(install(), 0) << "whoever it belongs to, others may put another in its place";
}

TEST_F(InstallHelperTest, aFileThatIsMissing_isNoEmptyOne) {
    ASSERT_TRUE(QFile::remove(home.path() + u"/opt/share/dbus-1/system.d/org.ticklog.TKAXTrusted.conf"_s));
    EXPECT_NE(install(), 0);
    EXPECT_FALSE(QFile::exists(root + u"/etc/dbus-1/system.d/org.ticklog.TKAXTrusted.conf"_s));
}

TEST_F(InstallHelperTest, aFolderWhereOthersMayWrite_isNoPlaceForIt) {
    for (const mode_t mode : {0777, 01777}) {
        permit(target, mode);
        EXPECT_NE(install(), 0);
        EXPECT_NE(install({u"--remove"_s}), 0);
    }
    permit(target, 0755);
    permit(root + u"/usr/local"_s, 0777);
    EXPECT_NE(install(), 0) << "nor one below such a folder";
    EXPECT_EQ(QDir(target).entryList(QDir::Files | QDir::Hidden), QStringList());
    permit(root + u"/usr/local"_s, 01777);
    EXPECT_EQ(install(), 0) << "where nobody exchanges what is another's";
    EXPECT_EQ(install({u"--remove"_s}), 0);
    EXPECT_FALSE(QFile::exists(target));
}

} // namespace
