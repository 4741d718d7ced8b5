// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/exchange/PasteboardTypes.h"
#include "tests/fakes/Announcements.h"
#include "tests/interface/Desk.h"

#include <QAbstractItemModelTester>
#include <QMimeData>
#include <QTest>

// A person who keeps projects.
struct ProjectDesk : Desk {
    TKOutlineDisplayView& sidebar() { return controller.window().projectOutline(); }

    QAbstractItemModel& rows() { return *sidebar().model(); }

    ProjectList& projects() { return controller.projects(); }

    QModelIndex at(int row) { return rows().index(row, 0); }

    // Applications as members, by name.
    std::vector<Identity> timers(const QStringList& names) {
        std::vector<Identity> found;
        for (const auto& app : controller.tracker().fullTimeSet()) {
            if (names.contains(app->name()))
                found.push_back(*app->uuid());
            for (const auto& window : app->windows())
                if (names.contains(window->name()))
                    found.push_back(*window->uuid());
        }
        return found;
    }

    void addProject(const char* label, const QStringList& members = {}) {
        projects().setLabel(*projects().addNewProjectWithItems(timers(members)), QString::fromUtf8(label));
    }

    // Selects the row, so that its project is shown.
    void choose(int row) {
        sidebar().setCurrentIndex(at(row));
        settle();
    }

    int chosen() {
        const auto selected = sidebar().selectionModel()->selectedRows();
        return selected.isEmpty() ? -1 : selected.first().row();
    }

    // "All Timers, [Poster], Letters": the selected one in brackets. Without what belongs to no project.
    std::string sidebarText() {
        QStringList labels;
        for (int row = 0; row <= int(projects().count()); ++row)
            labels << (row == chosen() ? u'[' + at(row).data().toString() + u']' : at(row).data().toString());
        return labels.join(QStringLiteral(", ")).toStdString();
    }

    // The names of a project's members.
    std::string membersOf(std::size_t position) {
        const auto project = projects().projects().at(position);
        QStringList names;
        for (const Identity& member : project->flattenedMembers())
            for (const auto& item : controller.tracker().timeChildrenForChildUUIDs({member}, false))
                names << item->name();
        return names.join(QStringLiteral(", ")).toStdString();
    }

    bool dropTimers(const QStringList& names, int row, const QModelIndex& onto = {}) {
        QMimeData data;
        data.setData(kTimerPasteboardType, timerPasteboardData(timers(names)));
        return drop(data, Qt::CopyAction, row, onto);
    }

    bool dropProject(int draggedRow, Qt::DropAction action, int row, const QModelIndex& onto = {}) {
        QMimeData data;
        data.setData(kProjectPasteboardType, projectPasteboardData(draggedRow));
        return drop(data, action, row, onto);
    }

    bool drop(const QMimeData& data, Qt::DropAction action, int row, const QModelIndex& onto) {
        if (!rows().canDropMimeData(&data, action, row, 0, onto))
            return false;
        const bool isDone = rows().dropMimeData(&data, action, row, 0, onto);
        settle();
        return isDone;
    }

    QLineEdit* editor() { return sidebar().findChild<QLineEdit*>(QStringLiteral("programEditor")); }

    void type(const char* text) {
        controller.window().searchAppField().setText(QString::fromUtf8(text));
        settle();
    }

    // "Mail, +Notes(List, Todo)": what the outline shows; expanded rows with "+" and their children.
    std::string outlineText() {
        QStringList texts;
        for (int row = 0; row < model().rowCount(); ++row) {
            const QModelIndex index = model().index(row, 0);
            QString text = index.data(Qt::EditRole).toString();
            if (table().isExpanded(index)) {
                QStringList children;
                for (int child = 0; child < model().rowCount(index); ++child)
                    children << model().index(child, 0, index).data(Qt::EditRole).toString();
                text = u'+' + text + u'(' + children.join(QStringLiteral(", ")) + u')';
            }
            texts << text;
        }
        return texts.join(QStringLiteral(", ")).toStdString();
    }

    void mailNotesAndPaint() {
        account("Mail", 60, {{QStringLiteral("Drafts"), 5}, {QStringLiteral("Inbox"), 20}});
        account("Notes", 100, {{QStringLiteral("List"), 40}, {QStringLiteral("Todo"), 60}});
        account("Paint", 30);
    }
};
