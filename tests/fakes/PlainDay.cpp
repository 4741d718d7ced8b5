// SPDX-License-Identifier: MIT
#include "tests/fakes/PlainDay.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kCountedSecond = 1.073741824;
// One minute in the display's seconds.
constexpr double kThreshold = 60 * kCountedSecond;

bool isNobody(const std::string& name) {
    return name == "ScreenSaverEngine" || name == "Idle";
}

} // namespace

void PlainDay::front(const std::string& name, bool hasDocument) {
    m_front = name;
    m_hasDocument = hasDocument;
    // It looks as if somebody were there again.
    m_isNoticed = false;
}

void PlainDay::start() {
    if (!m_isRunning)
        m_sinceStart = 0;
    m_isRunning = true;
    m_isNoticed = false;
}

void PlainDay::stop() {
    m_isRunning = false;
}

void PlainDay::clear() {
    m_applications.clear();
    m_windows.clear();
    m_sinceStart = 0;
    m_isNoticed = false;
}

void PlainDay::forget(const std::string& name) {
    m_applications.erase(name);
    m_windows.erase(name);
    m_isNoticed = false;
}

void PlainDay::freeze(const std::string& name) {
    const std::string frozen = name + " (Frozen)";
    m_applications[frozen] += m_applications[name];
    m_windows[frozen] += m_windows[name];
    m_applications.erase(name);
    m_windows.erase(name);
}

void PlainDay::input() {
    m_sinceInput = 0;
    m_bookedSinceInput = 0;
    m_isNoticed = false;
}

void PlainDay::work(double time) {
    m_sinceStart += time;
    credit(time);
    input();
}

void PlainDay::away(double time) {
    const double unnoticed = m_isNoticed ? 0 : std::min(time, std::max(0.0, kThreshold - m_sinceInput));
    m_sinceInput += unnoticed;
    m_sinceStart += unnoticed;
    credit(unnoticed);
    if (time <= unnoticed)
        return;
    noticeAbsence(0);
    m_sinceInput += time - unnoticed;
    m_sinceStart += time - unnoticed;
    creditIdle(time - unnoticed);
}

void PlainDay::stalled(double time) {
    m_sinceInput += time;
    m_sinceStart += time;
    if (m_isNoticed)
        creditIdle(time);
    else if (counted() < 60)
        credit(time);
    else
        noticeAbsence(time);
}

void PlainDay::adopt(const Account& applications, const Account& windows) {
    m_applications = applications;
    m_windows = windows;
}

void PlainDay::credit(double time) {
    if (!m_isRunning)
        return;
    if (isNobody(m_front)) {
        creditIdle(time);
        return;
    }
    m_applications[m_front] += time;
    if (m_hasDocument)
        m_windows[m_front] += time;
}

void PlainDay::creditIdle(double time) {
    if (!m_isRunning)
        return;
    m_applications["Idle"] += time;
    m_bookedSinceInput += time;
}

void PlainDay::noticeAbsence(double gap) {
    if (!m_isRunning || m_isNoticed)
        return;
    m_isNoticed = true;
    if (gap > counted())
        credit(gap - counted());
    const double ran = std::min(counted(), m_sinceStart);
    creditIdle(std::max(std::min(gap, counted()), ran - m_bookedSinceInput));
}

double PlainDay::counted() const {
    // A tiny bit more, because the threshold is reached by adding up.
    return std::floor(m_sinceInput / kCountedSecond + 1e-9);
}
