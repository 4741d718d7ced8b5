// SPDX-License-Identifier: MIT
#include "interface/history/Amending.h"

#include "Classes/history/HistoryFinding.h"
#include "interface/history/AmendActions.h"
#include "interface/history/AmendCommand.h"
#include "interface/history/AmendTexts.h"
#include "interface/history/DayPicture.h"
#include "interface/history/ForgetCommand.h"
#include "interface/history/HistoryController.h"
#include "interface/history/HistoryOutline.h"
#include "interface/history/HistoryPane.h"
#include "interface/history/PictureTexts.h"
#include "interface/mainwindow/MainWindow.h"
#include "interface/shell/Alerts.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QMenu>
#include <QUndoStack>

using Kind = Amendment::Kind;

Amending::Amending(Ground ground)
    : m_ground(std::move(ground))
    , m_actions(m_ground.window.historyActions().amend)
    , m_reader(m_ground.history.reader())
    , m_freeReader(m_ground.history.reader())
    , m_answers(m_ground.view.observeAnswers([this] { offer(); }))
    , m_amendings(m_ground.history.observeAmending([this] { m_ground.view.lookAgain(); })) {
    connect(m_actions.give, &QMenu::aboutToShow, this, &Amending::fillGive);
    connect(m_actions.name, &QAction::triggered, this, &Amending::name);
    connect(m_actions.book, &QAction::triggered, this, &Amending::book);
    connect(m_actions.forget, &QAction::triggered, this, &Amending::forget);
    const HistoryPane& pane = m_ground.window.historyPane();
    connect(&pane.outline(), &HistoryOutline::selectionDidChange, this, &Amending::offer);
    connect(&pane.dayPicture(), &TimePicture::currentItemChanged, this, &Amending::offer);
    connect(&m_ground.window, &MainWindow::historyShownChanged, this, &Amending::offer);
    // The mouse asks the viewport for a menu, the keyboard asks what has the focus.
    pane.outline().viewport()->installEventFilter(this);
    pane.outline().installEventFilter(this);
    pane.dayPicture().installEventFilter(this);
    offer();
}

void Amending::offer() {
    const Chosen what = m_meant.value_or(chosen());
    const bool isShown = m_ground.window.isHistoryShown() && m_ground.history.isKept();
    const bool isThere = isShown && what.kind != Chosen::Kind::Nothing && what.kind != Chosen::Kind::Gap;
    m_actions.give->menuAction()->setEnabled(isThere && !what.isIdle);
    m_actions.name->setEnabled(isThere && !what.isIdle);
    m_actions.forget->setEnabled(isThere);
    m_actions.book->setEnabled(m_ground.history.isKept());
}

void Amending::fillGive() {
    QMenu& menu = *m_actions.give;
    menu.clear();
    const auto add = [&](const QString& text, const ProjectList::Project& project) {
        connect(menu.addAction(text), &QAction::triggered, this, [this, project] { give(project); });
    };
    add(localized("&No Project"), nullptr);
    menu.addSeparator();
    for (const ProjectList::Project& project : m_ground.projects.projects())
        add(PlainText::cut(project->label(), PlainText::kLongestEntry).replace(u'&', QLatin1String("&&")),
            project);
}

void Amending::give(const ProjectList::Project& project) {
    find(m_meant.value_or(chosen()), [this, project](const ChosenTimes& times) {
        Amendment amendment{
            .kind = Kind::Change, .pieces = times.pieces, .only = times.only, .project = RowProject()};
        if (project) {
            amendment.project->identity = m_ground.projects.historyIdentity(*project);
            amendment.projectName = project->label();
            // It was deleted while its time was looked for.
            if (!amendment.project->identity)
                return;
        }
        m_ground.undoStack.push(
            new AmendCommand(localized("Give to Project"), m_ground.history, std::move(amendment)));
    });
}

