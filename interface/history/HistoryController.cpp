// SPDX-License-Identifier: MIT
#include "interface/history/HistoryController.h"

#include "Classes/common/Settings.h"
#include "Classes/common/ShownNames.h"
#include "Classes/engine/TimeTracker.h"
#include "Classes/record/WholeFile.h"
#include "Classes/report/Moment.h"
#include "interface/export/FileExtension.h"
#include "interface/history/AmendTexts.h"
#include "interface/history/DayPicture.h"
#include "interface/history/HistoryOutline.h"
#include "interface/history/HistoryPane.h"
#include "interface/history/PeriodPicture.h"
#include "interface/history/RangeBar.h"
#include "interface/history/TimeSheetWindow.h"
#include "interface/mainwindow/CutoffSlider.h"
#include "interface/mainwindow/MainWindow.h"
#include "interface/mainwindow/SumBar.h"
#include "interface/mainwindow/TimeSum.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "interface/shell/Alerts.h"
#include "platform/foundation/text/LocalizedStrings.h"
#include "platform/foundation/time/LocalTime.h"

#include <QLineEdit>
#include <QLocale>
#include <QStackedWidget>

#include <cmath>

namespace {

constexpr std::chrono::seconds kBetweenAskings{1};
constexpr std::chrono::milliseconds kAskingTolerance{200};
// For longer ranges nobody sees a second.
constexpr int kMostDaysBySecond = 31;
constexpr std::chrono::seconds kBetweenLongAskings{15};
constexpr int kMostDaysOnSheet = 31;
// So short that nobody takes the old figures for the new ones, so long that quick answers do not flicker.
constexpr std::chrono::milliseconds kPatience{100};

Qt::DayOfWeek firstDayOfWeek() {
    return QLocale().firstDayOfWeek();
}

// The pictures, files and other programs have a name of their own for what belongs to no project.
QString shownProject(const QString& name) {
    return name == kNoProject ? localized("No Project") : name;
}

QString timeText(qint64 milliseconds) {
    return TimeTracker::timeStringForDouble(double(milliseconds) / 1000);
}

} // namespace

HistoryController::HistoryController(Ground ground, History& history)
    : m_ground(std::move(ground))
    , m_history(history)
    , m_colors(m_ground.platform.defaults, m_ground.labelOf)
    , m_pane(m_ground.window.historyPane())
    , m_actions(m_ground.window.historyActions())
    , m_reader(history.reader())
    , m_titleReader(history.reader())
    , m_sheetReader(history.reader())
    , m_projectReader(history.reader())
    , m_range(CalendarRange::around(CalendarRange::Kind::Day, today(), firstDayOfWeek())) {
    const auto kind = std::clamp(m_ground.platform.defaults.integerForKey(kHistoryRange), std::int64_t(0),
                                 std::int64_t(CalendarRange::Kind::Year));
    m_range = m_range.as(CalendarRange::Kind(kind), today(), firstDayOfWeek());
    if (m_ground.platform.defaults.boolForKey(kHistoryByProject))
        m_actions.byProject->setChecked(true);
    m_pane.sumBar().showCutoff(timeText(0));
    m_pane.setColors(m_colors);
    m_pane.outline().setColors([this](const QString& name) { return colorOf(name); });
    connectRange();
    connectRows();
    connectPictures();
    showRange(m_range);
    m_ground.window.setHistoryShown(m_ground.platform.defaults.boolForKey(kHistoryShown));
}

