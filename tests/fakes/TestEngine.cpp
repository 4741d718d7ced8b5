// SPDX-License-Identifier: MIT
#include "tests/fakes/TestEngine.h"

TestEngine::TestEngine(const TimeTracker::MakeActivator& makeActivator)
    : tracker(trackerServices, makeActivator) {}

TestEngine::~TestEngine() = default;
