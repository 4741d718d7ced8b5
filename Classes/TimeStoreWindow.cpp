// SPDX-License-Identifier: MIT
#include "Classes/TimeStoreWindow.h"

TimeStoreWindow::TimeStoreWindow(TimeStoreServices& services, const PropertyListValue& name,
                                 const PropertyListValue& timeSpent)
    : TimeStoreNode(services, Kind::Window, name, timeSpent) {}

TimeStoreWindow::TimeStoreWindow(TimeStoreServices& services, const PropertyListValue& name,
                                 const std::optional<WindowElement>& element)
    : TimeStoreWindow(services, name) {
    if (element)
        setWindowElement(*element);
}

TimeStoreWindow::TimeStoreWindow(TimeStoreServices& services, const PropertyListDictionary& record)
    : TimeStoreNode(services, Kind::Window, record) {}

void TimeStoreWindow::setWindowElement(const WindowElement& element) {
    m_windowElement = std::make_unique<const WindowElement>(element);
}

QString TimeStoreWindow::description() const {
    return QStringLiteral("(%1 -> %2)").arg(name(), QString::number(activeTime(), 'f', 6));
}
