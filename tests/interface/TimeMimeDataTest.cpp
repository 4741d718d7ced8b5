// SPDX-License-Identifier: MIT
// What the clipboard and drags carry, in and out of the window.
#include "Classes/PasteboardTypes.h"
#include "interface/pasteboard/Rtf.h"
#include "tests/fakes/Announcements.h"
#include "tests/interface/Desk.h"

#include <QClipboard>
#include <QMimeData>
#include <QTextDocument>

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

QByteArray rtfOf(const QString& html) {
    QTextDocument document;
    document.setHtml(html);
    return rtf(document);
}

// The text of a file of Rich Text as a simple reader understands it: "|" ends a cell, a line feed a row or paragraph.
QString textOfRtf(const QByteArray& bytes) {
    QString text;
    int fontTableDepth = 0;
    int depth = 0;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const char character = bytes[i];
        if (character == '{') {
            ++depth;
            if (bytes.mid(i, 9) == "{\\fonttbl")
                fontTableDepth = depth;
        } else if (character == '}') {
            if (fontTableDepth == depth)
                fontTableDepth = 0;
            --depth;
        } else if (character == '\\' &&
                   (bytes[i + 1] == '\\' || bytes[i + 1] == '{' || bytes[i + 1] == '}')) {
            text += QLatin1Char(bytes[++i]);
        } else if (character == '\\') {
            qsizetype end = i + 1;
            while (end < bytes.size() && std::isalpha(static_cast<unsigned char>(bytes[end])))
                ++end;
            const QByteArray word = bytes.mid(i + 1, end - i - 1);
            const qsizetype digits = end;
            while (end < bytes.size() &&
                   (bytes[end] == '-' || std::isdigit(static_cast<unsigned char>(bytes[end]))))
                ++end;
            const int number = bytes.mid(digits, end - digits).toInt();
            if (word == "u") {
                text += QChar(char16_t(number));
                // The stand-in.
                ++end;
            } else if (end < bytes.size() && bytes[end] == ' ') {
                ++end;
            }
            if (word == "cell")
                text += u'|';
            else if (word == "row" || word == "par")
                text += u'\n';
            i = end - 1;
        } else if (character != '\n' && fontTableDepth == 0) {
            text += QLatin1Char(character);
        }
    }
    EXPECT_EQ(depth, 0) << "every brace is closed";
    return text;
}

} // namespace

TEST_F(TimeMimeDataTest, nothingIsMade_beforeAReceiverAsks) {
    const std::vector<Identity> timers{Identity::brandNew(), Identity::brandNew()};
    const TimeMimeData written(counting(), timers);
    EXPECT_EQ(written.formats(),
              QStringList({QStringLiteral("org.ticklog.standard.TKItem"), QStringLiteral("text/html"),
                           QStringLiteral("text/rtf"), QStringLiteral("application/rtf"),
                           QStringLiteral("text/tab-separated-values"), QStringLiteral("text/plain")}));
    EXPECT_EQ(timersFromPasteboard(written.data(kTimerPasteboardType)), timers);
    EXPECT_EQ(asked, 0);
    written.data(QStringLiteral("text/html"));
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(lastAsked, timers);
    EXPECT_TRUE(written.data(QStringLiteral("image/png")).isEmpty());
    EXPECT_EQ(asked, 1);
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

TEST_F(TimeMimeDataTest, richText_spellsEveryCharacter) {
    EXPECT_EQ(str(textOfRtf(rtfOf(QStringLiteral("<p>a {b} \\c ü € \U0001F600</p>")))),
              "a {b} \\c ü € \U0001F600\n");
    EXPECT_TRUE(rtfOf(QStringLiteral("<p>ü\U0001F600</p>")).contains("\\u252?\\u-10179?\\u-8704?"));
}

TEST_F(TimeMimeDataTest, aTableInRichText_hasARowOfCellsEach) {
    const QByteArray bytes = rtfOf(QStringLiteral("<table><tr><th>Name</th><th>Time</th></tr>"
                                                  "<tr><td>Mail</td><td>00:01:00</td></tr></table>"));
    EXPECT_EQ(str(textOfRtf(bytes)), "Name|Time|\nMail|00:01:00|\n");
    EXPECT_TRUE(bytes.contains("{\\b Name}"));
    EXPECT_EQ(bytes.count("\\trowd"), 2);
}

TEST_F(TimeMimeDataTest, copiedRows_areThereInEveryForm) {
    account("Mail", 60, {{QStringLiteral("Drafts"), 5}, {QStringLiteral("Inbox"), 20}});
    account("Notes", 100);
    show();
    select({row("Notes"), row("Mail")});
    command(actions().copy);
    EXPECT_EQ(str(clipboard().text()), "Mail, 00:01:00\nNotes, 00:01:40\n");
    EXPECT_TRUE(clipboard().html().contains(QStringLiteral("<td>Mail</td><td>Inbox</td>")));
    EXPECT_EQ(str(textOfRtf(clipboard().data(QStringLiteral("text/rtf")))),
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
