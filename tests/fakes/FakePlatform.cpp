// SPDX-License-Identifier: MIT
#include "tests/fakes/FakePlatform.h"

FakePlatform::FakePlatform() {
    defaults.registerDefaults(registeredDefaults(folders.applicationSupport));
}

FakePlatform::~FakePlatform() = default;
