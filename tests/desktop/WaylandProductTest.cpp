// SPDX-License-Identifier: MIT
// What the built program records on real Wayland desktops.
#include "tests/desktop/WaylandScene.h"
#include "tests/desktop/harness/Desk.h"
#include "tests/desktop/harness/Lateness.h"
#include "tests/desktop/harness/ProductProgram.h"
#include "tests/desktop/services/ServiceScript.h"

#include <QElapsedTimer>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

const QString kOwnTitle = QStringLiteral("Ticklog");

class WaylandProduct : public testing::TestWithParam<const char*> {
protected:
    // Starts the product with a running timer, and waits until its window is in front.
    void startRunning() {
        product.writeSettings(ProductProgram::runningSettings());
        product.launch(desk.environment());
        EXPECT_SEEN(*scene, "Ticklog: Ticklog");
    }

    // Keeps a window in front and answers for how many seconds it was there.
    double keepInFront(WaylandClient& client, int window, const QString& title,
                       std::chrono::milliseconds duration) {
        EXPECT_TRUE(desk.activate(title));
        EXPECT_TRUE(client.awaitFocus(window));
        return passTime(duration);
    }

    const std::unique_ptr<AnyWaylandScene> scene = makeWaylandScene(QString::fromLatin1(GetParam()));
    WaylandDesk& desk = scene->anyDesk();
    ProductProgram product{desk.home()};
    Lateness lateness;
};

INSTANTIATE_TEST_SUITE_P(Wayland, WaylandProduct, testing::Values("sway", "kwin"),
                         [](const auto& instance) { return std::string(instance.param); });

TEST_P(WaylandProduct, aPanelOnTheBus_startsTheTimerThroughTheMenu) {
    ServiceScript panel(desk.home(), QStringLiteral("tray.py"), {desk.bus().address()});
    panel.ask("watch");
    product.launch(desk.environment());
    EXPECT_TRUE(waitFor([&] { return panel.ask("item") == QLatin1String("ticklog"); }));
    EXPECT_TRUE(waitFor([&] { return panel.ask("tooltip").startsWith(QLatin1String("Ticklog is paused")); }));
    panel.ask("open");
    EXPECT_TRUE(panel.ask("menu").contains(QLatin1String(" | Start | Pause For > | Show Ticklog | ")));
    panel.ask("click Start");
    EXPECT_TRUE(
        waitFor([&] { return panel.ask("tooltip").startsWith(QLatin1String("Ticklog is counting")); }));
    product.program().terminate();
    EXPECT_EQ(product.program().exitStatus(), 0);
}

TEST_P(WaylandProduct, windowsInFront_areCreditedWithTheirTimes) {
    const QString letter = QStringLiteral("Letter");
    const QString inbox = QStringLiteral("Inbox");
    WaylandClient writer(desk, QStringLiteral("Writer"));
    WaylandClient mailer(desk, QStringLiteral("Mailer"));
    writer.open(letter);
    mailer.open(inbox);
    startRunning();
    double writing = 0;
    double mailing = 0;
    for (int round = 0; round < 3; ++round) {
        writing += keepInFront(writer, 0, letter, 400ms);
        mailing += keepInFront(mailer, 0, inbox, 500ms);
    }
    ASSERT_TRUE(desk.activate(kOwnTitle));
    product.program().terminate();
    EXPECT_EQ(product.program().exitStatus(), 0);
    const auto applications = product.applicationTimes();
    EXPECT_NEAR(applications.value(QStringLiteral("Writer")), writing, 6 * 0.15 + lateness.seconds());
    EXPECT_NEAR(applications.value(QStringLiteral("Mailer")), mailing, 6 * 0.15 + lateness.seconds());
    EXPECT_NEAR(product.windowTimes(QStringLiteral("Writer")).value(letter), writing,
                6 * 0.15 + lateness.seconds());
}

TEST(WaylandProductRefused, whereTheDesktopRefuses_noOtherScreensProgramIsCreditedAndTheReasonIsTold) {
    KWinDesk desk(KWinDesk::Windows::ForThoseThatAsk);
    // Programs of an X server beside the compositor must not get the time of all others.
    const Desk beside;
    WaylandClient writer(desk, QStringLiteral("Writer"));
    writer.open(QStringLiteral("Letter"));
    ServiceScript panel(desk.home(), QStringLiteral("tray.py"), {desk.bus().address()});
    panel.ask("watch");
    ProductProgram product(desk.home());
    product.setVariable(QStringLiteral("DISPLAY"), beside.display().name());
    product.setVariable(QStringLiteral("TICKLOG_LOG_STDERR"), QStringLiteral("1"));
    product.writeSettings(ProductProgram::runningSettings());
    product.launch(desk.environment(), {}, Program::Output::ErrorsRead);
    QByteArray log;
    // It runs as soon as it has looked for a tray.
    for (const char* news : {"The Plasma desktop is not used: ", "\ntray: "})
        while (!log.contains(news)) {
            const auto line = product.program().readLine();
            ASSERT_TRUE(line) << log.constData();
            log += *line + '\n';
        }
    EXPECT_TRUE(waitFor([&] { return panel.ask("item") == QLatin1String("ticklog"); }));
    EXPECT_TRUE(waitFor([&] { return panel.ask("tooltip").contains(QLatin1String("Install Ticklog")); }));
    panel.ask("open");
    EXPECT_TRUE(panel.ask("menu").contains(QLatin1String("Why Are Windows Not Counted? | - | Pause | ")));
    // By then any other program would have been credited too.
    static const QRegularExpression kASecond(QStringLiteral("total\u2003/00:00:(?!00)"));
    EXPECT_TRUE(waitFor([&] {
        panel.ask("open");
        return panel.ask("submenu All Timers").contains(kASecond);
    }));
    product.program().terminate();
    EXPECT_EQ(product.program().exitStatus(), 0);
    // Whether its own window has the focus it knows by itself; compositors differ in giving it.
    for (const QString& credited : product.applicationTimes().keys())
        EXPECT_TRUE(credited == kDesktopName || credited == kOwnName) << qPrintable(credited);
    EXPECT_TRUE(log.contains("Install Ticklog")) << log.constData();
}

} // namespace
