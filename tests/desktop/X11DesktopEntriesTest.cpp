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

TEST(X11DesktopEntries, aProgramWithAClassOfItsOwn_isFoundByItsExecutable) {
    X11Scene scene;
    scene.desk.home().write(QStringLiteral("data/applications/client.desktop"),
                            "[Desktop Entry]\nType=Application\nName=The Client\nExec=x-client\n");
    XClient client(scene.desk);
    client.activate(client.open({.title = "Page", .instanceName = "editor", .className = "Editor"}));
    EXPECT_SEEN(scene, "The Client: Page");
    EXPECT_EQ(scene.desktop->bundleName(QStringLiteral("/opt/x-client")), QStringLiteral("The Client"));
    EXPECT_EQ(scene.desktop->bundleName(QStringLiteral("/opt/other")), QStringLiteral("other"));
}

} // namespace
