// SPDX-License-Identifier: MIT
#include "platform/linux/AutostartEntries.h"
#include "tests/desktop/harness/Program.h"
#include "tests/desktop/harness/TemporaryHome.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const QString kHelper = u"org.ticklog.TicklogLaunchHelper"_s;
const QString kFile = u"/org.ticklog.TicklogLaunchHelper.desktop"_s;

class AutostartEntriesTest : public testing::Test {
protected:
    void makeHelper(const QString& folder) {
        m_home.write(folder + u"/TicklogLaunchHelper"_s, "#!/bin/sh\necho started >> \"$HOME/started\"\n");
        const QString path = m_home.path() + u'/' + folder + u"/TicklogLaunchHelper"_s;
        ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0755), 0);
        m_places.helperFolder = m_home.path() + u'/' + folder;
    }

    void SetUp() override { makeHelper(u"helpers"_s); }

    AutostartEntries entries() const { return AutostartEntries(m_places); }

    // "on", "off", or "unknown" if the session does not know the helper.
    std::string state() const {
        for (const LoginEntry& item : entries().items())
            if (item.identifier == kHelper)
                return item.isStarted ? "on" : "off";
        return "unknown";
    }

    QByteArray userEntry() const {
        QFile file(m_places.userFolder + kFile);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

    // An entry that is started unless `lines` say otherwise.
    void write(const char* folder, const QByteArray& lines) const {
        m_home.write(QLatin1String(folder) + kFile,
                     "[Desktop Entry]\nType=Application\nName=Ticklog\nExec=/bin/true\n" + lines);
    }

    TemporaryHome m_home;
    AutostartEntries::Places m_places{.userFolder = m_home.configurationFolder() + u"/autostart"_s,
                                      .systemFolders = {m_home.path() + u"/xdg/autostart"_s},
                                      .desktops = {u"ubuntu"_s, u"GNOME"_s},
                                      .helperFolder = {}};
};

TEST_F(AutostartEntriesTest, switchedOn_theSessionStartsTheHelper) {
    EXPECT_EQ(state(), "unknown");
    EXPECT_TRUE(entries().setEnabled(kHelper, true));
    EXPECT_EQ(state(), "on");
    EXPECT_TRUE(entries().setEnabled(kHelper, false));
    EXPECT_EQ(state(), "unknown");
    EXPECT_EQ(QDir(m_places.userFolder).entryList(QDir::Files | QDir::Hidden), QStringList());
    EXPECT_TRUE(entries().setEnabled(kHelper, false)) << "off already";
}

TEST_F(AutostartEntriesTest, anEntryThatIsThereButDisabled_isOff) {
    const std::pair<const char*, const char*> rows[] = {
        {"", "on"},
        {"Hidden=false\n", "on"},
        {"Hidden=true\n", "unknown"},
        {"X-GNOME-Autostart-enabled=true\n", "on"},
        {"X-GNOME-Autostart-enabled=false\n", "off"},
        {"OnlyShowIn=GNOME;\n", "on"},
        {"OnlyShowIn=KDE;XFCE;\n", "off"},
        {"OnlyShowIn=\n", "off"},
        {"NotShowIn=KDE;\n", "on"},
        {"NotShowIn=KDE;ubuntu;\n", "off"},
        {"TryExec=/bin/true\n", "on"},
        {"TryExec=/nowhere/ticklog\n", "off"},
        {"# Hidden=true\n[Desktop Action x]\nHidden=true\n", "on"},
    };
    for (const auto& [lines, expected] : rows) {
        write("config/autostart", lines);
        EXPECT_EQ(state(), expected) << lines;
    }
}

TEST_F(AutostartEntriesTest, anEntryWhoseProgramIsGone_isOff) {
    EXPECT_TRUE(entries().setEnabled(kHelper, true));
    ASSERT_TRUE(QFile::remove(m_places.helperFolder + u"/TicklogLaunchHelper"_s));
    EXPECT_EQ(state(), "off");
}

TEST_F(AutostartEntriesTest, theUsersEntry_takesThePlaceOfTheSystems) {
    write("xdg/autostart", "");
    EXPECT_EQ(state(), "on");
    EXPECT_TRUE(entries().setEnabled(kHelper, false));
    EXPECT_EQ(state(), "unknown");
    EXPECT_TRUE(userEntry().contains("Hidden=true"));
    EXPECT_TRUE(entries().setEnabled(kHelper, true));
    EXPECT_EQ(state(), "on");
    EXPECT_FALSE(userEntry().contains("Hidden"));
}

TEST_F(AutostartEntriesTest, damagedEntries_areKnownAndNotStarted) {
    m_home.write(u"config/autostart"_s + kFile, QByteArray("\0\xff[[=\n=x\nExec", 13));
    EXPECT_EQ(state(), "off");
    m_home.write(u"config/autostart"_s + kFile, QByteArray((1 << 18) + 1, 'x'));
    EXPECT_EQ(state(), "unknown") << "no entry is that long";
}

TEST_F(AutostartEntriesTest, aFolderThatCannotBeWritten_isToldAndNothingChanges) {
    // A file in the place of the folder stops root as well.
    m_home.write(u"config/autostart"_s, "");
    const Outcome done = entries().setEnabled(kHelper, true);
    ASSERT_FALSE(done);
    EXPECT_FALSE(done.failure().text.isEmpty());
    EXPECT_EQ(state(), "unknown");
    ASSERT_TRUE(QFile::remove(m_places.userFolder));
    ASSERT_TRUE(QDir().mkpath(m_places.userFolder + kFile));
    EXPECT_FALSE(entries().setEnabled(kHelper, true));
    EXPECT_FALSE(entries().setEnabled(kHelper, false));
}

TEST_F(AutostartEntriesTest, oddPaths_areStartedByTheDesktopAsTheyAre) {
    for (const QString& folder : {u"with blank"_s, u"do$HOME`x`"_s, u"back\\slash"_s, u"\"quoted\""_s,
                                  u"100%u"_s, u"ünï 漢"_s, u"a;b=c#d"_s, u"tab\tnew\nline"_s}) {
        makeHelper(folder);
        EXPECT_TRUE(entries().setEnabled(kHelper, true));
        EXPECT_EQ(state(), "on") << qPrintable(folder);
        const QString file = m_places.userFolder + kFile;
        Program validator(u"desktop-file-validate"_s, {u"--no-hints"_s, file}, m_home.environment());
        EXPECT_TRUE(validator.waitUntilEnded());
        EXPECT_EQ(validator.exitStatus(), 0) << userEntry().constData();
        // As desktops start it.
        const char* launch = "import sys; from gi.repository import Gio; "
                             "Gio.DesktopAppInfo.new_from_filename(sys.argv[1]).launch([], None)";
        Program desktop(u"/usr/bin/python3"_s, {u"-c"_s, QLatin1String(launch), file}, m_home.environment());
        EXPECT_TRUE(desktop.waitUntilEnded());
        const QString started = m_home.path() + u"/started"_s;
        EXPECT_TRUE(waitFor([&] { return QFile::exists(started); })) << userEntry().constData();
        QFile::remove(started);
    }
}

} // namespace