void HistoryController::connectRange() {
    const auto on = [this](QAction* action, auto react) {
        QObject::connect(action, &QAction::triggered, &m_receiver, react);
    };
    for (std::size_t kind = 0; kind < m_actions.kinds.size(); ++kind)
        on(m_actions.kinds[kind], [this, kind] {
            m_ground.platform.defaults.setObject(kHistoryRange, std::int64_t(kind));
            showRange(m_range.as(CalendarRange::Kind(kind), today(), firstDayOfWeek()));
            if (CalendarRange::Kind(kind) == CalendarRange::Kind::Span)
                m_pane.rangeBar().openCalendar();
        });
    on(m_actions.back, [this] { showRange(m_range.previous()); });
    on(m_actions.forward, [this] { showRange(m_range.next()); });
    on(m_actions.today, [this] {
        const bool isSpan = m_range.kind() == CalendarRange::Kind::Span;
        showRange(CalendarRange::around(isSpan ? CalendarRange::Kind::Day : m_range.kind(), today(),
                                        firstDayOfWeek()));
    });
    on(m_actions.zoomIn, [this] { m_pane.dayPicture().zoomIn(); });
    on(m_actions.zoomOut, [this] { m_pane.dayPicture().zoomOut(); });
    on(m_actions.resetZoom, [this] { m_pane.dayPicture().reset(); });
    on(m_actions.timeSheet, [this] { showTimeSheet(); });
    for (QAction* by : {m_actions.byProgram, m_actions.byProject})
        on(by, [this] {
            m_ground.platform.defaults.setObject(kHistoryByProject, m_actions.byProject->isChecked());
            showAnswer();
        });
    QObject::connect(&m_pane.rangeBar(), &RangeBar::dayChosen, &m_receiver, [this](QDate day) {
        showRange(CalendarRange::around(m_range.kind(), day, firstDayOfWeek()));
    });
    QObject::connect(&m_pane.rangeBar(), &RangeBar::spanChosen, &m_receiver,
                     [this](QDate first, QDate last) { showRange(CalendarRange::span(first, last)); });
}

void HistoryController::connectRows() {
    MainWindow& window = m_ground.window;
    HistoryOutline& outline = m_pane.outline();
    QObject::connect(&window, &MainWindow::historySeenChanged, &m_receiver, [this](bool isSeen) {
        m_isSeen = isSeen;
        askAnew();
    });
    QObject::connect(&window.searchAppField(), &QLineEdit::textChanged, &m_receiver, [this] { askAnew(); });
    QObject::connect(&window.projectOutline(), &TKOutlineDisplayView::selectionDidChange, &m_receiver,
                     [this] { askAnew(); });
    QObject::connect(&m_pane, &HistoryPane::exportWanted, &m_receiver, [this] { exportShown(); });
    QObject::connect(&window, &MainWindow::historyShownChanged, &m_receiver,
                     [this](bool isShown) { m_ground.platform.defaults.setObject(kHistoryShown, isShown); });
    QObject::connect(&outline, &HistoryOutline::selectionDidChange, &m_receiver, [this] { showSum(); });
    QObject::connect(&outline.rows(), &HistoryModel::partsWanted, &m_receiver,
                     [this](const QString& name) { askForTitles(name); });
    QObject::connect(&m_pane.sumBar(), &SumBar::sumClicked, &outline, &QAbstractItemView::clearSelection);
    QObject::connect(&m_pane.sumBar().cutoff(), &CutoffSlider::secondsChanged, &m_receiver,
                     [this](float seconds) {
                         m_pane.outline().setCutoff(std::llround(double(seconds) * 1000));
                         m_pane.sumBar().showCutoff(TimeTracker::timeStringForDouble(double(seconds)));
                         m_pane.outline().setInvitation(invitation());
                     });
}

