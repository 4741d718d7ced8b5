// SPDX-License-Identifier: MIT
#include "tests/fakes/PlainHistory.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>

namespace {

constexpr PlainHistory::Time kLook = 100;
constexpr PlainHistory::Time kHour = 3'600'000;
constexpr double kCountedSecond = 1073.741824;
constexpr double kThreshold = 60 * kCountedSecond;
// The wall's clock was not set if it is off by less.
constexpr PlainHistory::Time kMostOff = 1000;
constexpr std::size_t kManyPieces = 20'000;

const std::string kNobody = "Idle";

} // namespace

void PlainHistory::launch() {
    stop();
    m_firstLook = m_from = m_countingSince = m_lastInput = m_now;
    m_isNoticed = false;
}

void PlainHistory::start() {
    if (m_isRunning)
        credit(m_seen);
    else
        m_from = m_countingSince = m_now;
    m_isRunning = true;
    m_isNoticed = isReached();
    if (m_isNoticed)
        absent();
}

void PlainHistory::stop() {
    if (m_isRunning)
        m_gaps += m_now - m_from;
    m_isRunning = false;
}

void PlainHistory::pass(Time time, bool isThere) {
    const Time end = m_now + time;
    const auto nextLook = [&](Time after) {
        return m_firstLook + ((after - m_firstLook) / kLook + 1) * kLook;
    };
    const Time noticing = nextLook(m_lastInput + Time(kThreshold));
    // In between nothing happens that a look could see.
    const Time last = nextLook(end) - kLook;
    for (const Time moment : {nextLook(m_now), noticing - kLook, noticing, last})
        if (moment > m_now && moment <= end) {
            moveTo(moment, isThere);
            look();
        }
    moveTo(end, isThere);
}

void PlainHistory::stand(Time time) {
    const Time before = m_now;
    moveTo(m_now + time, false);
    if ((before - m_firstLook) / kLook != (m_now - m_firstLook) / kLook)
        look();
}

void PlainHistory::moveTo(Time moment, bool isThere) {
    if (!m_isRunning)
        m_gaps += moment - m_now;
    m_wall += moment - m_now;
    m_now = moment;
    if (isThere)
        input();
}

void PlainHistory::front(const std::string& program, const std::string& title) {
    if (m_isRunning)
        credit(m_isNoticed ? Who{kNobody, {}} : m_seen);
    m_isNoticed = false;
    m_seen = m_front = {program, title};
}

void PlainHistory::look() {
    if (m_isRunning && !m_isNoticed && isReached()) {
        absent();
        m_isNoticed = true;
    } else {
        m_isNoticed = m_isNoticed && isReached();
        if (m_isRunning)
            credit(m_isNoticed ? Who{kNobody, {}} : m_front);
    }
    m_seen = m_front;
}

bool PlainHistory::isReached() const {
    return double(m_now - m_lastInput) >= kThreshold;
}

void PlainHistory::credit(const Who& who) {
    if (m_from < m_now) {
        noteWall();
        put(m_from, m_now, who);
    }
    m_from = m_now;
}

void PlainHistory::noteWall() {
    if (m_anchors.empty() ||
        std::abs(m_wall - (m_anchors.back().wall + m_now - m_anchors.back().at)) > kMostOff)
        m_anchors.push_back({m_from, m_wall - (m_now - m_from)});
}

void PlainHistory::absent() {
    noteWall();
    const Time gap = m_now - m_from;
    const Time absence = m_now - m_lastInput;
    // The totals count the display's seconds, which are longer, and so take fewer of them from what nobody
    // has seen pass.
    const double counted = std::floor(double(absence) / kCountedSecond + 1e-9) * 1000;
    m_before[m_seen.program] +=
        std::max(double(gap) - counted, 0.0) - double(std::max(gap - absence, Time(0)));
    if (gap > absence)
        put(m_from, m_lastInput, m_seen);
    const Time since = std::max(m_lastInput, m_countingSince);
    while (!m_pieces.empty() && m_pieces.back().to > since) {
        Piece& piece = m_pieces.back();
        const Time cut = piece.to - std::max(piece.from, since);
        m_sums[piece.key] -= cut;
        m_programs[piece.program] -= cut;
        if (piece.program != kNobody)
            m_before[piece.program] += double(cut);
        piece.to -= cut;
        if (piece.from < since)
            break;
        m_pieces.pop_back();
    }
    put(since, m_now, {kNobody, {}});
    m_from = m_now;
}

// In pieces of one hour of the wall's clock.
void PlainHistory::put(Time from, Time to, const Who& who) {
    if (m_pieces.size() > kManyPieces)
        m_pieces.erase(m_pieces.begin(), m_pieces.begin() + kManyPieces / 2);
    while (from < to) {
        const auto next = std::ranges::find_if(m_anchors, [&](const auto& each) { return each.at > from; });
        const Anchor& anchor = next == m_anchors.begin() ? *next : *(next - 1);
        const QDateTime local = QDateTime::fromMSecsSinceEpoch(anchor.wall + from - anchor.at);
        Time end = std::min(to, from + kHour - local.time().msecsSinceStartOfDay() % kHour);
        if (next != m_anchors.end())
            end = std::min(end, std::max(next->at, from + 1));
        const std::string key = local.toString(QStringLiteral("yyyyMMdd/HH/")).toStdString() + who.program +
                                '/' + who.title + (who.program == kNobody ? "/1" : "/0");
        m_sums[key] += end - from;
        m_programs[who.program] += end - from;
        if (!m_pieces.empty() && m_pieces.back().to == from && m_pieces.back().key == key)
            m_pieces.back().to = end;
        else
            m_pieces.push_back({from, end, who.program, key});
        from = end;
    }
}

PlainHistory::Time PlainHistory::of(const std::string& program) const {
    const auto found = m_programs.find(program);
    return found == m_programs.end() ? 0 : found->second;
}

double PlainHistory::beforeAbsences(const std::string& program) const {
    const auto found = m_before.find(program);
    return found == m_before.end() ? 0 : found->second;
}
