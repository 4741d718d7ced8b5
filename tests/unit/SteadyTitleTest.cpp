// SPDX-License-Identifier: MIT
#include "Classes/rules/SteadyTitle.h"

#include <gtest/gtest.h>

namespace {

struct Titles {
    const char* title;
    const char* steady;
};

void PrintTo(const Titles& titles, std::ostream* out) {
    *out << titles.title;
}

class SteadyTitleTest : public testing::TestWithParam<Titles> {};

TEST_P(SteadyTitleTest, whatTicks_isLeftOut) {
    EXPECT_EQ(steadyTitle(QString::fromUtf8(GetParam().title)).toStdString(), GetParam().steady);
}

INSTANTIATE_TEST_SUITE_P(
    Counters, SteadyTitleTest,
    testing::Values(Titles{"(3) Inbox", "Inbox"}, Titles{"(99+) WhatsApp", "WhatsApp"},
                    Titles{"(12) Weather in the mountains - YouTube — Mozilla Firefox",
                           "Weather in the mountains - YouTube — Mozilla Firefox"},
                    Titles{"Inbox (1,234) - somebody@example.com - Gmail - Google Chrome",
                           "Inbox - somebody@example.com - Gmail - Google Chrome"},
                    Titles{"Posteingang (7) – jemand@example.com – Mozilla Thunderbird",
                           "Posteingang – jemand@example.com – Mozilla Thunderbird"},
                    Titles{"general (Channel) - Team - 2 new items - Slack",
                           "general (Channel) - Team - Slack"},
                    Titles{"News (3 unread)", "News"}, Titles{"Gwenview (3/17)", "Gwenview"},
                    Titles{"[3/17] Building CXX object", "Building CXX object"}));

INSTANTIATE_TEST_SUITE_P(Spinners, SteadyTitleTest,
                         testing::Values(Titles{"⠋ make", "make"}, Titles{"⠹ make", "make"},
                                         Titles{"✳ Answering", "Answering"},
                                         Titles{"◐ cargo test", "cargo test"}, Titles{"make ⠧", "make"}));

INSTANTIATE_TEST_SUITE_P(
    PercentagesAndClocks, SteadyTitleTest,
    testing::Values(Titles{"12 % Download", "Download"}, Titles{"45% - wget", "wget"},
                    Titles{"Copying (45 %) — Dolphin", "Copying — Dolphin"}, Titles{"99.9% done", "done"},
                    Titles{"1:07 / 3:20 Blue Monday - VLC", "Blue Monday - VLC"},
                    Titles{"Blue Monday [01:07/03:20]", "Blue Monday"}, Titles{"12:45:10 - Clock", "Clock"},
                    Titles{"vim - 14:30 - tmux", "vim - tmux"}, Titles{"-0:45 Song", "Song"},
                    Titles{"Download 12%", "Download"}, Titles{"45 % of image.iso", "of image.iso"},
                    Titles{"Copying: 45,5 % — Files", "Copying — Files"},
                    Titles{"backup.sh — 45 %", "backup.sh"}, Titles{"Notes — 14:30", "Notes"},
                    Titles{"Blue Monday 01:07 / 03:20", "Blue Monday"}));

INSTANTIATE_TEST_SUITE_P(NumbersOfDocuments, SteadyTitleTest, testing::ValuesIn([] {
                             std::vector<Titles> all;
                             for (const char* title : {"Contract (11/2025).odt",
                                                       "Contract (11/2025).odt - Editor",
                                                       "Contract (11/2025)",
                                                       "Contract (11/25) - Editor",
                                                       "Report (2024/25).pdf",
                                                       "scan (3/17).png",
                                                       "(2024) Budget.ods",
                                                       "[4711] Angebot",
                                                       "Rabatt 10 %",
                                                       "Rabatt 20 % Meier.odt",
                                                       "10 % Rabatt Meier.odt",
                                                       "Rabatt (10 %) - Editor",
                                                       "Rabatt - 10 %.odt",
                                                       "Download 10 %.odt",
                                                       "Copying (10 %).odt",
                                                       "John 3:16",
                                                       "14:30 Meeting.odt",
                                                       "Meeting 14:30 - Editor",
                                                       "Stories (3 new).odt",
                                                       "Inbox (2024).odt",
                                                       "2025-11-2 new",
                                                       "main() (3).cpp"})
                                 all.push_back({title, title});
                             return all;
                         }()));

INSTANTIATE_TEST_SUITE_P(NothingElse, SteadyTitleTest,
                         testing::Values(Titles{"12:45", "12:45"}, Titles{"57%", "57%"},
                                         Titles{"100%", "100%"}, Titles{"1:07 / 3:20", "1:07 / 3:20"},
                                         Titles{"(3)", "(3)"}, Titles{"⠋", "⠋"},
                                         Titles{"(3) main() - Editor", "main() - Editor"},
                                         Titles{"(3) /home/user", "/home/user"}));

INSTANTIATE_TEST_SUITE_P(OtherNumbers, SteadyTitleTest,
                         testing::Values(Titles{"report (1).pdf - Okular", "report (1).pdf - Okular"},
                                         Titles{"Chapter 2.odt", "Chapter 2.odt"},
                                         Titles{"Invoice 2026-11-20", "Invoice 2026-11-20"},
                                         Titles{"localhost:8080/app", "localhost:8080/app"},
                                         Titles{"10.0.0.1:80 - Browser", "10.0.0.1:80 - Browser"},
                                         Titles{"1984", "1984"},
                                         Titles{"issue #17: a session", "issue #17: a session"},
                                         Titles{"3/17 draft", "3/17 draft"},
                                         Titles{"main.cpp:432 - Editor", "main.cpp:432 - Editor"},
                                         Titles{"foo-1:20.3", "foo-1:20.3"},
                                         Titles{"- notes 3 -", "- notes 3 -"}, Titles{"Document", "Document"},
                                         Titles{"", ""}));

} // namespace
