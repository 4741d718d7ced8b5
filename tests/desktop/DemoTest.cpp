// SPDX-License-Identifier: MIT
// What ./dev shows where there is no display, with programs that are made up but for the bus.
#include "tests/Places.h"
#include "tests/desktop/harness/Program.h"
#include "tests/desktop/harness/TemporaryHome.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace {

class Demo : public testing::Test {
protected:
    void provide(const char* program, const QByteArray& script) {
        const QString path = QStringLiteral("bin/") + QLatin1String(program);
        m_home.write(path, "#!/bin/sh\n" + script);
        QFile::setPermissions(m_home.path() + u'/' + path,
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void SetUp() override {
        provide("Xvfb", "echo 1 >&9\nexec /bin/sleep 60\n");
        for (const char* program : {"openbox", "xcalc"})
            provide(program, "exec /bin/sleep 60\n");
        // Does what comes last, as a terminal does.
        provide("xterm", "for last; do :; done\nexec sh -c \"$last\"\n");
        // Nobody has to watch it.
        provide("sleep", "exec /bin/sleep 0.02\n");
        provide("xprop", "echo window id\n");
        provide("xdotool", "echo 1\n");
        provide("import", ":\n");
        // A record without timers.
        provide("ticklog", "mkdir -p \"$XDG_DATA_HOME/Ticklog\"\n"
                           "echo '<plist/>' >\"$XDG_DATA_HOME/Ticklog/Primary Database.tkd\"\n"
                           "trap 'exit 0' TERM\n/bin/sleep 60 & wait\n");
    }

    // What is said where temporary files go to the folder.
    QString show(const QString& folder) {
        const QString path = m_home.path() + u'/' + folder;
        QDir().mkpath(path);
        QProcessEnvironment environment = m_home.environment();
        environment.insert(QStringLiteral("PATH"), m_home.path() + QStringLiteral("/bin:") +
                                                       environment.value(QStringLiteral("PATH")));
        environment.insert(QStringLiteral("TMPDIR"), path);
        Program demo(
            QStringLiteral(TICKLOG_SOURCE_DIR "/scripts/demo.sh"),
            {m_home.path() + QStringLiteral("/bin/ticklog"), m_home.path() + QStringLiteral("/shown")},
            environment, Program::Output::Read);
        QString said;
        while (const auto line = demo.readLine())
            said += QString::fromUtf8(*line) + u'\n';
        return said;
    }

private:
    TemporaryHome m_home;
};

TEST_F(Demo, whereverTemporaryFilesGo_theRecordIsShown) {
    for (const QString& folder :
         {QStringLiteral("plain"), QStringLiteral("with a blank"), QString(100, u'x')}) {
        const QString said = show(folder);
        EXPECT_TRUE(said.contains(QStringLiteral("What Ticklog recorded:\n"))) << qPrintable(said);
        EXPECT_TRUE(said.contains(QStringLiteral("ticklog.png")));
    }
}

} // namespace
