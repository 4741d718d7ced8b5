// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListValue.h"
#include "tests/desktop/harness/Program.h"
#include "tests/desktop/harness/TemporaryHome.h"

#include <QMap>

#include <memory>

// The whole program with the home of some desk, as a user runs it, and its files.
class ProductProgram {
public:
    // Settings with which the timer runs from the start and nobody is ever idle.
    static PropertyListDictionary runningSettings();

    explicit ProductProgram(const TemporaryHome& home)
        : m_home(home) {}

    // Sets a variable of the environment it is started with.
    void setVariable(const QString& name, const QString& value) { m_variables.insert(name, value); }

    void writeSettings(const PropertyListDictionary& settings) const;
    PropertyListDictionary settings() const;
    // Starts it on the desk in `environment`.
    void launch(QProcessEnvironment environment, const QStringList& arguments = {},
                Program::Output output = Program::Output::Discarded);
    Program& program() { return *m_program; }

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

    const TemporaryHome& m_home;
    QMap<QString, QString> m_variables;
    std::unique_ptr<Program> m_program;
};
