// SPDX-License-Identifier: MIT
#include "platform/linux/TerminationSignals.h"
#include "platform/foundation/time/QtRunLoop.h"
#include "platform/foundation/values/Assertions.h"
#include "tests/desktop/harness/WaitFor.h"
#include "tests/fakes/RecordingLog.h"

#include <QSocketNotifier>

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

// Something to read that has come just now, and is heard of together with whatever came before.
class LaterInput {
public:
    LaterInput() {
        EXPECT_EQ(::pipe(m_ends), 0);
        EXPECT_EQ(::write(m_ends[1], "!", 1), 1);
        m_notifier.emplace(m_ends[0], QSocketNotifier::Read);
        QObject::connect(&*m_notifier, &QSocketNotifier::activated, &*m_notifier, [this] {
            m_notifier->setEnabled(false);
            m_isHeard = true;
        });
    }
    ~LaterInput() {
        m_notifier.reset();
        ::close(m_ends[0]);
        ::close(m_ends[1]);
    }
    LaterInput(const LaterInput&) = delete;
    LaterInput& operator=(const LaterInput&) = delete;

    bool isHeard() const { return m_isHeard; }

private:
    int m_ends[2] = {-1, -1};
    std::optional<QSocketNotifier> m_notifier;
    bool m_isHeard = false;
};

class TerminationSignalsTest : public testing::Test {
protected:
    RecordingLog m_log;
    QtRunLoop m_runLoop{m_log};
    std::vector<int> m_told;
};

TEST_F(TerminationSignalsTest, eachKind_isOneCall) {
    const TerminationSignals signals(m_runLoop, [this](int signal) { m_told.push_back(signal); });
    std::raise(SIGTERM);
    std::raise(SIGINT);
    std::raise(SIGHUP);
    EXPECT_TRUE(m_told.empty());
    EXPECT_TRUE(waitFor([this] { return m_told == std::vector{SIGTERM, SIGINT, SIGHUP}; }));
}

TEST_F(TerminationSignalsTest, aSignalWhileTheCallRuns_waitsForItsEndAndIsNotLost) {
    int running = 0;
    const TerminationSignals signals(m_runLoop, [&](int signal) {
        EXPECT_EQ(running++, 0);
        m_told.push_back(signal);
        if (m_told.size() == 1) {
            std::raise(SIGTERM);
            std::raise(SIGINT);
            const LaterInput later;
            // Runs the loop as an open question to the user would, until input that came after both signals
            // has been heard.
            EXPECT_TRUE(waitFor([&] { return later.isHeard(); }));
        }
        --running;
    });
    std::raise(SIGTERM);
    EXPECT_TRUE(waitFor([this] { return m_told == std::vector{SIGTERM, SIGTERM, SIGINT}; }));
}

TEST_F(TerminationSignalsTest, aCallThatFails_doesNotKeepTheNextFromComing) {
    const TerminationSignals signals(m_runLoop, [this](int signal) {
        m_told.push_back(signal);
        throw InternalInconsistency(QStringLiteral("Test"), 1, QStringLiteral("broken"));
    });
    std::raise(SIGTERM);
    std::raise(SIGINT);
    EXPECT_TRUE(waitFor([this] { return m_told == std::vector{SIGTERM, SIGINT}; }));
    EXPECT_TRUE(waitFor([this] { return m_log.lines.size() == 2; }));
}

TEST_F(TerminationSignalsTest, itsEnd_restoresWhatWasBefore) {
    const auto handlerOf = [](int signal) {
        struct sigaction action {};
        sigaction(signal, nullptr, &action);
        return action.sa_handler;
    };
    std::signal(SIGHUP, SIG_IGN);
    {
        const TerminationSignals signals(m_runLoop, [](int) {});
        EXPECT_NE(handlerOf(SIGTERM), SIG_DFL);
        // Started by nohup: the signal stays ignored.
        EXPECT_EQ(handlerOf(SIGHUP), SIG_IGN);
    }
    EXPECT_EQ(handlerOf(SIGTERM), SIG_DFL);
}

} // namespace
