// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/TimeStoreNode.h"
#include "platform/WindowElement.h"

// The timer of one window of an application.
class TimeStoreWindow : public TimeStoreNode {
public:
    explicit TimeStoreWindow(TimeStoreServices& services, const PropertyListValue& name,
                             const PropertyListValue& timeSpent = 0.0);
    // Keeps the element, if there is one.
    TimeStoreWindow(TimeStoreServices& services, const PropertyListValue& name,
                    const std::optional<WindowElement>& element);
    TimeStoreWindow(TimeStoreServices& services, const PropertyListDictionary& record);

    // The window on the screen, null while none is known. Never persisted.
    const WindowElement* windowElement() const { return m_windowElement.get(); }
    void setWindowElement(const WindowElement& element);

    QString description() const override;

private:
    // By pointer, because most windows of a long account are not on the screen.
    std::unique_ptr<const WindowElement> m_windowElement;
};
