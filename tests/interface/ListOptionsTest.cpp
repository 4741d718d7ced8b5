// SPDX-License-Identifier: MIT
// What lists show, as the preferences say.
#include "Classes/common/Settings.h"
#include "interface/outline/OutlineRole.h"
#include "interface/shell/ProgramIcons.h"
#include "tests/interface/ProjectDesk.h"
#include "tests/interface/SetupDesk.h"

#include <QCheckBox>
#include <QClipboard>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct ListOptionsTest : testing::Test, ProjectDesk {
    QString shown(const QModelIndex& row) { return row.data().toString(); }

    void choose(const QString& key, bool isWanted) {
        fakes.defaults.setObject(key, isWanted);
        settle();
    }
};

struct ListPreferencesTest : testing::Test, SetupDesk {};

} // namespace

TEST_F(ListOptionsTest, aTitleIsShownWithoutItsProgram_untilThatIsSwitchedOff) {
    account("Writer", 10, {{u"Offer.odt - Writer"_s, 5}, {u"Letter.odt - Writer"_s, 5}});
    show();
    const QModelIndex writer = row("Writer");
    table().expand(writer);
    const QModelIndex offer = row("Offer.odt - Writer", writer);
    EXPECT_EQ(shown(offer), u"Offer.odt"_s);
    EXPECT_EQ(offer.data(Qt::AccessibleTextRole).toString(), u"Offer.odt, 00:00:05"_s);
    EXPECT_TRUE(offer.data(Qt::ToolTipRole).toString().contains(u"Offer.odt - Writer"_s));
    choose(kListShortTitles, false);
    EXPECT_EQ(shown(offer), u"Offer.odt - Writer"_s);
}

TEST_F(ListOptionsTest, whatIsCopiedAndFound_isTheWholeTitle) {
    account("Writer", 10, {{u"Offer.odt - Writer"_s, 5}, {u"Letter.odt - Writer"_s, 5}});
    show();
    table().expand(row("Writer"));
    select({row("Offer.odt - Writer", row("Writer"))});
    command(actions().copy);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains(u"Offer.odt - Writer"_s));
    command(actions().copyForSpreadsheet);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains(u"Offer.odt - Writer"_s));
    type("odt - wri");
    EXPECT_EQ(outlineText(), "+Writer(Letter.odt - Writer, Offer.odt - Writer)");
}

TEST_F(ListOptionsTest, aWindowAtTheTopOfAProject_isShownWithoutItsProgramToo) {
    account("Writer", 10, {{u"Offer.odt - Writer"_s, 5}, {u"Letter.odt - Writer"_s, 5}});
    addProject("Offers", {u"Offer.odt - Writer"_s});
    show();
    ProjectDesk::choose(1);
    EXPECT_EQ(shown(row("Offer.odt - Writer")), u"Offer.odt"_s);
}

TEST_F(ListPreferencesTest, eachChoiceOfTheLists_isStoredAndFollowsTheSettings) {
    setup.showPrefWindow();
    const std::pair<const char*, QString> choices[] = {{"listIcons", kListIcons},
                                                       {"listShareBars", kListShareBars},
                                                       {"listShortTitles", kListShortTitles},
                                                       {"listProjectTimes", kListProjectTimes}};
    for (const auto& [name, key] : choices) {
        auto* box = setup.prefWindow().findChild<QCheckBox*>(QLatin1String(name));
        ASSERT_NE(box, nullptr) << name;
        EXPECT_TRUE(box->isChecked()) << name;
        box->click();
        EXPECT_FALSE(fakes.defaults.boolForKey(key)) << name;
        fakes.defaults.setObject(key, true);
        EXPECT_TRUE(box->isChecked()) << name;
    }
}

namespace {

struct ListIconsTest : ListOptionsTest {
    ListIconsTest() {
        account("Mail", 60, {{u"Inbox"_s, 20}, {u"Sent"_s, 40}});
        account("Notes", 20);
        controller.setProgramIcons(icons);
    }

