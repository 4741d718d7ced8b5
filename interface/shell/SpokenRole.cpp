// SPDX-License-Identifier: MIT
#include "interface/shell/SpokenRole.h"

#include <QAccessibleWidget>

namespace {

constexpr const char* kSpokenRole = "spokenRole";

QAccessibleInterface* describe(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    const QVariant role = widget ? widget->property(kSpokenRole) : QVariant();
    return role.isValid() ? new QAccessibleWidget(widget, QAccessible::Role(role.toInt())) : nullptr;
}

} // namespace

void speakAs(QWidget& widget, QAccessible::Role role) {
    // Installing the same factory again has no effect.
    QAccessible::installFactory(describe);
    widget.setProperty(kSpokenRole, int(role));
}
