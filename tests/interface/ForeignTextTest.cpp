// SPDX-License-Identifier: MIT
// Names of windows, files and projects from outside, at every place where they are shown.
#include "Classes/store/AccountEntries.h"
#include "interface/mainwindow/ObstacleBar.h"
#include "interface/shell/PlainText.h"
#include "interface/shell/QtAlerts.h"
#include "interface/shell/StatusItem.h"
#include "interface/shell/TimerMenuItem.h"
#include "tests/interface/SetupDesk.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QProgressDialog>
#include <QTextDocument>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

const QString kMarkup = QStringLiteral("<b>x</b><img src=\"file:///dev/null\">");

QStringList hostileTexts() {
    return {kMarkup,
            QStringLiteral("&lt;b&gt; &amp; <i>") + kMarkup,
            QStringLiteral("&a"),
            QStringLiteral("_b & co."),
            QStringLiteral("\u202Emoc.elpmaxe\u2066 <u>"),
            QStringLiteral("one\ntwo <b>\tthree"),
            QStringLiteral("<h1>") + QString(10000, u'W')};
}

// What a person sees where Qt itself decides what is markup.
QString drawn(const QString& text) {
    if (!Qt::mightBeRichText(text))
        return text.simplified();
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText().simplified();
}

// What a person sees of a menu's entry.
QString withoutMnemonics(QString text) {
    for (qsizetype i = text.indexOf(u'&'); i >= 0; i = text.indexOf(u'&', i + 1))
        text.remove(i, 1);
    return text;
}

void expectDrawnAsItIs(const QString& tip, const QString& text) {
    EXPECT_EQ(str(drawn(tip)), str(PlainText::cut(text, PlainText::kLongestTip).simplified()));
}

struct ForeignTextTest : testing::Test, SetupDesk {
    ForeignTextTest() {
        PropertyListArray applications;
        int seconds = 1000;
        for (const QString& text : hostileTexts()) {
            const PropertyListDictionary record{{kRecordName, text}, {kRecordActiveTime, double(++seconds)}};
            applications.emplace_back(
                PropertyListDictionary{{kEntryApp, record}, {kEntryWindows, PropertyListArray{record}}});
            projects().setLabel(*projects().addNewProjectWithItems({}), text);
            giveRule(text, {{kRuleCategories, text}, {kRuleRename, text}, {kRuleEnableRename, true}});
        }
        controller.tracker().setArrayRepresentation(applications);
        show();
        setup.editRules();
        settle();
        table().expandAll();
    }

    ProjectList& projects() { return controller.projects(); }

    // Answers how many rows have a tip.
    static int expectPlainTips(const QAbstractItemModel& model, const QModelIndex& parent = {}) {
        int found = 0;
        for (int row = 0; row < model.rowCount(parent); ++row) {
            for (int column = 0; column < model.columnCount(parent); ++column) {
                const QModelIndex index = model.index(row, column, parent);
                if (const QVariant tip = index.data(Qt::ToolTipRole); tip.isValid()) {
                    ++found;
                    expectDrawnAsItIs(tip.toString(), index.data().toString());
                }
            }
            found += expectPlainTips(model, model.index(row, 0, parent));
        }
        return found;
    }

    // Everything that is or could be on the screen.
    static void expectPlainWidgets() {
        for (QWidget* widget : QApplication::allWidgets()) {
            const auto* label = qobject_cast<const QLabel*>(widget);
            if (label && label->text().contains(QLatin1String("src="))) {
                EXPECT_EQ(label->textFormat(), Qt::PlainText) << qPrintable(label->objectName());
            }
            if (widget->toolTip().contains(QLatin1String("src="))) {
                EXPECT_TRUE(drawn(widget->toolTip()).contains(QLatin1String("<img")))
                    << qPrintable(widget->objectName());
            }
            QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(widget);
            const QString description = heard ? heard->text(QAccessible::Description) : QString();
            EXPECT_FALSE(description.contains(QLatin1String("&lt;img"))) << qPrintable(widget->objectName());
        }
    }

