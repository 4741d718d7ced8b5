// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/PropertyListValue.h"
#include "tests/desktop/harness/XClient.h"

#include <QMap>

// The whole program as a user runs it, on a desk, with the desk's home.
class Product {
public:
    // Its timer runs from the start, and nobody is ever idle, unless the settings say otherwise.
    static PropertyListDictionary runningSettings();

    explicit Product(Desk& desk)
        : m_desk(desk) {}

    // Sets a variable of the environment it is started with.
    void setVariable(const QString& name, const QString& value) { m_variables.insert(name, value); }

    void writeSettings(const PropertyListDictionary& settings) const;
    PropertyListDictionary settings() const;
    // Starts it and waits until its window is in front. Answers whether that came.
    bool start(const QStringList& arguments = {});

    // Asks the window manager for as long as another window comes in between.
    bool bringToFront(XClient& client, xcb_window_t window) const;
    Program& program() { return *m_program; }

    // Its window; 0 while it has none.
    xcb_window_t window() const;
    bool hasWindow() const { return window() != 0; }
    // Ends it by a signal, and answers its exit status; absent when it did not exit by itself.
    std::optional<int> end(int signal);

    QString databasePath() const;
    // The database on the disk; empty when there is none that can be read.
    PropertyListDictionary database() const;
    // Seconds by application name.
    QMap<QString, double> applicationTimes() const;
    // Seconds by window name, of one application.
    QMap<QString, double> windowTimes(const QString& application) const;

private:
    QString settingsPath() const;

    Desk& m_desk;
    QMap<QString, QString> m_variables;
    std::unique_ptr<Program> m_program;
};
