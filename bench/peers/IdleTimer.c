// SPDX-License-Identifier: MIT
// The floor: a program that wakes up ten times a second and does nothing.
#include <stdint.h>
#include <sys/timerfd.h>
#include <unistd.h>

int main(void) {
    const int timer = timerfd_create(CLOCK_MONOTONIC, 0);
    const struct itimerspec tenth = {{0, 100000000}, {0, 100000000}};
    timerfd_settime(timer, 0, &tenth, 0);
    uint64_t expirations = 0;
    while (read(timer, &expirations, sizeof expirations) > 0) {
    }
    return 0;
}
