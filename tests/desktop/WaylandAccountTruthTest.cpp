// SPDX-License-Identifier: MIT
// The engine on real Wayland desktops, compared with a stopwatch: how far the account may be from the truth.
#include "platform/desktop/NoDesktop.h"
#include "platform/desktop/SilenceWatch.h"
#include "platform/gnome/GnomeShellDesktop.h"
#include "platform/linux/ActivationService.h"
#include "platform/linux/MutterIdleTime.h"
#include "platform/wayland/PlasmaDesktop.h"
#include "platform/wayland/WaylandIdleTime.h"
#include "platform/wayland/WlrootsDesktop.h"
#include "tests/desktop/Account.h"
#include "tests/desktop/Desktops.h"
#include "tests/desktop/harness/GnomeDesk.h"
#include "tests/desktop/harness/Lateness.h"
#include "tests/desktop/harness/LiveEngine.h"
#include "tests/desktop/harness/WaylandClient.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>
#include <random>

namespace {

using namespace std::chrono_literals;
using Kind = WaylandClient::Kind;
using XServer = WaylandDesk::XServer;

template<class Source>
std::unique_ptr<Source> orAbort(Result<std::unique_ptr<Source>> opened) {
    if (!opened)
        qFatal("%s", qPrintable(opened.failure().text));
    return std::move(*opened);
}

// A compositor, and how Ticklog learns of its windows and of the time since the last input.
struct WaylandSource {
    virtual ~WaylandSource() = default;
    virtual WaylandDesk& desk() = 0;
    virtual SilenceWatch::Desktop desktop() = 0;
};

template<class Desk, class Desktop>
struct ProtocolSource : WaylandSource {
    ProtocolSource(Desk* made, LiveGround& ground)
        : theDesk(made)
        , windows(orAbort(Desktop::open(display(), ground.runLoop, ground.log, ground.entries)))
        , idleTime(std::make_unique<NoIdleTime>()) {
        if (auto told = WaylandIdleTime::open(display(), ground.runLoop, ground.log, ground.clock))
            idleTime = std::move(*told);
    }

    QByteArray display() const { return theDesk->display().toLocal8Bit(); }
    WaylandDesk& desk() override { return *theDesk; }
    SilenceWatch::Desktop desktop() override { return {*windows, *windows, *windows, *idleTime}; }

    std::unique_ptr<Desk> theDesk;
    std::unique_ptr<Desktop> windows;
    std::unique_ptr<IdleTime> idleTime;
};

struct GnomeSource : WaylandSource {
    explicit GnomeSource(LiveGround& ground)
        : bus(Bus::atAddress(gnome.bus().address()), ground.runLoop, ground.log)
        , name(bus, kTicklogName, ground.log)
        , windows(bus, name, ground.log, ground.entries)
        , idleTime(orAbort(MutterIdleTime::open(bus, ground.clock))) {}

    WaylandDesk& desk() override { return gnome; }
    SilenceWatch::Desktop desktop() override { return {windows, windows, windows, *idleTime}; }

    GnomeDesk gnome;
    Bus bus;
    BusName name;
    GnomeShellDesktop windows;
    std::unique_ptr<MutterIdleTime> idleTime;
};

std::unique_ptr<WaylandSource> makeSource(const std::string& compositor, LiveGround& ground) {
    if (compositor == "sway")
        return std::make_unique<ProtocolSource<SwayDesk, WlrootsDesktop>>(new SwayDesk(XServer::Own), ground);
    if (compositor == "labwc")
        return std::make_unique<ProtocolSource<LabwcDesk, WlrootsDesktop>>(new LabwcDesk(XServer::Own),
                                                                           ground);
    if (compositor == "phoc")
        return std::make_unique<ProtocolSource<PhocDesk, WlrootsDesktop>>(new PhocDesk, ground);
    if (compositor == "miriway")
        return std::make_unique<ProtocolSource<MiriwayDesk, WlrootsDesktop>>(new MiriwayDesk, ground);
    if (compositor == "kwin")
        return std::make_unique<ProtocolSource<KWinDesk, PlasmaDesktop>>(
            new KWinDesk(KWinDesk::Windows::ForAll, XServer::Own), ground);
    return std::make_unique<GnomeSource>(ground);
}

// Ticklog at work on a compositor.
struct AtWork {
    explicit AtWork(const std::string& compositor)
        : source(makeSource(compositor, ground)) {}

