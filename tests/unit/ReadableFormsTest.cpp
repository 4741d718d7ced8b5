// SPDX-License-Identifier: MIT
#include "Classes/exchange/ReadableForms.h"

#include "Classes/exchange/PasteboardTypes.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "tests/fakes/RichTextReader.h"
#include "tests/fakes/Store.h"

namespace {

class ReadableFormsTest : public StoreTest {
protected:
    // Mail with an hour, its Inbox with half of it and its Drafts with a minute.
    std::shared_ptr<TimeStoreApp> mail() {
        auto app = makeApp(QStringLiteral("Mail"), 3600);
        window(*app, "Inbox", 1800);
        window(*app, "Drafts", 60);
        return app;
    }

    static void rename(TimeStoreItem& item, const char* name) {
        item.setRenamedNameFormatted({{kRecordName, QString::fromUtf8(name)}});
    }
};

const std::string kHead = "<html><body><style>body { font-family: helvetica; }</style><table>"
                          "<tr><th>Application</th><th>Window</th><th>Original Name</th><th>Time</th></tr>\n";

TEST_F(ReadableFormsTest, anApplicationInHtml_isARowWithItsWindowsBelow) {
    EXPECT_EQ(str(ReadableForms::html({mail()})),
              kHead + "<tr><td>Mail</td><td></td><td>Mail</td><td>01:00:00</td></tr>\n"
                      "<tr><td>Mail</td><td>Drafts</td><td>Drafts</td><td>00:01:00</td></tr>\n"
                      "<tr><td>Mail</td><td>Inbox</td><td>Inbox</td><td>00:30:00</td></tr>\n"
                      "\n</table></body></html>");
}

TEST_F(ReadableFormsTest, aRenamedTimerInHtml_hasTheNewNameUnderOriginalName) {
    const auto notes = makeApp(QStringLiteral("Notes"), 5);
    rename(*notes, "Ideas");
    EXPECT_EQ(str(ReadableForms::html({notes})),
              kHead + "<tr><td>Notes</td><td></td><td>Ideas</td><td>00:00:05</td></tr>\n\n"
                      "</table></body></html>");
}

TEST_F(ReadableFormsTest, aNameWithMarkup_cannotBreakTheTable) {
    const auto app = makeApp(QStringLiteral("</table><b>&\""));
    EXPECT_NE(ReadableForms::html({app}).indexOf(u"<td>&lt;/table&gt;&lt;b&gt;&amp;&quot;</td>"), -1);
}

TEST_F(ReadableFormsTest, richText_isTheSameTable) {
    const QByteArray bytes = ReadableForms::rtf({mail()});
    EXPECT_EQ(textOfRtf(bytes), "Application|Window|Original Name|Time|\nMail||Mail|01:00:00|\n"
                                "Mail|Drafts|Drafts|00:01:00|\nMail|Inbox|Inbox|00:30:00|\n");
    EXPECT_TRUE(bytes.contains("{\\b Application}"));
    EXPECT_EQ(bytes.count("\\trowd"), 4);
}

TEST_F(ReadableFormsTest, richText_spellsEveryCharacter) {
    const auto notes = makeApp(QStringLiteral("a {b} \\c ü € \U0001F600\td"), 0);
    const QByteArray bytes = ReadableForms::rtf({notes});
    EXPECT_TRUE(bytes.contains("\\u252?"));
    EXPECT_TRUE(bytes.contains("\\u-10179?\\u-8704?"));
    EXPECT_TRUE(bytes.contains("\\tab d"));
    EXPECT_NE(textOfRtf(bytes).find("a {b} \\c ü € \U0001F600"), std::string::npos);
}

TEST_F(ReadableFormsTest, anApplicationInTabularText_runsTogetherWithItsWindows) {
    EXPECT_EQ(str(ReadableForms::tabular({mail()})),
              "Mail\t\tMail\t01:00:00Mail\tDrafts\tDrafts\t00:01:00Mail\tInbox\tInbox\t00:30:00\n");
}

TEST_F(ReadableFormsTest, aWindowAloneInTabularText_isAnEmptyLine) {
    EXPECT_EQ(str(ReadableForms::tabular({mail()->windows().front()})), "\n");
}

TEST_F(ReadableFormsTest, aRenamedTimerInPlainText_saysBothNames) {
    const auto app = mail();
    rename(*app, "Work");
    EXPECT_EQ(str(ReadableForms::plain({app, makeApp(QStringLiteral("Notes"), 90)})),
              "Work, 01:00:00 - Mail\nNotes, 00:01:30\n");
}

TEST_F(ReadableFormsTest, nothing_hasEmptyForms) {
    EXPECT_EQ(str(ReadableForms::html({})), kHead + "</table></body></html>");
    EXPECT_EQ(str(ReadableForms::tabular({})), "");
    EXPECT_EQ(str(ReadableForms::plain({})), "");
}

TEST(PasteboardTypes, timers_comeBackInTheirOrder) {
    const std::vector<Identity> timers{Identity::brandNew(), Identity::brandNew(), Identity::brandNew()};
    EXPECT_EQ(timersFromPasteboard(timerPasteboardData(timers)), timers);
    EXPECT_EQ(timersFromPasteboard(timerPasteboardData({})), std::vector<Identity>());
}

TEST(PasteboardTypes, elementsThatAreNoIdentities_areLeftOut) {
    const Identity timer = Identity::brandNew();
    const QByteArray bytes = PropertyList::xml(PropertyListArray{
        7, QByteArray("short"), timer.bytes(), QStringLiteral("text"), PropertyListArray{}});
    EXPECT_EQ(timersFromPasteboard(bytes), std::vector<Identity>{timer});
}

TEST(PasteboardTypes, bytesThatAreNoListOfTimers_areNone) {
    for (const QByteArray& bytes : {QByteArray(), QByteArray("bplist00"), QByteArray("text"),
                                    PropertyList::binary(5), PropertyList::xml(PropertyListDictionary{})})
        EXPECT_EQ(timersFromPasteboard(bytes), std::nullopt) << bytes.constData();
}

TEST(PasteboardTypes, aProjectRow_comesBack) {
    EXPECT_EQ(projectRowFromPasteboard(projectPasteboardData(3)), 3);
    EXPECT_EQ(projectRowFromPasteboard(PropertyList::xml(0)), 0);
}

TEST(PasteboardTypes, bytesThatAreNoRow_areNone) {
    for (const QByteArray& bytes : {QByteArray(), QByteArray("5"), PropertyList::binary(-1),
                                    PropertyList::binary(std::int64_t(1) << 40),
                                    PropertyList::xml(QStringLiteral("1")), PropertyList::xml(1.5)})
        EXPECT_EQ(projectRowFromPasteboard(bytes), std::nullopt) << bytes.constData();
}

} // namespace
