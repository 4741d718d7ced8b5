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
    return rules.allowed(QString::fromUtf8(program), QString::fromUtf8(title)).toStdString();
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

} // namespace
