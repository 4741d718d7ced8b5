// SPDX-License-Identifier: MIT
#include "Classes/common/ShownNames.h"

#include "Classes/engine/Stretch.h"
#include "Classes/history/Amendment.h"
#include "Classes/rules/TitleRules.h"
#include "platform/FrontApplication.h"
#include "platform/foundation/text/Translations.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(ShownNames, ofProgramsThatAreNone_areInTheLanguageOfTheUser) {
    const Translations german({u"de"_s});
    EXPECT_EQ(ShownNames::of(u"Idle"_s), u"Leerlauf"_s);
    EXPECT_EQ(ShownNames::of(u"Desktop"_s), u"Arbeitsumgebung"_s);
    EXPECT_EQ(ShownNames::of(u"Private"_s), u"Privat"_s);
    EXPECT_EQ(ShownNames::of(u"By Hand"_s), u"Von Hand"_s);
    EXPECT_EQ(ShownNames::of(u"Idle Master"_s), u"Idle Master"_s);
}

TEST(ShownNames, areThoseThatTheRecordHas) {
    const Translations german({u"de"_s});
    for (const QString& name : {kIdleName, kDesktopName, kPrivateName, kByHandName})
        EXPECT_NE(ShownNames::of(name), name);
}

TEST(ShownNames, leadBackToTheRecord) {
    const Translations german({u"de"_s});
    for (const QString& name : {u"Idle"_s, u"Desktop"_s, u"Private"_s, u"By Hand"_s, u"Editor"_s})
        EXPECT_EQ(ShownNames::recorded(ShownNames::of(name)), name);
}

TEST(ShownNames, areFoundAsTheyAreReadAndAsTheyAreRecorded) {
    const Translations german({u"de"_s});
    EXPECT_TRUE(ShownNames::contains(u"Idle"_s, u"leerL"_s));
    EXPECT_TRUE(ShownNames::contains(u"Idle"_s, u"idl"_s));
    EXPECT_TRUE(ShownNames::contains(u"Editor"_s, u"EDIT"_s));
    EXPECT_FALSE(ShownNames::contains(u"Editor"_s, u"leerl"_s));
}

} // namespace
