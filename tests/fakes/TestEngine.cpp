// SPDX-License-Identifier: MIT
#include "tests/fakes/TestEngine.h"

TestEngine::TestEngine(const TimeTracker::MakeActivator& makeActivator, bool tellsOfWaits)
    : fakes(tellsOfWaits)
    , tracker(trackerServices, makeActivator) {}

TestEngine::~TestEngine() = default;
