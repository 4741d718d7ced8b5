// SPDX-License-Identifier: MIT
// What the sum below the rows adds up, and how it is labelled.
#include "Classes/common/Settings.h"
#include "interface/outline/TKAppDisplayFormatter.h"
#include "interface/shell/Images.h"
#include "tests/interface/ProjectDesk.h"

#include <QLabel>

#include <gtest/gtest.h>

namespace {

struct SumModesTest : testing::Test, ProjectDesk {
    SumModesTest() {
        mailNotesAndPaint();
        addProject("Poster", {QStringLiteral("Mail"), QStringLiteral("List")});
        addProject("Nothing");
        show();
    }

    QLabel& icon() { return *controller.window().findChild<QLabel*>(QStringLiteral("timeSumIcon")); }

    // "00:01:00 Total", with the picture of that mode beside it.
    std::string shown(const char* picture) {
        EXPECT_EQ(icon().pixmap().toImage(),
                  Images::named(QLatin1String(picture)).pixmap(QSize(16, 16)).toImage());
        const auto* caption = controller.window().findChild<QLabel*>(QStringLiteral("timeSumCaption"));
        return str(sumShown() + u' ' + caption->text());
    }

    // The sum of everything, with its mode.
    std::pair<std::string, SumMode> ofEverything() {
        SumMode mode = SumMode::None;
        const QString time = controller.totalTimeStringForAllObjects(1, &mode);
        return {str(time), mode};
    }

    std::string title() { return str(controller.totalTimeStringForAllObjects(0, nullptr)); }
};

} // namespace

TEST_F(SumModesTest, allTimersWithoutASelection_areTheTotal) {
    EXPECT_EQ(shown("sidebar-time-total"), "00:03:10 Total");
    EXPECT_EQ(title(), "total\n00:03:10");
}

TEST_F(SumModesTest, aTotalThatLeavesSomethingOut_namesIt) {
    account("Idle", 100);
    account("Ticklog", 7);
    controller.refreshTimeSum();
    EXPECT_EQ(shown("sidebar-time-total"), "00:03:17 Total without Idle");
    fakes.defaults.setObject(kIncludeSelfInSumofTimes, false);
    settle();
    EXPECT_EQ(shown("sidebar-time-total"), "00:03:10 Total without Idle and Ticklog");
    fakes.defaults.setObject(kIncludeIdleInSumofTimes, true);
    settle();
    EXPECT_EQ(shown("sidebar-time-total"), "00:04:50 Total without Ticklog");
    select({row("Idle")});
    EXPECT_EQ(shown("sidebar-time-selection"), "00:01:40 Selected");
    controller.deselectAll();
    EXPECT_EQ(shown("sidebar-time-total"), "00:04:50 Total without Ticklog");
    fakes.defaults.setObject(kIncludeSelfInSumofTimes, true);
    settle();
    EXPECT_EQ(shown("sidebar-time-total"), "00:04:57 Total");
}

TEST_F(SumModesTest, whatIsLeftOut_isNamedAsItsRowIs) {
    account("Idle", 100);
    const auto idle = table().itemAt(row("Idle"));
    idle->setRenamedNameFormatted(TKAppDisplayFormatter::objectValueForString(QStringLiteral("%@ away")));
    account("Ticklog", 7);
    fakes.defaults.setObject(kIncludeSelfInSumofTimes, false);
    settle();
    EXPECT_EQ(shown("sidebar-time-total"), "00:03:10 Total without %@ away and Ticklog");
}

TEST_F(SumModesTest, timeOfWhichNoSecondIsShown_isNotSaidToBeLeftOut) {
    account("Idle", 0.9);
    controller.refreshTimeSum();
    EXPECT_EQ(shown("sidebar-time-total"), "00:03:10 Total");
}

TEST_F(SumModesTest, wordsWithoutRoom_giveWayToTheTime) {
    account("Idle", 100);
    account("Ticklog", 7);
    fakes.defaults.setObject(kIncludeSelfInSumofTimes, false);
    const auto isShown = [&](const char* name) {
        return controller.window().findChild<QLabel*>(QLatin1String(name))->isVisible();
    };
    controller.window().resize(1000, 500);
    settle();
    EXPECT_TRUE(isShown("timeSumCaption") && isShown("cutOffCaption"));
    controller.window().resize(controller.window().minimumSize());
    settle();
    EXPECT_LE(controller.window().width(), 480) << "long words do not widen the window";
    EXPECT_FALSE(isShown("timeSumCaption") || isShown("cutOffCaption"));
    EXPECT_EQ(str(sumShown()), "00:03:10");
}

