// SPDX-License-Identifier: MIT
#include "interface/shell/QtAlerts.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

struct QtAlertsTest : testing::Test {
    // What asking answers when the person does that with the box.
    int answerTo(const std::function<void(QMessageBox&)>& act) {
        QTimer::singleShot(0, qApp, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            shown = box->text() + u'/' + box->informativeText();
            act(*box);
        });
        return alerts.ask({QStringLiteral("Really?"), QStringLiteral("It cannot be undone."),
                           QStringLiteral("Keep"), QStringLiteral("Delete"), QStringLiteral("Later"),
                           whenClosed});
    }

    int answerTo(const char* button) {
        return answerTo([&](QMessageBox& box) {
            for (QAbstractButton* each : box.buttons())
                if (each->text() == QLatin1String(button))
                    each->click();
        });
    }

    Alerts::Answer whenClosed = Alerts::Default;
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
