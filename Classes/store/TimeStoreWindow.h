// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreNode.h"
#include "platform/WindowElement.h"

// The timer of one window of an application.
class TimeStoreWindow : public TimeStoreNode {
public:
    explicit TimeStoreWindow(TimeStoreServices& services, const PropertyListValue& name,
                             const PropertyListValue& timeSpent = 0.0);
    // With an identity from its application; the registry is neither asked nor changed.
    TimeStoreWindow(TimeStoreServices& services, const PropertyListValue& name, const Identity& uuid);
    // From a record, whose identity is entered in the registry under `key`.
    TimeStoreWindow(TimeStoreServices& services, const PropertyListDictionary& record, const QString& key);

    // The registry key of all windows with that title, whatever their application.
    static QString keyOf(const QString& title) { return classNameOf(Kind::Window) + title; }

    // The window on the screen; null when it is not known. Never written.
    const WindowElement* windowElement() const { return m_windowElement.get(); }
    void setWindowElement(const WindowElement& element);
    void forgetWindowElement() { m_windowElement.reset(); }

    QString description() const override;

private:
    // A pointer, because most windows of an old account are not on the screen.
    std::unique_ptr<const WindowElement> m_windowElement;
};
