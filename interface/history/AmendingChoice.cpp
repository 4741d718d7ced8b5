// SPDX-License-Identifier: MIT
// What a person has chosen in the history, and the menus over it.
#include "Classes/common/ShownNames.h"
#include "Classes/history/HistoryFinding.h"
#include "Classes/report/Moment.h"
#include "interface/history/AmendActions.h"
#include "interface/history/Amending.h"
#include "interface/history/DayPicture.h"
#include "interface/history/HistoryController.h"
#include "interface/history/HistoryOutline.h"
#include "interface/history/HistoryPane.h"
#include "interface/mainwindow/MainWindow.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QContextMenuEvent>
#include <QMenu>

namespace {

constexpr qint64 kHour = 3'600'000;
// The day's working hours, for a day in which there is nothing to go by.
constexpr int kNine = 9;

// What of a piece is over: redone later, a step means no more than that. A clock that was set back may have left
// something ahead of now.
std::vector<Amendment::Piece> pastOf(const Amendment::Piece& piece, std::int64_t now, SqliteDatabase& file) {
    const Amendment::Piece past{piece.from, std::min(piece.to, std::max(now, lastRecorded(file)))};
    return past.from < past.to ? std::vector{past} : std::vector<Amendment::Piece>();
}

} // namespace

// Who works in the picture means what is chosen there, who works in the outline its rows.
Amending::Chosen Amending::chosen() const {
    const HistoryPane& pane = m_ground.window.historyPane();
    const Chosen inPicture = chosenPiece();
    const Chosen inOutline = chosenRows();
    const bool isInOutline = pane.outline().hasFocus() && inOutline.kind != Chosen::Kind::Nothing;
    return isInOutline || inPicture.kind == Chosen::Kind::Nothing ? inOutline : inPicture;
}

Amending::Chosen Amending::chosenPiece() const {
    if (m_ground.view.range().step() != CalendarRange::Step::Stretch)
        return {};
    const DayPicture& picture = m_ground.window.historyPane().dayPicture();
    if (picture.currentItem() >= 0)
        return stretch(picture.currentItem());
    if (const auto& piece = m_ground.view.piece())
        return {.kind = Chosen::Kind::Piece, .piece = {piece->first, piece->second}};
    return {};
}

Amending::Chosen Amending::stretch(int item) const {
    const auto& pieces = m_ground.view.answer().pieces;
    if (item < 0 || std::size_t(item) >= pieces.size())
        return {};
    const RangeAnswer::Piece& piece = pieces[std::size_t(item)];
    return {.kind = Chosen::Kind::Stretch,
            .piece = {piece.start, piece.end()},
            .program = ShownNames::recorded(piece.program),
            .title = piece.title,
            .isIdle = piece.presence == RecordedStretch::Presence::Idle};
}

Amending::Chosen Amending::gapAt(qint64 moment) const {
    Chosen gap{.kind = Chosen::Kind::Gap};
    const QDate day = m_ground.view.range().first();
    const auto beginOf = [this](QDate date) {
        return std::int64_t(beginningOf(date, m_ground.history.dayBegins()).toMSecsSinceEpoch());
    };
    gap.piece = {beginOf(day), beginOf(day.addDays(1))};
    if (const auto& piece = m_ground.view.piece())
        gap.piece = {piece->first, piece->second};
    gap.piece.to = std::min(gap.piece.to, now());
    for (const RangeAnswer::Piece& piece : m_ground.view.answer().pieces) {
        if (piece.end() <= moment)
            gap.piece.from = std::max(gap.piece.from, std::int64_t(piece.end()));
        else if (piece.start > moment)
            gap.piece.to = std::min(gap.piece.to, std::int64_t(piece.start));
    }
    return gap;
}

Amending::Chosen Amending::chosenRows() const {
    Chosen rows{.kind = Chosen::Kind::Rows};
    const bool isByProject = m_ground.window.historyActions().byProject->isChecked();
    const QString noProject = localized("No Project");
    for (const QModelIndex& row : m_ground.window.historyPane().outline().selectionModel()->selectedRows()) {
        const QModelIndex top = row.parent().isValid() ? row.parent() : row;
        const QString name = top.data(Qt::EditRole).toString();
        RowChoice choice{.isProject = isByProject, .name = ShownNames::recorded(name), .part = {}};
        if (isByProject)
            choice.name = name == noProject ? kNoProject : name;
        if (row.parent().isValid())
            choice.part = isByProject ? ShownNames::recorded(row.data(Qt::EditRole).toString())
                                      : row.data(Qt::EditRole).toString();
        rows.rows.push_back(choice);
    }
    return rows.rows.empty() ? Chosen() : rows;
}

