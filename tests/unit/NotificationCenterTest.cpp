// SPDX-License-Identifier: MIT
#include "platform/foundation/observing/NotificationCenter.h"

#include "tests/fakes/Announcements.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class NotificationCenterTest : public testing::Test {
protected:
    Subscription listen(const char* who, const QString& name) {
        return m_center.observe(
            name, [this, who](const Notification& news) { m_told << QLatin1String(who) + u':' + news.name; });
    }

    std::string told() const { return str(m_told.join(u' ')); }

    NotificationCenter m_center;
    QStringList m_told;
};

TEST_F(NotificationCenterTest, news_isToldAtOnceToThoseWhoAskedForItsName) {
    const auto a = listen("a", u"rain"_s);
    const auto b = listen("b", u"sun"_s);
    const auto c = listen("c", u"rain"_s);
    m_center.post(u"rain"_s);
    m_center.post(u"Rain"_s);
    EXPECT_EQ(told(), "a:rain c:rain");
}

TEST_F(NotificationCenterTest, theObject_arrivesAsItWasPosted) {
    int number = 0;
    bool hasObject = true;
    const auto subscription = m_center.observe(u"n"_s, [&](const Notification& news) {
        hasObject = news.object.has_value();
        if (hasObject)
            number = std::any_cast<int>(news.object);
    });
    m_center.post(u"n"_s, 7);
    EXPECT_EQ(number, 7);
    m_center.post(u"n"_s);
    EXPECT_FALSE(hasObject);
}

TEST_F(NotificationCenterTest, anObserverThatPosts_nestsItsNews) {
    const auto poster =
        m_center.observe(u"rain"_s, [this](const Notification&) { m_center.post(u"umbrella"_s); });
    const auto a = listen("a", u"umbrella"_s);
    const auto b = listen("b", u"rain"_s);
    m_center.post(u"rain"_s);
    EXPECT_EQ(told(), "a:umbrella b:rain");
}

TEST_F(NotificationCenterTest, anObserverThatLeavesWhileTold_isToldNoMore) {
    Subscription own;
    int count = 0;
    own = m_center.observe(u"rain"_s, [&](const Notification&) {
        ++count;
        own.cancel();
    });
    m_center.post(u"rain"_s);
    m_center.post(u"rain"_s);
    EXPECT_EQ(count, 1);
}

TEST_F(NotificationCenterTest, aSubscription_mayOutliveTheCentre) {
    Subscription late;
    {
        NotificationCenter centre;
        late = centre.observe(u"rain"_s, [](const Notification&) {});
    }
    late.cancel();
}

} // namespace
