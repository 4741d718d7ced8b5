// SPDX-License-Identifier: MIT
#include "interface/shell/ManualWindow.h"
#include "tests/interface/HistoryViewDesk.h"

#include <QListWidget>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextBrowser>

#include <gtest/gtest.h>

namespace {

struct ManualWindowTest : testing::Test, HistoryViewDesk {
    ManualWindow& manual() { return *controller.window().findChild<ManualWindow*>(); }
};

TEST_F(ManualWindowTest, f1_opensItWithAllItsChapters) {
    show();
    EXPECT_EQ(actions().showManual->shortcut(), QKeySequence(Qt::Key_F1));
    command(actions().showManual);
    EXPECT_TRUE(manual().isVisible());
    EXPECT_GE(manual().headings().count(), 8);
}

TEST_F(ManualWindowTest, aChapter_isScrolledTo) {
    show();
    command(actions().showManual);
    manual().headings().setCurrentRow(3);
    settle();
    EXPECT_EQ(manual().page().textCursor().block().text(), manual().headings().item(3)->text());
    EXPECT_LT(manual().page().cursorRect().top(), 60);
    EXPECT_GE(manual().page().cursorRect().top(), 0);
}

TEST_F(ManualWindowTest, everyPicture_isInTheProgram) {
    show();
    command(actions().showManual);
    int pictures = 0;
    const QTextDocument& page = *manual().page().document();
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part)
            if (const auto format = part.fragment().charFormat(); format.isImageFormat()) {
                const QUrl name = manual().page().source().resolved(QUrl(format.toImageFormat().name()));
                EXPECT_FALSE(QImage(u':' + name.path()).isNull()) << qPrintable(name.toString());
                ++pictures;
            }
    EXPECT_GE(pictures, 3);
}

// Who reads of a key must find what it says.
TEST_F(ManualWindowTest, everyKeyThatItNames_isACommands) {
    QSet<QString> keys;
    // Some have keys only beside the history.
    showHistory();
    for (const QAction* action : controller.window().findChildren<QAction*>())
        for (const QKeySequence& shortcut : action->shortcuts())
            keys.insert(shortcut.toString(QKeySequence::PortableText));
    QFile file(QStringLiteral(":/manual/manual.md"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    static const QRegularExpression key(QStringLiteral("\\b((?:Ctrl|Alt)\\+[A-Za-z0-9+]+)"));
    int named = 0;
    for (auto found = key.globalMatch(QString::fromUtf8(file.readAll())); found.hasNext(); ++named) {
        const QString text = found.next().captured(1);
        EXPECT_TRUE(keys.contains(text)) << qPrintable(text);
    }
    EXPECT_GE(named, 12);
}

} // namespace
