// SPDX-License-Identifier: MIT
#include "Classes/rules/TitleRules.h"
#include "tests/fakes/Day.h"

#include <gtest/gtest.h>

namespace {

PropertyListDictionary rule(const char* program, const char* title, const char* effect) {
    return {{kTitleRuleProgram, QString::fromUtf8(program)},
            {kTitleRuleTitle, QString::fromUtf8(title)},
            {kTitleRuleEffect, QString::fromUtf8(effect)}};
}

std::string allowed(const TitleRules& rules, const char* program, const char* title) {
    return rules.allowed(QString::fromUtf8(program), QString::fromUtf8(title))
        .value_or(QStringLiteral("nobody's"))
        .toStdString();
}

TEST(TitleRules, fromTheStart_privateWindowsOfBrowsersHaveNoTitle) {
    const TitleRules rules;
    for (const char* title :
         {"Bank — Mozilla Firefox Private Browsing", "Mozilla Firefox (Private Browsing)",
          "Banque — Mozilla Firefox Navigation privée", "Bank - Mozilla Firefox Privater Modus",
          "Bank - Google Chrome (Incognito)", "New Incognito Tab - Chromium",
          "Bank - [InPrivate] - Microsoft Edge", "Bank - Brave (Private)"})
        EXPECT_EQ(allowed(rules, "Browser", title), "") << title;
    for (const char* title : {"Private Browsing explained — Mozilla Firefox", "~/Private",
                              "Incognito: a novel", "Private letters - Writer"})
        EXPECT_EQ(allowed(rules, "Browser", title), title);
}

TEST(TitleRules, theFirstThatFits_decides) {
    TitleRules rules;
    PropertyListDictionary replacing = rule("mail", "", "replace");
    replacing.insert(kTitleRuleReplacement, QStringLiteral("Letters"));
    rules.read(PropertyListArray{rule("Mail", "work", "keep"), replacing, rule("", "secret", "leave out")});
    EXPECT_EQ(allowed(rules, "Mailer", "Homework"), "Homework");
    EXPECT_EQ(allowed(rules, "Mailer", "Inbox"), "Letters");
    EXPECT_EQ(allowed(rules, "Editor", "My SECRET.txt"), "");
    EXPECT_EQ(allowed(rules, "Editor", "a.txt"), "a.txt");
}

TEST(TitleRules, anExpression_isOneOnlyWhereTheRuleSaysSo) {
    TitleRules rules;
    PropertyListDictionary expression = rule("", "^a.b$", "leave out");
    rules.read(PropertyListArray{expression});
    EXPECT_EQ(allowed(rules, "Editor", "axb"), "axb");
    expression.insert(kTitleRuleIsExpression, true);
    rules.read(PropertyListArray{expression});
    EXPECT_EQ(allowed(rules, "Editor", "axb"), "");
}

TEST(TitleRules, whatIsHalfUnderstood_hidesTooMuchAndNotTooLittle) {
    TitleRules rules;
    PropertyListDictionary broken = rule("Editor", "(", "keep");
    broken.insert(kTitleRuleIsExpression, true);
    rules.read(PropertyListArray{broken, rule("Mail", "", "whatever"), PropertyListValue(7)});
    EXPECT_EQ(allowed(rules, "Editor", "a.txt"), "");
    EXPECT_EQ(allowed(rules, "Mail", "Inbox"), "");
    EXPECT_EQ(allowed(rules, "Player", "Song"), "Song");
}

TEST(TitleRules, whatCannotBeDecided_isHidden) {
    const std::string longest = std::string(40, 'x') + " diary";
    TitleRules rules;
    for (const auto& [effect, becomes] :
         {std::pair("leave out", ""), std::pair("keep", ""), std::pair("replace", "Letters"),
          std::pair("private", "nobody's")}) {
        PropertyListDictionary slow = rule("Editor", "(x+x+)+y|diary", effect);
        slow.insert(kTitleRuleIsExpression, true);
        slow.insert(kTitleRuleReplacement, QStringLiteral("Letters"));
        rules.read(PropertyListArray{slow});
        EXPECT_EQ(allowed(rules, "Editor", longest.c_str()), becomes) << effect;
        EXPECT_EQ(allowed(rules, "Editor", "a.txt"), "a.txt") << effect;
        EXPECT_EQ(allowed(rules, "Mail", longest.c_str()), longest) << effect;
        EXPECT_TRUE(rules.hidesSomewhere(QString::fromStdString(longest))) << effect;
    }
}

TEST(TitleRules, noneAndThoseAsleep_keepEverything) {
    TitleRules rules;
    rules.read(PropertyListArray{});
    EXPECT_EQ(allowed(rules, "Browser", "Bank - Chrome (Incognito)"), "Bank - Chrome (Incognito)");
    PropertyListDictionary asleep = rule("", "", "leave out");
    asleep.insert(kTitleRuleActive, false);
    rules.read(PropertyListArray{asleep});
    EXPECT_EQ(allowed(rules, "Browser", "News"), "News");
}

TEST(TitleRules, aPrivateWindow_isCreditedToItsProgramAlone) {
    Day day;
    day.start();
    day.front("Browser", "Bank - Browser (Incognito)");
    day.seconds(10);
    day.retitle("Shop - Browser (Incognito)");
    day.seconds(10);
    day.window("News - Browser");
    day.seconds(5);
    EXPECT_EQ(day.tree(), "Browser 25 [News - Browser 5]");
    day.titleRules.read(PropertyListArray{rule("Browser", "News", "leave out")});
    day.seconds(5);
    EXPECT_EQ(day.tree(), "Browser 30 [News - Browser 5]");
}

TEST(TitleRules, whatHasNobodysName_isCreditedToPrivate_withoutWindowAndTitle) {
    Day day;
    day.titleRules.read(PropertyListArray{rule("Browser", "bank", "private")});
    day.start();
    day.front("Browser", "News");
    day.seconds(10);
    day.retitle("My bank");
    day.seconds(20);
    day.retitle("Weather");
    day.seconds(5);
    day.front("Bank", "My bank");
    day.seconds(3);
    EXPECT_EQ(day.tree(), "Bank 3 [My bank 3], Browser 15 [Weather 15], Private 20");
}

TEST(TitleRules, aProgramThatHasNobodysName_isPrivateAlsoWithoutAWindow) {
    Day day;
    day.titleRules.read(PropertyListArray{rule("Diary", "", "private")});
    day.start();
    day.front("Diary", "Dear diary");
    day.seconds(10);
    day.closeAllWindows();
    day.seconds(10);
    EXPECT_EQ(day.tree(), "Private 20");
    day.titleRules.read(PropertyListArray{});
    day.seconds(5);
    EXPECT_EQ(day.tree(), "Diary 4.9, Private 20.1");
}

TEST(TitleRules, nobodysName_isNoReasonToEndAnAbsence) {
    Day day;
    day.fakes.defaults.setObject(kMinutesUntilIdle, 1);
    day.titleRules.read(PropertyListArray{rule("Browser", "bank", "private")});
    day.start();
    day.front("Browser", "News");
    day.seconds(10);
    day.idle(100);
    const double idle = day.secondsOf("Idle");
    day.retitle("My bank");
    day.idle(100);
    EXPECT_NEAR(day.secondsOf("Idle"), idle + 100, 0.2);
    EXPECT_EQ(day.tree().find("Private"), std::string::npos) << "nobody was there to look at it";
    day.seconds(10);
    EXPECT_NEAR(day.secondsOf("Private"), 10, 0.3);
}

TEST(TitleRules, whatIsWrongWithAnExpression_isTold) {
    PropertyListDictionary wrong = rule("", "(", "keep");
    EXPECT_EQ(TitleRules::faultOf(wrong), QString());
    wrong.insert(kTitleRuleIsExpression, true);
    EXPECT_NE(TitleRules::faultOf(wrong), QString());
}

TEST(TitleRules, theFirstThatFits_isToldByItsPlaceInTheList) {
    TitleRules rules;
    PropertyListDictionary asleep = rule("", "", "leave out");
    asleep.insert(kTitleRuleActive, false);
    rules.read(PropertyListArray{asleep, rule("Mail", "", "keep"), rule("", "x", "leave out")});
    EXPECT_EQ(rules.deciding(QStringLiteral("Mail"), QStringLiteral("x")), 1U);
    EXPECT_EQ(rules.deciding(QStringLiteral("Editor"), QStringLiteral("x")), 2U);
    EXPECT_EQ(rules.deciding(QStringLiteral("Editor"), QStringLiteral("y")), std::nullopt);
}

} // namespace
