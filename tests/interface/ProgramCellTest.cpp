// SPDX-License-Identifier: MIT
#include "interface/outline/ProgramCell.h"

#include "Classes/store/TimeStoreAppProxy.h"
#include "platform/foundation/text/Translations.h"
#include "tests/fakes/TestEngine.h"

#include <gtest/gtest.h>

namespace {

class ProgramCellTest : public testing::Test {
protected:
    ProgramCellTest() {
        engine.tracker.addWindowWithName(QStringLiteral("Mail"), 10);
        mail = engine.tracker.fullTimeSet().front();
        inbox = mail->windowStoreForName(QStringLiteral("Inbox"), std::nullopt);
        (void)mail->windowStoreForName(QStringLiteral("Sent"), std::nullopt);
    }

    TestEngine engine;
    std::shared_ptr<TimeStoreApp> mail;
    std::shared_ptr<TimeStoreWindow> inbox;
    bool isProjectShown = false;
    ColorTags tags;
    bool hasShortTitles = true;
    ProgramCell program{
        {.isProjectShown = [this] { return isProjectShown; },
         .tags = [this](const Identity&) { return tags; },
         .applications = [this] { return engine.tracker.timeSet(); },
         .hasShortTitles = [this] { return hasShortTitles; },
         .programOf =
             [this](const auto& window) { return engine.tracker.tree().applicationHolding(window); }}};
};

} // namespace

TEST_F(ProgramCellTest, amongAllTimers_theColoursOfTheTimersProjectsAreShown) {
    EXPECT_FALSE(program.cell(*mail, true).selectedTags);
    tags = {1, 4};
    EXPECT_EQ(program.cell(*mail, true).selectedTags, tags);
    EXPECT_EQ(program.cell(*inbox, false).selectedTags, tags);
}

TEST_F(ProgramCellTest, inAProject_noColoursAreShown) {
    tags = {1};
    isProjectShown = true;
    EXPECT_FALSE(program.cell(*mail, true).selectedTags);
}

TEST_F(ProgramCellTest, windows_haveTheirIcon) {
    EXPECT_FALSE(program.cell(*mail, true).showWindowIcon);
    EXPECT_TRUE(program.cell(*inbox, false).showWindowIcon);
}

TEST_F(ProgramCellTest, aFrozenTimer_hasItsMark) {
    EXPECT_FALSE(program.cell(*mail, true).isFrozen);
    mail->setBranched(true);
    EXPECT_TRUE(program.cell(*mail, true).isFrozen);
    EXPECT_FALSE(program.cell(*inbox, false).isFrozen);
}

TEST_F(ProgramCellTest, aWindowWithoutItsApplicationInAProject_isAsFrozenAsThat) {
    isProjectShown = true;
    EXPECT_FALSE(program.cell(*inbox, true).isFrozen);
    mail->setBranched(true);
    EXPECT_TRUE(program.cell(*inbox, true).isFrozen);
    EXPECT_FALSE(program.cell(*inbox, false).isFrozen) << "beneath its application";
    isProjectShown = false;
    EXPECT_FALSE(program.cell(*inbox, true).isFrozen) << "among all timers";
}

TEST_F(ProgramCellTest, aWindowFrozenItself_isFrozenInAProject) {
    isProjectShown = true;
    inbox->setBranched(true);
    EXPECT_TRUE(program.cell(*inbox, true).isFrozen);
}

TEST_F(ProgramCellTest, whatOnlyStandsForATimer_cannotBeFrozen) {
    EXPECT_TRUE(program.cell(*mail, true).supportsFreeze);
    EXPECT_TRUE(program.cell(*inbox, false).supportsFreeze);
    TimeStoreAppProxy proxy(engine.store, QStringLiteral("Mail"), {mail});
    EXPECT_FALSE(program.cell(proxy, true).supportsFreeze);
    const auto pruned = mail->prunedObjectForSearchString(QStringLiteral("Inbox"), 0);
    ASSERT_NE(pruned, nullptr);
    EXPECT_FALSE(program.cell(*pruned, true).supportsFreeze);
}

TEST_F(ProgramCellTest, aTitleThatEndsInItsProgramsName_isShownWithoutItWhereThatIsWanted) {
    const auto offer = mail->windowStoreForName(QStringLiteral("Offer - Mail"), std::nullopt);
    const auto notes = mail->windowStoreForName(QStringLiteral("Offer - Notes"), std::nullopt);
    EXPECT_EQ(program.shownName(*offer, mail.get()), QStringLiteral("Offer"));
    EXPECT_EQ(program.shownName(*offer, nullptr), QStringLiteral("Offer")) << "at the top of a project";
    EXPECT_EQ(program.shownName(*notes, mail.get()), QStringLiteral("Offer - Notes"));
    EXPECT_EQ(offer->name(), QStringLiteral("Offer - Mail"));
    hasShortTitles = false;
    EXPECT_EQ(program.shownName(*offer, mail.get()), QStringLiteral("Offer - Mail"));
}

TEST_F(ProgramCellTest, idleTime_isShownInTheLanguageOfTheUser) {
    const Translations german({QStringLiteral("de")});
    engine.tracker.setCurrentApp(QStringLiteral("Idle"));
    TimeStoreApp& idle = *engine.tracker.activeStoreApp();
    EXPECT_EQ(program.shownName(idle, nullptr), QStringLiteral("Leerlauf"));
    EXPECT_EQ(idle.name(), QStringLiteral("Idle")) << "in the record";
}

TEST_F(ProgramCellTest, theProgramsNameInATitle_isItsOwnOrTheUsers) {
    const auto offer = mail->windowStoreForName(QStringLiteral("Offer - Mail"), std::nullopt);
    const auto letter = mail->windowStoreForName(QStringLiteral("Letter - Post"), std::nullopt);
    mail->setRenamedNameFormatted({{kRecordName, QStringLiteral("Post")}});
    EXPECT_EQ(program.shownName(*offer, mail.get()), QStringLiteral("Offer"));
    EXPECT_EQ(program.shownName(*letter, mail.get()), QStringLiteral("Letter"));
}

TEST_F(ProgramCellTest, aNameOfTheUsersOwn_isShownWhole) {
    const auto offer = mail->windowStoreForName(QStringLiteral("Offer - Mail"), std::nullopt);
    offer->setRenamedNameFormatted({{kRecordName, QStringLiteral("Mine - Mail")}});
    EXPECT_EQ(program.shownName(*offer, mail.get()), QStringLiteral("Mine - Mail – Offer - Mail"));
}
