// SPDX-License-Identifier: MIT
#include "Classes/rules/Ruleset.h"

#include "Classes/rules/RuleCategories.h"
#include "tests/fakes/Announcements.h"
#include "tests/fakes/FakePlatform.h"

#include <gtest/gtest.h>

namespace {

class RulesetTest : public testing::Test {
protected:
    void save(const char* name, const Rule& rule = {}, const std::optional<QString>& original = {}) {
        ruleset.save(original, QString::fromUtf8(name), rule, [this] { ++reloads; });
    }

    // "Editor | Mail ⇒ Work"
    std::string text() {
        QStringList rows;
        for (const QString& name : ruleset.names())
            rows << Ruleset::description(name, ruleset.record(name));
        return str(rows.join(QStringLiteral(" | ")));
    }

    FakePlatform fakes;
    Ruleset ruleset{fakes.defaults};
    int reloads = 0;
};

TEST_F(RulesetTest, withoutRules_thereAreNoNames) {
    EXPECT_TRUE(ruleset.names().isEmpty());
    EXPECT_TRUE(ruleset.record(QStringLiteral("Mail")).isEmpty());
}

TEST_F(RulesetTest, names_areSortedWhateverTheirCase) {
    for (const char* name : {"mail", "Editor", "Zip", "Mail", "archive"})
        save(name);
    EXPECT_EQ(text(), "archive | Editor | Mail | mail | Zip");
}

TEST_F(RulesetTest, aRuleRenamedInCaseAlone_takesThePlaceOfTheOld) {
    save("Mail", {.categories = QStringLiteral("office")});
    save("Editor");
    save("mail", {.categories = QStringLiteral("home")}, QStringLiteral("Mail"));
    EXPECT_EQ(text(), "Editor | mail (home)");
}

TEST_F(RulesetTest, anEmptyName_isARuleThatSortsFirst) {
    save("Mail");
    save("");
    EXPECT_EQ(ruleset.names(), QStringList({QString(), QStringLiteral("Mail")}));
}

TEST_F(RulesetTest, aRuleSavedUnderItsName_isReplaced) {
    save("Mail", {.enableRename = true, .rename = QStringLiteral("Post")});
    save("Mail", {.block = true}, QStringLiteral("Mail"));
    EXPECT_EQ(text(), "Mail");
    EXPECT_TRUE(Rule::fromRecord(ruleset.record(QStringLiteral("Mail"))).block);
}

TEST_F(RulesetTest, renamingToNothing_isDescribedByTheArrowAlone) {
    save("Mail", {.enableRename = true});
    EXPECT_EQ(text(), "Mail \u21D2 ");
}

TEST_F(RulesetTest, aNewNameThatIsNotEnabled_isNotDescribed) {
    save("Mail", {.rename = QStringLiteral("Post")});
    EXPECT_EQ(text(), "Mail");
}

TEST_F(RulesetTest, aRowForEachTitle_isDescribed) {
    save("Firefox", {.rowForEachTitle = true});
    save("Mail", {.categories = QStringLiteral("office"), .rowForEachTitle = true});
    EXPECT_EQ(text(), "Firefox: a row for each title | Mail (office): a row for each title");
}

TEST_F(RulesetTest, categories_areDescribedFromTwoCharactersOn) {
    save("A", {.categories = QStringLiteral("x")});
    save("B", {.categories = QStringLiteral("xy")});
    save("C", {.enableRename = true, .rename = QStringLiteral("D"), .categories = QStringLiteral("one,two")});
    EXPECT_EQ(text(), "A | B (xy) | C \u21D2 D (one,two)");
}

TEST_F(RulesetTest, aSavedRule_isActive) {
    save("Mail");
    PropertyListDictionary record = ruleset.record(QStringLiteral("Mail"));
    EXPECT_FALSE(record.contains(kRuleActive));
    record.insert(kRuleActive, false);
    fakes.defaults.setObject(kRulesetKey, PropertyListDictionary{{QStringLiteral("Mail"), record}});
    save("Mail", {}, QStringLiteral("Mail"));
    EXPECT_FALSE(ruleset.record(QStringLiteral("Mail")).contains(kRuleActive));
}

TEST_F(RulesetTest, saving_hasTheRulesRereadBeforeTheyAreWritten) {
    RuleCategories categories;
    QStringList order;
    const auto watching = fakes.notifications.observe(
        kUserDefaultsDidChangeNotification, [&](const Notification&) { order << QStringLiteral("written"); });
    ruleset.save({}, QStringLiteral("Mail"), {.categories = QStringLiteral("office")}, [&] {
        order << QStringLiteral("reload");
        categories.read(fakes.defaults.object(kRulesetKey));
    });
    EXPECT_EQ(order, QStringList({QStringLiteral("reload"), QStringLiteral("written")}));
    EXPECT_TRUE(categories.all().empty()) << "the reread saw the old rules";
    categories.read(fakes.defaults.object(kRulesetKey));
    EXPECT_EQ(categories.all().at(QStringLiteral("office")).size(), 1U);
}

TEST_F(RulesetTest, aRemovedRule_isGone) {
    save("Mail", {.categories = QStringLiteral("office")});
    save("Editor");
    ruleset.remove(QStringLiteral("Mail"));
    EXPECT_EQ(text(), "Editor");
    ruleset.remove(QStringLiteral("Nobody"));
    EXPECT_EQ(text(), "Editor");
}

TEST_F(RulesetTest, recordsOfOtherKinds_countAsEmpty) {
    fakes.defaults.setObject(
        kRulesetKey,
        PropertyListDictionary{
            {QStringLiteral("Array"), PropertyListArray()},
            {QStringLiteral("Mail"), PropertyListDictionary{{kRuleRename, 7},
                                                            {kRuleEnableRename, QStringLiteral("maybe")},
                                                            {kRuleCategories, PropertyListArray()}}},
            {QStringLiteral("Text"), QStringLiteral("rule")}});
    EXPECT_EQ(text(), "Array | Mail | Text");
    fakes.defaults.setObject(kRulesetKey, 7);
    EXPECT_EQ(text(), "");
    save("Mail");
    EXPECT_EQ(text(), "Mail") << "what was no ruleset is replaced by one";
}

TEST_F(RulesetTest, unknownEntriesOfOtherRules_stay) {
    fakes.defaults.setObject(kRulesetKey,
                             PropertyListDictionary{{QStringLiteral("Mail"),
                                                     PropertyListDictionary{{QStringLiteral("Colour"), 3}}}});
    save("Editor");
    EXPECT_EQ(ruleset.record(QStringLiteral("Mail")).value(QStringLiteral("Colour")).toInteger(), 3);
}

} // namespace
