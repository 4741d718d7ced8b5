// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class Sandbox;
class SystemIdleTime;
class UserDefaults;
struct ActivityServices;
struct TimeStoreServices;

// What the tracker uses of the rest of the program. It outlives the tracker.
struct TrackerServices {
    TimeStoreServices& store;
    ActivityServices& activity;
    UserDefaults& defaults;
    SystemIdleTime& idleTime;
    Sandbox& sandbox;
    // Asks for accessibility trust when a start is refused for want of it.
    std::function<void()> checkAccessibilityTrust;
};
