// SPDX-License-Identifier: MIT
#include "platform/foundation/text/ShownTitle.h"

#include <gtest/gtest.h>

namespace {

std::string shown(const char* title, const char* program) {
    return shownTitle(QString::fromUtf8(title), QString::fromUtf8(program)).toStdString();
}

} // namespace

TEST(ShownTitle, theProgramsNameAtTheEnd_isLeftOut) {
    EXPECT_EQ(shown("Offer.odt - LibreOffice Writer", "LibreOffice Writer"), "Offer.odt");
    EXPECT_EQ(shown("News — Mozilla Firefox", "Firefox"), "News");
    EXPECT_EQ(shown("News — Mozilla Firefox", "Firefox ESR"), "News");
    EXPECT_EQ(shown("notes.txt - Mousepad", "mousepad"), "notes.txt");
    EXPECT_EQ(shown("plan – Text Editor", "GNOME Text Editor"), "plan");
}

TEST(ShownTitle, onlyTheLastPart_isTheProgram) {
    EXPECT_EQ(shown("Firefox - Wikipedia — Mozilla Firefox", "Firefox"), "Firefox - Wikipedia");
    EXPECT_EQ(shown("Notes - Firefox bugs", "Firefox"), "Notes - Firefox bugs");
    EXPECT_EQ(shown("Mail - Inbox", "Mail"), "Mail - Inbox");
}

TEST(ShownTitle, aProgramThatHasASeparatorInItsName_isLeftOutWhole) {
    EXPECT_EQ(shown("main.cpp - Code - OSS", "Code - OSS"), "main.cpp");
    EXPECT_EQ(shown("main.cpp - ticklog - Code - OSS", "Code - OSS"), "main.cpp - ticklog");
    EXPECT_EQ(shown("Code - OSS", "Code - OSS"), "Code - OSS");
    EXPECT_EQ(shown("Firefox - Code - OSS", "Firefox"), "Firefox - Code - OSS");
}

TEST(ShownTitle, aTitleWithoutADocument_isTheProgramsName) {
    EXPECT_EQ(shown(" - Mozilla Firefox", "Firefox"), "Mozilla Firefox");
    EXPECT_EQ(shown(" \xE2\x80\x94 Mozilla Firefox", "Firefox"), "Mozilla Firefox");
}

TEST(ShownTitle, aTitleThatIsNothingElse_staysWhole) {
    EXPECT_EQ(shown("Firefox", "Firefox"), "Firefox");
    EXPECT_EQ(shown(" - ", "Firefox"), " - ");
    EXPECT_EQ(shown("Offer.odt - ", "Writer"), "Offer.odt - ");
    EXPECT_EQ(shown("a-Writer", "Writer"), "a-Writer");
    EXPECT_EQ(shown("Offer", ""), "Offer");
    EXPECT_EQ(shown("Offer - Writer", ""), "Offer - Writer");
}
