// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/X11Connection.h"

// Whether the X server runs beside a Wayland compositor, for older programs: then it knows only these. Asks
// the server and waits, so use it only at the start. REQUIRES: connection.isAlive().
bool isXwayland(X11Connection& connection);
