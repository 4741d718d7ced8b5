// SPDX-License-Identifier: MIT
#include "app/ExitGuard.h"

#include <QtDebug>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <unistd.h>

namespace {

constexpr int kFailure = 3;

void rescue() {
    std::fputs("rescued", stderr);
}

// Like Qt's Wayland plug-in when the compositor goes: warns, and ends the process at once.
[[noreturn]] void loseDisplay() {
    qWarning("The Wayland connection broke. Did the Wayland compositor die?");
    _exit(kFailure);
}

TEST(ExitGuard, aDisplayThatGoes_isAnEndInGoodOrderAfterTheRescue) {
    EXPECT_EXIT(
        {
            const ExitGuard guard(rescue);
            loseDisplay();
        },
        testing::ExitedWithCode(0), "rescued");
}

TEST(ExitGuard, aDisplayThatGoesOnTheWayOut_isNoFailure) {
    EXPECT_EXIT(
        {
            auto guard = std::make_unique<ExitGuard>(rescue);
            guard.reset();
            loseDisplay();
        },
        testing::ExitedWithCode(0), "broke");
}

TEST(ExitGuard, withoutAGuard_theToolkitEndsAsItDoes) {
    EXPECT_EXIT(loseDisplay(), testing::ExitedWithCode(kFailure), "broke");
}

TEST(ExitGuard, anExitOverItsHead_runsTheRescueAndIsNoFailure) {
    EXPECT_EXIT(
        {
            const ExitGuard guard(rescue);
            std::exit(kFailure);
        },
        testing::ExitedWithCode(0), "rescued");
}

TEST(ExitGuard, anExitThatIsMeant_keepsItsStatusAfterTheRescue) {
    EXPECT_EXIT(
        {
            const ExitGuard guard(rescue);
            ExitGuard::exit(kFailure);
        },
        testing::ExitedWithCode(kFailure), "rescued");
}

} // namespace
