// SPDX-License-Identifier: MIT
#include <QApplication>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Ticklog"));
    QApplication::setApplicationVersion(QStringLiteral(TICKLOG_VERSION));
    return QApplication::exec();
}