    LiveGround ground;
    const std::unique_ptr<WaylandSource> source;
    SilenceWatch watch{source->desktop(), ground.runLoop, ground.log, [] { return true; }, {500ms, 3s}};
    LiveEngine engine{ground, watch, watch, source->desktop().idleTime};
};

class WaylandAccountTruth : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        const std::string compositor = GetParam();
        SKIP_WHERE_NOT_PACKAGED(executableOf(QString::fromStdString(compositor)));
        work = std::make_unique<AtWork>(compositor);
    }

    WaylandDesk& desk() const { return work->source->desk(); }
    SilenceWatch& watch() const { return work->watch; }
    LiveEngine& engine() const { return work->engine; }

    bool isInFront(const QString& name) const {
        // KWin reports the classes of an X server's windows in lower case.
        return watch().activeApplication() &&
               watch().activeApplication()->name.compare(name, Qt::CaseInsensitive) == 0;
    }

    // Without an X server, its client uses Wayland.
    Kind kindOnX11() const { return desk().xDisplay().isEmpty() ? Kind::Qt : Kind::QtOnX11; }

    std::unique_ptr<AtWork> work;
};

INSTANTIATE_TEST_SUITE_P(Wayland, WaylandAccountTruth,
                         testing::Values("sway", "labwc", "phoc", "miriway", "kwin", "gnome"),
                         [](const auto& instance) { return std::string(instance.param); });

TEST_P(WaylandAccountTruth, quickSwitches_addUpToTheWallTimeAndGoToWhomTheyBelong) {
    constexpr int kSwitches = 60;
    const QStringList names{QStringLiteral("Writer"), QStringLiteral("Mailer"), QStringLiteral("Painter")};
    const std::vector<Kind> kinds{Kind::Qt, Kind::Gtk, kindOnX11()};
    std::vector<std::unique_ptr<WaylandClient>> programs;
    QStringList credited;
    for (const QString& name : names) {
        programs.push_back(std::make_unique<WaylandClient>(desk(), name, kinds[programs.size()]));
        programs.back()->open(name);
        ASSERT_TRUE(desk().activate(name));
        ASSERT_TRUE(waitFor([&] { return isInFront(name); })) << qPrintable(name);
        credited << watch().activeApplication()->name;
    }
    const unsigned seed = std::random_device()();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    std::vector<double> truth(names.size());
    std::vector<int> switches(names.size());

    const Instant beforeStart = engine().clock().instant();
    engine().timer().startTimer();
    const Instant afterStart = engine().clock().instant();
    const Lateness lateness;
    // The last program opened is in front.
    std::size_t inFront = programs.size() - 1;
    QElapsedTimer stopwatch;
    stopwatch.start();
    for (int i = 0; i < kSwitches; ++i) {
        const std::size_t next = (inFront + 1 + random() % (programs.size() - 1)) % programs.size();
        ASSERT_TRUE(desk().activate(names[qsizetype(next)]));
        ASSERT_TRUE(programs[next]->awaitFocus(0));
        truth[inFront] += double(stopwatch.nsecsElapsed()) / 1e9;
        stopwatch.start();
        inFront = next;
        ++switches[next];
        const qint64 staysFor = 20 + random() % 100;
        ASSERT_TRUE(waitFor([&] { return stopwatch.hasExpired(staysFor); }));
    }
    const Instant beforeEnd = engine().clock().instant();
    engine().timer().computeTime();
    const Instant afterEnd = engine().clock().instant();
    truth[inFront] += double(stopwatch.nsecsElapsed()) / 1e9;

    EXPECT_GE(sumOf(engine().tracker()), secondsBetween(afterStart, beforeEnd) * 0.999);
    EXPECT_LE(sumOf(engine().tracker()), secondsBetween(beforeStart, afterEnd) * 1.001);
    for (std::size_t i = 0; i < programs.size(); ++i)
        EXPECT_NEAR(timeOf(engine().tracker(), credited[qsizetype(i)]), truth[i],
                    (switches[i] + 1) * 0.15 + lateness.seconds())
            << qPrintable(names[qsizetype(i)]);
}

