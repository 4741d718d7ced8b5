// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/history/HistoryFile.h"
#include "interface/history/Amending.h"
#include "interface/history/HistoryController.h"
#include "interface/history/HistoryOutline.h"
#include "interface/history/HistoryPane.h"
#include "interface/shell/ProgramIcons.h"
#include "platform/foundation/time/LocalTime.h"
#include "tests/interface/HistoryDesk.h"

// A person who looks at the history in the window.
struct HistoryViewDesk : HistoryDesk {
    HistoryViewDesk() { controller.setProgramIcons(icons); }

    // Some work of the past, put into the file. `at` is in local time.
    void past(const QDateTime& at, qint64 seconds, const char* program, const char* title = "",
              RowPresence presence = RowPresence::Work, const RowTimer& timer = {}) {
        history.finish();
        HistoryFile file(history.path());
        SqliteTransaction transaction(file.database());
        // As it is recorded: no row crosses a full hour.
        QDateTime start = at;
        for (qint64 left = seconds * 1000; left > 0;) {
            const qint64 length =
                std::min<qint64>(left, 3'600'000 - start.time().msecsSinceStartOfDay() % 3'600'000);
            file.add({.start = start.toMSecsSinceEpoch(),
                      .length = length,
                      .offset = start.offsetFromUtc() / 60,
                      .program = QString::fromUtf8(program),
                      .title = QString::fromUtf8(title),
                      .timer = timer,
                      .presence = presence});
            start = start.addMSecs(length);
            left -= length;
        }
        transaction.commit();
    }

    QDateTime today(int hour, int minute = 0) const {
        return QDateTime(localTime(fakes.clock.now()).date(), QTime(hour, minute));
    }

    void showHistory() {
        show();
        command(actions().showHistory);
    }

    HistoryPane& pane() { return controller.window().historyPane(); }
    const HistoryActions& historyActions() { return controller.window().historyActions(); }
    HistoryOutline& outline() { return pane().outline(); }
    // "Mail 00:00:40 [Inbox 00:00:30], Notes 00:00:05"
    QString rows() { return textOf(*outline().model()); }
    QModelIndex historyRow(const char* name) {
        QAbstractItemModel& rows = *outline().model();
        for (int row = 0; row < rows.rowCount(); ++row)
            if (rows.index(row, 0).data(Qt::EditRole).toString() == QString::fromUtf8(name))
                return rows.index(row, 0);
        throw std::invalid_argument(name);
    }
    QString historySum() { return pane().findChild<QLabel*>(QStringLiteral("history timeSum"))->text(); }

    // By the name of the program: a name in a theme, or the path of a picture.
    QHash<QString, QString> iconNames;
    ProgramIcons icons{[this](const QString& program) {
        const QString name = iconNames.value(program);
        return name.isEmpty() ? std::nullopt : std::optional(name);
    }};
    HistoryController view{
        {.window = controller.window(),
         .platform = fakes.platform,
         .alerts = alerts,
         .project = [this] { return controller.shownProject(); },
         .isCounting = [this] { return controller.timer().isRunning(); },
         .labelOf = [this](const QString& name) { return controller.colorOfProject(name); },
         .showProjectTimes =
             [this](const RangeAnswer* answer) {
                 answer ? controller.sidebarTimes().showRange(*answer) : controller.sidebarTimes().clear();
             }},
        history};
    Amending amending{{.window = controller.window(),
                       .view = view,
                       .history = history,
                       .projects = controller.projects(),
                       .undoStack = controller.undoStack(),
                       .alerts = alerts,
                       .clock = fakes.clock,
                       .save = [this] { controller.saveSettingsToDisk(); }}};
};
