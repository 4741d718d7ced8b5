// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <type_traits>

// Gives a control the name by which tests and assistive programs find it.
template<class Control>
Control* named(Control* control, const QString& name) {
    control->setObjectName(name);
    if constexpr (std::is_base_of_v<QWidget, Control>)
        control->setAccessibleName(name);
    return control;
}
