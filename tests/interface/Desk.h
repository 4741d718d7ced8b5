// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/AccountEntries.h"
#include "interface/mainwindow/TKController.h"
#include "interface/outline/TKOutlineDisplayView.h"
#include "tests/fakes/FakeAlerts.h"
#include "tests/fakes/FakePlatform.h"

#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>

#include <stdexcept>

// The rows of a model, in order: "Mail 00:00:40 [Inbox 00:00:30, Sent 00:00:10], Notes 00:00:05".
inline QString textOf(const QAbstractItemModel& model, const QModelIndex& parent = {}) {
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        QString text = index.data().toString() + u' ' + index.siblingAtColumn(1).data().toString();
        if (model.rowCount(index) > 0)
            text += QStringLiteral(" [%1]").arg(textOf(model, index));
        rows << text;
    }
    return rows.join(QStringLiteral(", "));
}

// A person with Ticklog's window, on fake desktop services. Time passes only as told.
struct Desk {
    // `tellsOfWaits`: the loop does, so ticks come when they are needed.
    explicit Desk(bool tellsOfWaits = false)
        : fakes(tellsOfWaits) {
        fakes.idleTime.isBusy = true;
    }

    void show() {
        controller.displayMainWindow();
        QCoreApplication::processEvents();
    }

    // An application comes to the front with one of its windows.
    void front(const char* application, const char* title) {
        const QString name = QString::fromUtf8(application);
        const auto process = std::int64_t(1000 + qHash(name) % 30000);
        const auto number = std::int64_t(1 + qHash(name + QString::fromUtf8(title)) % 1000000);
        fakes.windowList.windows = {{number, process, true, QString::fromUtf8(title), name}};
        fakes.frontApplication.switchTo(ApplicationRecord{name, {}, process});
    }

    void seconds(double time) {
        fakes.runLoop.advance(
            std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::duration<double>(time)));
        QCoreApplication::processEvents();
    }

    // An application with windows, each with its seconds.
    void account(const char* application, double time,
                 const std::vector<std::pair<QString, double>>& windows = {}) {
        const auto record = [](const QString& name, double spent) {
            return PropertyListDictionary{{kRecordName, name}, {kRecordActiveTime, spent}};
        };
        PropertyListArray children;
        for (const auto& [title, spent] : windows)
            children.emplace_back(record(title, spent));
        controller.tracker().setArrayRepresentation({PropertyListDictionary{
            {kEntryApp, record(QString::fromUtf8(application), time)}, {kEntryWindows, children}}});
        settle();
    }

    void settle() {
        fakes.runLoop.runPending();
        QCoreApplication::processEvents();
    }

    TKOutlineDisplayView& table() { return controller.window().mainTable(); }

    QAbstractItemModel& model() { return *table().model(); }

    // The row of that name; it must exist.
    QModelIndex row(const char* name, const QModelIndex& parent = {}) {
        for (int row = 0; row < model().rowCount(parent); ++row)
            if (model().index(row, 0, parent).data(Qt::EditRole).toString() == QString::fromUtf8(name))
                return model().index(row, 0, parent);
        throw std::invalid_argument(name);
    }

    void select(const std::vector<QModelIndex>& rows) {
        table().clearSelection();
        for (const QModelIndex& index : rows)
            table().selectionModel()->select(index, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }

    // Triggers a command as a menu does: only if it is enabled.
    void command(QAction* action) {
        if (!action->isEnabled())
            throw std::logic_error("the command is not offered: " + action->text().toStdString());
        action->trigger();
        settle();
    }

    const MainActions& actions() { return controller.window().actions(); }

    QString sumShown() { return controller.window().findChild<QLabel*>(QStringLiteral("timeSum"))->text(); }

    FakePlatform fakes;
    FakeAlerts alerts;
    TKController controller{fakes.platform, alerts, [](int) {}};
};