    // Shows a box of `alerts` and checks it while it is open.
    template<class Show>
    void expectPlainBox(Show show) {
        const auto look = [] {
            for (QWidget* widget : QApplication::topLevelWidgets())
                if (auto* box = qobject_cast<QMessageBox*>(widget); box && box->isVisible()) {
                    EXPECT_TRUE(box->text().startsWith(QLatin1String("<b>")));
                    EXPECT_TRUE(box->informativeText().isEmpty() ||
                                box->informativeText().contains(QLatin1String("<img")));
                    EXPECT_LE(box->text().size(), PlainText::kLongestParagraph);
                    expectPlainWidgets();
                    box->close();
                    return true;
                }
            return false;
        };
        bool isSeen = false;
        QTimer::singleShot(0, qApp, [&] { isSeen = look(); });
        show();
        EXPECT_TRUE(QTest::qWaitFor([&] { return isSeen; })) << "no box came";
    }
};

} // namespace

TEST_F(ForeignTextTest, everyTipOfEveryRow_showsTheTextItself) {
    int found = 0;
    for (const QWidget* widget : QApplication::allWidgets())
        if (const auto* view = qobject_cast<const QAbstractItemView*>(widget); view && view->model())
            found += expectPlainTips(*view->model());
    // Applications with a window each, projects and rules.
    EXPECT_GE(found, 4 * hostileTexts().size());
}

TEST_F(ForeignTextTest, everyControl_showsTheTextItself) {
    setup.rulesTab().select(0);
    settle();
    press("editRule");
    controller.window().obstacleBar().showObstacle(kMarkup);
    setup.archiveTab().showDatabaseLocation(u'/' + kMarkup, false);
    for (const QString& text : hostileTexts())
        sheet().ruleCategories().setText(text);
    expectPlainWidgets();
    sheet().ruleCategories().setText(kMarkup);
    expectPlainWidgets();
}

TEST_F(ForeignTextTest, alertsOfEveryKind_showTheTextItself) {
    QtAlerts real;
    for (const QString& text : {kMarkup, QString(kMarkup + QString(10000, u'W'))}) {
        expectPlainBox([&] { real.showError(text, text); });
        expectPlainBox([&] { real.showNotice(text, text); });
        expectPlainBox([&] { real.showAbout(text, text + u'\n' + text); });
        expectPlainBox([&] { real.ask({text, text, QStringLiteral("Keep"), QStringLiteral("Go"), {}}); });
    }
    const auto progress = real.showProgress(kMarkup);
    progress->setDone(0.5);
    expectPlainWidgets();
}

TEST_F(ForeignTextTest, everyEntryOfAMenu_showsTheTextItself) {
    for (const QString& text : hostileTexts()) {
        EXPECT_EQ(str(withoutMnemonics(menuName(MenuForm::Drawn, text))),
                  str(PlainText::cut(text, PlainText::kLongestEntry)));
        EXPECT_LE(menuName(MenuForm::Exported, text).size(), 130);
    }
}

TEST_F(ForeignTextTest, theTipOfTheTrayIcon_holdsNoTags) {
    QMenu menu;
    StatusItem item(menu, [] {});
    item.setTip(kMarkup);
    EXPECT_EQ(str(item.tip()), "‹b›x‹/b›‹img src=\"file:///dev/null\"›");
}

TEST(PlainText, aLongText_isCutBetweenCharacters) {
    EXPECT_EQ(PlainText::cut(QStringLiteral("abc"), 3), QStringLiteral("abc"));
    EXPECT_EQ(PlainText::cut(QStringLiteral("abcd"), 3), QStringLiteral("ab…"));
    EXPECT_EQ(PlainText::cut(QStringLiteral("a\U0001F600cd"), 3), QStringLiteral("a…"));
}