TEST_P(WaylandAccountTruth, aProgramThatIsGone_getsNoMoreTime) {
    const QString name = QStringLiteral("Writer");
    WaylandClient writer(desk(), name);
    writer.open(name);
    ASSERT_TRUE(desk().activate(name));
    engine().timer().startTimer();
    ASSERT_TRUE(waitFor([&] { return timeOf(engine().tracker(), name) > 0.2; }));
    const Seconds before = timeOf(engine().tracker(), kDesktopName);
    writer.die();
    ASSERT_TRUE(waitFor([&] { return timeOf(engine().tracker(), kDesktopName) > before; }));
    const Seconds writing = timeOf(engine().tracker(), name);
    ASSERT_TRUE(waitFor([&] { return timeOf(engine().tracker(), kDesktopName) > before + 0.3; }));
    EXPECT_EQ(timeOf(engine().tracker(), name), writing);
}

TEST_P(WaylandAccountTruth, aCompositorThatHangs_leavesNoWindowToCreditUntilItGoesOn) {
    const QString name = QStringLiteral("Writer");
    WaylandClient writer(desk(), name);
    writer.open(name);
    ASSERT_TRUE(desk().activate(name));
    engine().timer().startTimer();
    // Meanwhile it is asked, because it has no news.
    ASSERT_TRUE(waitFor([&] { return timeOf(engine().tracker(), name) > 1.5; }));
    EXPECT_EQ(watch().obstacle(), QString());
    // Without input the compositor is not asked, and starting all this may have taken long.
    ASSERT_TRUE(desk().touch());
    ASSERT_TRUE(waitFor([&] {
        const auto idle = work->source->desktop().idleTime.read().idle;
        return idle && *idle < 500ms;
    }));
    desk().pause();
    ASSERT_TRUE(waitFor([&] { return !watch().obstacle().isEmpty(); }));
    const Seconds writing = timeOf(engine().tracker(), name);
    const Seconds before = timeOf(engine().tracker(), kDesktopName);
    ASSERT_TRUE(waitFor([&] { return timeOf(engine().tracker(), kDesktopName) > before + 0.3; }));
    EXPECT_EQ(timeOf(engine().tracker(), name), writing);
    EXPECT_TRUE(watch().onScreenWindows().empty());
    desk().resume();
    EXPECT_TRUE(waitFor([&] { return timeOf(engine().tracker(), name) > writing + 0.2; }));
    EXPECT_EQ(watch().obstacle(), QString());
    EXPECT_EQ(work->ground.log.lines.filter(QStringLiteral("does not answer")).size(), 1);
}

TEST_P(WaylandAccountTruth, aCompositorThatIsGone_leavesNoWindowToCredit) {
    const QString name = QStringLiteral("Writer");
    WaylandClient writer(desk(), name);
    writer.open(name);
    ASSERT_TRUE(desk().activate(name));
    engine().timer().startTimer();
    ASSERT_TRUE(waitFor([&] { return timeOf(engine().tracker(), name) > 0.2; }));
    desk().kill();
    ASSERT_TRUE(waitFor([&] { return !watch().obstacle().isEmpty(); }));
    const Seconds writing = timeOf(engine().tracker(), name);
    const Seconds before = timeOf(engine().tracker(), kDesktopName);
    ASSERT_TRUE(waitFor([&] { return timeOf(engine().tracker(), kDesktopName) > before + 0.3; }));
    EXPECT_EQ(timeOf(engine().tracker(), name), writing);
    EXPECT_TRUE(watch().onScreenWindows().empty());
    desk().restart();
    WaylandClient painter(desk(), QStringLiteral("Painter"));
    painter.open(QStringLiteral("Picture"));
    ASSERT_TRUE(desk().activate(QStringLiteral("Picture")));
    EXPECT_TRUE(waitFor([&] { return timeOf(engine().tracker(), QStringLiteral("Painter")) > 0.2; }));
    EXPECT_EQ(watch().obstacle(), QString());
}

} // namespace
