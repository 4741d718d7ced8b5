// SPDX-License-Identifier: MIT
#include "Classes/store/TimeStoreCategory.h"
#include "Classes/store/TimeStorePruneProxy.h"
#include "platform/foundation/values/Assertions.h"
#include "tests/fakes/Store.h"

using namespace Qt::StringLiterals;

namespace {

// The source, line and description of a failed assertion; empty when none fails.
std::string assertionIn(const std::function<void()>& work) {
    try {
        work();
    } catch (const InternalInconsistency& failure) {
        return str(
            QStringLiteral("%1:%2 %3").arg(failure.source()).arg(failure.line()).arg(failure.description()));
    }
    return {};
}

class TimeStoreCategoryTest : public StoreTest {
protected:
    static TimeStoreCategory::List list(TimeStoreItem::Children children) {
        return std::make_shared<const TimeStoreItem::Children>(std::move(children));
    }

    std::shared_ptr<TimeStoreCategory> makeCategory(const QString& name,
                                                    const std::optional<Identity>& uuid = std::nullopt) {
        return std::make_shared<TimeStoreCategory>(store, name, uuid);
    }

    std::shared_ptr<TimeStoreApp> m_mail = makeApp(u"Mail"_s, 100.0);
    std::shared_ptr<TimeStoreApp> m_editor = makeApp(u"Editor"_s, 20.5);
    std::shared_ptr<TimeStoreCategory> m_work = makeCategory(u"Work"_s);
};

TEST_F(TimeStoreCategoryTest, anIdentityGiven_isEnteredForTheClassAndTheName) {
    const Identity uuid = Identity::brandNew();
    const auto web = makeCategory(u"Web"_s, uuid);
    EXPECT_EQ(web->uuid(), uuid);
    EXPECT_EQ(registry.uuidForName(u"TimeStoreCategoryWeb"_s), uuid);
}

TEST_F(TimeStoreCategoryTest, withoutAnIdentity_theRegistryIsToldNothing) {
    const Identity known = registry.setUUID(Identity::brandNew(), u"TimeStoreCategoryWeb"_s);
    const auto web = makeCategory(u"Web"_s);
    EXPECT_EQ(web->uuid(), known);
    EXPECT_EQ(registry.uuidForName(u"TimeStoreCategoryWeb"_s), known);
}

TEST_F(TimeStoreCategoryTest, aNewProject_hasNoChildrenAndNoTime) {
    EXPECT_EQ(children(*m_work), "");
    EXPECT_TRUE(m_work->isLeaf());
    EXPECT_EQ(m_work->activeTime(), 0);
    EXPECT_FALSE(m_work->isApp());
    EXPECT_EQ(str(m_work->activeTimeString()), "00:00:00");
}

TEST_F(TimeStoreCategoryTest, itsChildren_areTheNodesThemselvesInTheirOrder) {
    const auto inbox = window(*m_mail, "Inbox", 40);
    m_work->setChildren(list({m_editor, inbox}));
    EXPECT_EQ(children(*m_work), "Editor 20.5, Inbox 40");
    EXPECT_EQ(m_work->children()->front(), m_editor);
    EXPECT_FALSE(m_work->isLeaf());
    EXPECT_EQ(m_work->activeTime(), 60.5);
    EXPECT_EQ(str(m_work->activeTimeString()), "00:01:00");
}

TEST_F(TimeStoreCategoryTest, theSum_isOfSinglePrecision) {
    m_work->setChildren(list({makeNode(u"long"_s, 16'777'216.0), makeNode(u"short"_s, 1.0)}));
    EXPECT_EQ(m_work->activeTime(), 16'777'216.0);
    // The additions are not rounded to single precision: only the next one loses the half.
    m_work->setChildren(list({makeNode(u"a"_s, 16'777'216.0), makeNode(u"b"_s, 1.5)}));
    EXPECT_EQ(m_work->activeTime(), 16'777'218.0);
    // Nor is what is added: a member's time is not rounded first.
    m_work->setChildren(list({makeNode(u"a"_s, 16'777'216.0), makeNode(u"b"_s, 1.00000001)}));
    EXPECT_EQ(m_work->activeTime(), 16'777'218.0);
}

TEST_F(TimeStoreCategoryTest, theOrderOfTheChildren_decidesWhatTheSumLoses) {
    m_work->setChildren(list({makeNode(u"a"_s, 1.0), makeNode(u"b"_s, 1.0), makeNode(u"c"_s, 16'777'216.0)}));
    EXPECT_EQ(m_work->activeTime(), 16'777'218.0);
    m_work->setChildren(list({makeNode(u"c"_s, 16'777'216.0), makeNode(u"a"_s, 1.0), makeNode(u"b"_s, 1.0)}));
    EXPECT_EQ(m_work->activeTime(), 16'777'216.0);
}

TEST_F(TimeStoreCategoryTest, naming_isABrokenContractAndChangesNothing) {
    EXPECT_EQ(assertionIn([&] { m_work->setName(u"Play"_s); }),
              "Classes/TimeStoreCategory:58 Setting name not supported on TimeStoreCategory.");
    EXPECT_EQ(assertionIn([&] { m_work->setName(u"Work"_s); }),
              "Classes/TimeStoreCategory:58 Setting name not supported on TimeStoreCategory.");
    EXPECT_EQ(str(m_work->name()), "Work");
}

TEST_F(TimeStoreCategoryTest, namingWithWhatIsNoText_isNoticedFirst) {
    const std::string failure = "Classes/TimeStoreCategory:54 Invalid parameter not satisfying: "
                                "[aString isKindOfClass:[NSString class]]";
    EXPECT_EQ(assertionIn([&] { m_work->setName(5); }), failure);
    EXPECT_EQ(assertionIn([&] { m_work->setName(PropertyListValue()); }), failure);
    TimeStoreNode& asNode = *m_work;
    EXPECT_EQ(assertionIn([&] { asNode.setName(true); }), failure);
}

TEST_F(TimeStoreCategoryTest, aProjectWithoutAName_hasOneAllTheSame) {
    const auto unnamed = std::make_shared<TimeStoreCategory>(store, PropertyListValue());
    EXPECT_EQ(str(unnamed->name()), "");
    EXPECT_EQ(assertionIn([&] { unnamed->setName(u"Work"_s); }),
              "Classes/TimeStoreCategory:58 Setting name not supported on TimeStoreCategory.");
}

TEST_F(TimeStoreCategoryTest, equality_isByNameAndTheHashByIdentity) {
    const auto one = makeCategory(u"Web"_s, Identity::brandNew());
    const auto other = makeCategory(u"Web"_s, Identity::brandNew());
    const auto third = makeCategory(u"Mail"_s, one->uuid());
    EXPECT_TRUE(one->isEqual(*other));
    EXPECT_NE(one->hash(), other->hash());
    EXPECT_FALSE(one->isEqual(*third));
    EXPECT_EQ(one->hash(), third->hash());
}

TEST_F(TimeStoreCategoryTest, equality_isAmongProjectsOnly) {
    const auto mail = makeCategory(u"Mail"_s);
    EXPECT_TRUE(mail->isEqual(*mail));
    EXPECT_FALSE(mail->isEqual(*m_mail));
    EXPECT_FALSE(mail->isEqual(TimeStorePruneProxy(mail, std::nullopt, 0)));
}

TEST_F(TimeStoreCategoryTest, withoutAnIdentity_aHashIsAnsweredAllTheSame) {
    m_work->setUuid(std::nullopt);
    EXPECT_EQ(m_work->hash(), 0U);
}

TEST_F(TimeStoreCategoryTest, aChildsTime_isAnnouncedAsItsOwnRightAfterwards) {
    m_work->setChildren(list({m_mail, m_editor}));
    Announcements told;
    told.watch(*m_mail, {kActiveTimeStringKey});
    told.watch(*m_work, {kActiveTimeStringKey});
    m_mail->addTimeInterval(1);
    EXPECT_EQ(told.told(),
              "will activeTimeString, will activeTimeString, did activeTimeString, did activeTimeString");
    EXPECT_EQ(m_work->activeTime(), 121.5);
}

TEST_F(TimeStoreCategoryTest, otherChangesOfAChild_areNotPassedOn) {
    m_work->setChildren(list({m_mail}));
    Announcements told(*m_work, {kNameKey, kRenamedNameKey, kSortNameKey, kIsLeafKey, kChildrenKey,
                                 kRenamedNameFormattedKey, kActiveTimeStringKey});
    m_mail->setRenamedNameFormatted({{kRecordName, u"Post"_s}});
    m_mail->setName(u"Letters"_s);
    window(*m_mail, "Inbox");
    EXPECT_EQ(told.told(), "");
}

TEST_F(TimeStoreCategoryTest, observersOfItsTime_areToldNoOtherOldValueThanTheNew) {
    m_work->setChildren(list({m_mail}));
    QStringList values;
    const auto watching = m_work->observe(kActiveTimeStringKey,
                                          [&](const ObservedChange& change) {
                                              values << change.oldValue.toString()
                                                     << change.newValue.toString();
                                          },
                                          {.values = true});
    m_mail->addTimeInterval(1);
    EXPECT_EQ(str(values.join(u' ')), "00:01:41 00:01:41");
}

TEST_F(TimeStoreCategoryTest, newChildren_areAnnouncedAndTheOldOnesObservedNoMore) {
    m_work->setChildren(list({m_mail}));
    Announcements told(*m_work, {kChildrenKey, kActiveTimeStringKey});
    m_work->setChildren(list({m_editor}));
    EXPECT_EQ(told.told(), "will children, did children");
    m_mail->addTimeInterval(1);
    EXPECT_EQ(told.count(), 2);
    m_editor->addTimeInterval(1);
    EXPECT_EQ(told.count(), 4);
}

TEST_F(TimeStoreCategoryTest, theSameListAgain_isNoChange) {
    const auto mail = list({m_mail});
    m_work->setChildren(mail);
    Announcements told(*m_work, {kChildrenKey, kActiveTimeStringKey});
    m_work->setChildren(mail);
    EXPECT_EQ(told.told(), "");
    m_mail->addTimeInterval(1);
    EXPECT_EQ(told.count(), 2);
    // Another list of the same nodes counts as a change.
    m_work->setChildren(list({m_mail}));
    EXPECT_EQ(told.count(), 4);
}

TEST_F(TimeStoreCategoryTest, noListAtAll_isAnEmptyOne) {
    Announcements told(*m_work, {kChildrenKey});
    m_work->setChildren(nullptr);
    EXPECT_EQ(told.told(), "");
    m_work->setChildren(list({m_mail}));
    m_work->setChildren(nullptr);
    EXPECT_EQ(children(*m_work), "");
    EXPECT_TRUE(m_work->isLeaf());
    m_work->setSearchString(u"x"_s);
    EXPECT_EQ(children(*m_work), "");
    EXPECT_EQ(m_work->activeTime(), 0);
}

TEST_F(TimeStoreCategoryTest, aSearch_narrowsTheChildrenAndTheTime) {
    m_work->setChildren(list({m_mail, m_editor}));
    m_work->setSearchString(u"EDIT"_s);
    EXPECT_EQ(children(*m_work), "Editor 20.5");
    EXPECT_EQ(m_work->activeTime(), 20.5);
    m_work->setSearchString(u""_s);
    EXPECT_EQ(children(*m_work), "Mail 100, Editor 20.5");
    m_work->setSearchString(u"mail"_s);
    m_work->setSearchString(std::nullopt);
    EXPECT_EQ(children(*m_work), "Mail 100, Editor 20.5");
}

TEST_F(TimeStoreCategoryTest, aSearchThatMatchesNothing_leavesNoChildren) {
    m_work->setChildren(list({m_mail, m_editor}));
    m_work->setSearchString(u"x"_s);
    EXPECT_EQ(children(*m_work), "");
    EXPECT_TRUE(m_work->isLeaf());
    EXPECT_EQ(m_work->activeTime(), 0);
}

TEST_F(TimeStoreCategoryTest, aSearchThatMatchesWindowsOnly_leavesAProxyWithAllOfTheTime) {
    window(*m_mail, "Inbox", 40);
    window(*m_mail, "Drafts", 5);
    m_work->setChildren(list({m_mail, m_editor}));
    m_work->setSearchString(u"inbox"_s);
    ASSERT_EQ(m_work->children()->size(), 1U);
    const auto mail = m_work->children()->front();
    EXPECT_NE(mail, m_mail);
    EXPECT_EQ(children(*mail), "Inbox 40");
    EXPECT_EQ(m_work->activeTime(), 100);
}

TEST_F(TimeStoreCategoryTest, aSearch_neverHidesForTooLittleTime) {
    m_work->setChildren(list({makeNode(u"Nothing yet"_s)}));
    m_work->setSearchString(u"yet"_s);
    EXPECT_EQ(children(*m_work), "Nothing yet 0");
}

TEST_F(TimeStoreCategoryTest, childrenThatComeDuringASearch_areSearchedToo) {
    m_work->setSearchString(u"mail"_s);
    m_work->setChildren(list({m_mail, m_editor}));
    EXPECT_EQ(children(*m_work), "Mail 100");
    // Children that are hidden by the search are observed as well.
    Announcements told(*m_work, {kActiveTimeStringKey});
    m_editor->addTimeInterval(1);
    EXPECT_EQ(told.count(), 2);
}

TEST_F(TimeStoreCategoryTest, theSameSearchAgain_isNoChangeUnlessItIsNone) {
    Announcements told(*m_work, {kChildrenKey});
    m_work->setSearchString(std::nullopt);
    EXPECT_EQ(told.told(), "will children, did children");
    m_work->setSearchString(std::nullopt);
    EXPECT_EQ(told.count(), 4);
    m_work->setSearchString(u""_s);
    EXPECT_EQ(told.count(), 6);
    m_work->setSearchString(u""_s);
    EXPECT_EQ(told.count(), 6);
    m_work->setSearchString(u"x"_s);
    m_work->setSearchString(u"x"_s);
    EXPECT_EQ(told.count(), 8);
}

TEST_F(TimeStoreCategoryTest, refreshing_findsWhatWasRenamedSince) {
    m_work->setChildren(list({m_mail, m_editor}));
    m_work->setSearchString(u"post"_s);
    m_editor->setRenamedNameFormatted({{kRecordName, u"Post it"_s}});
    EXPECT_EQ(children(*m_work), "");
    Announcements told(*m_work, {kChildrenKey});
    m_work->refreshSearch();
    EXPECT_EQ(children(*m_work), "Editor 20.5");
    EXPECT_EQ(told.told(), "will children, did children");
}

TEST_F(TimeStoreCategoryTest, aProjectThatIsSearchedForItself_isJudgedByTheSumOfItsTime) {
    m_work->setChildren(list({m_mail}));
    EXPECT_EQ(m_work->prunedObjectForSearchString(u"work"_s, 100), m_work);
    EXPECT_NE(m_work->prunedObjectForSearchString(u"work"_s, 101), m_work);
    EXPECT_EQ(m_work->activeTimeForSearchString(u"work"_s), 100);
    EXPECT_EQ(m_work->activeTimeForSearchString(u"mail"_s), 100);
    EXPECT_EQ(m_work->activeTimeForSearchString(u"x"_s), 0);
}

TEST_F(TimeStoreCategoryTest, aChildLetGoByTheTree_livesAndIsFollowedUntilTheProjectIsFilledAnew) {
    std::weak_ptr<TimeStoreApp> mail = m_mail;
    m_work->setChildren(list({m_mail}));
    m_mail.reset();
    ASSERT_FALSE(mail.expired());
    Announcements told(*m_work, {kActiveTimeStringKey});
    mail.lock()->addTimeInterval(1);
    EXPECT_EQ(told.count(), 2);
    m_work->setChildren(list({m_editor}));
    EXPECT_TRUE(mail.expired());
}

TEST_F(TimeStoreCategoryTest, aProjectThatIsLetGo_isToldNothingMore) {
    m_work->setChildren(list({m_mail, m_editor}));
    m_work.reset();
    m_mail->addTimeInterval(1);
    EXPECT_EQ(m_mail->activeTime(), 101);
}

TEST_F(TimeStoreCategoryTest, aMemberOfTwoProjects_isPassedOnByBoth) {
    const auto play = makeCategory(u"Play"_s);
    m_work->setChildren(list({m_mail}));
    play->setChildren(list({m_mail}));
    Announcements work(*m_work, {kActiveTimeStringKey});
    Announcements fun(*play, {kActiveTimeStringKey});
    m_mail->addTimeInterval(1);
    EXPECT_EQ(work.count(), 2);
    EXPECT_EQ(fun.count(), 2);
    m_work.reset();
    m_mail->addTimeInterval(1);
    EXPECT_EQ(fun.count(), 4);
}

TEST_F(TimeStoreCategoryTest, aNodeThatIsThereTwice_countsAndTellsTwice) {
    m_work->setChildren(list({m_mail, m_mail}));
    EXPECT_EQ(m_work->activeTime(), 200);
    Announcements told(*m_work, {kActiveTimeStringKey});
    m_mail->addTimeInterval(1);
    EXPECT_EQ(told.count(), 4);
}

TEST_F(TimeStoreCategoryTest, anObserverThatFillsTheProjectAnew_isServedAtOnce) {
    m_work->setChildren(list({m_mail}));
    int fillings = 0;
    const auto watching = m_work->observe(kActiveTimeStringKey, [&](const ObservedChange&) {
        ++fillings;
        m_work->setChildren(list({m_editor}));
    });
    m_mail->addTimeInterval(1);
    m_mail->addTimeInterval(1);
    EXPECT_EQ(fillings, 1);
    EXPECT_EQ(children(*m_work), "Editor 20.5");
}

TEST_F(TimeStoreCategoryTest, anObserverThatSearchesWhileTheChildrenChange_findsInTheNewOnes) {
    bool isFirst = true;
    std::string seen;
    const auto watching = m_work->observe(kChildrenKey, [&](const ObservedChange&) {
        if (std::exchange(isFirst, false))
            m_work->setSearchString(u"mail"_s);
        seen += children(*m_work) + ";";
    });
    m_work->setChildren(list({m_mail, m_editor}));
    EXPECT_EQ(seen, "Mail 100;Mail 100;");
}

TEST_F(TimeStoreCategoryTest, anObserverThatReplacesTheChildrenBeforeTheyAreSearched_hasItsOwnSearched) {
    m_work->setSearchString(u"mail"_s);
    bool isFirst = true;
    const auto watching = m_work->observe(kChildrenKey,
                                          [&](const ObservedChange&) {
                                              if (std::exchange(isFirst, false))
                                                  m_work->setChildren(list({m_editor}));
                                          },
                                          {.prior = true});
    m_work->setChildren(list({m_mail}));
    EXPECT_EQ(children(*m_work), "");
    m_work->setSearchString(std::nullopt);
    EXPECT_EQ(children(*m_work), "Editor 20.5");
}

TEST_F(TimeStoreCategoryTest, anObserverMayLetGoOfTheProject_whileItsTimeChanges) {
    m_work->setChildren(list({m_mail}));
    const auto watching = m_work->observe(kActiveTimeStringKey,
                                          [&](const ObservedChange&) { m_work.reset(); }, {.prior = true});
    m_mail->addTimeInterval(1);
    EXPECT_FALSE(m_work);
}

TEST_F(TimeStoreCategoryTest, anObserverMayLetGoOfTheProject_whileItsChildrenChange) {
    TimeStoreCategory& work = *m_work;
    const auto watching = work.observe(kChildrenKey, [&](const ObservedChange&) { m_work.reset(); });
    work.setChildren(list({m_mail}));
    EXPECT_FALSE(m_work);
}

} // namespace