// What is seen is clicked, and the rest follows.
void HistoryController::connectPictures() {
    HistoryOutline& outline = m_pane.outline();
    const DayPicture& day = m_pane.dayPicture();
    QObject::connect(&day, &DayPicture::rangeChosen, &m_receiver,
                     [this](qint64 begin, qint64 end) { showPiece(std::pair(begin, end)); });
    QObject::connect(&day, &DayPicture::rangeReset, &m_receiver, [this] {
        if (m_piece)
            showPiece(std::nullopt);
    });
    QObject::connect(&day, &DayPicture::programChosen, &m_receiver, [this, &outline](const QString& name) {
        if (m_actions.byProgram->isChecked())
            outline.choose(name);
    });
    QObject::connect(&day, &DayPicture::projectChosen, &m_receiver, [this, &outline](const QString& name) {
        if (m_actions.byProject->isChecked())
            outline.choose(shownProject(name));
    });
    const PeriodPicture& period = m_pane.periodPicture();
    QObject::connect(&period, &PeriodPicture::entryChosen, &m_receiver,
                     [&outline](const QString& name) { outline.choose(shownProject(name)); });
    QObject::connect(&period, &PeriodPicture::barChosen, &m_receiver, [this](QDate first) {
        switch (m_range.step()) {
        case CalendarRange::Step::Month:
            return showRange(CalendarRange::around(CalendarRange::Kind::Month, first, firstDayOfWeek()));
        case CalendarRange::Step::Week:
            return showRange(CalendarRange::around(CalendarRange::Kind::Week, first, Qt::Monday));
        default:
            return showRange(CalendarRange::around(CalendarRange::Kind::Day, first, firstDayOfWeek()));
        }
    });
}

QDate HistoryController::today() const {
    return dayOf(localTime(m_ground.platform.clock.now()), m_history.dayBegins());
}

void HistoryController::showRange(const CalendarRange& range) {
    m_range = range;
    m_piece.reset();
    m_actions.forKind(range.kind())->setChecked(true);
    m_pane.rangeBar().show(range, {});
    askAnew();
}

void HistoryController::showPiece(std::optional<std::pair<qint64, qint64>> piece) {
    m_piece = piece;
    QString times;
    if (piece) {
        const auto timeOf = [](qint64 moment) {
            return QLocale().toString(QDateTime::fromMSecsSinceEpoch(moment).time(), QLocale::ShortFormat);
        };
        times = timeOf(piece->first) + QStringLiteral(" – ") + timeOf(piece->second);
    }
    m_pane.rangeBar().show(m_range, times);
    askAnew();
}

void HistoryController::askAnew() {
    // Who types on does not see the old figures for longer.
    if (m_isSeen && !m_patience)
        m_patience = m_ground.platform.runLoop.scheduleOnce(
            kPatience, [this] { showOnly(Knowledge::Reading, RangeAnswer()); });
    askForAll();
}

void HistoryController::lookAgain() {
    askForAll();
    if (m_timeSheet && m_timeSheet->isVisible())
        askForSheet([this](const std::vector<RangeAnswer::Bar>& bars) { m_timeSheet->renew(bars); });
}

void HistoryController::askForAll() {
    followCounting();
    if (!m_isSeen)
        return;
    ++m_questions;
    m_pane.outline().forgetParts();
    ask();
}

void HistoryController::askAgain() {
    if (m_ground.isCounting() && !m_isAsking)
        ask();
}

void HistoryController::ask() {
    m_isAsking = true;
    m_reader->ask<RangeAnswer>(
        [question = question()](SqliteDatabase& file) { return question.answeredBy(file); },
        [this](const Result<RangeAnswer>& answer) {
            m_isAsking = false;
            m_patience = nullptr;
            if (answer)
                return showOnly(Knowledge::Known, *answer);
            // There may be nothing to read yet.
            const bool isMissing = answer.failure().kind == Failure::Kind::NotFound;
            showOnly(isMissing ? Knowledge::Known : Knowledge::Unreadable, RangeAnswer());
        });
}

// Of all projects, whichever is chosen.
void HistoryController::askForProjectTimes() {
    if (!m_ground.showProjectTimes)
        return;
    if (!m_ground.project())
        return m_ground.showProjectTimes(m_knowledge == Knowledge::Known ? &m_answer : nullptr);
    RangeQuestion ofAll = question();
    ofAll.project.reset();
    m_projectReader->ask<RangeAnswer>([ofAll](SqliteDatabase& file) { return ofAll.answeredBy(file); },
                                      [this, asked = m_questions](const Result<RangeAnswer>& answer) {
                                          if (m_isSeen && asked == m_questions)
                                              m_ground.showProjectTimes(answer ? &*answer : nullptr);
                                      });
}

