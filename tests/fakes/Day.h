// SPDX-License-Identifier: MIT
#pragma once

#include "tests/fakes/TestEngine.h"

#include <QMap>

#include <algorithm>
#include <cmath>
#include <stdexcept>

// A person's day at the desktop, told in sentences, and the account that Ticklog made of it:
//
//   Day day;
//   day.start();
//   day.front("Mail", "Inbox");
//   day.seconds(40);
//   day.idle(1200);
//   EXPECT_EQ(day.tree(), "Idle 1133.6, Mail 1006.3 [Inbox 1006.3]");
//
// The clock stands at 9:00 on 5 January 2026 and passes only as told, with a tick every 0.1 seconds.
class Day : public TestEngine {
public:
    using TestEngine::TestEngine;

    void start() { control.startTimer(); }

    void stop() { control.stopTimer(); }

    // An application comes to the front with one of its windows, or without any. Its other windows stay
    // behind.
    void front(const char* application, const char* title = nullptr) {
        arrange(application, title);
        fakes.frontApplication.switchTo(recordOf(application));
    }

    // The same, but the desktop does not tell: the next poll has to notice.
    void frontSilently(const char* application, const char* title = nullptr) {
        arrange(application, title);
        fakes.frontApplication.record = recordOf(application);
    }

    // Another window of the application in front.
    void window(const char* title) { arrange(fakes.frontApplication.record.value().name.toUtf8(), title); }

    // The front window takes another title.
    void retitle(const char* title) {
        auto& front = fakes.windowList.windows.at(0);
        const auto number = m_numbers.take(keyOf(front));
        front.name = QString::fromUtf8(title);
        m_numbers.insert(keyOf(front), number);
    }

    void closeAllWindows() { fakes.windowList.windows.clear(); }

    // Time passes while the person works.
    void seconds(double time) {
        fakes.idleTime.isBusy = true;
        advance(time);
        fakes.idleTime.isBusy = false;
        fakes.idleTime.touch();
    }

    // Time passes and nobody touches anything. Going on from another idle() it is the same pause.
    void idle(double time) { advance(time); }

    // The machine sleeps, says so before and after, and is woken by the person.
    void asleep(double time) {
        fakes.power.send(PowerMessage::CanSystemSleep, 1);
        fakes.power.send(PowerMessage::SystemWillSleep, 2);
        fakes.clock.sleepFor(nanoseconds(time));
        fakes.idleTime.touch();
        fakes.power.send(PowerMessage::SystemHasPoweredOn);
    }

    // Nothing runs, not even the timers, while time passes.
    void stall(double time) { fakes.clock.advance(nanoseconds(time)); }

    void freeze(const char* application, const char* title = nullptr) {
        tracker.branchNode(node(application, title));
    }

    void remove(const char* application, const char* title = nullptr) {
        tracker.removeUUIDs({node(application, title).uuid().value()});
    }

    // The timer of that name (not the one shown). Two of one name: the later one.
    TimeStoreNode& node(const char* application, const char* title = nullptr) {
        TimeStoreNode* found = nullptr;
        for (const auto& app : tracker.fullTimeSet())
            if (app->name() == QString::fromUtf8(application)) {
                if (!title)
                    found = app.get();
                else
                    for (const auto& window : app->windows())
                        if (window->name() == QString::fromUtf8(title))
                            found = window.get();
            }
        if (!found)
            throw std::out_of_range(std::string("there is no timer ") + application + " " +
                                    (title ? title : ""));
        return *found;
    }

    double secondsOf(const char* application, const char* title = nullptr) {
        return node(application, title).activeTime();
    }

    // "Idle 20, Mail 40 [Inbox 40]": timers by name with their seconds to a tenth, windows in brackets; with
    // the name shown behind a "~" where it is another.
    std::string tree() const {
        QMap<QString, QString> rows;
        for (const auto& app : tracker.fullTimeSet()) {
            QMap<QString, QString> windows;
            for (const auto& window : app->windows())
                windows.insert(sortKey(*window), rowOf(*window));
            QString row = rowOf(*app);
            if (!windows.isEmpty())
                row += QStringLiteral(" [%1]").arg(windows.values().join(QStringLiteral(", ")));
            rows.insert(sortKey(*app), row);
        }
        return QStringList(rows.values()).join(QStringLiteral(", ")).toStdString();
    }

    // The number of the window that bears that title on the screen.
    std::int64_t windowNumber(const char* application, const char* title) {
        return numberOf(QString::fromUtf8(application) + u'/' + QString::fromUtf8(title));
    }

    static std::chrono::nanoseconds nanoseconds(double time) {
        return std::chrono::nanoseconds(std::llround(time * 1e9));
    }

    void advance(double time) { fakes.runLoop.advance(nanoseconds(time)); }

    ApplicationRecord recordOf(const char* application) {
        const QString name = QString::fromUtf8(application);
        auto process = m_processes.find(name);
        if (process == m_processes.end())
            process = m_processes.insert(name, 1000 + m_processes.size());
        return {name, QStringLiteral("/usr/bin/") + name.toLower(), *process};
    }

private:
    // Two of one name are told apart, and neither comes before a shorter name.
    static QString sortKey(const TimeStoreNode& node) {
        return node.name() + QChar(1) + node.uuid().value().text();
    }

    static QString rowOf(const TimeStoreNode& node) {
        const double tenths = std::round(node.activeTime() * 10) / 10;
        const QString shown = node.renamedName() == node.name() ? QString() : u'~' + node.renamedName();
        return QStringLiteral("%1%2 %3").arg(node.name(), shown).arg(tenths);
    }

    static QString keyOf(const WindowListEntry& entry) {
        return entry.ownerName + u'/' + entry.name.value_or(QString());
    }

    std::int64_t numberOf(const QString& key) {
        auto number = m_numbers.find(key);
        if (number == m_numbers.end())
            number = m_numbers.insert(key, ++m_lastNumber);
        return *number;
    }

    void arrange(const char* application, const char* title) {
        auto& windows = fakes.windowList.windows;
        const auto process = recordOf(application).processIdentifier;
        if (!title) {
            std::erase_if(windows,
                          [&](const auto& entry) { return entry.ownerProcessIdentifier == process; });
            return;
        }
        WindowListEntry front{0, process, 0, QString::fromUtf8(title), QString::fromUtf8(application)};
        front.number = numberOf(keyOf(front));
        std::erase_if(windows, [&](const auto& entry) { return entry.number == front.number; });
        windows.insert(windows.begin(), front);
    }

    QMap<QString, std::int64_t> m_processes;
    QMap<QString, std::int64_t> m_numbers;
    std::int64_t m_lastNumber = 100;
};
