// SPDX-License-Identifier: MIT
#include "interface/preferences/Preferences.h"
#include "tests/interface/Desk.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct PreferencesTest : testing::Test, Desk {
    QString tab() { return preferences.setup()->prefWindow().prefTabView().currentWidget()->objectName(); }

    PrefWindow* made = nullptr;
    Preferences preferences{controller, fakes.platform, alerts,
                            [this](PrefWindow& window) { made = &window; }};
};

TEST_F(PreferencesTest, untilTheyAreAskedFor_areNotMade) {
    EXPECT_EQ(preferences.setup(), nullptr);
    EXPECT_EQ(made, nullptr);
}

TEST_F(PreferencesTest, theMenu_opensTheGeneralSettings) {
    EXPECT_EQ(actions().showPrefWindow->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Comma));
    command(actions().showPrefWindow);
    ASSERT_EQ(made, &preferences.setup()->prefWindow());
    EXPECT_TRUE(made->isVisible());
    EXPECT_EQ(tab(), u"General"_s);
}

TEST_F(PreferencesTest, theMenu_opensTheRulesInTheSameWindow) {
    command(actions().showPrefWindow);
    PrefWindow* const first = made;
    first->close();
    command(actions().editRules);
    EXPECT_EQ(made, first);
    EXPECT_TRUE(first->isVisible());
    EXPECT_EQ(tab(), u"Match"_s);
}

} // namespace
