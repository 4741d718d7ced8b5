// SPDX-License-Identifier: MIT
#include "platform/foundation/KeyValueObserving.h"

#include "tests/fakes/Announcements.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr ObservedKey kLevel{"level"};
constexpr ObservedKey kName{"name"};

class Gauge : public Observable {
public:
    QVariant valueForKey(ObservedKey key) const override {
        return key == kLevel ? QVariant(level) : QVariant();
    }

    int level = 0;
};

TEST(KeyValueObserving, nestedChangesOfOneKey_haveTheOldestValueAsTheOldOne) {
    Gauge gauge;
    QStringList told;
    const auto subscription =
        gauge.observe(kLevel,
                      [&](const ObservedChange& change) {
                          told << change.oldValue.toString() + u'>' + change.newValue.toString();
                      },
                      {.values = true});
    gauge.willChange(kLevel);
    gauge.level = 1;
    gauge.willChange(kLevel);
    gauge.level = 2;
    gauge.didChange(kLevel);
    gauge.level = 3;
    gauge.didChange(kLevel);
    EXPECT_EQ(str(told.join(u' ')), "0>2 0>3");
}

TEST(KeyValueObserving, observers_areToldInTheOrderInWhichTheyCame) {
    Gauge gauge;
    QStringList told;
    std::vector<Subscription> subscriptions;
    for (const char* name : {"a", "b", "c"})
        subscriptions.push_back(
            gauge.observe(kLevel, [&told, name](const ObservedChange&) { told << QLatin1String(name); }));
    gauge.didChange(kLevel);
    subscriptions.erase(subscriptions.begin() + 1);
    gauge.didChange(kLevel);
    EXPECT_EQ(str(told.join(u' ')), "a b c a c");
}

TEST(KeyValueObserving, anObserverThatCameInTheMiddleOfAChange_isToldOfItsEnd) {
    Gauge gauge;
    gauge.willChange(kLevel);
    Announcements told(gauge, {kLevel});
    gauge.didChange(kLevel);
    EXPECT_EQ(told.told(), "did level");
    gauge.willChange(kLevel);
    gauge.didChange(kLevel);
    EXPECT_EQ(told.told(), "did level, will level, did level");
}

TEST(KeyValueObserving, withoutPrior_onlyTheEndIsTold) {
    Gauge gauge;
    QStringList told;
    const auto subscription = gauge.observe(kLevel, [&](const ObservedChange& change) {
        told << (change.phase == ChangePhase::Did ? u"did"_s : u"will"_s);
        EXPECT_FALSE(change.oldValue.isValid());
        EXPECT_FALSE(change.newValue.isValid());
    });
    gauge.willChange(kLevel);
    gauge.didChange(kLevel);
    EXPECT_EQ(str(told.join(u' ')), "did");
}

TEST(KeyValueObserving, keysOfTheSameText_areTheSameKey) {
    const std::string text = "level";
    EXPECT_TRUE(kLevel == ObservedKey{text.c_str()});
    EXPECT_FALSE(kLevel == kName);
}

TEST(KeyValueObserving, aSubscriptionThatOutlivesTheObject_doesNoHarm) {
    auto gauge = std::make_unique<Gauge>();
    Subscription subscription = gauge->observe(kLevel, [](const ObservedChange&) {});
    gauge.reset();
    subscription.cancel();
    subscription.cancel();
}

TEST(KeyValueObserving, aSubscriptionThatIsMoved_staysOne) {
    Gauge gauge;
    int told = 0;
    Subscription first = gauge.observe(kLevel, [&](const ObservedChange&) { ++told; });
    Subscription second = std::move(first);
    gauge.didChange(kLevel);
    EXPECT_EQ(told, 1);
    second = Subscription();
    gauge.didChange(kLevel);
    EXPECT_EQ(told, 1);
}

} // namespace
