// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

// Lets assistive programs say which of its items a control of our own has come to. The item takes the focus for them,
// because a change of a name or a value they leave unsaid, or say as a number. Call it while the control has the focus.
void speakItem(QWidget& control, const QString& name);
// What the control has come to last; empty for nothing yet.
QString spokenItem(const QWidget& control);
