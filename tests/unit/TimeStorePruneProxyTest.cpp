// SPDX-License-Identifier: MIT
#include "Classes/store/TimeStorePruneProxy.h"
#include "tests/fakes/Store.h"

using namespace Qt::StringLiterals;

namespace {

class TimeStorePruneProxyTest : public StoreTest {
protected:
    TimeStorePruneProxyTest() {
        window(*m_mail, "Inbox", 70);
        window(*m_mail, "Drafts", 20);
    }

    static std::shared_ptr<TimeStoreItem> pruned(TimeStoreItem& item, const char* text, float cutoff = 0) {
        return item.prunedObjectForSearchString(text ? std::optional(QString::fromUtf8(text)) : std::nullopt,
                                                cutoff);
    }

    std::shared_ptr<TimeStoreApp> m_mail = makeApp(u"Mail"_s, 100.0);
};

TEST_F(TimeStorePruneProxyTest, withoutSearchAndCutOff_everyNodeAnswersItself) {
    EXPECT_EQ(pruned(*m_mail, nullptr), m_mail);
    EXPECT_EQ(pruned(*m_mail, nullptr, -5), m_mail);
    const auto inbox = window(*m_mail, "Inbox");
    EXPECT_EQ(pruned(*inbox, nullptr), inbox);
}

TEST_F(TimeStorePruneProxyTest, aSearch_findsTheNameShownInAnyCase) {
    const auto mail = makeNode(u"Mail"_s);
    const auto mailbox = makeNode(u"Letters"_s);
    mailbox->setRenamedNameFormatted({{kRecordName, u"My mailbox"_s}});
    const auto post = makeNode(u"Mail"_s);
    post->setRenamedNameFormatted({{kRecordName, u"Post"_s}});
    EXPECT_EQ(pruned(*mail, "MAIL"), mail);
    EXPECT_EQ(pruned(*mailbox, "MAIL"), mailbox);
    EXPECT_FALSE(pruned(*post, "MAIL"));
}

TEST_F(TimeStorePruneProxyTest, aSearch_foldsNoDiacritics) {
    const auto cafe = makeNode(u"Café"_s);
    EXPECT_FALSE(pruned(*cafe, "cafe"));
    EXPECT_EQ(pruned(*cafe, "CAFÉ"), cafe);
}

TEST_F(TimeStorePruneProxyTest, aCutOff_hidesLessAndKeepsExactlyAsMuch) {
    const auto app = makeApp(u"App"_s);
    const auto less = window(*app, "less", 59.5);
    const auto exact = window(*app, "exact", 60);
    EXPECT_FALSE(pruned(*less, nullptr, 60));
    EXPECT_EQ(pruned(*exact, nullptr, 60), exact);
}

TEST_F(TimeStorePruneProxyTest, aCutOff_isComparedInSinglePrecision) {
    // 0.1 as a 32-bit number is a little more than 0.1.
    const auto node = makeNode(u"Mail"_s, 0.1);
    EXPECT_FALSE(pruned(*node, nullptr, 0.1F));
}

TEST_F(TimeStorePruneProxyTest, anApplicationBelowTheCutOffWithAWindowThatReachesIt_isAProxyOfTheWholeTime) {
    const auto left = pruned(*m_mail, nullptr, 101);
    EXPECT_FALSE(left);
    m_mail->addTimeInterval(-50);
    const auto proxy = pruned(*m_mail, nullptr, 60);
    ASSERT_TRUE(proxy);
    EXPECT_NE(proxy, m_mail);
    EXPECT_EQ(children(*proxy), "Inbox 70");
    EXPECT_EQ(proxy->activeTime(), 50);
}

TEST_F(TimeStorePruneProxyTest, anApplicationThatMatches_showsAllItsWindows) {
    EXPECT_EQ(pruned(*m_mail, "mail", 60), m_mail);
    EXPECT_EQ(children(*pruned(*m_mail, "mail", 60)), "Drafts 20, Inbox 70");
}

TEST_F(TimeStorePruneProxyTest, anApplicationOfWhichNothingMatches_isDropped) {
    EXPECT_FALSE(pruned(*m_mail, "nothing"));
    EXPECT_FALSE(pruned(*m_mail, "drafts", 60));
}

TEST_F(TimeStorePruneProxyTest, anApplicationWithOneWindowBelowTheCutOff_isDroppedWhateverItsWindow) {
    const auto news = makeApp(u"News"_s, 10.0);
    window(*news, "Front page", 500);
    EXPECT_FALSE(pruned(*news, "front", 60));
    EXPECT_FALSE(pruned(*news, nullptr, 60));
    EXPECT_FALSE(pruned(*news, "front"));
}

TEST_F(TimeStorePruneProxyTest, theChildrenKept_areTheRealOnes) {
    const auto proxy = pruned(*m_mail, "inbox");
    ASSERT_TRUE(proxy);
    EXPECT_EQ(proxy->children()->front(), window(*m_mail, "Inbox"));
}

TEST_F(TimeStorePruneProxyTest, aChildThatSurvivesAsAProxyItself_isKeptWhole) {
    // A node that proxies treat as a group: its child is an application with windows.
    class Group : public TimeStoreNode {
    public:
        Group(TimeStoreServices& services, std::shared_ptr<TimeStoreItem> child)
            : TimeStoreNode(services, u"Group"_s)
            , m_child(std::move(child)) {}

        std::optional<Children> children() const override { return Children{m_child}; }

        bool isLeaf() const override { return false; }

    private:
        std::shared_ptr<TimeStoreItem> m_child;
    };

    const auto group = std::make_shared<Group>(store, m_mail);
    const auto proxy = pruned(*group, "inbox");
    ASSERT_TRUE(proxy);
    EXPECT_EQ(proxy->children()->front(), m_mail);
    EXPECT_EQ(children(*proxy->children()->front()), "Drafts 20, Inbox 70");
}

TEST_F(TimeStorePruneProxyTest, children_areFoundAnewAtEveryCall) {
    const auto proxy = pruned(*m_mail, "inbox");
    ASSERT_TRUE(proxy);
    window(*m_mail, "Old inbox", 1);
    EXPECT_EQ(children(*proxy), "Inbox 70, Old inbox 1");
    m_mail->removeUUIDs({*window(*m_mail, "Inbox")->uuid(), *window(*m_mail, "Old inbox")->uuid()});
    EXPECT_EQ(children(*proxy), "");
}

TEST_F(TimeStorePruneProxyTest, ofAnObjectWithoutChildren_theyAreAbsent) {
    const auto proxy = TimeStorePruneProxy::prunedProxyForObject(window(*m_mail, "Inbox"), u"x"_s, 5);
    EXPECT_FALSE(proxy->children());
}

TEST_F(TimeStorePruneProxyTest, everythingElse_isTheObjects) {
    const auto item = pruned(*m_mail, "inbox");
    ASSERT_TRUE(item);
    item->setRenamedNameFormatted({{kRecordName, u"Post"_s}});
    m_mail->setBranched(true);
    EXPECT_EQ(str(item->name()), "Mail");
    EXPECT_EQ(str(item->renamedName()), "Post");
    EXPECT_EQ(item->renamedNameFormatted(), m_mail->renamedNameFormatted());
    EXPECT_TRUE(item->renamedNameEditable());
    EXPECT_EQ(str(item->sortName()), "Post");
    EXPECT_EQ(item->activeTime(), 100);
    EXPECT_EQ(str(item->activeTimeString()), "00:01:40");
    EXPECT_EQ(item->uuid(), m_mail->uuid());
    EXPECT_TRUE(item->branched());
    EXPECT_FALSE(item->isLeaf());
    EXPECT_TRUE(item->isApp());
    EXPECT_EQ(&item->node(), m_mail.get());
    EXPECT_EQ(item->prunedObjectForSearchString(std::nullopt, 0), m_mail);
    EXPECT_EQ(item->activeTimeForSearchString(u"post"_s), 100);
}

TEST_F(TimeStorePruneProxyTest, aProxy_isALeafWhenItsObjectBecomesOne) {
    const auto proxy = pruned(*m_mail, "inbox");
    m_mail->removeUUIDs({*window(*m_mail, "Drafts")->uuid()});
    EXPECT_TRUE(proxy->isLeaf());
    EXPECT_EQ(children(*proxy), "Inbox 70");
}

TEST_F(TimeStorePruneProxyTest, theTimeThatMatches_isTheWholeTimeOfAnApplicationThatMatches) {
    EXPECT_EQ(m_mail->activeTimeForSearchString(u"MAIL"_s), 100);
}

TEST_F(TimeStorePruneProxyTest, theTimeThatMatches_isElseTheSumOfTheMatchingWindows) {
    window(*m_mail, "Old inbox", 7);
    EXPECT_EQ(m_mail->activeTimeForSearchString(u"inbox"_s), 77);
    EXPECT_EQ(m_mail->activeTimeForSearchString(u"nothing"_s), 0);
    EXPECT_EQ(window(*m_mail, "Inbox")->activeTimeForSearchString(u"drafts"_s), 0);
}

TEST_F(TimeStorePruneProxyTest, theTimeThatMatches_countsTheSingleWindowOfALeafToo) {
    const auto news = makeApp(u"News"_s, 10.0);
    window(*news, "Front page", 500);
    EXPECT_EQ(news->activeTimeForSearchString(u"front"_s), 500);
}

} // namespace
