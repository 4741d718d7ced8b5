// SPDX-License-Identifier: MIT
// The stretches that listeners are told.
#include "Classes/common/Settings.h"
#include "Classes/store/TimeStoreWindow.h"
#include "tests/fakes/Day.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

// Records what is told, joined if only the time differs: "Mail [Inbox] 40".
class Diary : public StretchListener {
public:
    explicit Diary(TimeTracker& tracker)
        : m_subscription(tracker.listen(*this)) {}

    void credited(const Stretch& stretch) override {
        ++m_count;
        EXPECT_LT(stretch.from, stretch.to);
        EXPECT_TRUE(m_lines.empty() || stretch.from >= m_lines.back().to) << "no moment is told twice";
        const QString who =
            stretch.program->name() +
            (stretch.title.isEmpty() ? QString() : QStringLiteral(" [%1]").arg(stretch.title)) +
            (stretch.window ? QString() : QStringLiteral(" -"));
        EXPECT_EQ(stretch.presence == Presence::Idle, stretch.program->isNamed(kIdleName));
        if (!m_lines.empty() && m_lines.back().who == who && m_lines.back().to == stretch.from)
            m_lines.back().to = stretch.to;
        else
            m_lines.push_back({who, stretch.from, stretch.to});
    }

    void absent(Instant since, Instant noticed, Seconds booked) override {
        EXPECT_LE(since, noticed);
        EXPECT_GE(booked, 0);
        m_lines.push_back({QStringLiteral("absent"), since, noticed});
    }

    std::string text() const {
        QStringList lines;
        for (const Line& line : m_lines)
            lines << QStringLiteral("%1 %2").arg(line.who).arg(
                std::round(secondsBetween(line.from, line.to) * 10) / 10);
        return lines.join(QStringLiteral(", ")).toStdString();
    }

    int count() const { return m_count; }

    Seconds total() const {
        Seconds sum = 0;
        for (const Line& line : m_lines)
            sum += secondsBetween(line.from, line.to);
        return sum;
    }

private:
    struct Line {
        QString who;
        Instant from;
        Instant to;
    };

    std::vector<Line> m_lines;
    int m_count = 0;
    Subscription m_subscription;
};

class StretchTest : public testing::Test {
protected:
    Day m_day;
    Diary m_diary{m_day.tracker};
};

TEST_F(StretchTest, work_isToldOneStretchAfterTheOther) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.seconds(40);
    m_day.front("Editor", "a.txt");
    m_day.seconds(20);
    m_day.window("b.txt");
    m_day.seconds(10);
    m_day.front("Player");
    m_day.seconds(5);
    EXPECT_EQ(m_diary.text(), "Mail [Inbox] 40, Editor [a.txt] 20, Editor [b.txt] 10, Player - 5");
}

TEST_F(StretchTest, aStretch_isToldWhenItsWindowAndThenItsApplicationHaveTheirTime) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.seconds(1);
    QStringList order;
    struct Last : StretchListener {
        explicit Last(QStringList& told)
            : order(told) {}
        void credited(const Stretch& stretch) override { order << stretch.title; }
        void absent(Instant, Instant, Seconds) override {}
        QStringList& order;
    } last(order);
    const Subscription listening = m_day.tracker.listen(last);
    const auto note = [&](const char* what) {
        return [&order, what](const auto&) { order << QLatin1String(what); };
    };
    const Subscription ofApp = m_day.node("Mail").observe(kActiveTimeStringKey, note("Mail"));
    const Subscription ofWindow = m_day.node("Mail", "Inbox").observe(kActiveTimeStringKey, note("window"));
    m_day.seconds(0.1);
    EXPECT_EQ(order.join(u' '), QStringLiteral("window Mail Inbox"));
}

