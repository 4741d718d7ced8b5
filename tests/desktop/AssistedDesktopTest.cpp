// SPDX-License-Identifier: MIT
// A compositor that tells nobody about its windows, and programs that tell assistive programs about theirs.
#include "app/AssistedDesktop.h"

#include "tests/Places.h"
#include "tests/desktop/Sight.h"
#include "tests/desktop/harness/Desk.h"

#include <gtest/gtest.h>

namespace {

const QString kSocket = QStringLiteral("wayland-mute");

// Only the programs are asked, so it does not matter where their windows really are.
class AssistedDesktopTest : public testing::Test, public Sight {
protected:
    AssistedDesktopTest()
        : Sight(QStringLiteral("/nowhere")) {
        startCompositor();
        desktop.emplace(connect(), QString(), m_bus, runLoop, log, entries);
        lookThrough(*desktop);
    }

    void startCompositor() {
        compositor = std::make_unique<Program>(QStringLiteral(TICKLOG_BINARY_DIR "/odd-compositor"),
                                               QStringList{kSocket, QStringLiteral("mute")},
                                               m_desk.home().environment(), Program::Output::Read);
        if (compositor->readLine() != QByteArray("ok"))
            qFatal("the compositor does not start");
    }

    std::unique_ptr<WaylandConnection> connect() {
        const QString path = m_desk.home().runtimeFolder() + u'/' + kSocket;
        auto connection = WaylandConnection::tryConnect(path.toLocal8Bit(), runLoop, log);
        if (!connection)
            qFatal("%s", qPrintable(connection.failure().text));
        return std::move(*connection);
    }

    // A program of Qt with one window.
    std::unique_ptr<Program> startWith(const QString& title) {
        QProcessEnvironment environment = m_desk.environment();
        environment.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
        auto client = std::make_unique<Program>(QStringLiteral(TICKLOG_BINARY_DIR "/qt-client"),
                                                QStringList(), environment, Program::Output::Read);
        client->write("open " + title.toUtf8() + '\n');
        EXPECT_EQ(client->readLine(), QByteArray("ok"));
        return client;
    }

    // Whether the compositor answers.
    bool isHeard() {
        bool heard = false;
        const Subscription signs = desktop->observeSigns([&] { heard = true; });
        desktop->askForSign();
        waitFor([&] { return heard; }, std::chrono::milliseconds(1000));
        return heard;
    }

    Desk m_desk{QStringLiteral("openbox"), Desk::Bus::Own};
    Bus m_bus{Bus::atAddress(m_desk.bus().address()), runLoop, log};
    std::unique_ptr<Program> compositor;
    std::optional<AssistedDesktop> desktop;
};

TEST_F(AssistedDesktopTest, programsThatTell_areSeenAndItIsSaidThatOthersAreNot) {
    EXPECT_TRUE(desktop->obstacle().contains(QStringLiteral("no time can be counted")))
        << "nobody tells yet";
    EXPECT_SEEN(*this, "Desktop: none");
    EXPECT_TRUE(desktop->obstacle().contains(QStringLiteral("sees only programs that tell")));
    EXPECT_TRUE(desktop->describe().contains(QStringLiteral("AT-SPI")));
    const auto writer = startWith(QStringLiteral("Letter"));
    EXPECT_SEEN(*this, "qt-client: Letter");
    EXPECT_EQ(frontProcess(), writer->processIdentifier());
    const auto terminal = m_desk.start(QStringLiteral("xterm"));
    EXPECT_SEEN(*this, "Desktop: none");
}

TEST_F(AssistedDesktopTest, whereMoreCouldBeTold_itIsSaidHow) {
    const QString remedy = QStringLiteral("Only installed programs are told. Install it.");
    desktop.emplace(connect(), remedy, m_bus, runLoop, log, entries);
    EXPECT_EQ(desktop->obstacle(), remedy) << "nobody tells yet";
    lookThrough(*desktop);
    EXPECT_SEEN(*this, "Desktop: none");
    EXPECT_TRUE(
        desktop->obstacle().startsWith(remedy + QStringLiteral(" Until then, Ticklog sees only programs that tell")));
}

TEST_F(AssistedDesktopTest, aCompositorThatHangs_givesNoSignOfLife) {
    EXPECT_TRUE(isHeard());
    compositor->pause();
    EXPECT_FALSE(isHeard());
    compositor->resume();
    EXPECT_TRUE(isHeard());
}

TEST_F(AssistedDesktopTest, aCompositorThatIsGone_leavesNoWindowUntilItIsBack) {
    const auto writer = startWith(QStringLiteral("Letter"));
    EXPECT_SEEN(*this, "qt-client: Letter");
    int lost = 0;
    const Subscription loss = desktop->observeLoss([&] { ++lost; });
    compositor->kill();
    EXPECT_SEEN(*this, "Desktop: none");
    EXPECT_EQ(titles(), QStringList());
    EXPECT_EQ(lost, 1);
    startCompositor();
    EXPECT_SEEN(*this, "qt-client: Letter");
    EXPECT_EQ(lost, 1);
}

} // namespace
