// SPDX-License-Identifier: MIT
// Draws a scalable picture in the usual sizes of icons: icons PICTURE.svg PLACE.png, where %1 stands for the
// size.
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    QSvgRenderer picture(arguments.value(1));
    if (arguments.size() != 3 || !picture.isValid()) {
        std::fputs("usage: icons PICTURE.svg PLACE.png, with %1 for the size\n", stderr);
        return EXIT_FAILURE;
    }
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        picture.render(&painter);
        painter.end();
        const QString place = QString(arguments[2]).replace(QLatin1String("%1"), QString::number(size));
        if (!QDir().mkpath(QFileInfo(place).path()) || !image.save(place)) {
            std::fprintf(stderr, "icons: %s could not be written\n", qPrintable(place));
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
