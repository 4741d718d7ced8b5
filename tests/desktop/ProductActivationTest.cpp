// SPDX-License-Identifier: MIT
// The built program on a session bus: launchers bring it to the front, have it open files, and have the bus
// start it.
#include "platform/bus/BusName.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "tests/Places.h"
#include "tests/desktop/ActivationCaller.h"
#include "tests/desktop/harness/Product.h"

#include <QCoreApplication>
#include <QDBusMetaType>
#include <QFileInfo>

#include <csignal>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString kProgram = QStringLiteral(TICKLOG_BINARY_DIR "/ticklog");

class ProductActivationTest : public testing::Test {
protected:
    void start() {
        ASSERT_TRUE(product.start());
        ASSERT_TRUE(waitFor([this] { return caller.bearer() == product.program().processIdentifier(); }));
    }

    // Tells the bus how to start the program on this desk, as a package does.
    void installService() {
        desk.home().write(u"data/dbus-1/services/org.ticklog.Ticklog.service"_s,
                          "[D-BUS Service]\nName=org.ticklog.Ticklog\nExec=" TICKLOG_BINARY_DIR "/ticklog\n");
        QMap<QString, QString> environment{{u"DISPLAY"_s, desk.display().name()}};
        auto update = QDBusMessage::createMethodCall(kBusServiceName, kBusServicePath, kBusServiceName,
                                                     u"UpdateActivationEnvironment"_s);
        qDBusRegisterMetaType<QMap<QString, QString>>();
        update << QVariant::fromValue(environment);
        caller.bus().connection().call(update);
        caller.bus().connection().call(QDBusMessage::createMethodCall(kBusServiceName, kBusServicePath,
                                                                      kBusServiceName, u"ReloadConfig"_s));
    }

    // Ends the process that the bus has started.
    void end(qint64 process) {
        ASSERT_NE(process, 0);
        ::kill(pid_t(process), SIGTERM);
        EXPECT_TRUE(waitFor([this] { return caller.bearer() == 0 && !product.hasWindow(); }));
    }

    // Counts Ticklog's windows and questions, by their title.
    int windows() const {
        int count = 0;
        for (const xcb_window_t window : desk.probe().windows())
            count += desk.probe().text(window, "_NET_WM_NAME") == "Ticklog";
        return count;
    }

    Desk desk{QStringLiteral("openbox"), Desk::Bus::Own};
    Product product{desk};
    ActivationCaller caller{desk.bus().address()};
};

TEST_F(ProductActivationTest, activate_bringsTheWindowBackToTheFront) {
    start();
    XClient other(desk);
    const xcb_window_t letter = other.open({.title = "Letter", .className = "Writer"});
    ASSERT_TRUE(product.bringToFront(other, letter));
    EXPECT_EQ(caller.activate(), u"done");
    EXPECT_TRUE(waitFor([this] { return desk.probe().activeWindow() == product.window(); }));
}

TEST_F(ProductActivationTest, open_asksAndReplacesTheTimers) {
    static_cast<void>(PropertyList::writeXmlFile(
        PropertyListDictionary{{u"Version"_s, u"1.5"_s},
                               {u"Apps"_s, PropertyListArray{PropertyListDictionary{
                                               {u"App"_s, PropertyListDictionary{{u"Name"_s, u"Mail"_s},
                                                                                 {u"ActiveTime"_s, 60.0}}},
                                               {u"Windows"_s, PropertyListArray()}}}}},
        desk.home().path() + u"/My times.tkd"_s));
    start();
    EXPECT_EQ(caller.open({u"file://"_s + desk.home().path() + u"/My%20times.tkd"_s}), u"done");
    ASSERT_TRUE(waitFor([this] { return windows() == 2; })) << "the question";
    EXPECT_FALSE(product.database().contains(u"Apps"_s) && product.applicationTimes().contains(u"Mail"_s));
    // Moves from Cancel to Replace, as soon as the question has the keyboard.
    ASSERT_TRUE(waitFor([this] { return desk.probe().activeWindow() != product.window(); }));
    EXPECT_TRUE(desk.run(u"xdotool"_s, {u"key"_s, u"Tab"_s, u"space"_s}));
    ASSERT_TRUE(waitFor([this] { return windows() == 1; }));
    // The file is read in the background; the backup is made before it replaces anything.
    ASSERT_TRUE(waitFor([this] {
        return QFileInfo::exists(QFileInfo(product.databasePath()).path() +
                                 u"/Primary Database - Import Backup.tkd"_s);
    }));
    EXPECT_EQ(product.end(SIGTERM), 0);
    EXPECT_EQ(product.applicationTimes().value(u"Mail"_s), 60.0);
}

