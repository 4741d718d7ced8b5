// SPDX-License-Identifier: MIT
#include "interface/shell/QtAlerts.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

struct QtAlertsTest : testing::Test {
    // The answer when the person does this with the box.
    int answerTo(const std::function<void(QMessageBox&)>& act) {
        QTimer::singleShot(0, qApp, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            shown = box->text() + u'/' + box->informativeText();
            act(*box);
        });
        return alerts.ask({QStringLiteral("Really?"), QStringLiteral("It cannot be undone."),
                           QStringLiteral("Keep"), QStringLiteral("Delete"), QStringLiteral("Later"),
                           whenClosed,
                           [this](std::function<void()> closing) { close = std::move(closing); }});
    }

    int answerTo(const char* button) {
        return answerTo([&](QMessageBox& box) {
            for (QAbstractButton* each : box.buttons())
                if (each->text() == QLatin1String(button))
                    each->click();
        });
    }

    Alerts::Answer whenClosed = Alerts::Default;
    std::function<void()> close;
    QtAlerts alerts;
    QString shown;
};

} // namespace

TEST_F(QtAlertsTest, eachButton_isAnAnswer) {
    EXPECT_EQ(answerTo("Keep"), Alerts::Default);
    EXPECT_EQ(answerTo("Delete"), Alerts::Alternate);
    EXPECT_EQ(answerTo("Later"), Alerts::Other);
    EXPECT_EQ(shown, QStringLiteral("Really?/It cannot be undone."));
}

TEST_F(QtAlertsTest, escapeAndReturn_changeNothing) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return})
        EXPECT_EQ(answerTo([key](QMessageBox& box) { QTest::keyClick(&box, key); }), Alerts::Default);
}

TEST_F(QtAlertsTest, aClosedBox_changesNothing) {
    EXPECT_EQ(answerTo([](QMessageBox& box) { box.close(); }), Alerts::Default);
}

TEST_F(QtAlertsTest, aQuestionThatWhoeverAskedItCloses_changesNothing) {
    for (const Alerts::Answer closed : {Alerts::Default, Alerts::Alternate}) {
        whenClosed = closed;
        EXPECT_EQ(answerTo([this](QMessageBox& box) {
                      bool isAnotherOpen = false;
                      alerts.ask({QStringLiteral("Quit?"),
                                  {},
                                  QStringLiteral("Stay"),
                                  QStringLiteral("Quit"),
                                  {},
                                  Alerts::Default,
                                  [&](const auto&) { isAnotherOpen = true; }});
                      EXPECT_FALSE(isAnotherOpen) << "it cannot close what did not come";
                      close();
                      EXPECT_FALSE(box.isVisible());
                  }),
                  closed);
    }
}

TEST_F(QtAlertsTest, aQuestionWhoseDefaultButtonActs_isClosedByTheOther) {
    whenClosed = Alerts::Alternate;
    EXPECT_EQ(answerTo([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); }), Alerts::Default);
    EXPECT_EQ(answerTo([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }), Alerts::Alternate);
    EXPECT_EQ(answerTo([](QMessageBox& box) { box.close(); }), Alerts::Alternate);
    EXPECT_EQ(answerTo([](QMessageBox& box) { box.done(QDialog::Rejected); }), Alerts::Alternate);
    for (const auto& [button, answer] :
         {std::pair("Keep", Alerts::Default), std::pair("Delete", Alerts::Alternate),
          std::pair("Later", Alerts::Other)})
        EXPECT_EQ(answerTo(button), answer) << button;
}

