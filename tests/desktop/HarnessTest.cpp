// SPDX-License-Identifier: MIT
#include "tests/desktop/harness/XClient.h"

#include <QCoreApplication>
#include <QFile>

#include <gtest/gtest.h>

namespace {

class EveryWindowManager : public testing::TestWithParam<const char*> {};

TEST_P(EveryWindowManager, twoWindows_goToTheFrontWhenAsked) {
    const Desk desk(QString::fromLatin1(GetParam()));
    XClient client(desk);
    const xcb_window_t first = client.open({.title = "First"});
    const xcb_window_t second = client.open({.title = "Second"});
    client.activate(first);
    EXPECT_TRUE(waitFor([&] { return desk.probe().activeWindow() == first; }));
    client.activate(second);
    EXPECT_TRUE(waitFor([&] { return desk.probe().activeWindow() == second; }));
    EXPECT_EQ(desk.probe().text(second, "_NET_WM_NAME"), "Second");
}

INSTANTIATE_TEST_SUITE_P(Harness, EveryWindowManager, testing::Values("openbox", "icewm", "metacity"),
                         [](const auto& instance) { return std::string(instance.param); });

TEST(Harness, aBus_hasAnAddressOfItsOwn) {
    Desk first({}, Desk::Bus::Own);
    Desk second({}, Desk::Bus::Own);
    EXPECT_TRUE(first.bus().address().startsWith(first.home().path().prepend(u"unix:path=")));
    EXPECT_NE(first.bus().address(), second.bus().address());
    EXPECT_NE(first.display().name(), second.display().name());
}

TEST(Harness, aDisplayStartedAnew_keepsItsName) {
    Desk desk(QStringLiteral("openbox"), Desk::Bus::None, VirtualDisplay::Number::Kept);
    const QString name = desk.display().name();
    desk.killDisplay();
    desk.restartDisplay();
    EXPECT_EQ(desk.display().name(), name);
    EXPECT_TRUE(DisplayProbe(name).hasWindowManager());
}

TEST(Harness, aProgram_endsWithItsObject) {
    const TemporaryHome home;
    auto program = std::make_unique<Program>(QStringLiteral("cat"), QStringList(), home.environment(),
                                             Program::Output::Read);
    program->write("a line\n");
    EXPECT_EQ(program->readLine(), "a line");
    const QString folder = QStringLiteral("/proc/%1").arg(program->processIdentifier());
    EXPECT_TRUE(QFile::exists(folder));
    program.reset();
    EXPECT_FALSE(QFile::exists(folder));
}

TEST(Harness, aShellThatEndsAtItsStart_failsTheTestAtOnceWithWhatItWrote) {
    const TemporaryHome home;
    home.write(QStringLiteral("bin/gnome-shell"), "#!/bin/sh\necho out of order >&2\nexit 1\n");
    ASSERT_TRUE(QFile::setPermissions(home.path() + QStringLiteral("/bin/gnome-shell"),
                                      QFile::ReadOwner | QFile::ExeOwner));
    QProcessEnvironment environment = home.environment();
    environment.insert(QStringLiteral("PATH"),
                       home.path() + QStringLiteral("/bin:") + environment.value(QStringLiteral("PATH")));
    environment.remove(QStringLiteral("TICKLOG_TEST_VERBOSE"));
    Program tests(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--gtest_filter=GnomeShell.aShellWithoutTheExtension_tellsNothing")},
                  environment, Program::Output::ErrorsRead);
    std::optional<QByteArray> line;
    do
        line = tests.readLine();
    while (line && !line->contains("GNOME Shell has ended"));
    EXPECT_TRUE(line);
    EXPECT_EQ(tests.readLine(), QByteArray("out of order"));
    EXPECT_TRUE(tests.waitUntilEnded());
    EXPECT_NE(tests.exitStatus(), 0);
}

} // namespace
