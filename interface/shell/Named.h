// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

// Gives a control the name by which the code and the tests find it. People never hear it: assistive programs speak the
// control's text or label or, if it has none, the accessible name.
template<class Control>
Control* named(Control* control, const QString& name) {
    control->setObjectName(name);
    return control;
}

// The same for a control without a text or a label of its own: `spoken` is what people hear it called.
template<class Control>
Control* named(Control* control, const QString& name, const QString& spoken) {
    control->setAccessibleName(spoken);
    return named(control, name);
}