void Amending::name() {
    const Chosen what = m_meant.value_or(chosen());
    find(what, [this, what](const ChosenTimes& times) {
        if (!m_namingWindow)
            m_namingWindow = new NamingWindow(&m_ground.window);
        const bool isOneTitle = what.rows.size() == 1 && !what.rows.front().isProject;
        const QString title =
            isOneTitle ? what.rows.front().part.value_or(QString()) : PlainText::cut(what.title, 200);
        m_namingWindow->openFor(timesText(times), title, [this, times](const QString& name) {
            m_ground.undoStack.push(new AmendCommand(
                localized("Name"), m_ground.history,
                {.kind = Kind::Change, .pieces = times.pieces, .only = times.only, .name = name}));
        });
    });
}

void Amending::book() {
    if (!m_bookingWindow)
        m_bookingWindow = new BookingWindow(
            [this](const auto& piece, auto told) { askFree(piece, std::move(told)); }, &m_ground.window);
    const ProjectList::Projects projects = m_ground.projects.projects();
    QStringList names;
    for (const ProjectList::Project& project : projects)
        names << project->label();
    m_bookingWindow->openFor(
        firstBooking(m_meant.value_or(chosen())), names,
        [this, projects](const BookingWindow::Booking& booking) {
            Amendment amendment{
                .kind = Kind::Book, .pieces = {booking.piece}, .name = booking.name, .project = RowProject()};
            if (booking.project >= 0) {
                const ProjectList::Project& project = projects[std::size_t(booking.project)];
                amendment.project->identity = m_ground.projects.historyIdentity(*project);
                amendment.projectName = project->label();
            }
            m_ground.undoStack.push(
                new AmendCommand(localized("Book"), m_ground.history, std::move(amendment)));
        });
}

void Amending::forget() {
    find(m_meant.value_or(chosen()), [this](const ChosenTimes& times) {
        m_reader->ask<std::int64_t>([times](SqliteDatabase& file) { return stretchesIn(file, times.pieces); },
                                    [this, times](const Result<std::int64_t>& count) {
                                        askAndForget(times, count && *count > kMostUndone);
                                    });
    });
}

void Amending::askAndForget(const ChosenTimes& times, bool isTooMuch) {
    const QString outlook =
        isTooMuch ? localized("It is removed from the file at once. This cannot be undone.")
                  : localized("It is removed from the file at once. It can be undone until Ticklog ends.");
    const int answer = m_ground.alerts.ask(
        {.message = isTooMuch ? localized("Forget this for good?") : localized("Forget this?"),
         .informativeText = timesText(times) + u'\n' + outlook,
         .defaultButton = localized("Cancel"),
         .alternateButton = localized("Forget"),
         .otherButton = {}});
    if (answer != Alerts::Alternate)
        return;
    if (!isTooMuch)
        return m_ground.undoStack.push(new ForgetCommand(m_ground.history, times, m_ground.save));
    HistoryChange::Forgotten what{.program = {}, .title = {}, .from = {}, .to = {}};
    what.times = times;
    m_ground.history.forget(what);
    // The history no longer knows what a crash would cost the timers: from now on their own file has it.
    m_ground.save();
}

void Amending::askFree(const Amendment::Piece& piece, std::function<void(const Result<qint64>&)> told) {
    RangeQuestion question = m_ground.view.question();
    question.search.clear();
    question.project.reset();
    const qint64 to = std::min<qint64>(piece.to, now());
    if (piece.from >= to)
        return told(0);
    question.piece = {piece.from, to};
    m_freeReader->ask<qint64>([question](SqliteDatabase& file) { return question.freeIn(file); },
                              std::move(told));
}

QString Amending::timesText(const ChosenTimes& times) const {
    qint64 length = 0;
    for (const Amendment::Piece& piece : times.pieces)
        length += piece.to - piece.from;
    const QString day = QLocale().toString(QDateTime::fromMSecsSinceEpoch(times.pieces.front().from).date(),
                                           QLocale::LongFormat);
    const QString between = PictureTexts::fromTo(times.pieces.front().from, times.pieces.back().to);
    return day + QStringLiteral(", ") + between + QStringLiteral(" · ") + PictureTexts::length(length);
}

std::int64_t Amending::now() const {
    return std::chrono::floor<std::chrono::milliseconds>(m_ground.clock.now()).time_since_epoch().count();
}
