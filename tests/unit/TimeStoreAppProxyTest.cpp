// SPDX-License-Identifier: MIT
#include "Classes/store/TimeStoreAppProxy.h"
#include "platform/foundation/values/Assertions.h"
#include "tests/fakes/Store.h"

using namespace Qt::StringLiterals;

namespace {

class TimeStoreAppProxyTest : public StoreTest {
protected:
    std::shared_ptr<TimeStoreAppProxy> makeProxy(const QString& name, TimeStoreItem::Children children) {
        return std::make_shared<TimeStoreAppProxy>(store, name, children);
    }

    static TimeStoreCategory::List list(TimeStoreItem::Children children) {
        return std::make_shared<const TimeStoreItem::Children>(std::move(children));
    }

    std::shared_ptr<TimeStoreApp> m_mail = makeApp(u"Mail"_s, 100.0);
    std::shared_ptr<TimeStoreApp> m_frozen = makeApp(u"Mail (Frozen)"_s, 20.0);
};

TEST_F(TimeStoreAppProxyTest, theLastChild_isTheApplicationThatAnswers) {
    m_mail->setBranched(true);
    m_mail->setRenamedNameFormatted({{kRecordName, u"Post"_s}});
    const auto proxy = makeProxy(u"Letters"_s, {m_frozen, m_mail});
    EXPECT_EQ(proxy->app(), m_mail);
    EXPECT_EQ(proxy->uuid(), m_mail->uuid());
    EXPECT_TRUE(proxy->branched());
    EXPECT_EQ(proxy->renamedNameFormatted(), m_mail->renamedNameFormatted());
    EXPECT_EQ(proxy->hash(), std::hash<Identity>()(*m_mail->uuid()));
}

TEST_F(TimeStoreAppProxyTest, itsNames_areItsOwn) {
    m_mail->setRenamedNameFormatted({{kRecordName, u"Post"_s}});
    const auto proxy = makeProxy(u"Letters"_s, {m_mail});
    EXPECT_EQ(str(proxy->name()), "Letters");
    EXPECT_EQ(str(proxy->renamedName()), "Letters");
    EXPECT_EQ(str(proxy->sortName()), "Letters");
}

TEST_F(TimeStoreAppProxyTest, renamingIt_renamesTheApplication) {
    const auto proxy = makeProxy(u"Mail"_s, {m_frozen, m_mail});
    proxy->setRenamedNameFormatted({{kRecordName, u"Post"_s}});
    EXPECT_EQ(str(m_mail->renamedName()), "Post");
    EXPECT_EQ(str(proxy->renamedName()), "Mail");
    EXPECT_TRUE(proxy->isApp());
}

TEST_F(TimeStoreAppProxyTest, naming_namesItsOwnClassInTheFailure) {
    const auto proxy = makeProxy(u"Mail"_s, {m_mail});
    try {
        proxy->setName(u"Post"_s);
        FAIL() << "was named twice";
    } catch (const InternalInconsistency& failure) {
        EXPECT_EQ(str(failure.description()), "Setting name not supported on TimeStoreAppProxy.");
    }
}

TEST_F(TimeStoreAppProxyTest, otherProxiesAmongItsChildren_areLeftOut) {
    const auto inner = makeProxy(u"inner"_s, {m_frozen});
    const auto proxy = makeProxy(u"Mail"_s, {m_mail, m_frozen, inner});
    EXPECT_EQ(children(*proxy), "Mail 100, Mail (Frozen) 20");
    EXPECT_EQ(proxy->app(), m_frozen);
}

TEST_F(TimeStoreAppProxyTest, withOneChild_itShowsTheApplicationsOwn) {
    const auto proxy = makeProxy(u"Mail"_s, {m_mail});
    EXPECT_EQ(children(*proxy), "");
    EXPECT_TRUE(proxy->isLeaf());
    window(*m_mail, "Inbox", 40);
    EXPECT_TRUE(proxy->isLeaf());
    window(*m_mail, "Drafts", 5);
    EXPECT_FALSE(proxy->isLeaf());
    EXPECT_EQ(children(*proxy), "Drafts 5, Inbox 40");
}

TEST_F(TimeStoreAppProxyTest, withMoreChildren_itShowsThemAndIsNoLeaf) {
    const auto proxy = makeProxy(u"Mail"_s, {m_frozen, m_mail});
    EXPECT_EQ(children(*proxy), "Mail (Frozen) 20, Mail 100");
    EXPECT_FALSE(proxy->isLeaf());
}

TEST_F(TimeStoreAppProxyTest, aSearch_narrowsNeitherItsChildrenNorItsTime) {
    const auto proxy = makeProxy(u"Mail"_s, {m_frozen, m_mail});
    proxy->setSearchString(u"x"_s);
    EXPECT_EQ(children(*proxy), "Mail (Frozen) 20, Mail 100");
    EXPECT_EQ(proxy->activeTime(), 120);
    EXPECT_FALSE(proxy->isLeaf());
}

TEST_F(TimeStoreAppProxyTest, itsTime_isSummedInDoublePrecision) {
    const auto proxy = makeProxy(u"Mail"_s, {makeNode(u"a"_s, 16'777'216.0), makeNode(u"b"_s, 1.0)});
    EXPECT_EQ(proxy->activeTime(), 16'777'217.0);
}

TEST_F(TimeStoreAppProxyTest, withoutChildren_itAnswersNothing) {
    const auto proxy = makeProxy(u"Mail"_s, {});
    EXPECT_FALSE(proxy->app());
    EXPECT_EQ(children(*proxy), "");
    EXPECT_TRUE(proxy->isLeaf());
    EXPECT_EQ(proxy->activeTime(), 0);
    EXPECT_FALSE(proxy->uuid());
    EXPECT_FALSE(proxy->branched());
    EXPECT_TRUE(proxy->renamedNameFormatted().isEmpty());
    proxy->setRenamedNameFormatted({{kRecordName, u"Post"_s}});
    EXPECT_EQ(str(proxy->renamedName()), "Mail");
    proxy->setChildren(nullptr);
    EXPECT_FALSE(proxy->app());
}

TEST_F(TimeStoreAppProxyTest, equality_comparesTheApplicationsNameWithTheOthersOwn) {
    const auto letters = makeProxy(u"Letters"_s, {m_mail});
    const auto mail = makeProxy(u"Mail"_s, {m_frozen});
    EXPECT_TRUE(letters->isEqual(*letters));
    EXPECT_TRUE(letters->isEqual(*mail));
    EXPECT_FALSE(mail->isEqual(*letters));
}

TEST_F(TimeStoreAppProxyTest, equality_withAProjectIsFoundFromTheProjectsSideOnly) {
    const auto proxy = makeProxy(u"Mail"_s, {m_mail});
    const auto project = std::make_shared<TimeStoreCategory>(store, u"Mail"_s);
    EXPECT_TRUE(project->isEqual(*proxy));
    EXPECT_FALSE(proxy->isEqual(*project));
    EXPECT_FALSE(proxy->isEqual(*m_mail));
}

TEST_F(TimeStoreAppProxyTest, withoutAnApplication_itEqualsItselfAlone) {
    const auto one = makeProxy(u""_s, {});
    const auto other = makeProxy(u""_s, {});
    EXPECT_TRUE(one->isEqual(*one));
    EXPECT_FALSE(one->isEqual(*other));
}

TEST_F(TimeStoreAppProxyTest, childrenAndLeafhood_dependOnTheApplications) {
    const auto paths = [](ObservedKey key) {
        return str(TimeStoreAppProxy::keyPathsForValuesAffectingValueForKey(key).join(u' '));
    };
    EXPECT_EQ(paths(kChildrenKey), "app.children");
    EXPECT_EQ(paths(kIsLeafKey), "app.isLeaf");
    EXPECT_EQ(paths(kNameKey), "");
    EXPECT_EQ(paths(kActiveTimeStringKey), "");
}

TEST_F(TimeStoreAppProxyTest, theApplicationsChildren_areAnnouncedAsItsOwn) {
    const auto proxy = makeProxy(u"Mail"_s, {m_frozen, m_mail});
    Announcements told(*proxy, {kChildrenKey, kIsLeafKey});
    window(*m_mail, "Inbox");
    EXPECT_EQ(told.told(), "will children, will isLeaf, did children, did isLeaf");
    // The other children are not `app`.
    window(*m_frozen, "Inbox");
    EXPECT_EQ(told.count(), 4);
}

TEST_F(TimeStoreAppProxyTest, anotherApplication_isAnnouncedWithWhatDependsOnIt) {
    const auto proxy = makeProxy(u"Mail"_s, {m_mail});
    Announcements told(*proxy, {kAppKey, kIsLeafKey, kActiveTimeStringKey});
    proxy->setChildren(list({m_frozen}));
    EXPECT_EQ(told.told(), "will app, will isLeaf, did isLeaf, did app");
    window(*m_mail, "Inbox");
    m_mail->addTimeInterval(1);
    EXPECT_EQ(told.count(), 4);
    m_frozen->addTimeInterval(1);
    EXPECT_EQ(told.count(), 6);
}

TEST_F(TimeStoreAppProxyTest, theSameList_isTakenAnew) {
    const auto same = list({m_mail});
    const auto proxy = makeProxy(u"Mail"_s, {});
    proxy->setChildren(same);
    Announcements told(*proxy, {kAppKey});
    proxy->setChildren(same);
    EXPECT_EQ(told.told(), "will app, did app");
}

TEST_F(TimeStoreAppProxyTest, anObserverMayLetGoOfIt_whileItsApplicationChanges) {
    auto proxy = makeProxy(u"Mail"_s, {m_mail});
    const auto watching =
        proxy->observe(kChildrenKey, [&](const ObservedChange&) { proxy.reset(); }, {.prior = true});
    window(*m_mail, "Inbox");
    EXPECT_FALSE(proxy);
}

TEST_F(TimeStoreAppProxyTest, anObserverMayLetGoOfIt_whileItIsGivenChildren) {
    auto proxy = makeProxy(u"Mail"_s, {m_mail});
    TimeStoreAppProxy& filled = *proxy;
    const auto watching =
        filled.observe(kAppKey, [&](const ObservedChange&) { proxy.reset(); }, {.prior = true});
    filled.setChildren(list({m_frozen}));
    EXPECT_FALSE(proxy);
}

TEST_F(TimeStoreAppProxyTest, itsDescription_listsItsChildren) {
    EXPECT_EQ(str(makeProxy(u"Mail"_s, {m_mail})->description()), "AppProxy: (Mail (100.000000) [])");
}

TEST_F(TimeStoreAppProxyTest, aProjectOfProxies_sumsAndForwardsThem) {
    const auto proxy = makeProxy(u"Mail"_s, {m_frozen, m_mail});
    const auto project = std::make_shared<TimeStoreCategory>(store, u"Work"_s);
    project->setChildren(list({proxy}));
    EXPECT_EQ(project->activeTime(), 120);
    Announcements told(*project, {kActiveTimeStringKey});
    m_mail->addTimeInterval(1);
    EXPECT_EQ(told.count(), 2);
}

} // namespace
