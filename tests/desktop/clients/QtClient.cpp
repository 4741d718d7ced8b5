// SPDX-License-Identifier: MIT
// A Qt program with windows that does as it is told, line by line on standard input:
//   open TITLE, title NUMBER TITLE, activate NUMBER, await NUMBER, close NUMBER
// Windows are numbered from 0 in the order in which they were opened. Says "ok" when it has obeyed; when it
// awaits a window, as soon as this has the focus. Its last argument, if any, is the name of a desktop entry,
// which its windows then bear.
#include <QApplication>
#include <QSocketNotifier>
#include <QTextStream>
#include <QWidget>
#include <QWindow>

#include <cstdio>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

namespace {

std::vector<std::unique_ptr<QWidget>> windows;
const QWidget* awaited = nullptr;

void sayOk() {
    std::cout << "ok" << std::endl;
}

void lookForAwaited() {
    if (awaited && awaited->windowHandle() == QGuiApplication::focusWindow()) {
        awaited = nullptr;
        sayOk();
    }
}

void obey(const QString& line) {
    const QString command = line.section(u' ', 0, 0);
    if (command == QLatin1String("open")) {
        windows.push_back(std::make_unique<QWidget>());
        windows.back()->setWindowTitle(line.section(u' ', 1));
        windows.back()->resize(200, 100);
        windows.back()->show();
        sayOk();
        return;
    }
    auto& window = windows.at(line.section(u' ', 1, 1).toUInt());
    if (command == QLatin1String("await")) {
        awaited = window.get();
        lookForAwaited();
        return;
    }
    if (command == QLatin1String("title")) {
        window->setWindowTitle(line.section(u' ', 2));
    } else if (command == QLatin1String("activate")) {
        window->raise();
        window->activateWindow();
    } else if (command == QLatin1String("close")) {
        window.reset();
    }
    sayOk();
}

} // namespace

int main(int argc, char** argv) {
    if (argc > 1) {
        const QString name = QString::fromLocal8Bit(argv[argc - 1]);
        QGuiApplication::setDesktopFileName(name);
        // The name by which an X server knows it.
        QCoreApplication::setApplicationName(name);
    }
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QSocketNotifier input(fileno(stdin), QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [] {
        std::string line;
        if (!std::getline(std::cin, line))
            return QApplication::quit();
        obey(QString::fromStdString(line));
    });
    QObject::connect(&application, &QGuiApplication::focusWindowChanged, &application, lookForAwaited);
    return QApplication::exec();
}