TEST_F(ProductActivationTest, anUnknownAction_isAnErrorAndNothingMore) {
    start();
    EXPECT_EQ(caller.ask(u"ActivateAction"_s, {u"quit"_s, QVariantList(), QVariantMap()}), u"InvalidArgs");
    EXPECT_EQ(caller.open({u"sftp://host/a.tkd"_s}), u"InvalidArgs");
    EXPECT_EQ(windows(), 1);
    EXPECT_EQ(product.end(SIGTERM), 0);
}

TEST_F(ProductActivationTest, theBus_startsTheProgramOnceForTwoWhoAskAtOnce) {
    installService();
    ASSERT_EQ(caller.bearer(), 0);
    caller.send(u"Activate"_s, {QVariantMap()});
    ActivationCaller second(desk.bus().address());
    second.send(u"Activate"_s, {QVariantMap()});
    ASSERT_TRUE(waitFor([&] { return caller.answers.size() + second.answers.size() == 2; }));
    EXPECT_EQ(caller.answers + second.answers, QStringList({u"done"_s, u"done"_s}));
    ASSERT_TRUE(waitFor([this] { return product.hasWindow(); }));
    const qint64 process = caller.bearer();
    EXPECT_EQ(caller.activate(), u"done");
    EXPECT_EQ(windows(), 1);
    EXPECT_EQ(caller.bearer(), process);
    // A start without the bus finds the same process.
    const auto plain = desk.start(kProgram);
    EXPECT_TRUE(plain->waitUntilEnded());
    EXPECT_EQ(plain->exitStatus(), 0);
    EXPECT_EQ(caller.bearer(), process);
    end(process);
}

TEST_F(ProductActivationTest, oneThatRunsWithoutABus_isCalledToTheFrontByTheOneTheBusStarts) {
    installService();
    product.setVariable(u"DBUS_SESSION_BUS_ADDRESS"_s, u"disabled:"_s);
    ASSERT_TRUE(product.start());
    XClient other(desk);
    const xcb_window_t letter = other.open({.title = "Letter", .className = "Writer"});
    ASSERT_TRUE(product.bringToFront(other, letter));
    caller.send(u"Activate"_s, {QVariantMap()});
    EXPECT_TRUE(waitFor([this] { return desk.probe().activeWindow() == product.window(); }));
    EXPECT_EQ(windows(), 1);
    EXPECT_EQ(product.end(SIGTERM), 0);
}

TEST_F(ProductActivationTest, aStrangerWithTheName_changesNothingForTheProgram) {
    RecordingLog log;
    QtRunLoop runLoop(log);
    Bus bus(Bus::atAddress(desk.bus().address()), runLoop, log);
    const BusName stranger(bus, kTicklogName, log);
    ASSERT_TRUE(waitFor([&] { return stranger.isOwned(); }));
    product.writeSettings(Product::runningSettings());
    ASSERT_TRUE(product.start());
    const auto second = desk.start(kProgram);
    EXPECT_TRUE(second->waitUntilEnded());
    EXPECT_EQ(second->exitStatus(), 0);
    EXPECT_EQ(caller.bearer(), QCoreApplication::applicationPid());
    EXPECT_EQ(product.end(SIGTERM), 0);
    EXPECT_GT(product.applicationTimes().value(u"Ticklog"_s), 0.0);
}

} // namespace
