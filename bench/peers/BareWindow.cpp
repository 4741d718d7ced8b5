// SPDX-License-Identifier: MIT
// The least that any Qt program costs: an empty window.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Bare"));
    window.resize(400, 300);
    window.show();
    return QApplication::exec();
}