    void findIcons() {
        for (int turn = 0; turn < 20; ++turn) {
            table().viewport()->repaint();
            settle();
        }
    }

    std::optional<QPixmap> iconOf(const QModelIndex& row) { return table().dataCell(row).programIcon; }

    QStringList asked;
    ProgramIcons icons{[this](const QString& program) {
        asked << program;
        return std::optional<QString>();
    }};
};

} // namespace

TEST_F(ListIconsTest, programsHaveTheirIconsAndWindowsHaveNone) {
    EXPECT_TRUE(asked.isEmpty()) << "nothing is read before the rows are seen";
    show();
    table().expand(row("Mail"));
    findIcons();
    EXPECT_EQ(asked.size(), 2) << str(asked.join(u' '));
    const auto icon = iconOf(row("Mail"));
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->deviceIndependentSize(), QSizeF(16, 16));
    EXPECT_FALSE(iconOf(row("Inbox", row("Mail"))));
}

TEST_F(ListIconsTest, aRenamedOrFrozenProgram_keepsItsIcon) {
    show();
    const auto mail = table().itemAt(row("Mail"));
    mail->setRenamedNameFormatted({{kRecordName, u"Post"_s}});
    controller.branchNode(table().itemAt(row("Notes"))->node());
    settle();
    findIcons();
    EXPECT_EQ(QSet<QString>(asked.begin(), asked.end()), (QSet<QString>{u"Mail"_s, u"Notes"_s}));
}

TEST_F(ListIconsTest, switchedOff_noneIsShownOrRead) {
    fakes.defaults.setObject(kListIcons, false);
    show();
    findIcons();
    EXPECT_TRUE(asked.isEmpty());
    EXPECT_FALSE(iconOf(row("Mail")));
    choose(kListIcons, true);
    findIcons();
    EXPECT_EQ(asked.size(), 2);
}

TEST_F(ListIconsTest, theTraysMenu_hasThemToo) {
    show();
    StatusMenu& menu = controller.appDelegate().statusMenu();
    Q_EMIT menu.mainMenu().aboutToShow();
    Q_EMIT menu.applicationTimesMenu().aboutToShow();
    findIcons();
    menu.updateMenus();
    const QList<QAction*> entries = menu.applicationTimesMenu().actions();
    EXPECT_FALSE(entries.at(0)->icon().isNull());
    choose(kListIcons, false);
    menu.updateMenus();
    EXPECT_TRUE(entries.at(0)->icon().isNull());
}

TEST_F(ListOptionsTest, behindEachTime_thereIsABarAsLongAsItsShare) {
    account("Mail", 75, {{u"Inbox"_s, 50}, {u"Sent"_s, 25}});
    account("Notes", 25);
    show();
    table().expand(row("Mail"));
    const auto share = [&](const QModelIndex& row) {
        return row.siblingAtColumn(1).data(OutlineRole::Share).toDouble();
    };
    EXPECT_DOUBLE_EQ(share(row("Mail")), 0.75);
    EXPECT_DOUBLE_EQ(share(row("Inbox", row("Mail"))), 0.5);
    const QRect cell = table().visualRect(row("Notes").siblingAtColumn(1));
    // Left of the digits, inside the bar.
    const auto color = [&] {
        return table().viewport()->grab(cell).toImage().pixelColor(8, cell.height() / 2);
    };
    const QColor bar = color();
    choose(kListShareBars, false);
    EXPECT_NE(color(), bar);
    EXPECT_EQ(color(), table().palette().color(QPalette::Base));
}

TEST_F(ListOptionsTest, sharesFollowTheTimes) {
    account("Mail", 50);
    account("Notes", 50);
    show();
    front("Notes", "");
    controller.timer().startTimer();
    seconds(100.5);
    EXPECT_NEAR(row("Notes").siblingAtColumn(1).data(OutlineRole::Share).toDouble(), 0.75, 0.01);
}
