// SPDX-License-Identifier: MIT
#include "Classes/rules/RuleCategories.h"
#include "tests/fakes/Announcements.h"

#include <QStringList>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class RuleCategoriesTest : public testing::Test {
protected:
    static PropertyListDictionary rule(const char* categories) {
        return {{kRuleCategories, QString::fromUtf8(categories)}};
    }

    // "play: News; work: Editor Mail": by category, in their order.
    std::string all() const {
        QStringList rows;
        for (const auto& [category, rules] : m_categories.all())
            rows << category + u": "_s + QStringList(rules.begin(), rules.end()).join(u' ');
        return str(rows.join(u"; "_s));
    }

    RuleCategories m_categories;
};

TEST_F(RuleCategoriesTest, eachToken_namesTheRulesThatHaveIt) {
    m_categories.read(PropertyListDictionary{{u"Mail"_s, rule("work,letters")}, {u"Editor"_s, rule("work")}});
    EXPECT_EQ(all(), "letters: Mail; work: Editor Mail");
}

TEST_F(RuleCategoriesTest, blanksAroundTokensAndEmptyTokens_doNotCount) {
    m_categories.read(
        PropertyListDictionary{{u"Mail"_s, rule(" work , ,, my letters,")}, {u"News"_s, rule("")}});
    EXPECT_EQ(all(), "my letters: Mail; work: Mail");
}

TEST_F(RuleCategoriesTest, inactiveRules_countToo) {
    auto inactive = rule("work");
    inactive.insert(u"Active"_s, false);
    m_categories.read(PropertyListDictionary{{u"Mail"_s, inactive}});
    EXPECT_EQ(all(), "work: Mail");
}

TEST_F(RuleCategoriesTest, readingAnew_forgetsWhatWas) {
    m_categories.read(PropertyListDictionary{{u"Mail"_s, rule("work")}});
    m_categories.read(PropertyListDictionary{{u"News"_s, rule("play")}});
    EXPECT_EQ(all(), "play: News");
    m_categories.read({});
    EXPECT_EQ(all(), "");
}

TEST_F(RuleCategoriesTest, categoriesThatDifferInCase_areTwo) {
    m_categories.read(PropertyListDictionary{{u"Mail"_s, rule("Work,work")}});
    EXPECT_EQ(all(), "Work: Mail; work: Mail");
}

TEST_F(RuleCategoriesTest, recordsOfOtherTypes_areLeftOut) {
    m_categories.read(u"rules"_s);
    m_categories.read(PropertyListDictionary{{u"a"_s, 7},
                                             {u"b"_s, PropertyListDictionary{{kRuleCategories, 7}}},
                                             {u"c"_s, PropertyListDictionary()},
                                             {u"d"_s, rule("work")}});
    EXPECT_EQ(all(), "work: d");
}

} // namespace
