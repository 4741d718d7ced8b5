// SPDX-License-Identifier: MIT
#include "platform/foundation/observing/KeyValueObserving.h"

#include "tests/fakes/Announcements.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr ObservedKey kColour{"colour"};
constexpr ObservedKey kSize{"size"};

class Thing : public Observable {
public:
    void paint(const QString& colour) {
        const ChangeAnnouncement announcement(*this, kColour);
        m_colour = colour;
    }
    QVariant valueForKey(ObservedKey key) const override {
        return key == kColour ? QVariant(m_colour) : QVariant();
    }

private:
    QString m_colour = QStringLiteral("white");
};

TEST(KeyValueObserving, aChange_isToldBeforeAndAfterWithOldAndNewValue) {
    Thing thing;
    QStringList told;
    const auto subscription =
        thing.observe(kColour,
                      [&](const ObservedChange& change) {
                          told << QStringLiteral("%1 %2>%3")
                                      .arg(change.phase == ChangePhase::Will ? QStringLiteral("will")
                                                                             : QStringLiteral("did"),
                                           change.oldValue.toString(), change.newValue.toString());
                      },
                      {.prior = true, .values = true});
    thing.paint(QStringLiteral("red"));
    EXPECT_EQ(told, QStringList({QStringLiteral("will white>"), QStringLiteral("did white>red")}));
}

TEST(KeyValueObserving, anotherKey_isNotTold) {
    Thing thing;
    int told = 0;
    const auto subscription = thing.observe(kSize, [&](const ObservedChange&) { ++told; });
    thing.paint(QStringLiteral("red"));
    EXPECT_EQ(told, 0);
}

TEST(KeyValueObserving, anObserverOfEveryKey_isToldOfEachChangeOnceAndOfWhich) {
    Thing thing;
    QStringList told;
    const auto subscription = thing.observeEveryKey([&](const ObservedChange& change) {
        EXPECT_EQ(change.phase, ChangePhase::Did);
        told << QLatin1String(change.key.name);
    });
    thing.paint(QStringLiteral("red"));
    thing.willChange(kSize);
    thing.didChange(kSize);
    EXPECT_EQ(told, QStringList({QLatin1String(kColour.name), QLatin1String(kSize.name)}));
}

TEST(KeyValueObserving, theToken_endsTheCallsWhenItDies) {
    Thing thing;
    int told = 0;
    auto subscription = thing.observe(kColour, [&](const ObservedChange&) { ++told; });
    thing.paint(QStringLiteral("red"));
    subscription.cancel();
    thing.paint(QStringLiteral("blue"));
    EXPECT_EQ(told, 1);
}

TEST(KeyValueObserving, anObserverThatRemovesItselfAndTheNext_isTheLastOneTold) {
    Thing thing;
    QStringList told;
    Subscription first;
    Subscription second;
    first = thing.observe(kColour, [&](const ObservedChange&) {
        told << QStringLiteral("first");
        first.cancel();
        second.cancel();
    });
    second = thing.observe(kColour, [&](const ObservedChange&) { told << QStringLiteral("second"); });
    thing.paint(QStringLiteral("red"));
    thing.paint(QStringLiteral("blue"));
    EXPECT_EQ(told, QStringList{QStringLiteral("first")});
}

TEST(KeyValueObserving, anObserverAddedWhileTelling_hearsTheNextAnnouncementOnly) {
    Thing thing;
    int told = 0;
    bool isAdded = false;
    Subscription added;
    const auto adder = thing.observe(kColour, [&](const ObservedChange&) {
        if (!std::exchange(isAdded, true))
            added = thing.observe(kColour, [&](const ObservedChange&) { ++told; });
    });
    thing.paint(QStringLiteral("red"));
    EXPECT_EQ(told, 0);
    thing.paint(QStringLiteral("blue"));
    EXPECT_EQ(told, 1);
}

TEST(KeyValueObserving, anObserverThatChangesTheObject_nestsItsAnnouncement) {
    Thing thing;
    QStringList told;
    const auto subscription =
        thing.observe(kColour,
                      [&](const ObservedChange& change) {
                          told << change.oldValue.toString() + u'>' + change.newValue.toString();
                          if (told.size() == 1)
                              thing.paint(QStringLiteral("green"));
                      },
                      {.values = true});
    thing.paint(QStringLiteral("red"));
    EXPECT_EQ(told, QStringList({QStringLiteral("white>red"), QStringLiteral("red>green")}));
}

TEST(KeyValueObserving, anObserverThatDestroysTheObject_isNotToldAgain) {
    auto thing = std::make_unique<Thing>();
    int told = 0;
    const auto first = thing->observe(kSize, [&](const ObservedChange&) {
        ++told;
        thing.reset();
    });
    const auto second = thing->observe(kSize, [&](const ObservedChange&) { ++told; });
    thing->didChange(kSize);
    EXPECT_EQ(told, 1);
    EXPECT_FALSE(thing);
}

TEST(KeyValueObserving, anUnobservedObject_paysOnePointer) {
    struct Bare {
        virtual ~Bare() = default;
    };
    EXPECT_EQ(sizeof(Observable), sizeof(Bare) + sizeof(void*));
}

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
