// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QWidget>

#include <cstdio>

// Draws a widget into a file of this name.
inline void grab(QWidget& widget, const QDir& folder, const char* name) {
    QCoreApplication::processEvents();
    const QString path = folder.filePath(QLatin1String(name) + QStringLiteral(".png"));
    widget.grab().save(path);
    std::printf("%s\n", qPrintable(path));
}
