// SPDX-License-Identifier: MIT
#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    qputenv("TZ", "UTC");
    // Widgets need no screen unless a test is about the screen.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
