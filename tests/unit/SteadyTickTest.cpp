// SPDX-License-Identifier: MIT
// The cost of a tick in allocations. Counts every allocation of this program, including those of libraries.
#include "tests/fakes/Day.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>

namespace {

std::atomic<long> g_allocations{0};

} // namespace

// A sanitizer has its own allocator, which reports its calls; without one, the C library's is wrapped.
#if defined(__SANITIZE_ADDRESS__)
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*)(const volatile void*, std::size_t),
                                                         void (*)(const volatile void*));

namespace {

const int g_hooks = __sanitizer_install_malloc_and_free_hooks(
    [](const volatile void*, std::size_t) { ++g_allocations; }, [](const volatile void*) {});

} // namespace
#else
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* __libc_calloc(std::size_t count, std::size_t size);
extern "C" void* __libc_realloc(void* memory, std::size_t size);

extern "C" void* malloc(std::size_t size) noexcept {
    g_allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_malloc(size);
}

extern "C" void* calloc(std::size_t count, std::size_t size) noexcept {
    g_allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_calloc(count, size);
}

extern "C" void* realloc(void* memory, std::size_t size) noexcept {
    g_allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_realloc(memory, size);
}
#endif

namespace {

class SteadyTickTest : public testing::Test {
protected:
    // How many allocations so many ticks take.
    long allocationsOf(int ticks) {
        const long before = g_allocations;
        for (int tick = 0; tick < ticks; ++tick)
            m_day.advance(0.1);
        return g_allocations - before;
    }

    Day m_day;
};

TEST_F(SteadyTickTest, theCount_countsTextsAndObjects) {
    const long before = g_allocations;
    const QString text(100, u'x');
    const auto object = std::make_unique<std::array<char, 100>>();
    EXPECT_GE(g_allocations - before, 2) << text.size() << object->size();
}

TEST_F(SteadyTickTest, aTickWithNothingChanged_allocatesNothing) {
    m_day.start();
    m_day.front("Mail", "Inbox (3)");
    m_day.seconds(20);
    m_day.fakes.idleTime.isBusy = true;
    EXPECT_EQ(allocationsOf(1000), 0);
}

TEST_F(SteadyTickTest, aTickWhileIdle_allocatesNothing) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.idle(1000);
    EXPECT_EQ(allocationsOf(1000), 0);
}

TEST_F(SteadyTickTest, aTickWhileStopped_allocatesNothing) {
    m_day.front("Mail", "Inbox");
    m_day.seconds(20);
    EXPECT_EQ(allocationsOf(1000), 0);
}

TEST_F(SteadyTickTest, aSwitchToAKnownWindow_allocatesNothingInTheStore) {
    m_day.start();
    m_day.front("Mail", "Inbox");
    m_day.seconds(1);
    m_day.front("Editor", "a.txt");
    m_day.seconds(1);
    const QString mail = QStringLiteral("Mail");
    const QString inbox = QStringLiteral("Inbox");
    const WindowElement window(m_day.windowNumber("Mail", "Inbox"));
    const long before = g_allocations;
    m_day.tracker.mainWindowDidChangeToAppName(mail, window, inbox);
    EXPECT_EQ(g_allocations - before, 0);
}

TEST_F(SteadyTickTest, theTotal_allocatesNothing) {
    for (int app = 0; app < 500; ++app)
        m_day.tracker.addWindowWithName(QStringLiteral("Application %1").arg(app), 5.0);
    m_day.node("Application 7").setRenamedNameStorage(QStringLiteral("Seven"));
    const long before = g_allocations;
    const double total = m_day.tracker.totalTime();
    EXPECT_EQ(g_allocations - before, 0);
    EXPECT_EQ(total, 2500);
}

} // namespace
