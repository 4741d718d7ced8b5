// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/X11Connection.h"

// Whether the X server is one that runs beside a Wayland compositor for older programs. It knows these alone. Asks the
// server and waits for it: for the start. REQUIRES: connection.isAlive().
bool isXwayland(X11Connection& connection);
