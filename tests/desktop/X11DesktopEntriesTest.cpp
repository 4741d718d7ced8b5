// SPDX-License-Identifier: MIT
#include "tests/desktop/X11Scene.h"

#include <gtest/gtest.h>

namespace {

TEST(X11DesktopEntries, anInstalledProgram_isNamedInTheUsersLanguage) {
    X11Scene scene;
    scene.desk.home().write(QStringLiteral("data/applications/org.example.Editor.desktop"),
                            "[Desktop Entry]\nType=Application\nName=Text Editor\nName[de]=Texteditor\n"
                            "StartupWMClass=Editor\nExec=editor %F\n");
    XClient client(scene.desk);
    client.activate(client.open({.title = "Page", .instanceName = "editor", .className = "Editor"}));
    EXPECT_SEEN(scene, "Texteditor: Page");
}

TEST(X11DesktopEntries, aWindowWhoseClassHasToDoWithItsProgram_isFoundByItsExecutable) {
    X11Scene scene;
    scene.desk.home().write(QStringLiteral("data/applications/client.desktop"),
                            "[Desktop Entry]\nType=Application\nName=The Client\nExec=x-client\n");
    XClient client(scene.desk);
    client.activate(client.open({.title = "Page", .instanceName = "editor", .className = "X-Client"}));
    EXPECT_SEEN(scene, "The Client: Page");
    EXPECT_EQ(scene.desktop->nameOfProgram(QStringLiteral("/opt/x-client")), QStringLiteral("The Client"));
    EXPECT_EQ(scene.desktop->nameOfProgram(QStringLiteral("/opt/other")), QStringLiteral("other"));
}

TEST(X11DesktopEntries, aClassGivenOnPurpose_isTheApplicationAndNotTheEntryOfItsProgram) {
    X11Scene scene;
    for (const char* id : {"xterm", "vendor-xterm"})
        scene.desk.home().write(QStringLiteral("data/applications/%1.desktop").arg(QLatin1String(id)),
                                "[Desktop Entry]\nType=Application\nName=Terminal\nExec=xterm\n");
    const auto start = [&](const QStringList& options) {
        return scene.desk.start(QStringLiteral("xterm"),
                                options + QStringList{QStringLiteral("-e"), QStringLiteral("cat")});
    };
    const QStringList title{QStringLiteral("-T"), QStringLiteral("page")};
    const auto plain = start(title);
    EXPECT_SEEN(scene, "Terminal: page");
    const auto mailer = start(title + QStringList{QStringLiteral("-class"), QStringLiteral("Mailer")});
    EXPECT_SEEN(scene, "Mailer: page");
}

} // namespace