TEST_F(QtAlertsTest, aSecondQuestion_bringsTheFirstToTheFrontAndChangesNothing) {
    QtAlerts ofAnotherWindow(alerts);
    const QtAlerts::Question quit{QStringLiteral("Quit?"), {}, QStringLiteral("Stay"),
                                  QStringLiteral("Quit"),  {}, Alerts::Default};
    QWidget other;
    const int first = answerTo([&](QMessageBox& box) {
        other.show();
        other.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
        for (QtAlerts* asking : {&alerts, &ofAnotherWindow}) {
            EXPECT_EQ(asking->ask(quit), Alerts::Default);
            EXPECT_EQ(QApplication::activeModalWidget(), &box) << "none lies over it";
        }
        EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
        for (QAbstractButton* each : box.buttons())
            if (each->text() == QLatin1String("Delete"))
                each->click();
    });
    EXPECT_EQ(first, Alerts::Alternate);
    EXPECT_EQ(answerTo("Delete"), Alerts::Alternate) << "the next one is asked again";
}

TEST_F(QtAlertsTest, whatWaitsForItsTurn_comesInItsOrderWhenTheQuestionIsAnswered) {
    QStringList came;
    alerts.whenFree([&] { came << QStringLiteral("at once"); });
    answerTo([&](QMessageBox& box) {
        alerts.whenFree([&] {
            came << QStringLiteral("first");
            answerTo([](QMessageBox& next) { next.close(); });
        });
        QtAlerts(alerts).whenFree([&] { came << QStringLiteral("second"); });
        EXPECT_EQ(came.size(), 1);
        box.close();
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return came.size() == 3; }));
    EXPECT_EQ(came.join(u' '), QStringLiteral("at once first second"));
}

TEST_F(QtAlertsTest, aQuestionWhileAFileIsChosen_bringsThePanelToTheFront) {
    QTimer::singleShot(0, qApp, [&] {
        auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(panel, nullptr);
        EXPECT_EQ(alerts.ask({QStringLiteral("Quit?"),
                              {},
                              QStringLiteral("Stay"),
                              QStringLiteral("Quit"),
                              {},
                              Alerts::Default}),
                  Alerts::Default);
        EXPECT_EQ(alerts.chooseFolder(QStringLiteral("Another"), {}), std::nullopt);
        EXPECT_EQ(QApplication::activeModalWidget(), panel);
        panel->reject();
    });
    EXPECT_EQ(alerts.chooseOpenFile(QStringLiteral("Import"), QDir::tempPath()), std::nullopt);
}

TEST_F(QtAlertsTest, workThatIsDone_endsTheWaitingUnseen) {
    double done = 0;
    EXPECT_TRUE(alerts.waitFor(QStringLiteral("Importing…"), [&] {
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        return done += 0.25;
    }));
}

TEST_F(QtAlertsTest, workThatTakesLong_isShownAndGivenUpByEscape) {
    const QString message = QStringLiteral("Importing…");
    bool isSeen = false;
    EXPECT_FALSE(alerts.waitFor(message, [&] {
        auto* panel = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
        // Escape is a shortcut, which only an active window receives.
        if (panel && panel->isActiveWindow() && !isSeen) {
            isSeen = true;
            EXPECT_EQ(panel->accessibleName(), message);
            EXPECT_EQ(panel->findChild<QProgressBar*>()->accessibleName(), message);
            const auto* cancel = panel->findChild<QPushButton*>();
            EXPECT_EQ(cancel->text(), QStringLiteral("Cancel"));
            EXPECT_NE(cancel->focusPolicy() & Qt::TabFocus, 0);
            EXPECT_EQ(alerts.ask({{}, {}, {}, {}, {}, Alerts::Alternate}), Alerts::Alternate)
                << "one at a time";
            QTest::keyClick(panel, Qt::Key_Escape);
        }
        return 0.3;
    }));
    EXPECT_TRUE(isSeen);
}

TEST_F(QtAlertsTest, aPanelThatIsPutAwayInAnotherWay_givesUpAsWell) {
    EXPECT_FALSE(alerts.waitFor(QStringLiteral("Importing…"), [&] {
        if (auto* panel = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget()))
            panel->reject();
        return 0.3;
    }));
}

TEST_F(QtAlertsTest, theProgramEnding_endsTheWaiting) {
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
    EXPECT_FALSE(alerts.waitFor(QStringLiteral("Importing…"), [] { return 0.3; }));
}
