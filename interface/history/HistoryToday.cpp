// SPDX-License-Identifier: MIT
#include "interface/history/HistoryToday.h"

#include "Classes/engine/TimeTracker.h"
#include "Classes/report/Moment.h"
#include "Classes/report/RangeQuestion.h"
#include "platform/foundation/text/LocalizedStrings.h"
#include "platform/foundation/time/LocalTime.h"

#include <QMenu>

namespace {

QString lineFor(qint64 work) {
    return localized("Today: %@")
        .replace(QLatin1String("%@"), TimeTracker::timeStringForDouble(double(work) / 1000));
}

constexpr std::chrono::seconds kBetweenAskings{60};
constexpr std::chrono::seconds kAskingTolerance{10};

} // namespace

HistoryToday::HistoryToday(Ground ground, Told told)
    : m_ground(std::move(ground))
    , m_told(std::move(told))
    , m_reader(m_ground.history.reader()) {
    QObject::connect(&m_ground.menu, &QMenu::aboutToShow, &m_receiver, [this] { ask(); });
    m_nextAsking = m_ground.runLoop.scheduleRepeating(kBetweenAskings, kAskingTolerance, [this] {
        if (m_ground.isCounting())
            ask();
    });
    m_amendings = m_ground.history.observeAmending([this] { ask(); });
    // Until the file has answered.
    m_told(m_ground.history.isKept() ? lineFor(0) : QString());
    ask();
}

void HistoryToday::ask() {
    if (!m_ground.history.isKept())
        return m_told({});
    const QDate today = dayOf(localTime(m_ground.clock.now()), m_ground.history.dayBegins());
    const RangeQuestion question{.days = CalendarRange::span(today, today),
                                 .piece = {},
                                 .search = {},
                                 .project = {},
                                 .folders = m_ground.folders,
                                 .unwritten = m_ground.history.unwritten()};
    m_reader->ask<qint64>([question](SqliteDatabase& file) { return question.workIn(file); },
                          [this](const Result<qint64>& work) { m_told(lineFor(work ? *work : 0)); });
}
