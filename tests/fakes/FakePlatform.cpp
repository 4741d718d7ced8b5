// SPDX-License-Identifier: MIT
#include "tests/fakes/FakePlatform.h"

FakePlatform::FakePlatform(bool tellsOfWaits) {
    runLoop.tellsOfWaits = tellsOfWaits;
    defaults.registerDefaults(registeredDefaults(folders.applicationSupport));
}

FakePlatform::~FakePlatform() = default;