void HistoryController::showOnly(Knowledge knowledge, RangeAnswer answer) {
    m_knowledge = knowledge;
    m_answer = std::move(answer);
    if (m_isSeen)
        askForProjectTimes();
    AmendTexts::translate(m_answer);
    showAnswer();
}

void HistoryController::askForTitles(const QString& program) {
    m_titleReader->ask<std::vector<RangeAnswer::Entry>>(
        [question = question(), name = ShownNames::recorded(program)](SqliteDatabase& file) {
            return question.titlesOf(name, file);
        },
        [this, program, asked = m_questions](const Result<std::vector<RangeAnswer::Entry>>& titles) {
            if (titles && asked == m_questions)
                m_pane.outline().rows().showParts(program, *titles);
        });
}

RangeQuestion HistoryController::question() const {
    return {.days = m_range,
            .piece = m_piece,
            .search = m_ground.window.searchAppField().text(),
            .project = m_ground.project(),
            .folders = m_ground.platform.folders,
            .unwritten = m_history.unwritten()};
}

void HistoryController::showAnswer() {
    const bool isByProject = m_actions.byProject->isChecked();
    HistoryOutline& outline = m_pane.outline();
    outline.rows().setByProject(isByProject);
    std::vector<RangeAnswer::Entry> entries = isByProject ? m_answer.projects : m_answer.programs;
    if (isByProject)
        for (auto& project : entries)
            project.name = shownProject(project.name);
    outline.rows().show(entries, m_answer.work, !isByProject && !question().hasTitles());
    outline.setInvitation(invitation());
    showPicture();
    qint64 inProjects = 0;
    for (const RangeAnswer::Entry& project : m_answer.projects)
        inProjects += project.length;
    const bool isShared = isByProject && inProjects > m_answer.work;
    m_pane.showNote(isShared ? localized("Time that belongs to several projects is in each of them.")
                             : QString());
    showSum();
    m_shown.tell();
}

void HistoryController::showPicture() {
    const bool isDay = m_range.step() == CalendarRange::Step::Stretch;
    m_actions.offerZoom(isDay && m_ground.window.isHistoryShown());
    if (!isDay) {
        const auto by =
            m_actions.byProject->isChecked() ? PeriodPicture::By::Projects : PeriodPicture::By::Programs;
        m_pane.periodPicture().show(m_range, m_answer.bars, by, today());
        return m_pane.showPicture(m_pane.periodPicture());
    }
    const auto beginOf = [this](QDate day) {
        return beginningOf(day, m_history.dayBegins()).toMSecsSinceEpoch();
    };
    const auto [begin, end] =
        m_piece.value_or(std::pair(beginOf(m_range.first()), beginOf(m_range.last().addDays(1))));
    m_pane.dayPicture().show(begin, end, m_answer.pieces,
                             localTime(m_ground.platform.clock.now()).toMSecsSinceEpoch());
    m_pane.showPicture(m_pane.dayPicture());
}

QColor HistoryController::colorOf(const QString& shownName) const {
    const bool isByProject = m_actions.byProject->isChecked();
    if (isByProject && shownName == shownProject(kNoProject))
        return PictureColors::nobody(m_pane.palette());
    if (m_range.step() != CalendarRange::Step::Stretch)
        return m_pane.periodPicture().colorOf(shownName);
    return m_pane.dayPicture().colorOf(isByProject ? DayPicture::Projects : DayPicture::Programs, shownName);
}

void HistoryController::showSum() {
    const auto selected = m_pane.outline().selectedLength();
    const bool isFound = !m_ground.window.searchAppField().text().isEmpty();
    const SumMode mode = selected             ? isFound ? SumMode::FoundInSelection : SumMode::Selected
                         : isFound            ? SumMode::Found
                         : m_ground.project() ? SumMode::Project
                                              : SumMode::Total;
    const bool isKnown = m_knowledge == Knowledge::Known;
    m_pane.sumBar().showSum(isKnown ? timeText(selected.value_or(m_answer.work)) : QString());
    m_pane.sumBar().showSumMode(sumImage(mode), sumCaption(mode));
}

