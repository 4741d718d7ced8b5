// SPDX-License-Identifier: MIT
// What an outline asks of whom it serves: deleting, and writing what is copied.
#include "interface/outline/TKOutlineDisplayView.h"
#include "platform/foundation/values/Assertions.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QStandardItemModel>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// Rows without timers.
struct Sidebar {
    Sidebar() {
        for (const char* name : {"All", "Thesis"})
            model.appendRow(new QStandardItem(QString::fromUtf8(name)));
        view.setModel(&model);
        view.show();
    }

    QStandardItemModel model;
    TKOutlineDisplayView view;
};

TEST(OutlineOwnerTest, delete_isOfferedOnlyWhereSomebodyDeletes) {
    Sidebar sidebar;
    EXPECT_FALSE(sidebar.view.offersDelete());
    sidebar.view.deleteRows();
    QTest::keyClick(&sidebar.view, Qt::Key_Delete);
    std::vector<bool> asked;
    sidebar.view.serve({.deleteKey = [&](bool isForced) { asked.push_back(isForced); }});
    EXPECT_TRUE(sidebar.view.offersDelete());
    QTest::keyClick(&sidebar.view, Qt::Key_Delete);
    QTest::keyClick(&sidebar.view, Qt::Key_Delete, Qt::ShiftModifier);
    sidebar.view.deleteRows();
    sidebar.view.forceDelete();
    EXPECT_EQ(asked, (std::vector<bool>{false, true, false, true}));
}

TEST(OutlineOwnerTest, copy_writesTheSelectedRowsFromTopToBottom) {
    Sidebar sidebar;
    sidebar.model.item(0)->appendRow(new QStandardItem(QStringLiteral("Some")));
    sidebar.view.expandAll();
    sidebar.view.serve({.writeItems = [](const QModelIndexList& rows) {
        QStringList names;
        for (const QModelIndex& index : rows)
            names << index.data().toString();
        auto written = std::make_unique<QMimeData>();
        written->setText(names.join(u' '));
        return written;
    }});
    const QModelIndex all = sidebar.model.index(0, 0);
    for (const QModelIndex& index : {sidebar.model.index(1, 0), sidebar.model.index(0, 0, all), all})
        sidebar.view.selectionModel()->select(index, QItemSelectionModel::Select);
    sidebar.view.copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("All Some Thesis"));
}

TEST(OutlineOwnerTest, copy_leavesTheClipboardWhereNothingIsWritten) {
    Sidebar silent;
    Sidebar emptyHanded;
    emptyHanded.view.serve(
        {.writeItems = [](const QModelIndexList&) { return std::unique_ptr<QMimeData>(); }});
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    for (Sidebar* sidebar : {&silent, &emptyHanded}) {
        sidebar->view.selectAll();
        sidebar->view.copy();
        EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
    }
}

TEST(OutlineOwnerTest, aSecondOwner_doesNotReplaceTheFirst) {
    Sidebar sidebar;
    bool isAsked = false;
    sidebar.view.serve({.deleteKey = [&](bool) { isAsked = true; }});
    EXPECT_THROW(sidebar.view.serve({}), InternalInconsistency);
    sidebar.view.deleteRows();
    EXPECT_TRUE(isAsked);
}

} // namespace