void Amending::find(const Chosen& chosen, std::function<void(const ChosenTimes&)> told) {
    const RangeQuestion question = m_ground.view.question();
    const bool isNarrowed = !question.search.isEmpty() || question.project;
    if (chosen.kind == Chosen::Kind::Nothing || chosen.kind == Chosen::Kind::Gap)
        return;
    const bool isWholePiece = chosen.kind == Chosen::Kind::Piece && !isNarrowed;
    m_reader->ask<ChosenTimes>(
        [question, chosen, isWholePiece, now = m_ground.history.pastEnd()](SqliteDatabase& file) {
            if (isWholePiece)
                return ChosenTimes{.pieces = pastOf(chosen.piece, now, file)};
            return chosen.kind == Chosen::Kind::Stretch
                       ? question.wholeStretch(chosen.piece.from, chosen.program, chosen.title, file)
                       // Of a piece that is narrowed, only what is shown is meant.
                       : question.timesOf(chosen.rows, file);
        },
        [told = std::move(told)](const Result<ChosenTimes>& times) {
            if (times && !times->isEmpty())
                told(*times);
        });
}

// What is chosen, unless it was worked; else the last hour, or one of the day that is looked at.
Amendment::Piece Amending::firstBooking(const Chosen& chosen) const {
    const bool isWorked = chosen.kind == Chosen::Kind::Stretch && !chosen.isIdle;
    if (chosen.kind != Chosen::Kind::Nothing && chosen.kind != Chosen::Kind::Rows && !isWorked)
        return chosen.piece;
    const std::int64_t last = now() - now() % 60'000;
    const QDate day = m_ground.view.range().first();
    if (day >= dayOf(QDateTime::fromMSecsSinceEpoch(now()), m_ground.history.dayBegins()))
        return {last - kHour, last};
    const std::int64_t nine = shownAs(day, QTime(kNine, 0)).toMSecsSinceEpoch();
    return {nine, nine + kHour};
}

bool Amending::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ContextMenu)
        return QObject::eventFilter(watched, event);
    const auto& menu = static_cast<const QContextMenuEvent&>(*event);
    const bool isByKeyboard = menu.reason() == QContextMenuEvent::Keyboard;
    const HistoryPane& pane = m_ground.window.historyPane();
    if (watched == &pane.dayPicture())
        return openPictureMenu(menu.pos(), isByKeyboard);
    HistoryOutline& outline = pane.outline();
    QPoint place = menu.globalPos();
    if (isByKeyboard && outline.currentIndex().isValid()) {
        outline.scrollTo(outline.currentIndex());
        place = outline.viewport()->mapToGlobal(outline.visualRect(outline.currentIndex()).center());
    }
    openMenu(place, chosenRows());
    return true;
}

bool Amending::openPictureMenu(const QPoint& position, bool isByKeyboard) {
    DayPicture& picture = m_ground.window.historyPane().dayPicture();
    picture.setFocus();
    QPoint place = position;
    Chosen what = chosenPiece();
    if (isByKeyboard) {
        if (picture.currentItem() >= 0)
            place = picture.itemRect(picture.currentItem()).center();
    } else {
        const int item = picture.itemAt(position);
        const bool isPiece = m_ground.view.piece() && (item < 0 || item != picture.currentItem());
        if (isPiece)
            picture.setCurrentItem(-1);
        else if (item >= 0)
            picture.setCurrentItem(item);
        what = isPiece || item >= 0 ? chosenPiece() : gapAt(qint64(picture.momentAt(position.x())));
    }
    openMenu(picture.mapToGlobal(place), what);
    return true;
}

void Amending::openMenu(const QPoint& globalPosition, const Chosen& chosen) {
    m_meant = chosen;
    offer();
    m_ground.window.popUp(QStringLiteral("amendMenu"), m_actions.all(), globalPosition, [this](QMenu& menu) {
        // Not when it is hidden: the command comes after that.
        connect(&menu, &QObject::destroyed, this, [this] {
            m_meant.reset();
            offer();
        });
    });
}
