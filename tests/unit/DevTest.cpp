// SPDX-License-Identifier: MIT
// The command of the repository in a tree of its own, with a compiler that is made up.
#include "tests/Places.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class Dev : public testing::Test {
protected:
    void SetUp() override {
        QDir(m_tree.path()).mkpath(QStringLiteral("scripts"));
        for (const char* name : {"dev", "scripts/packages.sh", "scripts/skipped.awk"})
            ASSERT_TRUE(
                QFile::copy(QStringLiteral(TICKLOG_SOURCE_DIR "/") + QLatin1String(name), path(name)));
        // Compiles until it is told that it is enough.
        provide("cmake", "case $* in --build*) ;; *) exit ;; esac\n"
                         "if [ -e compiling ]; then echo two at once >&2; exit 1; fi\n"
                         "touch compiling; until [ -e enough ]; do sleep 0.02; done; rm compiling\n");
        // All packages are there.
        provide("dpkg-query", "shift 3; for p; do echo \"installed $p\"; done\n");
        provide("apt-get", ":\n");
    }

    QString path(const char* name) const { return m_tree.filePath(QLatin1String(name)); }

    // Standing in for a program of the system's.
    void provide(const char* program, const QByteArray& script) {
        QDir(m_tree.path()).mkpath(QStringLiteral("bin"));
        QFile file(m_tree.filePath(QStringLiteral("bin/") + QLatin1String(program)));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write("#!/bin/sh\n" + script);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    // Tests of which `failing`, a shell's pattern, fail in the first run and `stubborn` in the second too.
    void provideTests(const QByteArray& failing, const QByteArray& stubborn) {
        provide("cmake", ":\n");
        QDir(m_tree.path()).mkpath(QStringLiteral("build/release/Testing/Temporary"));
        provide("ctest", "cd build/release; touch report.xml; failing='" + failing + "'\n" +
                             "case $* in *--rerun-failed*) echo again >>runs; failing='" + stubborn +
                             "' ;; esac\n" + "rm -f Testing/Temporary/LastTestsFailed.log; number=0\n" +
                             "for name in $failing; do number=$((number + 1))\n" +
                             "  echo \"$number:$name\" >>Testing/Temporary/LastTestsFailed.log; done\n" +
                             "[ -z \"$failing\" ] || exit 8\n");
    }

    bool ranAgain() const { return QFile::exists(path("build/release/runs")); }

    void start(QProcess& dev, const QString& command = QStringLiteral("build")) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("PATH"),
                           path("bin") + u':' + environment.value(QStringLiteral("PATH")));
        dev.setProcessEnvironment(environment);
        dev.setProcessChannelMode(QProcess::MergedChannels);
        dev.start(path("dev"), {command});
        ASSERT_TRUE(dev.waitForStarted());
    }

    // What it said, after it has ended with that status.
    QByteArray endOfTest(int status) const {
        QProcess dev;
        start(dev, QStringLiteral("test"));
        EXPECT_TRUE(dev.waitForFinished());
        const QByteArray said = dev.readAll();
        EXPECT_EQ(dev.exitCode(), status) << said.constData();
        return said;
    }

    bool isCompiling() const { return QFile::exists(path("compiling")); }

private:
    QTemporaryDir m_tree;
};

TEST_F(Dev, twoBuildsAtOnce_takeTurnsAndTheSecondSaysSo) {
    QProcess first;
    start(first);
    while (first.state() == QProcess::Running && !isCompiling())
        first.waitForFinished(20);
    ASSERT_TRUE(isCompiling()) << first.readAll().constData();
    QProcess second;
    start(second);
    ASSERT_TRUE(second.waitForReadyRead());
    EXPECT_EQ(second.readAll(), QByteArray("dev: waiting for another build of this tree\n"));
    EXPECT_EQ(second.state(), QProcess::Running);
    QFile enough(path("enough"));
    ASSERT_TRUE(enough.open(QFile::WriteOnly));
    for (QProcess* dev : {&first, &second}) {
        EXPECT_TRUE(dev->waitForFinished());
        EXPECT_EQ(dev->exitCode(), 0) << dev->readAll().constData();
    }
}

TEST_F(Dev, aDesktopThatFailsOnce_isTriedAgainAloneAndNamed) {
    provideTests("desktop/Panel.opens desktop/Screen.turns", "");
    EXPECT_TRUE(endOfTest(0).endsWith(
        "2 passed only when run again, alone:\n  desktop/Panel.opens\n  desktop/Screen.turns\n"));
}

TEST_F(Dev, aDesktopThatFailsTwice_failsTheTests) {
    provideTests("desktop/Panel.opens desktop/Screen.turns", "desktop/Panel.opens");
    EXPECT_FALSE(endOfTest(8).contains("passed only"));
    EXPECT_TRUE(ranAgain());
}

TEST_F(Dev, whatTurnsItsOwnClock_isNotTriedAgain) {
    provideTests("desktop/Panel.opens unit/Sum.adds", "");
    endOfTest(8);
    EXPECT_FALSE(ranAgain());
}

TEST_F(Dev, manyDesktopsThatFail_areNotTriedAgain) {
    QByteArray many;
    for (int number = 0; number < 11; ++number)
        many += "desktop/Panel.opens" + QByteArray::number(number) + ' ';
    provideTests(many, "");
    endOfTest(8);
    EXPECT_FALSE(ranAgain());
}

} // namespace
