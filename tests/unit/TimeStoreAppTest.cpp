// SPDX-License-Identifier: MIT
#include "tests/fakes/Store.h"

#include <set>

using namespace Qt::StringLiterals;

namespace {

class TimeStoreAppTest : public StoreTest {
protected:
    static PropertyListDictionary record(const char* name, double time) {
        return {{kRecordName, QString::fromUtf8(name)}, {kRecordActiveTime, time}};
    }

    // The key is private, but whether a window is found under it can be seen.
    static bool isFoundAs(TimeStoreApp& app, const TimeStoreWindow& window, const QString& key) {
        const auto count = app.windowCount();
        return app.windowStoreForName(key, {}).get() == &window && app.windowCount() == count;
    }

    std::shared_ptr<TimeStoreApp> m_mail = makeApp(u"Mail"_s);
};

TEST_F(TimeStoreAppTest, anApplicationWithoutWindows_isALeafWithAnEmptyList) {
    EXPECT_TRUE(m_mail->isApp());
    EXPECT_TRUE(m_mail->isLeaf());
    ASSERT_TRUE(m_mail->children());
    EXPECT_EQ(m_mail->children()->size(), 0U);
}

TEST_F(TimeStoreAppTest, anApplicationWithOneWindow_isALeafThatHasAChild) {
    window(*m_mail, "Inbox");
    EXPECT_TRUE(m_mail->isLeaf());
    EXPECT_EQ(m_mail->children()->size(), 1U);
    window(*m_mail, "Drafts");
    EXPECT_FALSE(m_mail->isLeaf());
    EXPECT_EQ(m_mail->children()->size(), 2U);
}

TEST_F(TimeStoreAppTest, anAbsentName_hasNoWindow) {
    EXPECT_FALSE(m_mail->windowStoreForName({}, element(1)));
    EXPECT_EQ(m_mail->windowCount(), 0U);
}

TEST_F(TimeStoreAppTest, aNewWindow_isToldAsChildrenAndLeafBeforeAndAfter) {
    const Announcements told(*m_mail, {kChildrenKey, kIsLeafKey, kNameKey});
    window(*m_mail, "Inbox", 0, element(1));
    EXPECT_EQ(told.told(), "will children, will isLeaf, did children, did isLeaf");
    window(*m_mail, "Inbox", 0, element(1));
    window(*m_mail, "Inbox");
    EXPECT_EQ(told.count(), 4);
}

TEST_F(TimeStoreAppTest, aWindowFoundByItsElement_keepsItsNameWhateverItIsCalledNow) {
    const auto inbox = window(*m_mail, "Inbox", 0, element(1));
    EXPECT_EQ(m_mail->windowStoreForName(u"Drafts"_s, element(1)), inbox);
    EXPECT_EQ(str(inbox->name()), "Inbox");
    EXPECT_EQ(m_mail->windowCount(), 1U);
}

TEST_F(TimeStoreAppTest, theElement_winsOverTheName) {
    const auto inbox = window(*m_mail, "Inbox", 0, element(1));
    const auto drafts = window(*m_mail, "Drafts", 0, element(2));
    EXPECT_EQ(m_mail->windowStoreForName(u"Inbox"_s, element(2)), drafts);
    EXPECT_EQ(*inbox->windowElement(), element(1));
}

TEST_F(TimeStoreAppTest, aWindowFoundByItsName_takesTheElement) {
    const auto inbox = window(*m_mail, "Inbox", 0, element(1));
    EXPECT_EQ(m_mail->windowStoreForName(u"Inbox"_s, element(2)), inbox);
    EXPECT_EQ(*inbox->windowElement(), element(2));
    EXPECT_NE(m_mail->windowStoreForName(u"Other"_s, element(1)), inbox);
}

TEST_F(TimeStoreAppTest, anAbsentElement_leavesTheOldOne) {
    const auto inbox = window(*m_mail, "Inbox", 0, element(1));
    window(*m_mail, "Inbox");
    EXPECT_EQ(*inbox->windowElement(), element(1));
    EXPECT_FALSE(window(*m_mail, "Drafts")->windowElement());
}

TEST_F(TimeStoreAppTest, aWindowWhoseElementWasSetToNull_isNoLongerFoundByTheOldOne) {
    const auto inbox = window(*m_mail, "Inbox", 0, element(1));
    inbox->setWindowElement(WindowElement());
    EXPECT_NE(m_mail->windowStoreForName(u"Fresh"_s, element(1)), inbox);
}

TEST_F(TimeStoreAppTest, accessibleElements_areComparedByBusAndPath) {
    const WindowElement one(u":1.5"_s, u"/window/1"_s);
    const auto inbox = window(*m_mail, "Inbox", 0, one);
    EXPECT_EQ(m_mail->windowStoreForName(u"x"_s, WindowElement(u":1.5"_s, u"/window/1"_s)), inbox);
    EXPECT_NE(m_mail->windowStoreForName(u"y"_s, WindowElement(u":1.6"_s, u"/window/1"_s)), inbox);
}

TEST_F(TimeStoreAppTest, windowNamesThatDifferOnlyInCase_areTwoWindows) {
    window(*m_mail, "inbox", 1);
    window(*m_mail, "Inbox", 2);
    EXPECT_EQ(children(*m_mail), "Inbox 2, inbox 1");
}

TEST_F(TimeStoreAppTest, anEmptyWindowName_isAName) {
    const auto untitled = window(*m_mail, "", 3);
    EXPECT_EQ(m_mail->windowStoreForName(u""_s, {}), untitled);
}

TEST_F(TimeStoreAppTest, aRenamedWindow_isFoundUnderItsNewNameAlone) {
    const auto inbox = window(*m_mail, "Inbox", 4);
    inbox->setName(u"Archive"_s);
    EXPECT_TRUE(isFoundAs(*m_mail, *inbox, u"Archive"_s));
    EXPECT_NE(window(*m_mail, "Inbox"), inbox);
}

TEST_F(TimeStoreAppTest, renamingAWindow_movesItsRegistryEntry) {
    const auto inbox = window(*m_mail, "Inbox");
    inbox->setName(u"Archive"_s);
    EXPECT_EQ(registry.uuidForName(u"TimeStoreWindowArchive"_s), inbox->uuid());
    EXPECT_NE(registry.uuidForName(u"TimeStoreWindowInbox"_s), inbox->uuid());
}

TEST_F(TimeStoreAppTest, renamingAnApplication_leavesTheRegistryAlone) {
    const auto identity = m_mail->uuid();
    m_mail->setName(u"Post"_s);
    EXPECT_EQ(registry.uuidForName(u"TimeStoreAppMail"_s), identity);
    EXPECT_NE(registry.uuidForName(u"TimeStoreAppPost"_s), identity);
    EXPECT_EQ(m_mail->uuid(), identity);
}

TEST_F(TimeStoreAppTest, aWindowRenamedOntoAnother_takesItIn) {
    const auto inbox = window(*m_mail, "Inbox", 4, element(1));
    const auto drafts = window(*m_mail, "Drafts", 5, element(2));
    const Announcements told(*m_mail, {kChildrenKey, kIsLeafKey});
    drafts->setName(u"Inbox"_s);
    EXPECT_EQ(children(*m_mail), "Inbox 9");
    EXPECT_EQ(m_mail->windows().front(), drafts);
    EXPECT_EQ(told.told(), "will children, will isLeaf, did children, did isLeaf");
    EXPECT_EQ(inbox->activeTime(), 0) << "who still shows it must not count the time twice";
    EXPECT_NE(m_mail->windowStoreForName(u"x"_s, element(1)), inbox);
}

TEST_F(TimeStoreAppTest, aWindowThatIsTakenIn_isToldToProjects) {
    std::vector<Succession> successions;
    const auto watching =
        fakes.notifications.observe(kTicklogSucceedNodeNotification, [&](const Notification& news) {
            const auto told = std::any_cast<Successions>(news.object);
            successions.insert(successions.end(), told.begin(), told.end());
        });
    const auto inbox = window(*m_mail, "Inbox", 4);
    const auto drafts = window(*m_mail, "Drafts", 5);
    drafts->setName(u"Archive"_s);
    EXPECT_TRUE(successions.empty());
    drafts->setName(u"Inbox"_s);
    ASSERT_EQ(successions.size(), 1U);
    EXPECT_EQ(successions[0].former, inbox->uuid());
    EXPECT_EQ(successions[0].successor, drafts->uuid());
}

TEST_F(TimeStoreAppTest, aWindowThatGetsTheNameOfAFrozenOne_leavesItAlone) {
    auto frozen = record("Inbox (Frozen)", 4);
    frozen.insert(kRecordBranched, true);
    m_mail->addChildFromDictionary(frozen);
    window(*m_mail, "Drafts", 5)->setName(u"Inbox (Frozen)"_s);
    std::multiset<double> times;
    for (const auto& window : m_mail->windows())
        times.insert(window->activeTime());
    EXPECT_EQ(times, (std::multiset<double>{4, 5}));
}

TEST_F(TimeStoreAppTest, aWindowThatTakesAnotherIn_takesTheUsersNameForItUnlessItHasOne) {
    const auto name = [](const QString& text) { return PropertyListDictionary{{kRecordName, text}}; };
    window(*m_mail, "Inbox")->setRenamedNameFormatted(name(u"Letters"_s));
    const auto drafts = window(*m_mail, "Drafts");
    drafts->setName(u"Inbox"_s);
    EXPECT_EQ(drafts->renamedName(), u"Letters"_s);
    window(*m_mail, "Sent")->setRenamedNameFormatted(name(u"Gone"_s));
    drafts->setName(u"Sent"_s);
    EXPECT_EQ(drafts->renamedName(), u"Letters"_s);
}

TEST_F(TimeStoreAppTest, aDisplacedWindow_isFollowedNoLonger) {
    const auto inbox = window(*m_mail, "Inbox", 4);
    const auto drafts = window(*m_mail, "Drafts", 5);
    drafts->setName(u"Inbox"_s);
    inbox->setName(u"Elsewhere"_s);
    EXPECT_EQ(children(*m_mail), "Inbox 9");
}

TEST_F(TimeStoreAppTest, aBranchedWindowThatIsRenamed_isStoredUnderItsIdentity) {
    const auto inbox = window(*m_mail, "Inbox", 4);
    inbox->setBranched(true);
    inbox->setName(u"Inbox (Frozen)"_s);
    EXPECT_TRUE(isFoundAs(*m_mail, *inbox, inbox->uuid()->text()));
    EXPECT_NE(window(*m_mail, "Inbox"), inbox);
    EXPECT_EQ(m_mail->windowCount(), 2U);
}

TEST_F(TimeStoreAppTest, aBranchedWindowRenamedTwice_staysOneChildAndTakesNoOtherAway) {
    const auto inbox = window(*m_mail, "Inbox", 4);
    inbox->setBranched(true);
    inbox->setName(u"Old"_s);
    const auto other = window(*m_mail, "Old", 9);
    inbox->setName(u"Older"_s);
    EXPECT_EQ(m_mail->windowCount(), 2U);
    EXPECT_TRUE(isFoundAs(*m_mail, *other, u"Old"_s));
    EXPECT_TRUE(isFoundAs(*m_mail, *inbox, inbox->uuid()->text()));
}

TEST_F(TimeStoreAppTest, otherChangesOfAWindow_leaveTheTableAlone) {
    const auto inbox = window(*m_mail, "Inbox");
    inbox->setRenamedNameFormatted({{kRecordName, u"My inbox"_s}});
    inbox->addTimeInterval(5);
    EXPECT_TRUE(isFoundAs(*m_mail, *inbox, u"Inbox"_s));
    EXPECT_FALSE(isFoundAs(*m_mail, *inbox, u"My inbox"_s));
}

TEST_F(TimeStoreAppTest, aWindowThatOutlivesItsApplication_isFollowedByNobody) {
    const auto inbox = window(*m_mail, "Inbox");
    m_mail.reset();
    inbox->setName(u"Alone"_s);
    EXPECT_EQ(str(inbox->name()), "Alone");
}

TEST_F(TimeStoreAppTest, branchWindowForName_frees_theNameAndMarksNothing) {
    const auto inbox = window(*m_mail, "Inbox", 4);
    const auto identity = inbox->uuid();
    m_mail->branchWindowForName(u"Inbox"_s);
    EXPECT_FALSE(inbox->branched());
    EXPECT_EQ(inbox->uuid(), identity);
    EXPECT_EQ(str(inbox->name()), "Inbox");
    EXPECT_NE(window(*m_mail, "Inbox"), inbox);
    EXPECT_EQ(m_mail->windowCount(), 2U);
}

TEST_F(TimeStoreAppTest, removing_takesTheWindowsOfTheseIdentitiesAndTellsOnce) {
    const auto inbox = window(*m_mail, "Inbox", 4, element(1));
    const auto drafts = window(*m_mail, "Drafts", 5);
    window(*m_mail, "Sent", 6);
    const Announcements told(*m_mail, {kChildrenKey, kIsLeafKey});
    m_mail->removeUUIDs({*inbox->uuid(), *drafts->uuid(), Identity::brandNew()});
    EXPECT_EQ(told.told(), "will children, did children");
    EXPECT_EQ(children(*m_mail), "Sent 6");
    inbox->setName(u"Elsewhere"_s);
    EXPECT_EQ(children(*m_mail), "Sent 6");
    EXPECT_NE(m_mail->windowStoreForName(u"x"_s, element(1)), inbox);
}

TEST_F(TimeStoreAppTest, removingNothing_tellsNobody) {
    const auto inbox = window(*m_mail, "Inbox", 4);
    inbox->setUuid(std::nullopt);
    const Announcements told(*m_mail, {kChildrenKey});
    m_mail->removeUUIDs({});
    m_mail->removeUUIDs({Identity::brandNew()});
    EXPECT_EQ(told.told(), "");
    EXPECT_EQ(m_mail->windowCount(), 1U);
}

TEST_F(TimeStoreAppTest, twoRecordsOfOneName_keepTheLaterWithTheTimeOfBoth) {
    PropertyListDictionary later = record("Inbox", 5);
    later.insert(kRecordUUID, QByteArray(8, 'v'));
    m_mail->addChildFromDictionary(record("Inbox", 4));
    m_mail->addChildFromDictionary(later);
    EXPECT_EQ(children(*m_mail), "Inbox 9");
    EXPECT_EQ(m_mail->windows().front()->uuid()->bytes(), QByteArray(8, 'v'));
}

TEST_F(TimeStoreAppTest, windowsFrozenUnderOneName_stayRowsOfTheirOwn) {
    const auto frozen = [](double time, char identity) {
        auto branched = record("Inbox (Frozen)", time);
        branched.insert(kRecordUUID, QByteArray(8, identity));
        branched.insert(kRecordBranched, true);
        return branched;
    };
    m_mail->addChildFromDictionary(frozen(4, 'u'));
    m_mail->addChildFromDictionary(frozen(5, 'v'));
    m_mail->addChildFromDictionary(frozen(6, 'w'));
    m_mail->addChildFromDictionary(record("Inbox (Frozen)", 7));
    std::multiset<double> times;
    for (const auto& window : m_mail->windows())
        times.insert(window->activeTime());
    EXPECT_EQ(times, (std::multiset<double>{4, 5, 6, 7}));
}

TEST_F(TimeStoreAppTest, aWindowWhoseTitlesIdentityIsTakenInItsApplication_getsOneOfItsOwn) {
    const auto editor = makeApp(u"Editor"_s);
    const auto a = window(*editor, "a");
    // The identity is shared deliberately; then it moves to another title.
    const auto retitled = window(*m_mail, "a");
    ASSERT_EQ(retitled->uuid(), a->uuid());
    retitled->setName(u"b"_s);
    const auto b = window(*editor, "b");
    EXPECT_NE(b->uuid(), a->uuid());
    EXPECT_EQ(window(*makeApp(u"News"_s), "b")->uuid(), a->uuid()) << "elsewhere the title is shared on";
    const Identity own = *b->uuid();
    editor->removeUUIDs({*b->uuid()});
    EXPECT_EQ(window(*editor, "b")->uuid(), own) << "it is known again";
}

TEST_F(TimeStoreAppTest, windowsThatShareAnIdentityInAFile_areToldApartAndStayInTheirProjects) {
    Successions successions;
    for (const char* name : {"a", "b"}) {
        auto shared = record(name, 1);
        shared.insert(kRecordUUID, QByteArray(8, 'u'));
        m_mail->addChildFromDictionary(shared);
    }
    m_mail->tellWindowsApart(successions);
    const Identity kept = *window(*m_mail, "a")->uuid();
    EXPECT_EQ(kept.bytes(), QByteArray(8, 'u'));
    EXPECT_NE(window(*m_mail, "b")->uuid(), kept);
    ASSERT_EQ(successions.size(), 1U);
    EXPECT_EQ(successions[0].former, kept);
    EXPECT_EQ(successions[0].successor, window(*m_mail, "b")->uuid());
}

TEST_F(TimeStoreAppTest, theWindowsOfAFrozenApplicationInAFile_leaveTheirTitlesToThoseThatGoOn) {
    const auto frozen = std::make_shared<TimeStoreApp>(
        store, PropertyListDictionary{{kRecordName, u"Mail (Frozen)"_s}, {kRecordBranched, true}});
    auto inbox = record("Inbox", 4);
    inbox.insert(kRecordUUID, QByteArray(8, 'u'));
    frozen->addChildFromDictionary(inbox);
    EXPECT_EQ(frozen->windows().front()->uuid()->bytes(), QByteArray(8, 'u'));
    EXPECT_NE(window(*m_mail, "Inbox")->uuid(), frozen->windows().front()->uuid());
}

TEST_F(TimeStoreAppTest, windowsOfOneTitleAndOtherIdentities_areBothKnownToTheRegistry) {
    const auto editor = makeApp(u"Editor"_s);
    const auto ours = window(*m_mail, "Page");
    const auto theirs = window(*editor, "Page");
    theirs->setUuid(Identity::brandNew());
    const auto identities = std::pair(*ours->uuid(), *theirs->uuid());
    registry.setUUIDSet(std::unordered_set<Identity>());
    m_mail->enterInRegistry(nullptr);
    editor->enterInRegistry(nullptr);
    m_mail->removeUUIDs({identities.first});
    editor->removeUUIDs({identities.second});
    EXPECT_EQ(window(*editor, "Page")->uuid(), identities.second);
    EXPECT_EQ(window(*m_mail, "Page")->uuid(), identities.first);
    window(*editor, "Page")->setName(u"Other"_s);
    editor->enterInRegistry(nullptr);
    editor->removeUUIDs({identities.second});
    EXPECT_EQ(window(*editor, "Other")->uuid(), identities.second);
    EXPECT_EQ(window(*m_mail, "Page")->uuid(), identities.first);
}

TEST_F(TimeStoreAppTest, recordsWithoutAName_areLeftOut) {
    m_mail->addChildFromDictionary({});
    m_mail->addChildFromDictionary({{kRecordActiveTime, 5.0}});
    m_mail->addChildFromDictionary({{kRecordName, u""_s}, {kRecordActiveTime, 5.0}});
    m_mail->addChildFromDictionary({{kRecordName, 7}, {kRecordActiveTime, 5.0}});
    EXPECT_EQ(m_mail->windowCount(), 0U);
}

TEST_F(TimeStoreAppTest, aWindowFromARecord_isFollowedToo) {
    m_mail->addChildFromDictionary(record("Inbox", 4));
    const auto inbox = window(*m_mail, "Inbox");
    inbox->setName(u"Archive"_s);
    EXPECT_TRUE(isFoundAs(*m_mail, *inbox, u"Archive"_s));
}

TEST_F(TimeStoreAppTest, aBranchedWindowFromARecord_isKeyedByItsName) {
    auto branched = record("Inbox (Frozen)", 4);
    branched.insert(kRecordUUID, QByteArray(8, 'u'));
    branched.insert(kRecordBranched, true);
    m_mail->addChildFromDictionary(branched);
    EXPECT_TRUE(isFoundAs(*m_mail, *m_mail->windows().front(), u"Inbox (Frozen)"_s));
}

TEST_F(TimeStoreAppTest, children_areInTheOrderOfTheirKeys) {
    for (const char* name : {"c", "a", "d", "b"})
        window(*m_mail, name);
    EXPECT_EQ(children(*m_mail), "a 0, b 0, c 0, d 0");
}

TEST_F(TimeStoreAppTest, itsOwnRecord_holdsNoWindows) {
    window(*m_mail, "Inbox", 4);
    const auto record = m_mail->dictionaryRepresentation();
    EXPECT_EQ(record.size(), 4U);
    EXPECT_EQ(str(record.value(kRecordName).toString()), "Mail");
}

TEST_F(TimeStoreAppTest, anApplication_describesItselfWithItsWindows) {
    EXPECT_EQ(str(m_mail->description()), "Mail (0.000000) []");
    m_mail->addTimeInterval(6);
    window(*m_mail, "Inbox %1", 4);
    window(*m_mail, "Drafts", 2);
    EXPECT_EQ(str(m_mail->description()), "Mail (6.000000) [(Drafts -> 2.000000), (Inbox %1 -> 4.000000)]");
}

TEST_F(TimeStoreAppTest, displayRenamingABranchedApplication_asksProjectsToRefreshInTheNextTurn) {
    int refreshes = 0;
    const auto subscription = fakes.notifications.observe(kTicklogRefreshProjectsNotification,
                                                          [&](const Notification& notification) {
                                                              EXPECT_FALSE(notification.object.has_value());
                                                              ++refreshes;
                                                          });
    m_mail->setRenamedNameFormatted({{kRecordName, u"Post"_s}});
    fakes.runLoop.runPending();
    EXPECT_EQ(refreshes, 0);
    m_mail->setBranched(true);
    m_mail->setRenamedNameFormatted({{kRecordName, u"Letters"_s}});
    EXPECT_EQ(refreshes, 0);
    fakes.runLoop.runPending();
    EXPECT_EQ(refreshes, 1);
}

TEST_F(TimeStoreAppTest, aBranchedApplicationThatIsGoneByTheNextTurn_asksForNothing) {
    int refreshes = 0;
    const auto subscription = fakes.notifications.observe(kTicklogRefreshProjectsNotification,
                                                          [&](const Notification&) { ++refreshes; });
    m_mail->setBranched(true);
    m_mail->setRenamedNameFormatted({{kRecordName, u"Letters"_s}});
    m_mail.reset();
    fakes.runLoop.runPending();
    EXPECT_EQ(refreshes, 0);
}

TEST_F(TimeStoreAppTest, anObserverOfChildrenThatAsksForTheSameWindow_leavesOneInTheTable) {
    bool isNested = false;
    const auto subscription = m_mail->observe(kChildrenKey,
                                              [&](const ObservedChange&) {
                                                  if (!std::exchange(isNested, true))
                                                      window(*m_mail, "Inbox", 1);
                                              },
                                              {.prior = true});
    const auto inbox = window(*m_mail, "Inbox");
    EXPECT_EQ(m_mail->windowCount(), 1U);
    EXPECT_TRUE(isFoundAs(*m_mail, *inbox, u"Inbox"_s));
}

TEST_F(TimeStoreAppTest, anObserverThatRenamesTheWindowAgainWhileTold_leavesItWhereItIsCalled) {
    const auto inbox = window(*m_mail, "Inbox", 4);
    const auto subscription = inbox->observe(kNameKey, [&](const ObservedChange&) {
        if (inbox->name() == u"Archive")
            inbox->setName(u"Attic"_s);
    });
    inbox->setName(u"Archive"_s);
    EXPECT_EQ(children(*m_mail), "Attic 4");
    EXPECT_TRUE(isFoundAs(*m_mail, *inbox, u"Attic"_s));
}

TEST_F(TimeStoreAppTest, anObserverThatRenamesTheWindowBeforeTheTableHasHeard_leavesItWhereItIsCalled) {
    const auto inbox = window(*m_mail, "Inbox", 4);
    const auto early = inbox->observe(kRenamedNameKey, [&](const ObservedChange&) {
        if (inbox->name() == u"Archive")
            inbox->setName(u"Attic"_s);
    });
    inbox->setName(u"Archive"_s);
    EXPECT_EQ(children(*m_mail), "Attic 4");
    EXPECT_TRUE(isFoundAs(*m_mail, *inbox, u"Attic"_s));
}

} // namespace
