// SPDX-License-Identifier: MIT
// A row for each title of a window.
#include "Classes/rules/TitleRows.h"
#include "Classes/common/Settings.h"
#include "Classes/rules/RuleCategories.h"
#include "Classes/rules/Ruleset.h"
#include "tests/fakes/Day.h"

#include <gtest/gtest.h>

namespace {

class TitleRowsTest : public testing::Test {
protected:
    void wantFor(const char* application) {
        Ruleset(m_day.fakes.defaults)
            .save(std::nullopt, QString::fromUtf8(application), {.rowForEachTitle = true}, [] {});
        m_day.advance(0);
    }

    void wantForAll(bool isWanted = true) {
        m_day.fakes.defaults.setObject(kRowForEachTitle, isWanted);
        m_day.advance(0);
    }

    void browse() {
        m_day.start();
        m_day.front("Browser", "News");
        m_day.seconds(10);
        m_day.retitle("Bank");
        m_day.seconds(5);
        m_day.retitle("News");
        m_day.seconds(1);
    }

    Day m_day;
};

TEST_F(TitleRowsTest, withoutTheOption_theRowIsCalledLikeTheLatestTitle) {
    browse();
    EXPECT_EQ(m_day.tree(), "Browser 16 [News 16]");
}

TEST_F(TitleRowsTest, aNewTitle_isARowAndOneThatComesBackGoesOnInItsOwn) {
    wantForAll();
    browse();
    EXPECT_EQ(m_day.tree(), "Browser 16 [Bank 5, News 11]");
}

TEST_F(TitleRowsTest, aRule_wantsItForItsApplicationAlone) {
    wantFor("Browser");
    browse();
    m_day.front("Editor", "a.txt");
    m_day.seconds(2);
    m_day.retitle("b.txt");
    m_day.seconds(2);
    EXPECT_EQ(m_day.tree(), "Browser 16 [Bank 5, News 11], Editor 4 [b.txt 4]");
}

TEST_F(TitleRowsTest, switchedOffAgain_theRowFollowsItsWindow) {
    wantForAll();
    browse();
    wantForAll(false);
    m_day.retitle("Shop");
    m_day.seconds(4);
    EXPECT_EQ(m_day.tree(), "Browser 20 [Bank 5, Shop 15]");
}

// A title that counts would fill the account with rows.
TEST_F(TitleRowsTest, aTitleThatOnlyCountsOn_staysOneRow) {
    wantForAll();
    m_day.start();
    m_day.front("Terminal", "12% - wget");
    m_day.seconds(1);
    m_day.retitle("13% - wget");
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Terminal 2 [13% - wget 2]");
}

TEST_F(TitleRowsTest, aTitleThatCountsWithOthersBetween_goesOnInItsRow) {
    wantForAll();
    m_day.start();
    m_day.front("Player", "Offer");
    for (const char* title : {"1:07 / 3:20 Song", "Offer", "1:08 / 3:20 Song", "News", "1:09 / 3:20 Song"}) {
        m_day.seconds(1);
        m_day.retitle(title);
    }
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Player 6 [1:09 / 3:20 Song 2.9, News 1, Offer 2.1]");
}

TEST_F(TitleRowsTest, aTitleThatCounts_goesOnInItsRowAfterARestart) {
    wantForAll();
    m_day.start();
    m_day.front("Player", "1:07 / 3:20 Song");
    m_day.seconds(1);
    m_day.front("Player", "Offer");
    m_day.seconds(1);
    m_day.stop();
    Day next;
    next.fakes.defaults.setObject(kRowForEachTitle, true);
    next.advance(0);
    next.tracker.setArrayRepresentation(m_day.tracker.arrayRepresentation());
    next.start();
    next.front("Player", "1:42 / 3:20 Song");
    next.seconds(2);
    EXPECT_EQ(next.tree(), "Player 4 [1:42 / 3:20 Song 3, Offer 1]");
}

TEST_F(TitleRowsTest, aFrozenRowThatCounted_isNotGoneOnWith) {
    wantForAll();
    m_day.start();
    m_day.front("Player", "1:07 / 3:20 Song");
    m_day.seconds(2);
    m_day.retitle("Offer");
    m_day.seconds(1);
    m_day.freeze("Player", "1:07 / 3:20 Song");
    m_day.retitle("1:42 / 3:20 Song");
    m_day.seconds(3);
    EXPECT_NEAR(m_day.secondsOf("Player", "1:42 / 3:20 Song"), 3, 0.11);
    EXPECT_NEAR(m_day.secondsOf("Player", "Offer"), 1, 0.11);
}

TEST_F(TitleRowsTest, aRuleThatIsNotActive_wantsNothing) {
    PropertyListDictionary record = Rule{.rowForEachTitle = true}.record();
    record.insert(kRuleActive, false);
    m_day.fakes.defaults.setObject(kRulesetKey, PropertyListDictionary{{QStringLiteral("Browser"), record}});
    m_day.advance(0);
    browse();
    EXPECT_EQ(m_day.tree(), "Browser 16 [News 16]");
}

TEST_F(TitleRowsTest, twoWindowsUnderOneTitle_shareARowAndPartAgain) {
    wantForAll();
    m_day.start();
    m_day.front("Browser", "News");
    m_day.seconds(1);
    m_day.window("Bank");
    m_day.seconds(2);
    m_day.retitle("Mail");
    m_day.seconds(3);
    m_day.retitle("Bank");
    m_day.seconds(1);
    m_day.window("News");
    m_day.seconds(4);
    EXPECT_EQ(m_day.tree(), "Browser 11 [Bank 3, Mail 3, News 5]");
}

TEST_F(TitleRowsTest, aTitleThatChangedBehindOthers_isARowWhenItComesToTheFront) {
    wantForAll();
    m_day.start();
    m_day.front("Browser", "News");
    m_day.seconds(1);
    m_day.front("Editor", "a.txt");
    m_day.seconds(1);
    for (auto& window : m_day.fakes.windowList.windows)
        if (window.name == QStringLiteral("News"))
            window.name = QStringLiteral("Bank");
    m_day.fakes.frontApplication.switchTo(m_day.recordOf("Browser"));
    m_day.seconds(2);
    EXPECT_EQ(m_day.tree(), "Browser 3 [Bank 2, News 1], Editor 1 [a.txt 1]");
}

TEST_F(TitleRowsTest, aFrozenRow_keepsWhatItHasAndItsTitleBeginsAnew) {
    wantForAll();
    browse();
    m_day.freeze("Browser", "News");
    m_day.seconds(2);
    m_day.retitle("Bank");
    m_day.seconds(1);
    m_day.retitle("News");
    m_day.seconds(1);
    EXPECT_NEAR(m_day.secondsOf("Browser", "News"), 3, 0.11);
    EXPECT_NEAR(m_day.secondsOf("Browser", "Bank"), 6, 0.11);
    EXPECT_NEAR(m_day.secondsOf("Browser"), 20, 0.11);
}

TEST_F(TitleRowsTest, everyRow_hasAnIdentityOfItsOwnThatStaysWithItsTitle) {
    wantForAll();
    browse();
    const auto news = m_day.node("Browser", "News").uuid();
    const auto bank = m_day.node("Browser", "Bank").uuid();
    EXPECT_NE(news, bank);
    m_day.retitle("Bank");
    m_day.seconds(1);
    EXPECT_EQ(m_day.node("Browser", "Bank").uuid(), bank);
    EXPECT_EQ(m_day.node("Browser", "News").uuid(), news);
    EXPECT_EQ(m_day.registry.knownUUID(TimeStoreWindow::keyOf(QStringLiteral("News"))), news);
}

TEST_F(TitleRowsTest, whileTheTimerIsStopped_noRowBegins) {
    wantForAll();
    browse();
    m_day.stop();
    m_day.retitle("Shop");
    m_day.seconds(5);
    m_day.retitle("Bank");
    m_day.seconds(5);
    m_day.start();
    m_day.seconds(1);
    EXPECT_EQ(m_day.tree(), "Browser 17 [Bank 6, News 11]");
}

TEST_F(TitleRowsTest, theHistorysStretch_hasTheTitleOfItsRow) {
    struct Rows : StretchListener {
        void credited(const Stretch& stretch) override {
            if (stretch.window) {
                EXPECT_EQ(stretch.title, stretch.window->name());
            }
            ++count;
        }
        void absent(Instant, Instant, Seconds) override {}
        int count = 0;
    } rows;
    const Subscription subscription = m_day.tracker.listen(rows);
    wantForAll();
    browse();
    EXPECT_GT(rows.count, 100);
}

TEST_F(TitleRowsTest, rulesThatSayNothingOfIt_areWrittenAsEver) {
    EXPECT_TRUE(Rule().record().value(kRuleRowForEachTitle).isAbsent());
    const PropertyListDictionary wanted = Rule{.rowForEachTitle = true}.record();
    EXPECT_TRUE(wanted.value(kRuleRowForEachTitle).toBool());
    EXPECT_TRUE(Rule::fromRecord(wanted).rowForEachTitle);
    TitleRows rows;
    rows.read(PropertyListDictionary{{QStringLiteral("A"), 3}, {QStringLiteral("B"), wanted}}, false);
    EXPECT_FALSE(rows.areFor(QStringLiteral("A")));
    EXPECT_TRUE(rows.areFor(QStringLiteral("B")));
    rows.read(3, true);
    EXPECT_TRUE(rows.areFor(QStringLiteral("A")));
}

} // namespace
