// SPDX-License-Identifier: MIT
#include "platform/foundation/programs/DesktopEntries.h"

#include "tests/fakes/ManualRunLoop.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <filesystem>
#include <gtest/gtest.h>

namespace {

class DesktopEntriesTest : public testing::Test {
protected:
    QTemporaryDir folder;
    HandClock clock;
    DesktopEntries entries{
        {{folder.path() + QStringLiteral("/home"), folder.path() + QStringLiteral("/shared")},
         DesktopEntries::Places::languagesOfLocale(QStringLiteral("de_AT.UTF-8"))},
        clock};

    // Installs an entry with these lines below the main group's heading.
    void install(const QString& path, const QByteArray& lines) {
        const QString full = folder.path() + u'/' + path;
        QDir().mkpath(QFileInfo(full).path());
        QFile file(full);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write("[Desktop Entry]\n" + lines);
        file.close();
        // Two changes within one tick of the kernel's clock would leave a folder with the same time, which
        // does not happen to people.
        ++m_changes;
        for (QString place = QFileInfo(full).path(); place != folder.path(); place = QFileInfo(place).path())
            std::filesystem::last_write_time(place.toStdString(),
                                             std::filesystem::file_time_type::clock::now() +
                                                 std::chrono::seconds(m_changes));
    }

    // "none" when no entry belongs.
    QString name(const QStringList& classes, const QString& executable = {}) {
        return entries.nameForWindow(classes, executable).value_or(QStringLiteral("none"));
    }