TEST_F(StretchTest, theTimeThatObserversTake_isNeitherLostNorToldToThePast) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.seconds(1);
    const Instant begin = m_day.fakes.clock.instant();
    const int before = m_diary.count();
    const Subscription slow =
        m_day.node("Mail").observe(kActiveTimeStringKey, [&](const auto&) { m_day.stall(0.01); });
    m_day.seconds(10);
    const Seconds passed = secondsBetween(begin, m_day.fakes.clock.instant());
    EXPECT_EQ(m_diary.count() - before, 100) << "each tick tells one stretch";
    EXPECT_NEAR(m_day.secondsOf("Mail"), 1 + passed, 0.15);
    EXPECT_DOUBLE_EQ(m_day.secondsOf("Mail"), m_day.secondsOf("Mail", "Inbox"));
    EXPECT_NEAR(m_diary.total(), m_day.secondsOf("Mail"), 1e-9);
}

TEST_F(StretchTest, theTitle_isToldWholeAndAsItWasAtItsTime) {
    m_day.start();
    m_day.front("Browser", "News (3) - Browser");
    m_day.seconds(4);
    m_day.retitle("Weather @ home");
    m_day.seconds(6);
    EXPECT_EQ(m_diary.text(), "Browser [News (3) - Browser] 4, Browser [Weather @ home] 6");
    EXPECT_EQ(m_day.tree(), "Browser 10 [Weather 10]");
}

TEST_F(StretchTest, aTitleThatNamesNoDocument_isToldWithoutAWindow) {
    m_day.start();
    m_day.front("Browser", "(untitled)");
    m_day.seconds(4);
    EXPECT_EQ(m_diary.text(), "Browser [(untitled)] - 4");
}

TEST_F(StretchTest, anAbsence_isToldFromTheLastInputAndThenAsIdle) {
    m_day.fakes.defaults.setObject(kMinutesUntilIdle, 5);
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.seconds(100);
    m_day.idle(400);
    m_day.seconds(10);
    // Noticed after five minutes of sixty "seconds" of 2^30 nanoseconds each.
    EXPECT_EQ(m_diary.text(), "Mail [Inbox] 422.1, absent 322.2, Idle - 77.8, Mail [Inbox] 10");
}

TEST_F(StretchTest, aGapLongerThanTheAbsence_isWorkUntilTheLastInput) {
    m_day.fakes.defaults.setObject(kMinutesUntilIdle, 5);
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.seconds(10);
    // Nothing ran while somebody worked for 1000 seconds and then left.
    m_day.stall(1000);
    m_day.fakes.idleTime.touch();
    m_day.stall(400);
    m_day.advance(0.1);
    EXPECT_EQ(m_diary.text(), "Mail [Inbox] 1010, absent 400, Idle - 0.1");
}

TEST_F(StretchTest, whileNothingIsCounted_nothingIsTold) {
    m_day.front("Mail", "Inbox");
    m_day.seconds(10);
    m_day.start();
    m_day.seconds(10);
    m_day.stop();
    m_day.seconds(10);
    m_day.start();
    m_day.asleep(100);
    m_day.seconds(10);
    EXPECT_EQ(m_diary.text(), "Mail [Inbox] 10, Mail [Inbox] 10");
}

TEST_F(StretchTest, whatIsPutRightInTheTree_isNoWork) {
    m_day.start();
    m_day.front("Editor", "a.txt");
    m_day.seconds(10);
    m_day.window("b.txt");
    m_day.seconds(10);
    FrozenTimer frozen = m_day.tracker.branchNode(m_day.node("Editor", "a.txt"));
    m_day.tracker.unbranchNode(frozen);
    m_day.retitle("a.txt");
    m_day.remove("Editor", "a.txt");
    m_day.tracker.addWindowWithName(QStringLiteral("Old"), 500.0);
    m_day.seconds(10);
    EXPECT_EQ(m_diary.text(), "Editor [a.txt] 10, Editor [b.txt] 10, Editor [a.txt] 10");
}

TEST_F(StretchTest, aListenerThatHasGone_isToldNothing) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    {
        const Diary another(m_day.tracker);
        m_day.seconds(1);
    }
    m_day.seconds(1);
    EXPECT_EQ(m_diary.text(), "Mail [Inbox] 2");
}

} // namespace
