// SPDX-License-Identifier: MIT
#include "tests/fakes/Day.h"

#include "Classes/engine/TimeActivatorScreenCapture.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace {

// Tells two timers of the same name apart without sorting them before a shorter name.
QString sortKey(const TimeStoreNode& node) {
    return node.name() + QChar(1) + node.uuid().value().text();
}

QString rowOf(const TimeStoreNode& node) {
    const double tenths = std::round(node.activeTime() * 10) / 10;
    const QString shown = node.renamedName() == node.name() ? QString() : u'~' + node.renamedName();
    return QStringLiteral("%1%2 %3").arg(node.name(), shown).arg(tenths);
}

QString keyOf(const WindowListEntry& entry) {
    return entry.ownerName + u'/' + entry.name.value_or(QString());
}

} // namespace

Day::Day(Ticking ticking)
    : TestEngine({}, ticking == Ticking::OnDemand) {}

const Ticks& Day::ticks() const {
    return dynamic_cast<const TimeActivatorScreenCapture&>(tracker.timeActivator()).ticks();
}

void Day::front(const char* application, const char* title) {
    arrange(application, title);
    fakes.frontApplication.switchTo(recordOf(application));
}

void Day::frontUndecided(const char* application, const char* title) {
    arrange(application, title);
    fakes.frontApplication.switchTo(recordOf(application), true);
}

void Day::turnOut(const char* application, const char* program) {
    fakes.runLoop.wake();
    ApplicationRecord record = recordOf(application);
    record.name = QString::fromUtf8(program);
    for (WindowListEntry& window : fakes.windowList.windows)
        if (window.ownerProcessIdentifier == record.processIdentifier)
            window.ownerName = record.name;
    fakes.frontApplication.switchTo(record);
}

void Day::frontSilently(const char* application, const char* title) {
    arrange(application, title);
    fakes.frontApplication.record = recordOf(application);
}

void Day::retitle(const char* title) {
    fakes.runLoop.wake();
    auto& front = fakes.windowList.windows.at(0);
    const auto number = m_numbers.take(keyOf(front));
    front.name = QString::fromUtf8(title);
    m_numbers.insert(keyOf(front), number);
}

void Day::seconds(double time) {
    fakes.runLoop.wake();
    fakes.idleTime.setBusy(true);
    advance(time);
    fakes.idleTime.setBusy(false);
}

void Day::asleep(double time) {
    fakes.runLoop.wake();
    fakes.power.aboutToSleep();
    fakes.clock.sleepFor(nanoseconds(time));
    fakes.runLoop.wake();
    fakes.idleTime.touch();
    fakes.power.wake();
}

void Day::freeze(const char* application, const char* title) {
    fakes.runLoop.wake();
    tracker.branchNode(node(application, title));
}

void Day::remove(const char* application, const char* title) {
    fakes.runLoop.wake();
    tracker.removeUUIDs({node(application, title).uuid().value()});
}

TimeStoreNode& Day::node(const char* application, const char* title) {
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
        throw std::out_of_range(std::string("there is no timer ") + application + " " + (title ? title : ""));
    return *found;
}

double Day::secondsOf(const char* application, const char* title) {
    return node(application, title).activeTime();
}

std::string Day::tree() const {
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

std::int64_t Day::windowNumber(const char* application, const char* title) {
    return numberOf(QString::fromUtf8(application) + u'/' + QString::fromUtf8(title));
}

std::chrono::nanoseconds Day::nanoseconds(double time) {
    return std::chrono::nanoseconds(std::llround(time * 1e9));
}

ApplicationRecord Day::recordOf(const char* application) {
    const QString name = QString::fromUtf8(application);
    auto process = m_processes.find(name);
    if (process == m_processes.end())
        process = m_processes.insert(name, 1000 + m_processes.size());
    return {name, QStringLiteral("/usr/bin/") + name.toLower(), *process};
}

std::int64_t Day::numberOf(const QString& key) {
    auto number = m_numbers.find(key);
    if (number == m_numbers.end())
        number = m_numbers.insert(key, ++m_lastNumber);
    return *number;
}

void Day::arrange(const char* application, const char* title) {
    fakes.runLoop.wake();
    auto& windows = fakes.windowList.windows;
    const auto process = recordOf(application).processIdentifier;
    if (!title) {
        std::erase_if(windows, [&](const auto& entry) { return entry.ownerProcessIdentifier == process; });
        return;
    }
    WindowListEntry front{0, process, true, QString::fromUtf8(title), QString::fromUtf8(application)};
    front.number = numberOf(keyOf(front));
    std::erase_if(windows, [&](const auto& entry) { return entry.number == front.number; });
    windows.insert(windows.begin(), front);
}

void Day::window(const char* title) {
    arrange(fakes.frontApplication.record.value().name.toUtf8(), title);
}