QString HistoryController::invitation() const {
    if (!m_history.isWanted())
        return localized("No history is kept. You can turn it on in the preferences, under History.");
    if (const QString obstacle = m_history.obstacle(); !obstacle.isEmpty())
        return obstacle;
    if (m_knowledge == Knowledge::Reading)
        return localized("Reading…");
    if (m_knowledge == Knowledge::Unreadable)
        return localized("The history cannot be read at the moment.");
    if (!m_answer.programs.empty())
        return localized("Nothing here reaches the minimum time.");
    if (!m_ground.window.searchAppField().text().isEmpty())
        return localized("Nothing in this time matches the search.");
    if (m_ground.project())
        return localized("No work for this project in this time.");
    if (m_range.first() > today())
        return localized("This time is still to come.");
    const QString nothing = localized("No work was recorded in this time.");
    return m_range.contains(today()) && !m_ground.isCounting()
               ? nothing + u' ' + localized("Start the timer to record where your time goes, and when.")
               : nothing;
}

void HistoryController::followCounting() {
    const bool canGrow = m_isSeen && !m_piece && m_range.contains(today());
    if (!canGrow) {
        m_nextAsking = nullptr;
        return;
    }
    const auto interval = m_range.days() <= kMostDaysBySecond ? kBetweenAskings : kBetweenLongAskings;
    m_nextAsking =
        m_ground.platform.runLoop.scheduleRepeating(interval, kAskingTolerance, [this] { askAgain(); });
}

void HistoryController::showTimeSheet() {
    const bool hasRoom = m_range.days() > 1 && m_range.days() <= kMostDaysOnSheet;
    const CalendarRange days =
        hasRoom ? m_range
                : CalendarRange::around(CalendarRange::Kind::Week, m_range.first(), firstDayOfWeek());
    m_onSheet = question();
    m_onSheet->days = days;
    m_onSheet->piece.reset();
    m_onSheet->search.clear();
    askForSheet([this, days](const std::vector<RangeAnswer::Bar>& bars) {
        if (!m_timeSheet)
            m_timeSheet = new TimeSheetWindow(m_ground.platform.defaults, m_ground.alerts,
                                              m_ground.platform.folders.documents, &m_ground.window);
        m_timeSheet->show(bars, days.first(), days.last());
    });
}

void HistoryController::askForSheet(std::function<void(const std::vector<RangeAnswer::Bar>&)> told) {
    m_onSheet->unwritten = m_history.unwritten();
    m_sheetReader->ask<RangeAnswer>(
        [asked = *m_onSheet](SqliteDatabase& file) { return asked.answeredBy(file); },
        [this, told = std::move(told)](const Result<RangeAnswer>& answer) {
            if (!answer && answer.failure().kind != Failure::Kind::NotFound)
                return m_ground.alerts.showError(localized("The history cannot be read at the moment."),
                                                 answer.failure().text);
            told(answer ? answer->bars : std::vector<RangeAnswer::Bar>());
        });
}

void HistoryController::exportShown() {
    if (m_knowledge != Knowledge::Known)
        return;
    const QString suffix = QStringLiteral(".csv");
    const QString name = localized("Ticklog History") + u' ' + m_range.first().toString(Qt::ISODate) + suffix;
    const auto chosen = m_ground.alerts.chooseExportFile(localized("Export to CSV"),
                                                         m_ground.platform.folders.documents + u'/' + name);
    const auto path = chosen ? withExtension(m_ground.alerts, *chosen, suffix) : std::nullopt;
    if (!path)
        return;
    if (const Outcome written = WholeFile::write(m_pane.outline().csv(), *path); !written)
        m_ground.alerts.showError(localized("The history could not be exported."), written.failure().text);
}
