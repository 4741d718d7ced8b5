// SPDX-License-Identifier: MIT
// What every back end promises about the application in front and the windows, on every desktop it serves.
#include "tests/desktop/ContractScene.h"
#include "tests/desktop/Desktops.h"

#include <gtest/gtest.h>

namespace {

class DesktopUnder : public testing::TestWithParam<const char*> {
protected:
    int start(const char* name) { return scene->start(QString::fromLatin1(name)); }
    int open(int program, const char* title) { return scene->open(program, QString::fromUtf8(title)); }
    std::int64_t numberInFront() const {
        const WindowListEntry* window = sight().frontWindow();
        return window ? window->number : 0;
    }

    void SetUp() override {
        SKIP_WHERE_NOT_PACKAGED(executableOf(QString::fromLatin1(GetParam())));
        scene = makeContractScene(QString::fromLatin1(GetParam()));
    }

    Sight& sight() const { return scene->sight(); }
    // New windows of programs that are not installed may say something better in their first moment.
    bool isDecided() const {
        return waitFor([&] { return !sight().frontApplication().isUndecided(); });
    }

    std::unique_ptr<ContractScene> scene;
};

// phoc, a phone's compositor, cannot take a window from the screen without closing it.
class DesktopThatPutsAway : public DesktopUnder {};
// Miriway reports only the first title of a window.
class DesktopThatRetells : public DesktopUnder {};

constexpr auto kAll = {"openbox", "icewm", "metacity", "xfwm4", "kwin_x11", "muffin",
                       "mutter",  "sway",  "labwc",    "kwin",  "gnome"};

std::string nameOf(const testing::TestParamInfo<const char*>& instance) {
    return instance.param;
}

INSTANTIATE_TEST_SUITE_P(Contract, DesktopUnder, testing::ValuesIn(kAll), nameOf);
INSTANTIATE_TEST_SUITE_P(Contract, DesktopThatPutsAway, testing::ValuesIn(kAll), nameOf);
INSTANTIATE_TEST_SUITE_P(Contract, DesktopThatRetells, testing::ValuesIn(kAll), nameOf);
INSTANTIATE_TEST_SUITE_P(InPart, DesktopUnder, testing::Values("phoc", "miriway"), nameOf);
INSTANTIATE_TEST_SUITE_P(InPart, DesktopThatPutsAway, testing::Values("miriway"), nameOf);
INSTANTIATE_TEST_SUITE_P(InPart, DesktopThatRetells, testing::Values("phoc"), nameOf);

TEST_P(DesktopUnder, twoPrograms_takeTurnsInFront) {
    const int editor = start("Editor");
    const int mail = start("Mail");
    const int page = open(editor, "A page");
    const int letter = open(mail, "A letter");
    // A new window may come to the front by itself a little later.
    scene->activate(letter);
    EXPECT_SEEN(sight(), "Mail: A letter");
    scene->activate(page);
    EXPECT_SEEN(sight(), "Editor: A page");
    const std::int64_t process = sight().frontProcess();
    const std::int64_t number = numberInFront();
    EXPECT_EQ(process, scene->process(editor).value_or(process));
    sight().switches.clear();
    scene->activate(letter);
    EXPECT_SEEN(sight(), "Mail: A letter");
    EXPECT_NE(sight().frontProcess(), process);
    EXPECT_NE(numberInFront(), number);
    scene->activate(page);
    EXPECT_SEEN(sight(), "Editor: A page");
    EXPECT_EQ(sight().frontProcess(), process);
    EXPECT_EQ(numberInFront(), number);
    EXPECT_EQ(sight().switches, QStringList({QStringLiteral("Mail"), QStringLiteral("Editor")}));
}

TEST_P(DesktopUnder, twoWindowsOfOneProgram_areToldApart) {
    const int editor = start("Editor");
    const int first = open(editor, "First");
    const int second = open(editor, "Second");
    scene->activate(second);
    EXPECT_SEEN(sight(), "Editor: Second");
    EXPECT_TRUE(isDecided());
    scene->activate(first);
    EXPECT_SEEN(sight(), "Editor: First");
    EXPECT_TRUE(isDecided());
    const std::int64_t number = numberInFront();
    sight().switches.clear();
    scene->activate(second);
    EXPECT_SEEN(sight(), "Editor: Second");
    EXPECT_NE(numberInFront(), number);
    // Where a new window may still say something better, the same program is told again.
    sight().switches.removeAll(QStringLiteral("Editor"));
    EXPECT_EQ(sight().switches, QStringList());
    EXPECT_EQ(sight().titles(), QStringList({QStringLiteral("Second"), QStringLiteral("First")}));
}

TEST_P(DesktopThatRetells, aNewTitle_isSeenOnTheSameWindow) {
    const int window = open(start("Editor"), "Old");
    scene->activate(window);
    EXPECT_SEEN(sight(), "Editor: Old");
    const std::int64_t number = numberInFront();
    scene->setTitle(window, QStringLiteral("Neu: ünï € 漢"));
    EXPECT_SEEN(sight(), "Editor: Neu: ünï € 漢");
    EXPECT_EQ(numberInFront(), number);
}

TEST_P(DesktopUnder, theLastWindowClosed_leavesTheDesktop) {
    const int window = open(start("Editor"), "Page");
    scene->activate(window);
    EXPECT_SEEN(sight(), "Editor: Page");
    scene->close(window);
    EXPECT_SEEN(sight(), "Desktop: none");
}

TEST_P(DesktopUnder, aProgramThatDiesInFront_leavesTheDesktop) {
    const int editor = start("Editor");
    scene->activate(open(editor, "Page"));
    EXPECT_SEEN(sight(), "Editor: Page");
    scene->die(editor);
    EXPECT_SEEN(sight(), "Desktop: none");
    EXPECT_EQ(sight().titles(), QStringList());
}

TEST_P(DesktopThatPutsAway, theOnlyWindowPutAway_leavesTheDesktopAndComesBack) {
    const int window = open(start("Editor"), "Page");
    scene->activate(window);
    EXPECT_SEEN(sight(), "Editor: Page");
    scene->putAway(window);
    EXPECT_SEEN(sight(), "Desktop: none");
    scene->activate(window);
    EXPECT_SEEN(sight(), "Editor: Page");
}

TEST_P(DesktopThatPutsAway, theFrontWindowPutAway_givesWayToTheNext) {
    scene->activate(open(start("Editor"), "A page"));
    EXPECT_SEEN(sight(), "Editor: A page");
    const int letter = open(start("Mail"), "A letter");
    scene->activate(letter);
    EXPECT_SEEN(sight(), "Mail: A letter");
    scene->putAway(letter);
    EXPECT_SEEN(sight(), "Editor: A page");
}

} // namespace
