// SPDX-License-Identifier: MIT
#include "Classes/store/TimeStoreWindow.h"

TimeStoreWindow::TimeStoreWindow(TimeStoreServices& services, const PropertyListValue& name,
                                 const PropertyListValue& timeSpent)
    : TimeStoreNode(services, Kind::Window, name, timeSpent) {}

TimeStoreWindow::TimeStoreWindow(TimeStoreServices& services, const PropertyListValue& name,
                                 const Identity& uuid)
    : TimeStoreNode(services, Kind::Window, name, 0.0, uuid) {}

TimeStoreWindow::TimeStoreWindow(TimeStoreServices& services, const PropertyListDictionary& record,
                                 const QString& key)
    : TimeStoreNode(services, Kind::Window, record, key) {}

void TimeStoreWindow::setWindowElement(const WindowElement& element) {
    m_windowElement = std::make_unique<const WindowElement>(element);
}

QString TimeStoreWindow::description() const {
    return QStringLiteral("(%1 -> %2)").arg(name(), QString::number(activeTime(), 'f', 6));
}
