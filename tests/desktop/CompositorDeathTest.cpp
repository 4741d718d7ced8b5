// SPDX-License-Identifier: MIT
// The built program when its compositor is killed at any moment, and the next session.
#include "tests/Places.h"
#include "tests/desktop/WaylandScene.h"
#include "tests/desktop/harness/GnomeDesk.h"
#include "tests/desktop/harness/Lateness.h"
#include "tests/desktop/harness/ProductProgram.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>
#include <random>

namespace {

using namespace std::chrono_literals;

const QString kOwnTitle = QStringLiteral("Ticklog");
const QString kWriter = QStringLiteral("Writer");
const QString kLetter = QStringLiteral("Letter");

// A compositor that can tell when the program's window is in front.
class Stage {
public:
    explicit Stage(const QString& compositor) {
        if (compositor == QLatin1String("gnome"))
            m_gnome = std::make_unique<GnomeDesk>(
                GnomeDesk::Extension{.executable = QStringLiteral(TICKLOG_BINARY_DIR "/ticklog")});
        else
            m_scene = makeWaylandScene(compositor);
    }

    WaylandDesk& desk() { return m_gnome ? *m_gnome : m_scene->anyDesk(); }

    bool awaitProduct() {
        return m_gnome ? m_gnome->bringToFront(kOwnTitle)
                       : m_scene->seenAfterWaitingFor(QStringLiteral("Ticklog: Ticklog")) ==
                             QLatin1String("Ticklog: Ticklog");
    }

    bool bringToFront(const QString& title) {
        return m_gnome ? m_gnome->bringToFront(title) : desk().activate(title);
    }

private:
    std::unique_ptr<GnomeDesk> m_gnome;
    std::unique_ptr<AnyWaylandScene> m_scene;
};

class CompositorDeath : public testing::TestWithParam<const char*> {
protected:
    static double secondsOf(const QElapsedTimer& stopwatch) { return double(stopwatch.nsecsElapsed()) / 1e9; }

    // Keeps the letter in front for this long, kills the compositor, and answers for how many seconds it was
    // in front.
    double writeUntilTheEnd(std::chrono::milliseconds duration) {
        WaylandClient writer(desk, kWriter);
        writer.open(kLetter);
        EXPECT_TRUE(stage.bringToFront(kLetter));
        EXPECT_TRUE(writer.awaitFocus(0));
        const double writing = passTime(duration);
        desk.kill();
        return writing;
    }

    double written() const { return product.applicationTimes().value(kWriter); }

    Stage stage{QString::fromLatin1(GetParam())};
    WaylandDesk& desk = stage.desk();
    ProductProgram product{desk.home()};
    Lateness lateness;
};

INSTANTIATE_TEST_SUITE_P(Wayland, CompositorDeath, testing::Values("sway", "kwin", "gnome"),
                         [](const auto& instance) { return std::string(instance.param); });

TEST_P(CompositorDeath, atAnyMoment_theAccountIsSavedAndTheNextSessionGoesOn) {
    product.writeSettings(ProductProgram::runningSettings());
    product.launch(desk.environment());
    ASSERT_TRUE(stage.awaitProduct());
    const unsigned seed = std::random_device()();
    SCOPED_TRACE(seed);
    const double writing = writeUntilTheEnd(std::chrono::milliseconds(300 + seed % 700));
    QElapsedTimer sinceDeath;
    sinceDeath.start();
    ASSERT_TRUE(product.program().waitUntilEnded());
    const double ending = secondsOf(sinceDeath);
    EXPECT_EQ(product.program().exitStatus(), 0);
    const double saved = written();
    EXPECT_LT(saved, writing + 0.3 + ending + lateness.seconds()) << "time for a window that is gone";
    // Not exact: on a busy machine the program hears late that a window has come to the front.
    EXPECT_GT(saved, writing / 5) << "what was credited was not saved";

    desk.restart();
    product.launch(desk.environment());
    ASSERT_TRUE(stage.awaitProduct());
    const double before = product.applicationTimes().value(kOwnTitle);
    const double running = passTime(500ms);
    product.program().terminate();
    EXPECT_EQ(product.program().exitStatus(), 0);
    EXPECT_EQ(written(), saved) << "time for a window that is gone";
    EXPECT_GT(product.applicationTimes().value(kOwnTitle), before + running / 5)
        << "the timer does not run again";
}

} // namespace