TEST_F(SumModesTest, aProjectWithoutASelection_isTheSumOfItsTopRows) {
    choose(1);
    EXPECT_EQ(outlineText(), "List, Mail");
    EXPECT_EQ(shown("sidebar-time-project"), "00:01:40 Project");
    EXPECT_EQ(title(), "project\n00:01:40");
}

TEST_F(SumModesTest, anEmptyProject_isNoTime) {
    choose(2);
    EXPECT_EQ(shown("sidebar-time-project"), "00:00:00 Project");
}

TEST_F(SumModesTest, aSelection_isSummedInAProjectToo) {
    choose(1);
    select({row("List")});
    EXPECT_EQ(shown("sidebar-time-selection"), "00:00:40 Selected");
    EXPECT_EQ(title(), "selected\n00:00:40");
}

TEST_F(SumModesTest, whatASearchFinds_isSummedWindowByWindow) {
    type("in");
    EXPECT_EQ(shown("sidebar-time-found"), "00:00:50 Found") << "Inbox and Paint";
    EXPECT_EQ(title(), "found\n00:00:50");
}

TEST_F(SumModesTest, aSelectionInASearch_countsWhatIsFoundInIt) {
    type("in");
    select({row("Mail")});
    EXPECT_EQ(shown("sidebar-time-foundselection"), "00:00:20 Found in selection")
        << "of Mail only its Inbox";
    EXPECT_EQ(title(), "found\n00:00:20");
}

TEST_F(SumModesTest, aSearchInAProject_countsWhatIsFoundInIt) {
    choose(1);
    type("in");
    EXPECT_EQ(shown("sidebar-time-found"), "00:00:20 Found");
}

TEST_F(SumModesTest, everythingOfAProject_isSummedThoughTheModeSaysSelected) {
    choose(1);
    select({row("List")});
    EXPECT_EQ(ofEverything(), std::pair(std::string("00:01:40"), SumMode::Selected));
}

TEST_F(SumModesTest, everythingOfAllTimers_isAlwaysTheTotal) {
    select({row("Paint")});
    EXPECT_EQ(ofEverything(), std::pair(std::string("00:03:10"), SumMode::Total));
}

TEST_F(SumModesTest, theSameModeTwice_leavesThePictureUntouched) {
    select({row("Paint")});
    const qint64 before = icon().pixmap().cacheKey();
    select({row("Mail")});
    controller.refreshTimeSum();
    EXPECT_EQ(icon().pixmap().cacheKey(), before);
    EXPECT_EQ(shown("sidebar-time-selection"), "00:01:00 Selected");
    controller.deselectAll();
    EXPECT_NE(icon().pixmap().cacheKey(), before);
}

TEST_F(SumModesTest, aSelectionInTheSidebar_isNotOneOfTimers) {
    choose(1);
    choose(0);
    EXPECT_EQ(shown("sidebar-time-total"), "00:03:10 Total");
}

TEST_F(SumModesTest, everythingFound_isSummedThoughTheModeSaysSelected) {
    type("in");
    select({row("Paint")});
    EXPECT_EQ(ofEverything(), std::pair(std::string("00:00:50"), SumMode::FoundInSelection));
    controller.deselectAll();
    EXPECT_EQ(ofEverything(), std::pair(std::string("00:00:50"), SumMode::Found));
}

TEST_F(SumModesTest, anApplicationAndItsWindowFound_areCountedOnce) {
    type("in");
    select({row("Mail"), row("Inbox", row("Mail"))});
    EXPECT_EQ(shown("sidebar-time-foundselection"), "00:00:20 Found in selection");
    type("mail");
    select({row("Mail"), row("Inbox", row("Mail"))});
    EXPECT_EQ(shown("sidebar-time-foundselection"), "00:01:00 Found in selection") << "all of Mail";
}

TEST_F(SumModesTest, aWindowUnderAnApplicationThatIsNotSelected_countsByItself) {
    choose(1);
    table().expand(row("Mail"));
    select({row("Inbox", row("Mail")), row("List")});
    EXPECT_EQ(shown("sidebar-time-selection"), "00:01:00 Selected");
    select({row("Mail"), row("Inbox", row("Mail")), row("List")});
    EXPECT_EQ(shown("sidebar-time-selection"), "00:01:40 Selected");
}
