// SPDX-License-Identifier: MIT
// The built program on GNOME Shell, with the extension that reports to it alone.
#include "tests/Places.h"
#include "tests/desktop/harness/GnomeDesk.h"
#include "tests/desktop/harness/Lateness.h"
#include "tests/desktop/harness/ProductProgram.h"
#include "tests/desktop/harness/WaylandClient.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

const QString kOwnTitle = QStringLiteral("Ticklog");

// A program with one window, and how long it was in front.
struct Worker {
    Worker(GnomeDesk& on, const QString& program, const QString& window)
        : desk(on)
        , name(program)
        , title(window)
        , client(on, program) {
        client.open(title);
    }

    void work(std::chrono::milliseconds duration) {
        EXPECT_TRUE(desk.bringToFront(title));
        EXPECT_TRUE(client.awaitFocus(0));
        seconds += passTime(duration);
    }

    GnomeDesk& desk;
    QString name;
    QString title;
    WaylandClient client;
    double seconds = 0;
};

class GnomeProduct : public testing::Test {
protected:
    // Starts it with a running timer, and its window in front.
    void start() {
        product.writeSettings(ProductProgram::runningSettings());
        product.launch(desk.environment());
        ASSERT_TRUE(desk.bringToFront(kOwnTitle));
    }

    GnomeDesk desk{GnomeDesk::Extension{.executable = QStringLiteral(TICKLOG_BINARY_DIR "/ticklog")}};
    ProductProgram product{desk.home()};
    Worker writer{desk, QStringLiteral("Writer"), QStringLiteral("Letter")};
    Lateness lateness;
};

TEST_F(GnomeProduct, windowsInFront_areCreditedWithTheirTimes) {
    Worker mailer(desk, QStringLiteral("Mailer"), QStringLiteral("Inbox"));
    start();
    for (int round = 0; round < 3; ++round) {
        writer.work(400ms);
        mailer.work(500ms);
    }
    ASSERT_TRUE(desk.activate(kOwnTitle));
    product.program().terminate();
    EXPECT_EQ(product.program().exitStatus(), 0);
    const double tolerance = 6 * 0.15 + lateness.seconds();
    for (const Worker* worker : {&writer, &mailer}) {
        EXPECT_NEAR(product.applicationTimes().value(worker->name), worker->seconds, tolerance);
        EXPECT_NEAR(product.windowTimes(worker->name).value(worker->title), worker->seconds, tolerance);
    }
}

TEST_F(GnomeProduct, withoutATray_itStaysInTheTaskBar) {
    product.setVariable(QStringLiteral("TICKLOG_LOG_STDERR"), QStringLiteral("1"));
    product.writeSettings(ProductProgram::runningSettings());
    product.launch(desk.environment(), {}, Program::Output::ErrorsRead);
    for (std::optional<QByteArray> line; !line || !line->contains("stays in the task bar");) {
        line = product.program().readLine();
        ASSERT_TRUE(line);
    }
    EXPECT_TRUE(desk.bringToFront(kOwnTitle));
}

TEST(GnomeProductWithoutItsExtension, windowsOfProgramsThatTell_areCredited) {
    GnomeDesk desk({.isEnabled = false, .executable = QStringLiteral(TICKLOG_BINARY_DIR "/ticklog")});
    ASSERT_TRUE(desk.letProgramsTell());
    ProductProgram product(desk.home());
    product.setVariable(QStringLiteral("TICKLOG_LOG_STDERR"), QStringLiteral("1"));
    PropertyListDictionary settings = ProductProgram::runningSettings();
    settings.insert(QStringLiteral("kTKShellExtension"), QStringLiteral("declined"));
    product.writeSettings(settings);
    Worker writer(desk, QStringLiteral("Writer"), QStringLiteral("Letter"));
    Worker mailer(desk, QStringLiteral("Mailer"), QStringLiteral("Inbox"));
    product.launch(desk.environment(), {}, Program::Output::ErrorsRead);
    for (std::optional<QByteArray> line; !line || !line->contains("AT-SPI");) {
        line = product.program().readLine();
        ASSERT_TRUE(line);
    }
    ASSERT_TRUE(desk.bringToFront(kOwnTitle));
    Lateness lateness;
    for (int round = 0; round < 3; ++round) {
        writer.work(400ms);
        mailer.work(500ms);
    }
    product.program().terminate();
    EXPECT_EQ(product.program().exitStatus(), 0);
    const double tolerance = 6 * 0.15 + lateness.seconds();
    for (const Worker* worker : {&writer, &mailer})
        EXPECT_NEAR(product.windowTimes(worker->name).value(worker->title), worker->seconds, tolerance);
}

} // namespace
