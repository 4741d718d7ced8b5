// SPDX-License-Identifier: MIT
#include "interface/shell/RoomForTexts.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QWidget>

namespace {

void grow(QWidget& window) {
    const QLayout* layout = window.layout();
    if (!window.isVisible() || !layout || !layout->hasHeightForWidth())
        return;
    const int needed = layout->totalHeightForWidth(window.width());
    if (window.height() < needed)
        window.resize(window.width(), needed);
}

} // namespace

RoomForTexts::RoomForTexts() {
    qApp->installEventFilter(this);
}

bool RoomForTexts::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::LayoutRequest || !watched->isWidgetType())
        return false;
    // When the layout has heard of it as well.
    if (auto* window = static_cast<QWidget*>(watched); window->isWindow())
        QMetaObject::invokeMethod(
            window, [window] { grow(*window); }, Qt::QueuedConnection);
    return false;
}
