// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Accessibility.h"
#include "platform/FileViewer.h"
#include "platform/FrontApplication.h"
#include "platform/IdleTime.h"
#include "platform/LoginItems.h"
#include "platform/OwnProgram.h"
#include "platform/PowerEvents.h"
#include "platform/Sandbox.h"
#include "platform/ServiceManagement.h"
#include "platform/SessionEvents.h"
#include "platform/SystemTray.h"
#include "platform/TaskBar.h"
#include "platform/WindowList.h"
#include "platform/foundation/files/Folders.h"
#include "platform/foundation/files/UserDefaults.h"
#include "platform/foundation/observing/NotificationCenter.h"
#include "platform/foundation/time/Clock.h"
#include "platform/foundation/time/RunLoop.h"
#include "platform/foundation/values/SystemLog.h"

// All services of the desktop that the program uses, chosen once at launch. Their owner keeps them until
// everything else has ended.
struct Platform {
    Clock& clock;
    RunLoop& runLoop;
    SystemLog& log;
    NotificationCenter& notifications;
    UserDefaults& defaults;
    Folders folders;
    FrontApplication& frontApplication;
    WindowList& windowList;
    IdleTime& idleTime;
    PowerEvents& power;
    SessionEvents& session;
    Accessibility& accessibility;
    FileViewer& fileViewer;
    Sandbox& sandbox;
    ServiceManagement& serviceManagement;
    OwnProgram& ownProgram;
    TaskBar& taskBar;
    SystemTray& systemTray;
    LoginItems& loginItems;
};