    QString name(const char* windowClass, const char* executable = "") {
        return name(QStringList{QLatin1String(windowClass)}, QLatin1String(executable));
    }

private:
    int m_changes = 0;
};

TEST_F(DesktopEntriesTest, aStartupClass_comesBeforeTheIdAndTheExecutable) {
    install(QStringLiteral("shared/applications/one.desktop"),
            "Name=By class\nStartupWMClass=Thing\nExec=a\n");
    install(QStringLiteral("shared/applications/thing.desktop"), "Name=By id\nExec=b\n");
    install(QStringLiteral("shared/applications/two.desktop"), "Name=By program\nExec=/opt/bin/c --new %U\n");
    EXPECT_EQ(name("Thing", "/usr/bin/c"), QStringLiteral("By class"));
    EXPECT_EQ(name("thing"), QStringLiteral("By class"));
    EXPECT_EQ(name("ONE", "/usr/bin/c"), QStringLiteral("By class"));
    EXPECT_EQ(name("c", "/usr/bin/c"), QStringLiteral("By program"));
    EXPECT_EQ(name("d", "/usr/bin/d"), QStringLiteral("none"));
    EXPECT_EQ(name("", ""), QStringLiteral("none"));
}

TEST_F(DesktopEntriesTest, theId_countsWhateverItsCase) {
    install(QStringLiteral("shared/applications/org.example.Notes.desktop"), "Name=Notes\n");
    EXPECT_EQ(name("ORG.example.notes"), QStringLiteral("Notes"));
    install(QStringLiteral("shared/applications/vendor/tool.desktop"), "Name=Tool\n");
    clock.advance(std::chrono::minutes(1));
    EXPECT_EQ(name("vendor-tool"), QStringLiteral("Tool"));
}

TEST_F(DesktopEntriesTest, theMoreTellingClass_isAskedFirst) {
    install(QStringLiteral("shared/applications/browser.desktop"), "Name=Browser\nStartupWMClass=Browser\n");
    install(QStringLiteral("home/applications/chat.desktop"), "Name=Chat\nStartupWMClass=crx_chat\n");
    EXPECT_EQ(name({QStringLiteral("crx_chat"), QStringLiteral("Browser")}), QStringLiteral("Chat"));
    EXPECT_EQ(name({QStringLiteral("crx_else"), QStringLiteral("Browser")}), QStringLiteral("Browser"));
}

TEST_F(DesktopEntriesTest, aClassThatHasNothingToDoWithTheProgram_wasGivenOnPurpose) {
    install(QStringLiteral("shared/applications/xterm.desktop"), "Name=Terminal\nExec=xterm\n");
    install(QStringLiteral("shared/applications/news.desktop"), "Name=The News\nExec=news\n");
    const QString program = QStringLiteral("/usr/bin/xterm");
    EXPECT_EQ(name({QStringLiteral("xterm"), QStringLiteral("XTerm")}, program), QStringLiteral("Terminal"));
    EXPECT_EQ(name({QStringLiteral("shell"), QStringLiteral("UXTerm")}, program), QStringLiteral("Terminal"));
    EXPECT_EQ(name({QStringLiteral("xterm"), QStringLiteral("Mailer")}, program), QStringLiteral("none"));
    EXPECT_EQ(name({QStringLiteral("xterm"), QStringLiteral("News")}, program), QStringLiteral("The News"));
    EXPECT_EQ(name("Mailer", "/usr/bin/xterm"), QStringLiteral("none"));
    EXPECT_EQ(name("", "/usr/bin/xterm"), QStringLiteral("Terminal"));
}

TEST_F(DesktopEntriesTest, aClassThatIsNamedLikeItsProgram_isNotOnPurpose) {
    install(QStringLiteral("shared/applications/a.desktop"), "Name=Pictures\nExec=gimp-2.10 %U\n");
    install(QStringLiteral("shared/applications/b.desktop"), "Name=Web\nExec=chrome %U\n");
    install(QStringLiteral("shared/applications/c.desktop"), "Name=Chat\nExec=chat-app\n");
    EXPECT_EQ(name("Gimp", "/usr/bin/gimp-2.10"), QStringLiteral("Pictures"));
    EXPECT_EQ(name("Google-chrome", "/opt/chrome"), QStringLiteral("Web"));
    EXPECT_EQ(name("electron", "/opt/chat-app"), QStringLiteral("Chat")) << "what runs it is no name";
}

TEST_F(DesktopEntriesTest, theUsersLanguage_isTakenWithItsFallbacks) {
    install(QStringLiteral("shared/applications/a.desktop"),
            "Name=Files\nName[de]=Dateien\nName[de_AT]=Akten\n");
    install(QStringLiteral("shared/applications/b.desktop"),
            "Name=Files\nName[de]=Dateien\nName[fr]=Fichiers\n");
    install(QStringLiteral("shared/applications/c.desktop"), "Name=Files\nName[fr]=Fichiers\n");
    EXPECT_EQ(name("a"), QStringLiteral("Akten"));
    EXPECT_EQ(name("b"), QStringLiteral("Dateien"));
    EXPECT_EQ(name("c"), QStringLiteral("Files"));
}

TEST_F(DesktopEntriesTest, theUsersOwnEntry_standsForTheSharedOne) {
    install(QStringLiteral("shared/applications/a.desktop"), "Name=Shared\nExec=a\n");
    install(QStringLiteral("home/applications/a.desktop"), "Name=Own\nExec=a\n");
    EXPECT_EQ(name("a"), QStringLiteral("Own"));
    EXPECT_EQ(name("", "/usr/bin/a"), QStringLiteral("Own"));
}

TEST_F(DesktopEntriesTest, anEntryShownInMenus_comesBeforeAHiddenOne) {
    install(QStringLiteral("shared/applications/a.desktop"),
            "Name=Settings of it\nExec=it --set\nNoDisplay=true\n");
    install(QStringLiteral("shared/applications/b.desktop"), "Name=It\nExec=it\n");
    EXPECT_EQ(name("", "/usr/bin/it"), QStringLiteral("It"));
}

TEST_F(DesktopEntriesTest, anEntryThatStartsItPlainly_comesBeforeOneForAPartOfIt) {
    install(QStringLiteral("shared/applications/org.it-settings.desktop"),
            "Name=Settings of it\nExec=it --preferences %U\n");
    install(QStringLiteral("shared/applications/org.it.desktop"), "Name=It\nExec=env LANG=C it %U\n");
    install(QStringLiteral("shared/applications/zz.desktop"), "Name=Second\nExec=it\n");
    EXPECT_EQ(name("it", "/usr/bin/it"), QStringLiteral("It"));
}

TEST_F(DesktopEntriesTest, theProgram_isFoundBehindWhatComesBeforeIt) {
    install(QStringLiteral("shared/applications/a.desktop"),
            "Name=A\nExec=env LANG=C \"/opt/my apps/a\" %f\n");
    install(QStringLiteral("shared/applications/b.desktop"), "Name=B\nExec=sh -c 'b'\nTryExec=/usr/bin/b\n");
    EXPECT_EQ(name("", "/opt/my apps/a"), QStringLiteral("A"));
    EXPECT_EQ(name("", "/usr/bin/b"), QStringLiteral("B"));
}

TEST_F(DesktopEntriesTest, interpretersAndTerminals_nameNobodysWindow) {
    install(QStringLiteral("shared/applications/a.desktop"), "Name=Python\nExec=/usr/bin/python3.11\n");
    install(QStringLiteral("shared/applications/b.desktop"), "Name=Vim\nExec=vim %F\nTerminal=true\n");
    EXPECT_EQ(name("", "/usr/bin/python3.11"), QStringLiteral("none"));
    EXPECT_EQ(name("", "/usr/bin/vim"), QStringLiteral("none"));
}

TEST_F(DesktopEntriesTest, damagedEntries_doNoHarm) {
    install(QStringLiteral("shared/applications/a.desktop"), "Name\n=x\n[Other]\nName=Not this\n");
    install(QStringLiteral("shared/applications/b.desktop"), "Type=Link\nName=Link\n");
    install(QStringLiteral("shared/applications/c.desktop"), "Name=Two\\slines\\nhere \xff\nName=Second\n");
    EXPECT_EQ(name("a"), QStringLiteral("none"));
    EXPECT_EQ(name("b"), QStringLiteral("none"));
    EXPECT_EQ(name("c"), QStringLiteral("Two lines here \uFFFD"));
}

TEST_F(DesktopEntriesTest, aProgramInstalledLater_isFoundAfterAWhile) {
    QDir().mkpath(folder.path() + QStringLiteral("/shared/applications"));
    EXPECT_EQ(name("a"), QStringLiteral("none"));
    install(QStringLiteral("shared/applications/a.desktop"), "Name=New\n");
    EXPECT_EQ(name("a"), QStringLiteral("none"));
    clock.advance(std::chrono::seconds(31));
    EXPECT_EQ(name("a"), QStringLiteral("New"));
}

TEST_F(DesktopEntriesTest, aQuestionAnsweredOnce_needsNoDisk) {
    install(QStringLiteral("shared/applications/a.desktop"), "Name=A\n");
    EXPECT_EQ(name("a"), QStringLiteral("A"));
    QDir(folder.path() + QStringLiteral("/shared")).removeRecursively();
    clock.advance(std::chrono::hours(1));
    EXPECT_EQ(name("a"), QStringLiteral("A"));
}

TEST(DesktopEntriesPlaces, aLocale_givesItsSuffixesBestFirst) {
    const auto languages = [](const char* locale) {
        return DesktopEntries::Places::languagesOfLocale(QLatin1String(locale)).join(u' ');
    };
    EXPECT_EQ(languages("sr_RS.UTF-8@latin"), QStringLiteral("sr_RS@latin sr_RS sr@latin sr"));
    EXPECT_EQ(languages("de"), QStringLiteral("de"));
    EXPECT_EQ(languages("C.UTF-8"), QString());
    EXPECT_EQ(languages(""), QString());
}

TEST_F(DesktopEntriesTest, theIcon_isThatOfTheProgramOfThisName) {
    install(QStringLiteral("shared/applications/org.example.Files.desktop"),
            "Name=Files\nName[de]=Dateien\nIcon=file-manager\nExec=nautilus\nStartupWMClass=Nautilus\n");
    // Another name than its class, which is somebody else's name.
    install(QStringLiteral("shared/applications/other.desktop"), "Name=nautilus\nIcon=shell\nExec=x\n");
    install(QStringLiteral("shared/applications/plain.desktop"), "Name=Plain\nExec=plain\n");
    EXPECT_EQ(entries.iconOf(QStringLiteral("Dateien")), QStringLiteral("file-manager"));
    // As a history of another language has it.
    EXPECT_EQ(entries.iconOf(QStringLiteral("Files")), QStringLiteral("file-manager"));
    EXPECT_EQ(entries.iconOf(QStringLiteral("Nautilus")), QStringLiteral("file-manager"));
    EXPECT_EQ(entries.iconOf(QStringLiteral("nautilus")), QStringLiteral("shell"));
    EXPECT_EQ(entries.iconOf(QStringLiteral("org.example.files")), QStringLiteral("file-manager"));
    EXPECT_EQ(entries.iconOf(QStringLiteral("Plain")), std::nullopt);
    EXPECT_EQ(entries.iconOf(QStringLiteral("Nobody")), std::nullopt);
}

TEST_F(DesktopEntriesTest, theIconInTheMenu_comesBeforeThatOfAPart) {
    install(QStringLiteral("shared/applications/a-part.desktop"),
            "Name=Writer\nIcon=part\nExec=office --writer\nNoDisplay=true\n");
    install(QStringLiteral("shared/applications/writer.desktop"), "Name=Writer\nIcon=writer\nExec=office\n");
    EXPECT_EQ(entries.iconOf(QStringLiteral("Writer")), QStringLiteral("writer"));
}

// As an office suite is installed: the menu's command is a link to a script, which starts the program beside it.
TEST_F(DesktopEntriesTest, aProgramBehindALink_isThatOfTheEntryWithoutOptions) {
    install(QStringLiteral("shared/applications/writer.desktop"), "Name=Writer\nExec=office --writer %U\n");
    install(QStringLiteral("shared/applications/start.desktop"), "Name=Suite\nExec=office %U\n");
    QDir().mkpath(folder.filePath(QStringLiteral("bin")));
    QFile script(folder.filePath(QStringLiteral("bin/suite")));
    ASSERT_TRUE(script.open(QFile::WriteOnly) && script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    ASSERT_TRUE(script.link(folder.filePath(QStringLiteral("bin/office"))));
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", folder.filePath(QStringLiteral("bin")).toUtf8());
    EXPECT_EQ(name("Suite", "/usr/lib/suite.bin"), QStringLiteral("Suite"));
    EXPECT_EQ(name("suite", "/usr/lib/suite"), QStringLiteral("Suite"));
    EXPECT_EQ(name("Suite", "/usr/bin/python3"), QStringLiteral("Suite"));
    EXPECT_EQ(name("Suite", ""), QStringLiteral("Suite"));
    EXPECT_EQ(name("Suite", "/usr/bin/gimp"), QStringLiteral("none"));
    EXPECT_EQ(name("Other", "/usr/lib/suite.bin"), QStringLiteral("none"));
    EXPECT_EQ(name("other", "/usr/lib/other"), QStringLiteral("none"));
    qputenv("PATH", path);
}

TEST_F(DesktopEntriesTest, aNameIsKnown_ifAnInstalledProgramHasIt) {
    install(QStringLiteral("shared/applications/org.example.Notes.desktop"),
            "Name=Notes\nStartupWMClass=Paper\nExec=notes\n");
    EXPECT_EQ(name("Nobody"), QStringLiteral("none"));
    EXPECT_TRUE(entries.knows({QStringLiteral("x"), QStringLiteral("paper")}));
    EXPECT_TRUE(entries.knows({QStringLiteral("org.example.notes")}));
    EXPECT_FALSE(entries.knows({QStringLiteral("notes"), QString()}));
}

} // namespace
