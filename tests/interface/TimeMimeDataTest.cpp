// SPDX-License-Identifier: MIT
// What the clipboard and drags carry, in and out of the window.
#include "Classes/exchange/PasteboardTypes.h"
#include "tests/fakes/Announcements.h"
#include "tests/fakes/RichTextReader.h"
#include "tests/interface/Desk.h"

#include <QClipboard>
#include <QMimeData>

#include <gtest/gtest.h>

namespace {

struct TimeMimeDataTest : testing::Test, Desk {
    TimeMimeData::Provider counting() {
        return {.timers =
                    [this](const std::vector<Identity>& timers) {
                        ++asked;
                        lastAsked = timers;
                        return TimeStoreItem::Children();
                    },
                .uuidsForProjectIndex = [this](int) { return members; },
                .primaryUUIDs = [this] { return primary; }};
    }

    static const QMimeData& clipboard() { return *QGuiApplication::clipboard()->mimeData(); }

    int asked = 0;
    std::vector<Identity> lastAsked;
    std::optional<std::vector<Identity>> members;
    std::vector<Identity> primary{Identity::brandNew()};
};

} // namespace

TEST_F(TimeMimeDataTest, nothingIsMade_beforeAReceiverAsks) {
    const std::vector<Identity> timers{Identity::brandNew(), Identity::brandNew()};
    const TimeMimeData written(counting(), timers);
    EXPECT_EQ(written.formats(),
              QStringList({QStringLiteral("text/html"), QStringLiteral("text/tab-separated-values"),
                           QStringLiteral("text/rtf"), QStringLiteral("application/rtf"),
                           QStringLiteral("text/plain"), QStringLiteral("org.ticklog.standard.TKItem")}));
    EXPECT_EQ(timersFromPasteboard(written.data(kTimerPasteboardType)), timers);
    EXPECT_EQ(asked, 0);
    written.data(QStringLiteral("text/html"));
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(lastAsked, timers);
    EXPECT_TRUE(written.data(QStringLiteral("image/png")).isEmpty());
    EXPECT_EQ(asked, 1);
}

TEST_F(TimeMimeDataTest, whatIsLeftBehind_isOfferedInTheSameOrder) {
    const TimeMimeData written(counting(), 2);
    const std::unique_ptr<QMimeData> left(written.settled());
    QStringList forms = left->formats();
    EXPECT_EQ(str(forms.takeFirst()), "text/html;charset=utf-8") << "once more, for those who lose the first";
    EXPECT_EQ(forms, written.formats());
    EXPECT_EQ(left->html(), written.html());
}

TEST_F(TimeMimeDataTest, aProject_readsAsItsTimersAndWithoutAnyAsAll) {
    const TimeMimeData written(counting(), 2);
    EXPECT_EQ(projectRowFromPasteboard(written.data(kProjectPasteboardType)), 2);
    members = {Identity::brandNew()};
    written.data(QStringLiteral("text/plain"));
    EXPECT_EQ(lastAsked, *members);
    members = std::vector<Identity>();
    written.data(QStringLiteral("text/plain"));
    EXPECT_EQ(lastAsked, primary);
    members.reset();
    written.data(QStringLiteral("text/plain"));
    EXPECT_EQ(lastAsked, primary);
}

TEST_F(TimeMimeDataTest, copiedRows_areThereInEveryForm) {
    account("Mail", 60, {{QStringLiteral("Drafts"), 5}, {QStringLiteral("Inbox"), 20}});
    account("Notes", 100);
    show();
    select({row("Notes"), row("Mail")});
    command(actions().copy);
    EXPECT_EQ(str(clipboard().text()), "Mail, 00:01:00\nNotes, 00:01:40\n");
    EXPECT_TRUE(clipboard().html().contains(QStringLiteral("<td>Mail</td><td>Inbox</td>")));
    EXPECT_EQ(textOfRtf(clipboard().data(QStringLiteral("text/rtf"))),
              "Application|Window|Original Name|Time|\nMail||Mail|00:01:00|\nMail|Drafts|Drafts|00:00:05|\n"
              "Mail|Inbox|Inbox|00:00:20|\nNotes||Notes|00:01:40|\n");
    EXPECT_EQ(timersFromPasteboard(clipboard().data(kTimerPasteboardType))->size(), 2U);
}

TEST_F(TimeMimeDataTest, anApplicationAndItsWindow_areNotListedTwice) {
    account("Mail", 60, {{QStringLiteral("Drafts"), 5}, {QStringLiteral("Inbox"), 20}});
    show();
    table().expandAllRows();
    select({row("Mail"), row("Inbox", row("Mail"))});
    command(actions().copy);
    EXPECT_EQ(str(clipboard().text()), "Mail, 00:01:00\n");
}

TEST_F(TimeMimeDataTest, theSummaryTime_isCopiedInWords) {
    account("Mail", 3660);
    show();
    command(actions().copySummaryTime);
    EXPECT_EQ(clipboard().text(), controller.tracker().humanTimeStringForDouble(3660));
}

TEST(TimeMimeDataAtTheEnd, copiedRows_outliveTheWindow) {
    {
        Desk desk;
        desk.account("Mail", 60);
        desk.show();
        desk.select({desk.row("Mail")});
        desk.command(desk.actions().copy);
    }
    EXPECT_EQ(str(QGuiApplication::clipboard()->text()), "Mail, 00:01:00\n");
    EXPECT_FALSE(QGuiApplication::clipboard()->mimeData()->data(QStringLiteral("text/rtf")).isEmpty());
}
