// SPDX-License-Identifier: MIT
#include "platform/foundation/observing/News.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

// A ship as its owners hear of it.
struct Hearer {
    std::function<void()> left = {};
    std::function<void(const QString& harbour)> arrived = {};
};

TEST(News, aSecondWhoHears_isToldAfterTheFirst) {
    const News news;
    QStringList told;
    const Subscription first = news.observe([&] { told << QStringLiteral("first"); });
    {
        const Subscription second = news.observe([&] { told << QStringLiteral("second"); });
        news.tell();
    }
    news.tell();
    EXPECT_EQ(told,
              QStringList({QStringLiteral("first"), QStringLiteral("second"), QStringLiteral("first")}));
}

TEST(News, ofSeveralKinds_eachHearsWhatItAskedFor) {
    const NewsOf<Hearer> news;
    QStringList told;
    const Subscription leaving = news.observe({.left = [&] { told << QStringLiteral("left"); }});
    const Subscription arriving = news.observe({.arrived = [&](const QString& harbour) { told << harbour; }});
    news.tell(&Hearer::left);
    news.tell(&Hearer::arrived, QStringLiteral("Lima"));
    EXPECT_EQ(told, QStringList({QStringLiteral("left"), QStringLiteral("Lima")}));
}

TEST(News, whoStopsHearingWhileTold_keepsNobodyElseFromBeingTold) {
    const NewsOf<Hearer> news;
    QStringList told;
    Subscription once;
    once = news.observe({.left = [&] {
        once.cancel();
        told << QStringLiteral("once");
    }});
    const Subscription always = news.observe({.left = [&] { told << QStringLiteral("always"); }});
    news.tell(&Hearer::left);
    news.tell(&Hearer::left);
    EXPECT_EQ(told,
              QStringList({QStringLiteral("once"), QStringLiteral("always"), QStringLiteral("always")}));
}

} // namespace
