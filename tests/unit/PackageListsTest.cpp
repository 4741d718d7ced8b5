// SPDX-License-Identifier: MIT
// What ./dev installs and leaves out, on an imaginary machine with apt.
#include "tests/Places.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class PackageLists : public testing::Test {
protected:
    // Each list is a file with one name on a line: packages in the present lists, packages in renewed lists,
    // installed packages.
    void hold(const char* list, const QByteArray& packages) {
        QFile file(m_place.filePath(QLatin1String(list)));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(QByteArray(packages).replace(' ', '\n') + '\n');
    }

    // Replaces a program of the system.
    void provide(const char* program, const QByteArray& script) {
        QFile file(m_place.filePath(QLatin1String(program)));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write("#!/bin/sh\ncd " + m_place.path().toUtf8() + '\n' + script);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void SetUp() override {
        provide("apt-cache",
                "shift; for p; do grep -qx \"$p\" lists && echo \" $p | 1.0 | somewhere main\"; done; :\n");
        provide("dpkg-query",
                "shift 3; for p; do grep -qx \"$p\" installed && echo \"installed $p\"; done; :\n");
        provide("apt-get", "case \"$*\" in\n*update) echo update >> calls; cp renewed lists ;;\n"
                           "*) echo \"${*#*recommends }\" >> calls ;; esac\n");
        provide("sudo", "exec \"$@\"\n");
    }

    // Answers the output.
    QString need(const QByteArray& wanted) {
        QProcess bash;
        bash.setProcessChannelMode(QProcess::MergedChannels);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("PATH"),
                           m_place.path() + u':' + environment.value(QStringLiteral("PATH")));
        bash.setProcessEnvironment(environment);
        bash.start(QStringLiteral("bash"),
                   {QStringLiteral("-euo"), QStringLiteral("pipefail"), QStringLiteral("-c"),
                    QStringLiteral(". " TICKLOG_SOURCE_DIR "/scripts/packages.sh; "
                                   "apt_wanted='%1'; need wanted")
                        .arg(QString::fromUtf8(wanted))});
        EXPECT_TRUE(bash.waitForFinished());
        EXPECT_EQ(bash.exitCode(), 0);
        return QString::fromUtf8(bash.readAll());
    }

    QString calls() {
        QFile file(m_place.filePath(QStringLiteral("calls")));
        return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private:
    QTemporaryDir m_place;
};

TEST_F(PackageLists, whatIsThere_isNotAskedFor) {
    hold("lists", "a b");
    hold("installed", "a b");
    EXPECT_EQ(need("a b"), QString());
    EXPECT_EQ(calls(), QString());
}

TEST_F(PackageLists, whatTheReleaseHasNot_isNamedAndLeftOut) {
    hold("lists", "a b");
    hold("renewed", "a b");
    hold("installed", "a");
    EXPECT_EQ(need("a b trayer"),
              QStringLiteral("dev: this release has no package trayer\ndev: installing b\n"));
    EXPECT_EQ(calls(), QStringLiteral("update\nb\n"));
}

TEST_F(PackageLists, whatTheReleaseHasNotAlone_needsNobodysPassword) {
    hold("lists", "a b");
    hold("installed", "a b");
    EXPECT_EQ(need("a b trayer"), QStringLiteral("dev: this release has no package trayer\n"));
    EXPECT_EQ(calls(), QString());
}

TEST_F(PackageLists, aBareMachineWithoutLists_getsThemFirst) {
    hold("lists", "");
    hold("renewed", "a b");
    hold("installed", "");
    EXPECT_EQ(need("a b trayer"),
              QStringLiteral("dev: this release has no package trayer\ndev: installing a b\n"));
    EXPECT_EQ(calls(), QStringLiteral("update\na b\n"));
}

} // namespace
