// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

// Makes assistive programs take a widget for what it is to people, such as a dialogue or a group, where its class says
// less. REQUIRES: none of them has met it yet. Giving it a title or an accessible name counts as meeting it, so this is
// the first thing to do with a widget.
void speakAs(QWidget& widget, QAccessible::Role role);
